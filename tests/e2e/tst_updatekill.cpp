#include "UpdateFixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <utility>

using e2e::ReleaseFiles;
using e2e::StepFailed;
using e2e::waitUntil;

namespace {

const QString installer = QStringLiteral("Orvane_Setup_1.3.0.exe");
constexpr int kills = 20;
constexpr int packageBytes = 1'000'000;
constexpr int handOverMs = 25;
constexpr int kbitPerSec = 24'000; // the download takes a third of a second

} // namespace

// A client that is killed at any moment of an update, from its start over the download to the hand-over to
// the installer: what it leaves never harms the next run. With ORVANE_KILL_MAIN_WINDOW=1 it is the client's
// main window that is killed, which takes some minutes; else just the update dialog.
class TestUpdateKill : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void nextRunEndsWithTheInstaller();

private:
    // When a run is killed: so long after its start, or after the last bytes have come.
    struct Moment
    {
        int afterMs;
        bool atHandOver;
    };
    // Starts an update and kills it if it is told when. Returns whether it ended well by itself.
    bool run(const QString &when, const Moment *killAt = nullptr);
    QString part() const { return pendingFile(QStringLiteral("temp_%1.part").arg(installer)); }
    QByteArray installed() const { return e2e::readFile(pendingFile(installer)); }
    QString pendingFile(const QString &name) const { return m_pending + QLatin1Char('/') + name; }
    int packageRequests() const { return ReleaseFiles::requests(*m_service, installer); }
    // How often the installer has run.
    int installations() const { return e2e::readFile(m_mark).count('\n'); }

    QTemporaryDir m_home;
    QString m_program;
    QString m_pending;
    QString m_mark;
    QByteArray m_bytes;
    std::unique_ptr<e2e::Service> m_service;
    ReleaseFiles m_release;
};

void TestUpdateKill::initTestCase()
{
    const QString programs = QCoreApplication::applicationDirPath();
    const QString name = qEnvironmentVariableIsSet("ORVANE_KILL_MAIN_WINDOW")
        ? QStringLiteral("update-window")
        : QStringLiteral("update-client");
    m_program = programs + QLatin1Char('/') + name;
    m_pending = m_home.filePath(name + QStringLiteral("/pending"));
    m_mark = m_home.filePath(QStringLiteral("installed"));
    m_bytes = "#!/bin/sh\necho installed >>'" + m_mark.toUtf8() + "'\nexit 0\n"
        + e2e::randomBytes(packageBytes, 7);
    e2e::steps([&] {
        m_service = std::make_unique<e2e::Service>(programs + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
        m_release.add(installer, m_bytes);
        m_release.publish(*m_service);
        ReleaseFiles::setFaults(
            *m_service, {{QStringLiteral("file"), installer}, {QStringLiteral("kbit_per_s"), kbitPerSec}});
    });
}

bool TestUpdateKill::run(const QString &when, const Moment *killAt)
{
    QProcess client;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home.path());
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    client.setProcessEnvironment(environment);
    client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    client.start(m_program, {m_service->apiBaseUrl() + QStringLiteral("/release"), installer, when});
    if (!client.waitForStarted())
        throw StepFailed(QStringLiteral("%1 did not start").arg(m_program));
    const auto isLoaded = [this] {
        return QFileInfo(part()).size() == m_bytes.size() || QFile::exists(pendingFile(installer));
    };
    while (killAt && killAt->atHandOver && !isLoaded() && !client.waitForFinished(1)) { }
    if (killAt && !client.waitForFinished(killAt->afterMs))
        client.kill();
    if (client.state() != QProcess::NotRunning && !client.waitForFinished(60000))
        throw StepFailed(QStringLiteral("the update does not end"));
    return client.exitStatus() == QProcess::NormalExit && client.exitCode() == 0;
}

void TestUpdateKill::nextRunEndsWithTheInstaller()
{
    e2e::steps([&] {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(run(QStringLiteral("now")));
        const qint64 wholeMs = timer.elapsed();
        waitUntil(QStringLiteral("the installer has run"), [&] { return installations() == 1; });

        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator moments(seed);
        int downloads = 0;
        for (int i = 0; i < kills; ++i) {
            QDir(m_pending).removeRecursively();
            // Every other one around the hand-over, which is soon over.
            const bool atHandOver = i % 2 == 1;
            const int within = atHandOver ? handOverMs : static_cast<int>(wholeMs);
            const Moment killAt{static_cast<int>(moments.bounded(within)), atHandOver};
            const QString when = i % 4 < 2 ? QStringLiteral("now") : QStringLiteral("later");
            const QString what
                = QStringLiteral("seed %1, kill %2 after %3 ms").arg(seed).arg(i).arg(killAt.afterMs);
            run(when, &killAt);
            // Under the installer's name there is all of it or nothing.
            const bool isThere = QFile::exists(pendingFile(installer));
            QVERIFY2(!isThere || installed() == m_bytes, qPrintable(what));

            int requestsBefore = -1; // the service may still read one of the killed client
            waitUntil(what, [&] {
                QTest::qWait(300);
                const int looked = std::exchange(requestsBefore, packageRequests());
                return requestsBefore == looked;
            });
            const int installationsBefore = installations();
            QVERIFY2(run(when), qPrintable(what));
            QVERIFY2(installed() == m_bytes, qPrintable(what));
            QCOMPARE(packageRequests() - requestsBefore, isThere ? 0 : 1);
            QVERIFY2(!QFile::exists(part()), qPrintable(what));
            waitUntil(what, [&] { return installations() > installationsBefore; });
            downloads += isThere ? 0 : 1;
        }
        qInfo("%d kills within %lld ms, seed %u: %d fresh downloads, %d verified installers", kills,
            static_cast<long long>(wholeMs), seed, downloads, kills - downloads);
    });
}

QTEST_GUILESS_MAIN(TestUpdateKill)
#include "tst_updatekill.moc"
