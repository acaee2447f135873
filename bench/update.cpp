// What an update of 300 MB costs the user: how long the window does not react and how much memory is taken
// while the installer is downloaded from the real service, and while one that is there already is checked.

#include "Report.h"
#include "Service.h"
#include "Waiting.h"

#include "base/AppPaths.h"
#include "update/OvUpdateDialog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

const QString installer = QStringLiteral("Orvane_Setup_2.0.0.exe");
constexpr int blockBytes = 1'000'000;
constexpr int blocks = 300;
constexpr int tickMs = 1;
constexpr int timeoutMs = 300'000;

// Memory of this process in use now.
double residentMb()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        throw e2e::StepFailed(QStringLiteral("/proc/self/statm cannot be read"));
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// Watches the event loop and the memory while it lives.
class Watch
{
public:
    Watch()
        : m_residentBefore(residentMb())
    {
        m_whole.start();
        m_sinceTick.start();
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
        m_timer.start(tickMs);
    }

    double seconds() const { return static_cast<double>(m_whole.nsecsElapsed()) / 1e9; }
    double gapMs(double share) const { return bench::percentile(m_gapsMs, share); }
    double grownMb() const { return std::max(0.0, m_residentMost - m_residentBefore); }

private:
    void tick()
    {
        m_gapsMs.push_back(static_cast<double>(m_sinceTick.nsecsElapsed()) / 1e6);
        m_sinceTick.restart();
        if (m_gapsMs.size() % 10 == 0)
            m_residentMost = std::max(m_residentMost, residentMb());
    }

    const double m_residentBefore;
    double m_residentMost = 0;
    QElapsedTimer m_whole;
    QElapsedTimer m_sinceTick;
    QTimer m_timer;
    std::vector<double> m_gapsMs;
};

void writePackage(const QString &path)
{
    QFile file(path);
    QByteArray block(blockBytes, Qt::Uninitialized);
    for (int i = 0; i < blockBytes; ++i)
        block[i] = static_cast<char>(i * 31 + i / 251);
    bool written = file.open(QIODevice::WriteOnly);
    for (int i = 0; written && i < blocks; ++i) {
        block[0] = static_cast<char>(i);
        written = file.write(block) == block.size();
    }
    if (!written)
        throw e2e::StepFailed(QStringLiteral("%1 cannot be written").arg(path));
}

// One update from the opening of the dialog until the installer is ready.
std::unique_ptr<Watch> update(const QString &updatePath)
{
    const std::unique_ptr<OvUpdateDialog> dialog(new OvUpdateDialog);
    dialog->show();
    const auto *confirm = dialog->findChild<QPushButton *>(QStringLiteral("confirmButton"));
    QTest::qWait(500); // the window is there
    auto watch = std::make_unique<Watch>();
    dialog->updateNewVersion(updatePath, {QJsonObject{{QStringLiteral("file_name"), installer}}});
    e2e::waitUntil(
        QStringLiteral("the installer is ready"), [&] { return confirm->isVisible(); }, timeoutMs);
    return watch;
}

int run()
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const QTemporaryDir release;
    writePackage(release.filePath(installer));
    e2e::Service service(QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
    service.start();
    service.admin(QStringLiteral("POST"), QStringLiteral("/admin/release"),
        {{QStringLiteral("version"), QStringLiteral("2.0.0")}, {QStringLiteral("version_code"), 2000},
            {QStringLiteral("folder"), release.path()}});

    const QString updatePath = service.apiBaseUrl() + QStringLiteral("/release");
    const std::unique_ptr<Watch> download = update(updatePath);
    const double downloadSeconds = download->seconds();
    const std::unique_ptr<Watch> check = update(updatePath);
    const double checkSeconds = check->seconds();
    const double megabytes = blockBytes / 1e6 * blocks;
    const bool written = bench::writeReport(bench::outputFile(),
        {{QStringLiteral("package_mb"), megabytes}, {QStringLiteral("download_s"), downloadSeconds},
            {QStringLiteral("download_mb_per_s"), megabytes / downloadSeconds},
            {QStringLiteral("download_gap_p99_ms"), download->gapMs(0.99)},
            {QStringLiteral("download_gap_max_ms"), download->gapMs(1)},
            {QStringLiteral("download_rss_growth_mb"), download->grownMb()},
            {QStringLiteral("check_s"), checkSeconds},
            {QStringLiteral("check_gap_p99_ms"), check->gapMs(0.99)},
            {QStringLiteral("check_gap_max_ms"), check->gapMs(1)},
            {QStringLiteral("check_rss_growth_mb"), check->grownMb()}});
    return written ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    try {
        return run();
    } catch (const e2e::StepFailed &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
