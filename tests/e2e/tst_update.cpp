#include "UpdateFixture.h"

#include "base/AppPaths.h"
#include "update/OvUpdateDialog.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>

using e2e::LogCapture;
using e2e::ReleaseFiles;
using e2e::waitUntil;

namespace {
const QString installer = QStringLiteral("Orvane_Setup_1.3.0.exe");
} // namespace

// The update dialog and the real service that publishes the release.
class TestUpdate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_service.reset(); }
    void init();
    void cleanup();

    void freshDownload();
    void verifiedInstallerIsUsedWithoutADownload();
    void otherInstallersAreDeletedWithOneThatDiffers();
    void damagedDownloadIsReplacedNextTime();
    void barBeginsAtSixPercent_data();
    void barBeginsAtSixPercent();
    void noNameMatches();
    void lastMatchingNameWins();
    void namesThatLeadElsewhere();
    void renameThatFails();
    void leftoversOfAnEarlierRun();
    void breakingOffAndStartingAgain();
    void brokenOffIsNeverTakenForWhole();
    void stallingHalfWay();
    void descriptionThatIsMissing();
    void descriptionThatIsMalformed();
    void serviceThatIsGone();

private:
    QString pending(const QString &name) const { return m_pending + QLatin1Char('/') + name; }
    QString part() const { return pending(QStringLiteral("temp_%1.part").arg(installer)); }
    // A new dialog that gets what the service offers.
    void start();
    void start(const QString &updatePath, const QJsonArray &fileInfo);
    bool isReady() const;
    void waitForReady() const
    {
        waitUntil(QStringLiteral("the installer is ready"), [this] { return isReady(); });
    }
    void waitForLine(const QString &begin) const
    {
        waitUntil(
            QStringLiteral("the log has '%1'").arg(begin), [&] { return LogCapture::hasLineFrom(begin); });
    }
    int packageRequests() const { return ReleaseFiles::requests(*m_service, installer); }

    QTemporaryDir m_home;
    QString m_pending;
    std::unique_ptr<e2e::Service> m_service;
    QJsonObject m_identity; // of a sign-in, which takes long
    std::unique_ptr<ReleaseFiles> m_release;
    std::unique_ptr<LogCapture> m_log;
    QByteArray m_bytes;
    QPointer<OvUpdateDialog> m_dialog;
};

void TestUpdate::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_home.path().toUtf8());
    m_pending = AppPaths::pendingDir();
    QVERIFY(m_pending.startsWith(m_home.path()));
    e2e::steps([&] {
        m_service = std::make_unique<e2e::Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
        m_identity = m_service->signIn();
        m_bytes = e2e::randomBytes(1'000'000, 1);
    });
}

void TestUpdate::init()
{
    e2e::steps([&] {
        m_release = std::make_unique<ReleaseFiles>();
        m_release->add(installer, m_bytes);
        m_release->publish(*m_service);
        ReleaseFiles::setFaults(*m_service, {});
    });
    m_log = std::make_unique<LogCapture>();
}

void TestUpdate::cleanup()
{
    delete m_dialog;
    const QStringList lines = LogCapture::text();
    m_log.reset();
    if (QTest::currentTestFailed())
        qInfo().noquote() << lines.join(QLatin1Char('\n'));
    QVERIFY(QDir(m_pending).removeRecursively());
}

void TestUpdate::start(const QString &updatePath, const QJsonArray &fileInfo)
{
    delete m_dialog;
    m_dialog = new OvUpdateDialog;
    m_dialog->show();
    m_dialog->updateNewVersion(updatePath, fileInfo);
}

void TestUpdate::start()
{
    const QJsonObject info = ReleaseFiles::updateInfo(*m_service, m_identity);
    start(info.value(QLatin1String("update_path")).toString(),
        info.value(QLatin1String("file_info")).toArray());
}

bool TestUpdate::isReady() const
{
    return m_dialog->findChild<QPushButton *>(QStringLiteral("confirmButton"))->isVisible();
}

void TestUpdate::freshDownload()
{
    e2e::steps([&] {
        start();
        waitForReady();
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QVERIFY(!QFile::exists(part()));
        QCOMPARE(packageRequests(), 1);
        QSignalSpy chosen(m_dialog, &OvUpdateDialog::sigInstallNewVersionApp);
        m_dialog->onConfirmBtnClicked();
        QCOMPARE(chosen.value(0), (QVariantList{pending(installer), false}));
    });
}

void TestUpdate::verifiedInstallerIsUsedWithoutADownload()
{
    e2e::steps([&] {
        e2e::writeFile(pending(installer), m_bytes);
        e2e::writeFile(pending(QStringLiteral("Orvane_Setup_1.2.0.exe")), "old");
        start();
        waitForReady();
        QCOMPARE(packageRequests(), 0);
        QCOMPARE(ReleaseFiles::requests(*m_service, QStringLiteral("latest.yml")), 1);
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QVERIFY(QFile::exists(pending(QStringLiteral("Orvane_Setup_1.2.0.exe"))));
    });
}

void TestUpdate::otherInstallersAreDeletedWithOneThatDiffers()
{
    e2e::steps([&] {
        QByteArray other = m_bytes;
        other[500'000] = static_cast<char>(other[500'000] ^ 1);
        e2e::writeFile(pending(installer), other);
        e2e::writeFile(pending(QStringLiteral("Orvane_Setup_1.2.0.exe")), "old");
        e2e::writeFile(pending(QStringLiteral("something.exe")), "else");
        e2e::writeFile(pending(QStringLiteral("temp_Orvane_Setup_1.2.0.exe.part")), "broken off");
        e2e::writeFile(pending(QStringLiteral("notes.txt")), "stays");
        ReleaseFiles::setFaults(*m_service,
            {{QStringLiteral("file"), installer}, {QStringLiteral("stall_after"), 1000},
                {QStringLiteral("stall_ms"), 600'000}});
        start();
        waitUntil(
            QStringLiteral("the first bytes are there"), [&] { return QFileInfo(part()).size() == 1000; });
        QCOMPARE(QDir(m_pending).entryList(QDir::Files, QDir::Name),
            (QStringList{
                QStringLiteral("latest.yml"), QStringLiteral("notes.txt"), QFileInfo(part()).fileName()}));
        ReleaseFiles::setFaults(*m_service, {});
        start();
        waitForReady();
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QVERIFY(QFile::exists(pending(QStringLiteral("notes.txt"))));
    });
}

void TestUpdate::damagedDownloadIsReplacedNextTime()
{
    e2e::steps([&] {
        ReleaseFiles::setFaults(
            *m_service, {{QStringLiteral("file"), installer}, {QStringLiteral("corrupt"), true}});
        start();
        waitForReady();
        QVERIFY(e2e::readFile(pending(installer)) != m_bytes);
        QVERIFY(LogCapture::hasLineFrom(
            QStringLiteral("the downloaded installer differs from the digest in latest.yml:")));
        ReleaseFiles::setFaults(*m_service, {});
        start();
        waitForReady();
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QCOMPARE(packageRequests(), 2);
    });
}

void TestUpdate::barBeginsAtSixPercent_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("shown");
    QTest::newRow("5 %") << 59'999 << 0;
    QTest::newRow("6 %") << 69'999 << 6;
}

// Slowly: the network layer mentions the progress ten times a second, and is here within a percent of the
// end.
void TestUpdate::barBeginsAtSixPercent()
{
    QFETCH(int, bytes);
    QFETCH(int, shown);
    e2e::steps([&] {
        ReleaseFiles::setFaults(*m_service,
            {{QStringLiteral("file"), installer}, {QStringLiteral("kbit_per_s"), 400},
                {QStringLiteral("stall_after"), bytes}, {QStringLiteral("stall_ms"), 600'000}});
        start();
        const auto *bar = m_dialog->findChild<QProgressBar *>();
        QSignalSpy changes(bar, &QProgressBar::valueChanged);
        waitUntil(QStringLiteral("the bytes are there"), [&] { return QFileInfo(part()).size() == bytes; });
        waitUntil(QStringLiteral("the bar shows them"), [&] { return bar->value() == shown; });
        QCOMPARE(changes.size(), shown == 0 ? 0 : 1);
        QVERIFY(!isReady());
    });
}

void TestUpdate::noNameMatches()
{
    e2e::steps([&] {
        start(m_service->apiBaseUrl() + QStringLiteral("/release"),
            {QJsonObject{{QStringLiteral("file_name"), QStringLiteral("orvane_setup_1.3.0.exe")}},
                QJsonObject{{QStringLiteral("file_name"), QStringLiteral("Orvane_Setup_1.3.0.zip")}}});
        waitForLine(QStringLiteral("download package failed!\nresponse data -->"));
        QVERIFY(LogCapture::hasLine(QStringLiteral("_getFileHash file open error.")));
        QVERIFY(!isReady());
        QCOMPARE(QDir(m_pending).entryList(QDir::Files), QStringList{QStringLiteral("latest.yml")});
        QCOMPARE(packageRequests(), 0);
    });
}

void TestUpdate::lastMatchingNameWins()
{
    e2e::steps([&] {
        const QByteArray later = e2e::randomBytes(5000, 2);
        m_release->add(QStringLiteral("Orvane_Setup_1.4.0.exe"), later);
        m_release->add(QStringLiteral("readme.txt"), "read me");
        m_release->publish(*m_service);
        start();
        waitForReady();
        QCOMPARE(packageRequests(), 0);
        QCOMPARE(e2e::readFile(pending(QStringLiteral("Orvane_Setup_1.4.0.exe"))), later);
        QVERIFY(!LogCapture::hasLineFrom(QStringLiteral("the downloaded installer differs")));
    });
}

void TestUpdate::namesThatLeadElsewhere()
{
    e2e::steps([&] {
        QJsonArray fileInfo{QJsonObject{{QStringLiteral("file_name"), installer}}};
        for (const char *name : {"Orvane_Setup/../../../evil.exe", "Orvane_Setup\\..\\evil.exe",
                 "Orvane_SetupC:\\evil.exe", "Orvane_Setup/evil.exe"})
            fileInfo.append(QJsonObject{{QStringLiteral("file_name"), QLatin1String(name)}});
        start(m_service->apiBaseUrl() + QStringLiteral("/release"), fileInfo);
        waitForReady();
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QCOMPARE(QDir(m_pending).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
            (QStringList{installer, QStringLiteral("latest.yml")}));
        QCOMPARE(QDir(AppPaths::dataDir()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("pending")});
        QVERIFY(LogCapture::hasLine(
            QStringLiteral("ignored a file of the release, its name is not just a file name: "
                           "\"Orvane_Setup/evil.exe\"")));
    });
}

// A folder has the installer's name.
void TestUpdate::renameThatFails()
{
    e2e::steps([&] {
        e2e::writeFile(pending(installer) + QStringLiteral("/file"), "in the way");
        start();
        waitForReady();
        QVERIFY(LogCapture::hasLine(QStringLiteral("_getFileHash file open error.")));
        QVERIFY(LogCapture::hasLine(QStringLiteral("文件权限异常")));
        QCOMPARE(e2e::readFile(part()), m_bytes);
    });
}

void TestUpdate::leftoversOfAnEarlierRun()
{
    e2e::steps([&] {
        e2e::writeFile(part(), e2e::randomBytes(2'000'000, 3));
        e2e::writeFile(pending(QStringLiteral("latest.yml")), "version: 1.0.0\nsha512: old\n");
        start();
        waitForReady();
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QVERIFY(!QFile::exists(part()));
        // And so it is found by the next run.
        start();
        waitForReady();
        QCOMPARE(packageRequests(), 1);
    });
}

void TestUpdate::breakingOffAndStartingAgain()
{
    e2e::steps([&] {
        ReleaseFiles::setFaults(
            *m_service, {{QStringLiteral("file"), installer}, {QStringLiteral("break_off_after"), 500'000}});
        start();
        waitForLine(QStringLiteral("download package failed!\nresponse data -->"));
        QVERIFY(!isReady());
        QVERIFY(m_dialog->findChild<QLabel *>(QStringLiteral("downloadingLabel"))->isVisible());
        QVERIFY(!QFile::exists(pending(installer)));
        waitUntil(QStringLiteral("what has come is written"), [&] { return QFileInfo(part()).size() > 0; });

        ReleaseFiles::setFaults(*m_service, {});
        start();
        waitForReady();
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
        QVERIFY(!QFile::exists(part()));
    });
}

// The network layer sometimes takes the end of the connection for the end of the file.
void TestUpdate::brokenOffIsNeverTakenForWhole()
{
    e2e::steps([&] {
        m_release->add(installer, m_bytes + m_bytes + m_bytes + m_bytes + m_bytes);
        m_release->publish(*m_service);
        const QString failed = QStringLiteral("download package failed!\nresponse data -->");
        const QJsonObject info = ReleaseFiles::updateInfo(*m_service, m_identity);
        for (int bytes = 0; bytes < 5'000'000; bytes += 480'007) {
            ReleaseFiles::setFaults(*m_service,
                {{QStringLiteral("file"), installer}, {QStringLiteral("break_off_after"), bytes}});
            m_log.reset();
            m_log = std::make_unique<LogCapture>();
            start(info.value(QLatin1String("update_path")).toString(),
                info.value(QLatin1String("file_info")).toArray());
            waitForLine(failed);
            QVERIFY(!isReady());
            QVERIFY(!QFile::exists(pending(installer)));
        }
    });
}

void TestUpdate::stallingHalfWay()
{
    e2e::steps([&] {
        ReleaseFiles::setFaults(*m_service,
            {{QStringLiteral("file"), installer}, {QStringLiteral("stall_after"), 500'000},
                {QStringLiteral("stall_ms"), 400}});
        start();
        m_dialog->setStallTime(std::chrono::milliseconds(100));
        waitForReady();
        QVERIFY(
            LogCapture::hasLineFrom(QStringLiteral("the update's download has stalled, no data for 0.1 s:")));
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
    });
}

void TestUpdate::descriptionThatIsMissing()
{
    e2e::steps([&] {
        e2e::writeFile(pending(installer), m_bytes);
        start(m_service->apiBaseUrl() + QStringLiteral("/nowhere"),
            {QJsonObject{{QStringLiteral("file_name"), installer}}});
        waitForLine(QStringLiteral("download latest.yml failed!\nresponse data -->"));
        QVERIFY(!isReady());
        QCOMPARE(packageRequests(), 0);
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
    });
}

void TestUpdate::descriptionThatIsMalformed()
{
    e2e::steps([&] {
        e2e::writeFile(pending(installer), m_bytes);
        m_release->add(QStringLiteral("latest.yml"), "version: [1\nsha512: }\n");
        m_release->publish(*m_service);
        start();
        waitForReady();
        QVERIFY(LogCapture::hasLineFrom(QStringLiteral("latest.yml cannot be understood:")));
        QCOMPARE(packageRequests(), 1);
        QCOMPARE(e2e::readFile(pending(installer)), m_bytes);
    });
}

void TestUpdate::serviceThatIsGone()
{
    e2e::steps([&] {
        start(QStringLiteral("http://127.0.0.1:1/release"),
            {QJsonObject{{QStringLiteral("file_name"), installer}}});
        waitForLine(QStringLiteral("download latest.yml failed!\nresponse data -->Connection refused"));
        QVERIFY(!isReady());
    });
}

QTEST_MAIN(TestUpdate)
#include "tst_update.moc"
