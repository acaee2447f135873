#include "base/AppSettings.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// The client's settings file.
class TestAppSettings : public QObject
{
    Q_OBJECT

private slots:
    void missingFile();
    void readsTheGroup();
    void writesAtOnce();
    void seesChangesMadeByHand();
    void malformedFile();
    void unwritableFile();

private:
    static void write(const QString &path, const QByteArray &content);
};

void TestAppSettings::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void TestAppSettings::missingFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config/config.ini"));
    QVERIFY(!AppSettings(path).value(QStringLiteral("WebDebug")).isValid());
    QCOMPARE(AppSettings(path).value(QStringLiteral("WebDebug"), 7).toInt(), 7);
    QVERIFY(!QFileInfo::exists(path));
}

void TestAppSettings::readsTheGroup()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config.ini"));
    write(path, "WebDebug=false\n[config]\nWebDebug=true\n[other]\nWebDebug=false\n");
    QVERIFY(AppSettings(path).value(QStringLiteral("WebDebug")).toBool());
}

void TestAppSettings::writesAtOnce()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config/config.ini"));
    const QString text = QStringLiteral("{\"name\": \"\u65b9\u6848, [1]\"}");
    AppSettings settings(path);
    QVERIFY(settings.setValue(QStringLiteral("keyboardmap_config"), text));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("[config]\nkeyboardmap_config="));
    QCOMPARE(AppSettings(path).value(QStringLiteral("keyboardmap_config")).toString(), text);
}

void TestAppSettings::seesChangesMadeByHand()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config.ini"));
    write(path, "[config]\nWebDebug=false\n");
    QVERIFY(!AppSettings(path).value(QStringLiteral("WebDebug")).toBool());
    write(path, "[config]\nWebDebug=true\n");
    QVERIFY(AppSettings(path).value(QStringLiteral("WebDebug")).toBool());
}

void TestAppSettings::malformedFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config.ini"));
    write(path, "[config\nno sense here\n");
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(
            QStringLiteral("^the settings file could not be read: .*config.ini \\(malformed\\)$")));
    QVERIFY(!AppSettings(path).value(QStringLiteral("WebDebug")).toBool());
}

void TestAppSettings::unwritableFile()
{
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("config")), "a file where the folder should be");
    const QString path = dir.filePath(QStringLiteral("config/config.ini"));
    AppSettings settings(path);
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(QStringLiteral("^the settings file could not be written: .*\\(no access\\)$")));
    QVERIFY(!settings.setValue(QStringLiteral("WebDebug"), true));
}

QTEST_GUILESS_MAIN(TestAppSettings)
#include "tst_appsettings.moc"
