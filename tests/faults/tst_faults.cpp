#include "ShapingRelay.h"
#include "StreamClient.h"

#include "Service.h"
#include "Waiting.h"

#include "swplay/SWRuntime.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

using e2e::Service;
using e2e::waitUntil;

namespace {

QRgb middlePixel(const QImage &screen)
{
    return screen.pixel(screen.rect().center());
}

// Whether two colours are the same but for what coding does to them.
bool isNear(QRgb a, QRgb b)
{
    constexpr int tolerance = 60; // of 255, in any channel
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance
        && qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

} // namespace

// What a stream does when the gateway or the network fails: the real runtime against the real gateway.
class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void gatewayKilledAndStartedAgain();
    void connectionCutLiftsTheFinger();
    void stalledConnectionIsNoticed();
    void refusedSessionIsNotTriedAgain();
    void sessionGivenBackEnds();
    void expiredDeviceEnds();
    void corruptVideoRecovers();
    void longDelayWorks();
    void narrowLinkLowersTheLevelAndRecovers();
    void stallsOfLossKeepTheDelayBounded();
    void poorLinkLowersTheLevelAndRecovers();

private:
    StreamClient::Session apply(quint16 port = 0);
    std::unique_ptr<StreamClient> openVideo(quint16 port = 0);
    QJsonObject sessionStats() const;
    int largestDelay(const StreamClient &client, int fromInfo) const;
    QByteArray runtimeLog() const;

    QTemporaryDir m_logDir;
    std::unique_ptr<Service> m_service;
    QString m_pad;
    QString m_serviceId;
};

void TestFaults::initTestCase()
{
    QVERIFY(m_logDir.isValid());
    QCOMPARE(SWRuntime::getInstance()->init(1, qUtf8Printable(m_logDir.path())), 0);
}

void TestFaults::cleanupTestCase()
{
    SWRuntime::getInstance()->deinit();
}

void TestFaults::init()
{
    e2e::steps([&] {
        m_service = std::make_unique<Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
    });
}

void TestFaults::cleanup()
{
    if (QTest::currentTestFailed())
        qInfo().noquote() << "service:" << m_service->output().right(4000)
                          << "\nruntime:" << runtimeLog().right(4000);
    m_service.reset();
}

QByteArray TestFaults::runtimeLog() const
{
    QByteArray text;
    for (const QFileInfo &info : QDir(m_logDir.path()).entryInfoList({QStringLiteral("*.log")})) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly))
            text += file.readAll();
    }
    return text;
}

// `port`: another port than the gateway's own, for a relay.
StreamClient::Session TestFaults::apply(quint16 port)
{
    const QJsonObject user = m_service->signIn();
    const QJsonObject headers{{QStringLiteral("access-token"), user.value(QLatin1String("access_token"))},
        {QStringLiteral("login-id"), user.value(QLatin1String("login_id"))}};
    const QJsonObject device = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                   .value(QLatin1String("devices"))
                                   .toArray()
                                   .at(0)
                                   .toObject();
    m_serviceId = device.value(QLatin1String("service_id")).toString();
    const QJsonObject data = m_service
                                 ->call(QStringLiteral("POST"), QStringLiteral("/apiv1/device/actionDevice"),
                                     {{QStringLiteral("service_id"), m_serviceId},
                                         {QStringLiteral("action_type"), QStringLiteral("device_apply")}},
                                     headers)
                                 .value(QLatin1String("data"))
                                 .toObject();
    const QJsonObject info = data.value(QLatin1String("resultInfo")).toObject();
    const QJsonObject control = info.value(QLatin1String("controlList"))
                                    .toArray()
                                    .at(0)
                                    .toObject()
                                    .value(QLatin1String("controlInfoList"))
                                    .toArray()
                                    .at(0)
                                    .toObject();
    StreamClient::Session session;
    session.ip = control.value(QLatin1String("controlIp")).toString();
    session.port = port ? port : static_cast<quint16>(control.value(QLatin1String("controlPort")).toInt());
    session.userId = info.value(QLatin1String("userId")).toInt(-1);
    session.sessionId = info.value(QLatin1String("sessionId")).toString();
    session.padCode = m_pad = data.value(QLatin1String("padCode")).toString();
    return session;
}

std::unique_ptr<StreamClient> TestFaults::openVideo(quint16 port)
{
    const StreamClient::Session session = apply(port);
    m_service->openApp(m_pad, QStringLiteral("Video"));
    auto client = std::make_unique<StreamClient>(session);
    StreamClient *raw = client.get();
    waitUntil(QStringLiteral("video runs"), [raw] { return raw->pictures() > 5; });
    return client;
}

QJsonObject TestFaults::sessionStats() const
{
    return m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/stats"))
        .value(QLatin1String("sessions"))
        .toArray()
        .at(0)
        .toObject();
}

// Of every stream information from the given one on, in milliseconds.
int TestFaults::largestDelay(const StreamClient &client, int fromInfo) const
{
    int largest = 0;
    const QVector<QJsonObject> infos = client.streamInfos();
    for (int i = fromInfo; i < infos.size(); ++i)
        largest = qMax(largest, infos[i].value(QLatin1String("delayTime")).toInt());
    return largest;
}

void TestFaults::gatewayKilledAndStartedAgain()
{
    e2e::steps([&] {
        const auto client = openVideo();
        // A finger is down when the gateway goes.
        int x = 100;
        int y = 200;
        float pressure = 0;
        client->source().sendTouchEvent(0, 1, &x, &y, &pressure);
        m_service->kill();
        waitUntil(
            QStringLiteral("the loss is noticed"), [&] { return client->reconnectAttempts() > 0; }, 5000);
        // Long enough for several attempts in vain.
        waitUntil(
            QStringLiteral("further attempts"), [&] { return client->reconnectAttempts() >= 3; }, 15000);

        m_service->start();
        const qint64 returned = client->nowMs();
        waitUntil(
            QStringLiteral("the picture is back"), [&] { return client->lastPictureMs() > returned; }, 10000);
        const qint64 backAfter = client->lastPictureMs() - returned;
        qInfo("picture back %lld ms after the gateway's return", backAfter);
        QVERIFY2(backAfter <= 2000, qPrintable(QString::number(backAfter)));
        QCOMPARE(client->endReason(), -1);
        QCOMPARE(client->connects(), 2);

        // The old finger is gone: a tap is one finger down and none afterwards.
        m_service->openApp(m_pad, QStringLiteral("Paint"));
        int none = -1;
        client->source().sendTouchEvent(0, 1, &x, &y, &pressure);
        waitUntil(QStringLiteral("one finger is down"),
            [&] { return m_service->appState(m_pad).value(QLatin1String("fingers")).toInt() == 1; });
        client->source().sendTouchEvent(1, 1, &none, &none, &pressure);
        waitUntil(QStringLiteral("no finger is down"),
            [&] { return m_service->appState(m_pad).value(QLatin1String("fingers")).toInt() == 0; });
    });
}

void TestFaults::connectionCutLiftsTheFinger()
{
    e2e::steps([&] {
        const StreamClient::Session session = apply();
        m_service->openApp(m_pad, QStringLiteral("Paint"));
        StreamClient client(session);
        waitUntil(QStringLiteral("a picture"), [&] { return client.pictures() > 0; });
        int x = 300;
        int y = 600;
        float pressure = 0;
        client.source().sendTouchEvent(0, 1, &x, &y, &pressure);
        const auto fingers
            = [&] { return m_service->appState(m_pad).value(QLatin1String("fingers")).toInt(); };
        waitUntil(QStringLiteral("the finger is down"), [&] { return fingers() == 1; });
        m_service->admin(QStringLiteral("POST"), QStringLiteral("/admin/connections/cut"),
            {{QStringLiteral("pad"), m_pad}});
        waitUntil(
            QStringLiteral("the device lifts the finger"), [&] { return fingers() == 0; }, 5000);
        waitUntil(
            QStringLiteral("the client is back"), [&] { return client.connects() == 2; }, 5000);
    });
}

void TestFaults::stalledConnectionIsNoticed()
{
    e2e::steps([&] {
        const auto client = openVideo();
        m_service->admin(QStringLiteral("POST"), QStringLiteral("/admin/connections/stall"),
            {{QStringLiteral("pad"), m_pad}, {QStringLiteral("ms"), 20000}});
        const qint64 stalledAt = client->nowMs();
        waitUntil(
            QStringLiteral("the stall is noticed"), [&] { return client->reconnectAttempts() > 0; }, 10000);
        const qint64 noticedAfter = client->lastReconnectMs() - stalledAt;
        qInfo("stall noticed after %lld ms", noticedAfter);
        QVERIFY2(noticedAfter <= 5000, qPrintable(QString::number(noticedAfter)));
        // A new connection is not the stalled one.
        const int pictures = client->pictures();
        waitUntil(
            QStringLiteral("pictures again"), [&] { return client->pictures() > pictures + 5; }, 5000);
    });
}

void TestFaults::refusedSessionIsNotTriedAgain()
{
    e2e::steps([&] {
        StreamClient::Session session = apply();
        session.sessionId = QStringLiteral("never-granted");
        StreamClient client(session);
        waitUntil(QStringLiteral("the end is reported"), [&] { return client.endReason() != -1; });
        QCOMPARE(client.endReason(), static_cast<int>(SWDisconnectRefused));
        QCOMPARE(client.connects(), 0);
        QCOMPARE(client.reconnectAttempts(), 0);
        QVERIFY(runtimeLog().contains("refused"));
    });
}

void TestFaults::sessionGivenBackEnds()
{
    e2e::steps([&] {
        const auto client = openVideo();
        const QJsonObject user = m_service->signIn();
        m_service->call(QStringLiteral("POST"), QStringLiteral("/apiv1/device/actionDevice"),
            {{QStringLiteral("service_id"), m_serviceId},
                {QStringLiteral("action_type"), QStringLiteral("device_unbind")}},
            {{QStringLiteral("access-token"), user.value(QLatin1String("access_token"))},
                {QStringLiteral("login-id"), user.value(QLatin1String("login_id"))}});
        waitUntil(QStringLiteral("the end is reported"), [&] { return client->endReason() != -1; });
        QCOMPARE(client->endReason(), static_cast<int>(SWDisconnectClosed));
        QCOMPARE(client->reconnectAttempts(), 0);
    });
}

void TestFaults::expiredDeviceEnds()
{
    e2e::steps([&] {
        const auto client = openVideo();
        m_service->admin(QStringLiteral("POST"), QStringLiteral("/admin/devices/%1/expire").arg(m_pad));
        waitUntil(QStringLiteral("the end is reported"), [&] { return client->endReason() != -1; });
        QCOMPARE(client->endReason(), static_cast<int>(SWDisconnectExpired));
        QCOMPARE(client->reconnectAttempts(), 0);
    });
}

void TestFaults::corruptVideoRecovers()
{
    e2e::steps([&] {
        const auto client = openVideo();
        m_service->admin(QStringLiteral("POST"), QStringLiteral("/admin/connections/corrupt"),
            {{QStringLiteral("pad"), m_pad}, {QStringLiteral("count"), 5}});
        // The damaged units are sent within moments; afterwards whole pictures arrive again over the same
        // connection.
        QTest::qWait(400);
        const int pictures = client->pictures();
        waitUntil(
            QStringLiteral("pictures again"), [&] { return client->pictures() > pictures + 10; }, 5000);
        QCOMPARE(client->reconnectAttempts(), 0);

        // And they are right: the Latency app fills the screen with one of two colours.
        m_service->openApp(m_pad, QStringLiteral("Latency"));
        const QRgb before = middlePixel(m_service->screen(m_pad));
        waitUntil(QStringLiteral("the app is shown"),
            [&] { return isNear(static_cast<QRgb>(client->middleColour()), before); });
        int x = 360;
        int y = 640;
        int none = -1;
        float pressure = 0;
        client->source().sendTouchEvent(0, 1, &x, &y, &pressure);
        client->source().sendTouchEvent(1, 1, &none, &none, &pressure);
        QRgb after = before;
        waitUntil(QStringLiteral("the device flips its screen"), [&] {
            after = middlePixel(m_service->screen(m_pad));
            return !isNear(after, before);
        });
        waitUntil(
            QStringLiteral("the screen flips"),
            [&] { return isNear(static_cast<QRgb>(client->middleColour()), after); }, 3000);
    });
}

void TestFaults::longDelayWorks()
{
    e2e::steps([&] {
        ShapingRelay relay(m_service->gatewayPort());
        relay.setDelay(100); // 200 ms there and back
        const auto client = openVideo(relay.port());
        const int infos = client->streamInfos().size();
        waitUntil(
            QStringLiteral("stream information for 6 s"),
            [&] { return client->streamInfos().size() >= infos + 6; }, 12000);
        const int delay = largestDelay(*client, infos + 2);
        qInfo("delay at 200 ms round trip: %d ms", delay);
        // The one-way delay is seen, and little is added to it.
        QVERIFY2(delay >= 80 && delay <= 400, qPrintable(QString::number(delay)));
        QCOMPARE(client->reconnectAttempts(), 0);
        // A long but wide path is no reason to lower the quality.
        QVERIFY(sessionStats().value(QLatin1String("level_row")).toInt() <= 2);
    });
}

void TestFaults::narrowLinkLowersTheLevelAndRecovers()
{
    e2e::steps([&] {
        ShapingRelay relay(m_service->gatewayPort());
        const auto client = openVideo(relay.port());
        const auto row = [this] { return sessionStats().value(QLatin1String("level_row")).toInt(); };
        QVERIFY(sessionStats().value(QLatin1String("automatic")).toBool());
        QCOMPARE(row(), 1);

        relay.setRate(1000);
        waitUntil(
            QStringLiteral("the level steps down to what fits"), [&] { return row() >= 4; }, 10000);
        const int settled = client->streamInfos().size() + 2;
        const int pictures = client->pictures();
        client->forgetWorst();
        waitUntil(
            QStringLiteral("8 s at 1 Mbit/s"), [&] { return client->streamInfos().size() >= settled + 8; },
            20000);
        const int delay = client->worstDelayMs();
        qInfo("at 1 Mbit/s: row %d, longest delay of a picture %d ms, %d pictures", row(), delay,
            client->pictures() - pictures);
        QVERIFY2(delay <= 1500, qPrintable(QString::number(delay)));
        QVERIFY(client->pictures() - pictures > 40);
        QCOMPARE(client->reconnectAttempts(), 0);

        relay.setRate(0);
        waitUntil(
            QStringLiteral("the level is back up"), [&] { return row() == 1; }, 90000);
    });
}

void TestFaults::stallsOfLossKeepTheDelayBounded()
{
    e2e::steps([&] {
        ShapingRelay relay(m_service->gatewayPort());
        const auto client = openVideo(relay.port());
        relay.setStalls(3000, 500);
        client->forgetWorst();
        const int infos = client->streamInfos().size();
        int lowestRow = 1;
        waitUntil(
            QStringLiteral("15 s with stalls"),
            [&] {
                lowestRow = qMax(lowestRow, sessionStats().value(QLatin1String("level_row")).toInt());
                return client->streamInfos().size() >= infos + 15;
            },
            35000);
        const int delay = client->worstDelayMs();
        const int gap = client->worstGapMs();
        qInfo(
            "stalls of 500 ms: longest delay of a picture %d ms, longest time between two %d ms, lowest row "
            "%d",
            delay, gap, lowestRow);
        // What was on its way when the stall began comes at its end, and no backlog after it.
        QVERIFY2(delay <= 1000, qPrintable(QString::number(delay)));
        QVERIFY2(gap <= 1000, qPrintable(QString::number(gap)));
        QCOMPARE(client->reconnectAttempts(), 0);
        relay.setStalls(0, 0);
        waitUntil(
            QStringLiteral("the level is back up"),
            [this] { return sessionStats().value(QLatin1String("level_row")).toInt() == 1; }, 90000);
    });
}

// Long, narrow and lossy at once.
void TestFaults::poorLinkLowersTheLevelAndRecovers()
{
    e2e::steps([&] {
        ShapingRelay relay(m_service->gatewayPort());
        relay.setDelay(100);
        const auto client = openVideo(relay.port());
        const auto row = [this] { return sessionStats().value(QLatin1String("level_row")).toInt(); };
        QCOMPARE(row(), 1);
        relay.setRate(1000);
        relay.setStalls(3000, 500);
        waitUntil(
            QStringLiteral("the level steps down to what fits"), [&] { return row() >= 4; }, 15000);
        const int settled = client->streamInfos().size() + 3;
        waitUntil(
            QStringLiteral("the queue at the higher level has passed"),
            [&] { return client->streamInfos().size() >= settled; }, 10000);
        client->forgetWorst();
        const int pictures = client->pictures();
        waitUntil(
            QStringLiteral("12 s on the poor link"),
            [&] { return client->streamInfos().size() >= settled + 12; }, 30000);
        const int delay = client->worstDelayMs();
        qInfo("poor link: row %d, longest delay of a picture %d ms, longest time between two %d ms, %d "
              "pictures",
            row(), delay, client->worstGapMs(), client->pictures() - pictures);
        QVERIFY2(delay <= 1500, qPrintable(QString::number(delay)));
        QVERIFY(client->pictures() - pictures > 40);
        QCOMPARE(client->reconnectAttempts(), 0);

        relay.setRate(0);
        relay.setStalls(0, 0);
        waitUntil(
            QStringLiteral("the level is back up"), [&] { return row() == 1; }, 90000);
    });
}

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
