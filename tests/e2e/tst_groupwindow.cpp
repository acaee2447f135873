#include "MasterInput.h"
#include "Resources.h"
#include "Service.h"
#include "Waiting.h"

#include "group/GroupController.h"
#include "group/MainController.h"
#include "group/SubControlPage.h"
#include "group/SubController.h"
#include "net/HttpHelper.h"
#include "stream/VideoView.h"
#include "swplay/SWRuntime.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>

using e2e::MasterInput;
using e2e::Resources;
using e2e::Service;
using e2e::waitUntil;

namespace {

// So many steps of the master's input, one tile is promoted, restarted or removed.
constexpr int stepsPerDisturbance = 6;
constexpr int truthDevices = 14;
constexpr int undisturbedTiles = 7; // the first ones
constexpr int removals = 3; // at most

constexpr int fullPage = 50; // devices
// In portrait, pixels; the devices take them in turn.
constexpr std::array screens{QSize(720, 1280), QSize(1080, 1920), QSize(720, 1600)};

int variable(const char *name, int standard)
{
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : standard;
}

// Every move that another one follows may be left out on the way: it says nothing that the next does not.
QStringList withoutPassedMoves(const QStringList &events)
{
    QStringList kept;
    for (const QString &event : events) {
        const bool follows = event.startsWith(QLatin1String("move")) && !kept.isEmpty()
            && kept.last().startsWith(QLatin1String("move"));
        if (follows)
            kept.last() = event;
        else
            kept.append(event);
    }
    return kept;
}

} // namespace

// The group's window against the real service: what the devices get, and what a person sees when it fails.
class TestGroupWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void everyDeviceReceivesTheSame();
    void comesBackWithTheGateway();
    void leavesNothingBehind();

private:
    void startService();
    // With the first ones of the service's devices.
    void openWindow(int devices);
    void closeWindow();
    SubControlPage &page() const { return *m_window->subControlPage(); }
    int connectedSessions(int leastPictures) const;
    QString padOf(const QString &serviceId) const { return m_pads.value(serviceId); }
    void disturb(QRandomGenerator &random);
    void checkDevice(const QString &serviceId, const MasterInput &input, QSize screen) const;

    std::unique_ptr<Service> m_service;
    QJsonObject m_headers; // of the signed-in user
    group::GroupDevices m_devices; // all that the service has
    QMap<QString, QString> m_pads; // by service id
    QPointer<GroupController> m_window;
    int m_removed = 0;
};

void TestGroupWindow::initTestCase()
{
    e2e::steps([this] { startService(); });
    SWRuntime::getInstance()->init(0, "");
}

void TestGroupWindow::cleanupTestCase()
{
    SWRuntime::getInstance()->deinit();
    m_service.reset();
}

void TestGroupWindow::cleanup()
{
    delete m_window;
    if (QTest::currentTestFailed() && m_service)
        qInfo().noquote() << m_service->output().right(4000);
}

// One for all tests, since the client reads its address once.
void TestGroupWindow::startService()
{
    QStringList sizes;
    for (const QSize &screen : screens)
        sizes.append(QStringLiteral("%1x%2").arg(screen.width()).arg(screen.height()));
    m_service
        = std::make_unique<Service>(QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"),
            fullPage, QStringList{QStringLiteral("--screens"), sizes.join(QLatin1Char(','))});
    m_service->start();
    qputenv("ORVANE_API_BASE_URL", m_service->apiBaseUrl().toUtf8());
    const QJsonObject user = m_service->signIn();
    const QString token = user.value(QLatin1String("access_token")).toString();
    const QString login = user.value(QLatin1String("login_id")).toString();
    HttpHelper::setLoginParams(token, login);
    m_headers = {{QStringLiteral("access-token"), token}, {QStringLiteral("login-id"), login}};
    const QJsonArray list
        = m_service->call(QStringLiteral("GET"), QStringLiteral("/apiv1/device/list"), {}, m_headers)
              .value(QLatin1String("data"))
              .toObject()
              .value(QLatin1String("devices"))
              .toArray();
    m_devices = group::groupDevicesOf({{QStringLiteral("children"), list}});
    for (const QJsonValue &device : list) {
        m_pads.insert(device.toObject().value(QLatin1String("service_id")).toString(),
            device.toObject().value(QLatin1String("device_id")).toString());
    }
    QCOMPARE(m_devices.size(), fullPage);
}

// Sessions that have been sent so many pictures or more.
int TestGroupWindow::connectedSessions(int leastPictures) const
{
    const QJsonArray sessions = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
                                    .value(QLatin1String("sessions"))
                                    .toArray();
    return static_cast<int>(std::count_if(sessions.begin(), sessions.end(), [&](const QJsonValue &session) {
        return session.toObject().value(QLatin1String("frames_sent")).toInt() >= leastPictures;
    }));
}

void TestGroupWindow::openWindow(int devices)
{
    group::GroupDevices members;
    for (auto it = m_devices.cbegin(); members.size() < devices; ++it)
        members.insert(it.key(), it.value());
    m_window = new GroupController;
    m_window->show();
    m_window->setDevices(members);
    waitUntil(
        QStringLiteral("every device of the first page shows its picture"),
        [this, devices] {
            if (m_window->mainController()->videoView()->picture().isNull())
                return false;
            for (int i = 0; i < devices - 1; ++i) {
                const SubController *tile = page().controllerAt(i);
                if (!tile || !tile->videoView() || tile->videoView()->picture().isNull())
                    return false;
            }
            return true;
        },
        60000);
}

// As the window's opener does it.
void TestGroupWindow::closeWindow()
{
    const QJsonArray ids = QJsonArray::fromStringList(m_window->serviceIds());
    m_window->close();
    waitUntil(QStringLiteral("the window is gone"), [this] { return !m_window; });
    m_service->call(QStringLiteral("POST"), QStringLiteral("/apiv1/device/batchActionDevice"),
        {{QStringLiteral("service_ids"), ids},
            {QStringLiteral("action_type"), QStringLiteral("device_unbind")}},
        m_headers);
    waitUntil(QStringLiteral("the gateway has seen the sessions' end"),
        [this] { return connectedSessions(0) == 0; });
}

// Promotes, restarts or removes a device that is not among the undisturbed ones.
void TestGroupWindow::disturb(QRandomGenerator &random)
{
    const int tiles = page().controllerCount();
    SubController *tile = page().controllerAt(random.bounded(undisturbedTiles, tiles));
    QVERIFY(tile);
    switch (random.bounded(3)) {
    case 0:
        emit tile->setAsMainController();
        break;
    case 1:
        page().restartDevice(tile->serviceId());
        break;
    default:
        if (m_removed < removals) {
            ++m_removed;
            emit tile->removeController(true);
        }
        break;
    }
}

void TestGroupWindow::checkDevice(const QString &serviceId, const MasterInput &input, QSize screen) const
{
    const QStringList expected = withoutPassedMoves(input.expectedOn(screen));
    QStringList received;
    waitUntil(
        QStringLiteral("%1 receives the last event").arg(serviceId),
        [&] {
            received.clear();
            const QJsonArray events = m_service->inputEvents(padOf(serviceId));
            for (const QJsonValue &event : events)
                received.append(MasterInput::asText(event.toObject()));
            return !received.isEmpty() && received.last() == expected.last();
        },
        30000);
    received = withoutPassedMoves(received);
    for (int i = 0; i < qMin(received.size(), expected.size()); ++i) {
        if (received.at(i) != expected.at(i))
            throw e2e::StepFailed(QStringLiteral("device %1, event %2: %3 instead of %4")
                                      .arg(serviceId)
                                      .arg(i)
                                      .arg(received.at(i), expected.at(i)));
    }
    QCOMPARE(received.size(), expected.size());
}

// A few seconds; for as long as ORVANE_GROUP_SECONDS says.
void TestGroupWindow::everyDeviceReceivesTheSame()
{
    e2e::steps([&] {
        openWindow(truthDevices);
        waitUntil(QStringLiteral("every session is connected"),
            [this] { return connectedSessions(0) == truthDevices; });
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo() << "seed" << seed;
        QRandomGenerator random(seed);
        QStringList undisturbed;
        for (int i = 0; i < undisturbedTiles; ++i)
            undisturbed.append(page().controllerAt(i)->serviceId());

        m_removed = 0;
        MasterInput input(*m_window, random);
        QElapsedTimer timer;
        timer.start();
        const int seconds = variable("ORVANE_GROUP_SECONDS", 5);
        for (int step = 1; timer.elapsed() < seconds * 1000; ++step) {
            input.step();
            if (step % stepsPerDisturbance == 0)
                disturb(random);
        }
        input.end();

        for (const QString &serviceId : qAsConst(undisturbed)) {
            const int index = m_devices.keys().indexOf(serviceId);
            checkDevice(serviceId, input, screens.at(static_cast<std::size_t>(index) % screens.size()));
        }
        qInfo() << input.count() << "events," << m_removed << "devices removed";
    });
}

// With every tile live. The window answers all the time: a timer of its thread is never late by much.
void TestGroupWindow::comesBackWithTheGateway()
{
    constexpr int awayMs = 6000; // longer than the longest pause between two tries
    constexpr int longestGapMs = 1000;
    e2e::steps([&] {
        openWindow(fullPage);
        QElapsedTimer sinceTick;
        qint64 longestGap = 0;
        QTimer ticks;
        connect(
            &ticks, &QTimer::timeout, &ticks, [&] { longestGap = qMax(longestGap, sinceTick.restart()); });
        sinceTick.start();
        ticks.start(10);

        m_service->kill(); // waits for the process's end
        sinceTick.restart();
        QTest::qWait(awayMs);
        QTest::mouseClick(m_window->mainController()->videoView(), Qt::LeftButton);
        QVERIFY(!page().controllerAt(fullPage - 2)->videoView()->picture().isNull());
        m_service->start();
        QElapsedTimer back;
        back.start();
        waitUntil(
            QStringLiteral("all devices send pictures again"),
            [&] { return connectedSessions(1) == fullPage; }, 5000);
        qInfo() << "back after" << back.elapsed() << "ms, longest gap" << longestGap << "ms";
        QVERIFY2(longestGap < longestGapMs, qPrintable(QString::number(longestGap)));
    });
}

// So many openings as ORVANE_GROUP_OPENINGS says.
void TestGroupWindow::leavesNothingBehind()
{
    constexpr int warmUp = 10;
    constexpr int devices = 8;
    // The allocator's own; a kept picture of the master alone would be 3.6 MB for each opening.
    constexpr qint64 growthKb = 8192;
    constexpr qint64 heapGrowthKb = 1024;
    const int openings = variable("ORVANE_GROUP_OPENINGS", 50);
    e2e::steps([&] {
        const auto cycle = [this] {
            openWindow(devices);
            QTest::mouseClick(m_window->mainController()->videoView(), Qt::LeftButton);
            closeWindow();
        };
        for (int i = 0; i < warmUp; ++i)
            cycle();
        const Resources before = Resources::settled();
        for (int i = 0; i < openings; ++i)
            cycle();
        const Resources after = Resources::backAt(before);
        qInfo() << "before and after" << openings << "groups: threads" << before.threads << after.threads
                << "files" << before.files << after.files << "sockets" << before.sockets << after.sockets
                << "resident KB" << before.residentKb << after.residentKb << "heap KB" << before.heapKb
                << after.heapKb;
        QVERIFY(after.isBackAt(before));
        QVERIFY2(after.residentKb < before.residentKb + growthKb,
            qPrintable(QStringLiteral("%1 KB, then %2 KB").arg(before.residentKb).arg(after.residentKb)));
        QVERIFY2(after.heapKb < before.heapKb + heapGrowthKb,
            qPrintable(QStringLiteral("%1 KB, then %2 KB").arg(before.heapKb).arg(after.heapKb)));
    });
}

QTEST_MAIN(TestGroupWindow)
#include "tst_groupwindow.moc"
