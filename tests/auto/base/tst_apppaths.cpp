#include "base/AppPaths.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

// Where the client's files stand.
class TestAppPaths : public QObject
{
    Q_OBJECT

private slots:
    void underTheDataLocation();
};

void TestAppPaths::underTheDataLocation()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString dataDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY(QFileInfo(dataDir).isAbsolute());
    QCOMPARE(AppPaths::dataDir(), dataDir);
    QCOMPARE(AppPaths::logDir(), dataDir + "/log");
    QCOMPARE(AppPaths::dumpDir(), dataDir + "/dump");
    QCOMPARE(AppPaths::pendingDir(), dataDir + "/pending");
    QCOMPARE(AppPaths::settingsFile(), dataDir + "/config/config.ini");
}

QTEST_GUILESS_MAIN(TestAppPaths)
#include "tst_apppaths.moc"
