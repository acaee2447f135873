#include "update/InstallerStart.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestInstallerStart : public QObject
{
    Q_OBJECT

private slots:
    void startsWholePath_data();
    void startsWholePath();
    void whatCannotStartIsLogged();
};

void TestInstallerStart::startsWholePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << QStringLiteral("plain/Orvane_Setup_1.exe");
    QTest::newRow("blanks") << QStringLiteral("John  Doe's files/Orvane_Setup 1.exe");
    QTest::newRow("quotes") << QStringLiteral("\"quoted\" \"\"\"/Orvane_Setup.exe");
    QTest::newRow("other letters") << QStringLiteral("用户/Orvane_Setup_é.exe");
}

// What was downloaded has no permission to be executed, and gets no arguments.
void TestInstallerStart::startsWholePath()
{
    QFETCH(QString, path);
    const QTemporaryDir dir;
    const QString mark = dir.filePath(QStringLiteral("mark"));
    const QString installer = dir.filePath(path);
    QVERIFY(QDir().mkpath(QFileInfo(installer).path()));
    QFile file(installer);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\nprintf '%s arguments' \"$#\" >'" + mark.toUtf8() + ".new'\nmv '" + mark.toUtf8()
        + ".new' '" + mark.toUtf8() + "'\n");
    file.close();
    QVERIFY(!file.permissions().testFlag(QFile::ExeOwner));
    QTest::ignoreMessage(QtInfoMsg, qPrintable(QStringLiteral("started the installer %1").arg(installer)));
    QVERIFY(startInstaller(installer));
    QTRY_VERIFY(QFile::exists(mark));
    QFile left(mark);
    QVERIFY(left.open(QIODevice::ReadOnly));
    QCOMPARE(left.readAll(), QByteArray("0 arguments"));
}

void TestInstallerStart::whatCannotStartIsLogged()
{
    const QTemporaryDir dir;
    for (const QString &path : {dir.filePath(QStringLiteral("missing.exe")), dir.path() + QLatin1Char('/')}) {
        QTest::ignoreMessage(
            QtWarningMsg, qPrintable(QStringLiteral("the installer did not start: %1").arg(path)));
        QVERIFY(!startInstaller(path));
    }
}

QTEST_GUILESS_MAIN(TestInstallerStart)
#include "tst_installerstart.moc"
