#include "UpdateFixture.h"

#include "base/AppPaths.h"
#include "update/FileDigest.h"
#include "update/OvUpdateDialog.h"

#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>

#include <memory>

using e2e::LogCapture;
using e2e::ReleaseFiles;
using e2e::waitUntil;

namespace {
const QString installer = QStringLiteral("Orvane_Setup_9.8.7.exe");
constexpr int longestBuildMs = 60000;
} // namespace

// What tools/release makes, as the client takes it: the real script, service and dialog.
class TestRelease : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_service.reset(); }
    void init();
    void cleanup();

    void digestIsTheClientsOwn();
    void clientTakesTheRelease();
    void damagedInstallerIsReplaced();

private:
    QString released(const QString &name) const { return m_work.filePath(QStringLiteral("out/") + name); }
    QString pending(const QString &name) const { return AppPaths::pendingDir() + QLatin1Char('/') + name; }
    // A new dialog, which gets what the service offers and becomes ready.
    void update();

    QTemporaryDir m_home;
    QTemporaryDir m_work;
    std::unique_ptr<e2e::Service> m_service;
    std::unique_ptr<LogCapture> m_log;
    QPointer<OvUpdateDialog> m_dialog;
};

void TestRelease::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("makensis")).isEmpty())
        QSKIP("makensis not found; on Debian: apt-get install nsis");
    qputenv("XDG_DATA_HOME", m_home.path().toUtf8());
    e2e::steps([&] {
        e2e::writeFile(m_work.filePath(QStringLiteral("payload/orvane.exe")), e2e::randomBytes(300'000, 1));
        e2e::writeFile(m_work.filePath(QStringLiteral("payload/res/html/orvane/index.html")), "a page");
        e2e::writeFile(m_work.filePath(QStringLiteral("build/CMakeCache.txt")),
            "CMAKE_PROJECT_VERSION:STATIC=9.8.7\n"
            "ORVANE_UNINSTALL_GUID:STRING={0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}\n");
        QProcess release;
        release.setProcessChannelMode(QProcess::MergedChannels);
        release.start(QStringLiteral(RELEASE_SCRIPT),
            {QStringLiteral("--payload"), m_work.filePath(QStringLiteral("payload")),
                QStringLiteral("--build"), m_work.filePath(QStringLiteral("build")),
                QStringLiteral("--output"), m_work.filePath(QStringLiteral("out"))});
        QVERIFY(release.waitForFinished(longestBuildMs));
        QVERIFY2(release.exitCode() == 0, release.readAll().constData());

        m_service = std::make_unique<e2e::Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
    });
}

void TestRelease::init()
{
    e2e::steps([&] {
        m_service->admin(QStringLiteral("POST"), QStringLiteral("/admin/release"),
            {{QStringLiteral("version"), QStringLiteral("9.8.7")}, {QStringLiteral("version_code"), 9000},
                {QStringLiteral("folder"), m_work.filePath(QStringLiteral("out"))}});
    });
    m_log = std::make_unique<LogCapture>();
}

void TestRelease::cleanup()
{
    delete m_dialog;
    const QStringList lines = LogCapture::text();
    m_log.reset();
    if (QTest::currentTestFailed())
        qInfo().noquote() << lines.join(QLatin1Char('\n'));
    QVERIFY(QDir(AppPaths::pendingDir()).removeRecursively());
}

void TestRelease::update()
{
    delete m_dialog;
    m_dialog = new OvUpdateDialog;
    m_dialog->show();
    const QJsonObject info = ReleaseFiles::updateInfo(*m_service, m_service->signIn());
    m_dialog->updateNewVersion(info.value(QLatin1String("update_path")).toString(),
        info.value(QLatin1String("file_info")).toArray());
    waitUntil(QStringLiteral("the installer is ready"),
        [&] { return m_dialog->findChild<QPushButton *>(QStringLiteral("confirmButton"))->isVisible(); });
}

void TestRelease::digestIsTheClientsOwn()
{
    QProcess openssl;
    openssl.start(QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("openssl dgst -sha512 -binary \"$1\" | base64 -w0"),
            QStringLiteral("sh"), released(installer)});
    QVERIFY(openssl.waitForFinished());
    const QString digest = QString::fromLatin1(openssl.readAllStandardOutput());
    QCOMPARE(digest.size(), 88);
    const std::atomic_bool cancelled{false};
    QCOMPARE(sha512Of(released(installer), cancelled), digest);
    QVERIFY(e2e::readFile(released(QStringLiteral("latest.yml")))
                .contains("\nsha512: " + digest.toLatin1() + '\n'));
}

void TestRelease::clientTakesTheRelease()
{
    e2e::steps([&] {
        update();
        QCOMPARE(e2e::readFile(pending(installer)), e2e::readFile(released(installer)));
        QCOMPARE(e2e::readFile(pending(QStringLiteral("latest.yml"))),
            e2e::readFile(released(QStringLiteral("latest.yml"))));
        QVERIFY(!LogCapture::hasLineFrom(QStringLiteral("the downloaded installer differs")));
        QCOMPARE(ReleaseFiles::requests(*m_service, installer), 1);
        // The next time it is found to be the one that is described.
        update();
        QCOMPARE(ReleaseFiles::requests(*m_service, installer), 1);
    });
}

void TestRelease::damagedInstallerIsReplaced()
{
    e2e::steps([&] {
        QByteArray damaged = e2e::readFile(released(installer));
        damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 1);
        e2e::writeFile(pending(installer), damaged);
        update();
        QCOMPARE(ReleaseFiles::requests(*m_service, installer), 1);
        QCOMPARE(e2e::readFile(pending(installer)), e2e::readFile(released(installer)));
    });
}

QTEST_MAIN(TestRelease)
#include "tst_release.moc"
