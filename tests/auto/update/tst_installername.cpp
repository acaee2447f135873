#include "update/InstallerName.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

namespace {

QJsonArray files(const QStringList &names)
{
    QJsonArray array;
    for (const QString &name : names)
        array.append(QJsonObject{{QStringLiteral("file_name"), name}});
    return array;
}

} // namespace

class TestInstallerName : public QObject
{
    Q_OBJECT

private slots:
    void chosen_data();
    void chosen();
    void whatIsNoFileIsPassedOver();
    void namesThatLeadElsewhereAreIgnored_data();
    void namesThatLeadElsewhereAreIgnored();
};

void TestInstallerName::chosen_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("chosen");
    const QString one = QStringLiteral("Orvane_Setup_1.3.0.exe");
    const QString other = QStringLiteral("Orvane_Setup_1.2.9.exe");
    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("the only one") << QStringList{one} << one;
    QTest::newRow("the last one") << QStringList{one, other} << other;
    QTest::newRow("the last that matches") << QStringList{one, QStringLiteral("readme.txt")} << one;
    QTest::newRow("shortest") << QStringList{QStringLiteral("Orvane_Setup.exe")}
                              << QStringLiteral("Orvane_Setup.exe");
    QTest::newRow("with a blank") << QStringList{QStringLiteral("Orvane_Setup 1.exe")}
                                  << QStringLiteral("Orvane_Setup 1.exe");
    QTest::newRow("other case at the start")
        << QStringList{QStringLiteral("orvane_setup_1.exe")} << QString();
    QTest::newRow("other case at the end") << QStringList{QStringLiteral("Orvane_Setup_1.EXE")} << QString();
    QTest::newRow("something before") << QStringList{QStringLiteral("XOrvane_Setup_1.exe")} << QString();
    QTest::newRow("something after") << QStringList{QStringLiteral("Orvane_Setup_1.exe.blockmap")}
                                     << QString();
}

void TestInstallerName::chosen()
{
    QFETCH(QStringList, names);
    QFETCH(QString, chosen);
    QCOMPARE(installerNameIn(files(names)), chosen);
}

void TestInstallerName::whatIsNoFileIsPassedOver()
{
    QJsonArray array = files({QStringLiteral("Orvane_Setup_1.exe")});
    array.append(QJsonValue());
    array.append(QStringLiteral("Orvane_Setup_2.exe"));
    array.append(QJsonObject{{QStringLiteral("name"), QStringLiteral("Orvane_Setup_3.exe")}});
    array.append(QJsonObject{{QStringLiteral("file_name"), 4}});
    array.append(QJsonArray{QStringLiteral("Orvane_Setup_5.exe")});
    QCOMPARE(installerNameIn(array), QStringLiteral("Orvane_Setup_1.exe"));
}

void TestInstallerName::namesThatLeadElsewhereAreIgnored_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << QStringLiteral("Orvane_Setup/evil.exe");
    QTest::newRow("parent") << QStringLiteral("Orvane_Setup/../../evil.exe");
    QTest::newRow("backslash") << QStringLiteral("Orvane_Setup\\..\\evil.exe");
    QTest::newRow("two dots") << QStringLiteral("Orvane_Setup..exe");
    QTest::newRow("drive") << QStringLiteral("Orvane_SetupC:evil.exe");
    QTest::newRow("line break") << QStringLiteral("Orvane_Setup\n.exe");
    QTest::newRow("null") << QStringLiteral("Orvane_Setup") + QChar(QChar::Null) + QStringLiteral(".exe");
}

void TestInstallerName::namesThatLeadElsewhereAreIgnored()
{
    QFETCH(QString, name);
    const QRegularExpression line(
        QStringLiteral("^ignored a file of the release, its name is not just a file name: \"Orvane_Setup"));
    QTest::ignoreMessage(QtWarningMsg, line);
    QCOMPARE(installerNameIn(files({name})), QString());
    // One before it is still there to be chosen.
    QTest::ignoreMessage(QtWarningMsg, line);
    QCOMPARE(installerNameIn(files({QStringLiteral("Orvane_Setup_1.exe"), name})),
        QStringLiteral("Orvane_Setup_1.exe"));
}

QTEST_GUILESS_MAIN(TestInstallerName)
#include "tst_installername.moc"
