// A group of 50 and one of 200 devices in the group's window, every tile of the shown page moving at five
// pictures a second: how soon the page is there, what it costs, and how the master's input reaches the
// devices. Each group has a process of its own.

#include "EventLoopProbe.h"
#include "GroupFloor.h"
#include "GroupSession.h"
#include "Report.h"
#include "Resources.h"
#include "SpreadFloor.h"
#include "Waiting.h"

#include "group/BatchProcessThread.h"
#include "group/SubControlPage.h"
#include "group/SubController.h"
#include "swplay/SWRuntime.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <future>
#include <vector>

namespace {

constexpr int smallGroup = 50;
constexpr int largeGroup = 200;
constexpr int settleMs = 3000;
constexpr int measureMs = 10000;
constexpr int touches = 200;
constexpr int touchPauseMs = 130; // longer than the thread that replays them sleeps
constexpr int key = 30; // any letter
constexpr int drainMs = 2000; // at each rate
constexpr int drainStepMs = 10;
constexpr int drainGraceMs = 500; // what has not arrived after this stays behind
constexpr int lowestDrainRate = 100; // events a second
constexpr int highestDrainRate = 10000;
constexpr int arriveTimeoutMs = 10000;
constexpr QSize thumbnailLevel(144, 218);
constexpr int thumbnailKbit = 256;
constexpr QSize masterLevel(720, 1280);
constexpr int masterKbit = 6144;
constexpr QSize masterView(340, 605);
constexpr int filmRate = 5;

double elapsedMs(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// What the page costs once it runs.
QJsonObject runningFigures(bench::GroupSession &session)
{
    QTest::qWait(settleMs);
    const double sentBefore = session.tilePicturesSent();
    const double serviceBefore = session.serviceCpuMs();
    const double cpuBefore = bench::processCpuMs();
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(measureMs);
    const double wallMs = elapsedMs(timer);
    const double cpuMs = bench::processCpuMs() - cpuBefore;
    const double serviceMs = session.serviceCpuMs() - serviceBefore;
    const double sent = session.tilePicturesSent() - sentBefore;
    const auto tiles = static_cast<double>(session.shownTiles().size());
    const auto residentKb = static_cast<double>(e2e::Resources::now().residentKb);
    return {{QStringLiteral("client_cores"), cpuMs / wallMs},
        {QStringLiteral("service_cores"), serviceMs / wallMs},
        {QStringLiteral("pictures_per_tile_and_second"), sent / tiles / wallMs * 1000},
        {QStringLiteral("resident_mb"), residentKb / 1024}};
}

QJsonObject gapFigures()
{
    bench::EventLoopProbe probe;
    probe.start();
    QTest::qWait(measureMs);
    const std::vector<double> waits = probe.stop();
    return {{QStringLiteral("event_loop_gap_p50_ms"), bench::percentile(waits, 0.5)},
        {QStringLiteral("event_loop_gap_p99_ms"), bench::percentile(waits, 0.99)},
        {QStringLiteral("event_loop_gap_max_ms"), bench::percentile(waits, 1)}};
}

// Waits until a device has received so many events and returns when it did, in milliseconds.
std::vector<double> arrivals(bench::GroupSession &session, const QString &pad, int count)
{
    std::vector<double> times;
    e2e::waitUntil(
        QStringLiteral("%1 receives %2 events").arg(pad).arg(count),
        [&] {
            const QJsonArray records = session.service().inputRecords(pad);
            times.clear();
            for (const QJsonValue &record : records)
                times.push_back(record.toObject().value(QLatin1String("time_us")).toDouble() / 1000);
            return times.size() >= static_cast<std::size_t>(count);
        },
        arriveTimeoutMs);
    return times;
}

// The time between the first and the last device that receives a touch, for each of them.
std::vector<double> touchSpreads(bench::GroupSession &session)
{
    for (int i = 0; i < touches; ++i) {
        session.page().onSubControlTouchEvent(i % 2, 0.5F, 0.5F);
        QTest::qWait(touchPauseMs);
    }
    std::vector<double> first(touches, 1e300);
    std::vector<double> last(touches, 0);
    for (const QString &pad : session.tilePads()) {
        const std::vector<double> times = arrivals(session, pad, touches);
        if (times.size() != touches)
            throw e2e::StepFailed(QStringLiteral("%1 has received more than was sent").arg(pad));
        for (std::size_t i = 0; i < times.size(); ++i) {
            first[i] = std::min(first[i], times[i]);
            last[i] = std::max(last[i], times[i]);
        }
    }
    std::vector<double> spreads;
    for (std::size_t i = 0; i < first.size(); ++i)
        spreads.push_back(last[i] - first[i]);
    return spreads;
}

// The same of bare sockets and threads, while the tiles go on moving.
std::vector<double> bareSpreads(const bench::GroupSession &session)
{
    const int receivers = static_cast<int>(session.tilePads().size());
    auto spreads = std::async(
        std::launch::async, bench::spreadFloor, receivers, touches, std::chrono::milliseconds(touchPauseMs));
    while (spreads.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        QTest::qWait(touchPauseMs);
    return spreads.get();
}

QJsonObject spreadFigures(bench::GroupSession &session)
{
    QJsonObject figures;
    const auto insert = [&figures](const QString &name, const std::vector<double> &spreads) {
        figures.insert(name + QStringLiteral("_p50_ms"), bench::percentile(spreads, 0.5));
        figures.insert(name + QStringLiteral("_p90_ms"), bench::percentile(spreads, 0.9));
        figures.insert(name + QStringLiteral("_p99_ms"), bench::percentile(spreads, 0.99));
        figures.insert(name + QStringLiteral("_max_ms"), bench::percentile(spreads, 1));
    };
    insert(QStringLiteral("spread"), touchSpreads(session));
    insert(QStringLiteral("floor_spread"), bareSpreads(session));
    return figures;
}

// Whether every device has received so many events in all.
bool haveArrived(bench::GroupSession &session, int count)
{
    QElapsedTimer timer;
    timer.start();
    const QStringList &pads = session.tilePads();
    return std::all_of(pads.begin(), pads.end(), [&](const QString &pad) {
        while (session.service().inputRecords(pad, count - 1).isEmpty()) {
            if (timer.elapsed() > drainGraceMs)
                return false;
        }
        return true;
    });
}

// Whether the queue keeps up with so many events a second, and every device with the queue. `sent` counts
// them.
bool keepsUp(bench::GroupSession &session, int eventsPerSecond, int &sent)
{
    const int before = sent;
    QElapsedTimer timer;
    timer.start();
    QTimer sender;
    sender.setTimerType(Qt::PreciseTimer);
    QObject::connect(&sender, &QTimer::timeout, &sender, [&] {
        const auto due = static_cast<int>(timer.elapsed() * eventsPerSecond / 1000);
        for (; sent - before < due; ++sent) {
            if (sent % 2 == 0)
                session.page().onKeyPressEvent(key);
            else
                session.page().onKeyReleaseEvent(key);
        }
    });
    sender.start(drainStepMs);
    QTest::qWait(drainMs);
    sender.stop();
    QTest::qWait(drainGraceMs);
    return session.batchThread().waitingEvents() == 0 && haveArrived(session, touches + sent);
}

// The highest rate at which nothing stays behind.
QJsonObject drainFigures(bench::GroupSession &session)
{
    int sent = 0;
    int best = 0;
    for (int rate = lowestDrainRate; rate <= highestDrainRate && keepsUp(session, rate, sent);
         rate += rate / 4)
        best = rate;
    return {{QStringLiteral("drained_events_per_second"), best}};
}

// What decoding, converting and painting the same pictures costs in one thread.
QJsonObject floorFigures(const bench::GroupSession &session)
{
    const std::vector<SubController *> tiles = session.shownTiles();
    const QSize tile = tiles.front()->size();
    const bench::PictureCost small = bench::pictureCost(thumbnailLevel, thumbnailKbit, tile, tile);
    const bench::PictureCost large = bench::pictureCost(masterLevel, masterKbit, masterLevel, masterView);
    const auto count = static_cast<double>(tiles.size());
    const int visible = session.visibleTiles();
    const double tilesMs = count * (small.decodeMs + small.convertMs) + visible * small.paintMs;
    const double masterMs = large.decodeMs + large.convertMs + large.paintMs;
    return {{QStringLiteral("floor_first_pictures_ms"),
                count * small.keyFrameMs + visible * small.paintMs + large.keyFrameMs + large.paintMs},
        {QStringLiteral("floor_cores"), filmRate * (tilesMs + masterMs) / 1000},
        {QStringLiteral("floor_gap_ms"), visible * small.paintMs + large.paintMs},
        {QStringLiteral("tiles"), count}, {QStringLiteral("visible_tiles"), visible}};
}

void add(QJsonObject &to, const QJsonObject &figures)
{
    for (auto it = figures.begin(); it != figures.end(); ++it)
        to.insert(it.key(), it.value());
}

QJsonObject measure(int devices)
{
    bench::GroupSession session(devices);
    SWRuntime::getInstance()->init(0, "");
    QJsonObject figures{{QStringLiteral("first_pictures_ms"), session.open()}};
    add(figures, runningFigures(session));
    add(figures, gapFigures());
    add(figures, spreadFigures(session));
    add(figures, drainFigures(session));
    add(figures, floorFigures(session));
    return figures;
}

// The figures of a group in a process of its own.
QJsonObject measureElsewhere(int devices)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("figures.json"));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
        {QStringLiteral("--devices"), QString::number(devices), QStringLiteral("--output"), file});
    process.waitForFinished(-1);
    QFile figures(file);
    if (process.exitCode() != 0 || !figures.open(QIODevice::ReadOnly))
        throw e2e::StepFailed(QStringLiteral("the group of %1 was not measured").arg(devices));
    return QJsonDocument::fromJson(figures.readAll()).object();
}

QJsonObject measureBoth()
{
    const QJsonObject small = measureElsewhere(smallGroup);
    const QJsonObject large = measureElsewhere(largeGroup);
    QJsonObject figures;
    for (const int devices : {smallGroup, largeGroup}) {
        const QJsonObject &of = devices == smallGroup ? small : large;
        for (auto it = of.begin(); it != of.end(); ++it) {
            if (it.value().isDouble())
                figures.insert(it.key() + QStringLiteral("_%1").arg(devices), it.value());
        }
    }
    const auto value = [](const QJsonObject &of, const char *name) { return of.value(QLatin1String(name)); };
    figures.insert(QStringLiteral("client_cores_ratio"),
        value(large, "client_cores").toDouble() / value(small, "client_cores").toDouble());
    figures.insert(QStringLiteral("resident_mb_per_further_device"),
        (value(large, "resident_mb").toDouble() - value(small, "resident_mb").toDouble())
            / (largeGroup - smallGroup));
    return figures;
}

int run()
{
    const QStringList arguments = QCoreApplication::arguments();
    const int index = arguments.indexOf(QStringLiteral("--devices"));
    const QJsonObject figures = index > 0 ? measure(arguments.value(index + 1).toInt()) : measureBoth();
    return bench::writeReport(bench::outputFile(), figures) ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QApplication application(argc, argv);
    try {
        const int result = run();
        SWRuntime::getInstance()->deinit();
        return result;
    } catch (const e2e::StepFailed &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
