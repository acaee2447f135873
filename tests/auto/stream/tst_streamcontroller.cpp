#include "RecordedCalls.h"

#include "stream/DataSourceListener.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"

#include <swplay/SWDataSource.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimerEvent>

#include <thread>

namespace {

stream::StreamingData sampleData()
{
    stream::StreamingData data;
    data.controlIp = QStringLiteral("10.1.2.3");
    data.controlPort = 65535;
    data.userId = -7;
    data.serviceId = QStringLiteral("100001");
    data.padCode = QStringLiteral("VM é");
    data.sessionId = QStringLiteral("s-1");
    return data;
}

const QString LevelRows = QStringLiteral("[2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50], "
                                         "[2, 720, 1280, 25, 15, 6144, 100, 0, 0, 100, 50], "
                                         "[2, 720, 1280, 25, 15, 4096, 100, 0, 0, 100, 50], "
                                         "[2, 576, 1024, 20, 10, 2048, 100, 0, 0, 100, 50], "
                                         "[2, 480, 848, 15, 15, 1024, 100, 0, 0, 100, 50], "
                                         "[2, 240, 424, 15, 15, 512, 100, 0, 0, 100, 50], "
                                         "[2, 144, 218, 5, 1, 256, 100, 0, 0, 100, 50]");

// The calls of a start; `modeCall` is the one that differs between the modes.
QStringList startCalls(const QString &modeCall, const QString &playerId)
{
    return {
        QStringLiteral("SWPlayer::SWPlayer()"),
        QStringLiteral("SWPlayer::getId()"),
        QStringLiteral("SWDataSource::SWDataSource(%1, listener)").arg(playerId),
        QStringLiteral("SWDataSource::setLoginParams(\"10.1.2.3\", 65535, -7, \"s-1\", \"VM é\", 0)"),
        QStringLiteral("SWDataSource::setPlayParams(\"\", -1, 0, 0, 0, 0, 0, 0, -1, -1, 3, 1, 0)"),
        QStringLiteral("SWDataSource::setBusinessType(1)"),
        QStringLiteral("SWDataSource::setVideoLevels(%1, 7)").arg(LevelRows),
        QStringLiteral("SWDataSource::screenCast(3)"),
        modeCall,
        QStringLiteral("SWPlayer::setDataSource(dataSource)"),
        QStringLiteral("VideoDisplayWinBase::setDstFormat(-1, 720, 1280, 0)"),
        QStringLiteral("SWPlayer::setDisplay(display)"),
        QStringLiteral("SWPlayer::start()"),
    };
}

// The number in "SWDataSource::SWDataSource(3, listener)".
QString playerIdOf(const QStringList &calls)
{
    const QRegularExpression expression(QStringLiteral("^SWDataSource::SWDataSource\\((\\d+),"));
    for (const QString &call : calls) {
        const auto match = expression.match(call);
        if (match.hasMatch())
            return match.captured(1);
    }
    return {};
}

QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject &object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&object);
}

} // namespace

class tst_StreamController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void slotOrder();
    void start_data();
    void start();
    void startTakesThePresentSessionDown();
    void startWithoutView();
    void stop();
    void destructionStops();
    void viewThatGoesIsTakenFromThePlayer();
    void replacedViewThatGoesIsTakenFromThePlayer();
    void modes_data();
    void modes();
    void sameModeDoesNothing();
    void modeWithoutSessionIsNotStored();
    void inputCalls();
    void inputHoldsTheSessionLock();
    void startStopAndModesLeaveTheLock_data();
    void startStopAndModesLeaveTheLock();
    void inputWithoutSession();
    void emptyTouch();
    void nonAsciiText();
    void qualities_data();
    void qualities();
    void playInfo();
    void videoResolution();
    void replacedDataSource();
    void keepAlive();
    void operationStartsTheIntervalAnew();
    void inputFromAnotherThreadDuringStop();

private:
    std::unique_ptr<VideoView> m_view;
};

void tst_StreamController::init()
{
    m_view = std::make_unique<VideoView>();
    Recorder::instance().reset();
}

void tst_StreamController::slotOrder()
{
    const QMetaObject &meta = StreamController::staticMetaObject;
    const char *const signatures[] = {"sigPlayInfo(const char*)",
        "onTouchEvent(int,QVector<int>&,QVector<int>&)", "onFunctionBtnClicked(int)", "onInputEvent(QString)",
        "onSensorInput(int,int,int,int)", "onSendPicture(QByteArray)", "onSendAudioData(QByteArray)",
        "onVideoLevelChanged(int)", "onKeyPressEvent(int)", "onKeyReleaseEvent(int)", "onOperation()"};
    int index = meta.methodOffset();
    for (const char *signature : signatures)
        QCOMPARE(meta.method(index++).methodSignature(), QByteArray(signature));
}

void tst_StreamController::start_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("modeCall");
    QTest::newRow("paused") << 0 << "SWDataSource::screenCast(0)";
    QTest::newRow("full") << 1 << "SWDataSource::setVideoLevel(0)";
    QTest::newRow("thumbnail") << 2 << "SWDataSource::setVideoLevel(2, 0, 144, 218, 0, 256, 5)";
    QTest::newRow("unknown") << 9 << "SWDataSource::screenCast(0)";
}

void tst_StreamController::start()
{
    QFETCH(int, mode);
    QFETCH(QString, modeCall);
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), mode);
    const QStringList calls = takeCalls();
    QCOMPARE(calls, startCalls(modeCall, playerIdOf(calls)));
    QVERIFY(playerIdOf(calls).toInt() > 0);
    QCOMPARE(Recorder::instance().display(), static_cast<VideoDisplay *>(m_view.get()));
    QCOMPARE(controller.videoView(), m_view.get());
}

// The old data source goes without being stopped, when the new one takes its place.
void tst_StreamController::startTakesThePresentSessionDown()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    takeCalls();
    controller.startStream(sampleData(), 1);
    const QStringList calls = takeCalls();
    QStringList expected = {QStringLiteral("SWPlayer::getDataSource()"),
        QStringLiteral("SWDataSource::screenCast(0)"), QStringLiteral("SWPlayer::detachDataSource()"),
        QStringLiteral("SWPlayer::stop()"), QStringLiteral("SWPlayer::~SWPlayer()")};
    expected += startCalls(QStringLiteral("SWDataSource::setVideoLevel(0)"), playerIdOf(calls));
    expected.insert(8, QStringLiteral("SWDataSource::~SWDataSource()"));
    QCOMPARE(calls, expected);
}

void tst_StreamController::startWithoutView()
{
    QTest::ignoreMessage(QtWarningMsg, "a stream is started without a view: its pictures are not shown");
    StreamController controller;
    controller.startStream(sampleData(), 1);
    const QStringList calls = takeCalls();
    QVERIFY(calls.contains(QStringLiteral("SWPlayer::setDisplay(none)")));
    QVERIFY(calls.filter(QStringLiteral("setDstFormat")).isEmpty());
    QCOMPARE(calls.last(), QStringLiteral("SWPlayer::start()"));
}

static const QStringList StopCalls
    = {"SWPlayer::getDataSource()", "SWDataSource::screenCast(0)", "SWPlayer::detachDataSource()",
        "SWPlayer::stop()", "SWPlayer::~SWPlayer()", "SWDataSource::stop()", "SWDataSource::~SWDataSource()"};

void tst_StreamController::stop()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    takeCalls();
    controller.stopStream();
    QCOMPARE(takeCalls(), StopCalls);
    QVERIFY(!controller.dataSource());
    QCOMPARE(controller.videoView(), m_view.get());
    controller.stopStream();
    QCOMPARE(takeCalls(), QStringList());
}

void tst_StreamController::destructionStops()
{
    {
        StreamController controller;
        controller.setVideoView(m_view.get());
        controller.startStream(sampleData(), 1);
        takeCalls();
    }
    QCOMPARE(takeCalls(), StopCalls);
}

void tst_StreamController::viewThatGoesIsTakenFromThePlayer()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    takeCalls();
    m_view.reset();
    QCOMPARE(takeCalls(), QStringList("SWPlayer::setDisplay(none)"));
    QVERIFY(!controller.videoView());
}

void tst_StreamController::replacedViewThatGoesIsTakenFromThePlayer()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    takeCalls();
    VideoView next;
    controller.setVideoView(&next);
    m_view.reset();
    QCOMPARE(takeCalls(), QStringList("SWPlayer::setDisplay(none)"));
}

void tst_StreamController::modes_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("pause") << 1 << 0 << QStringList("SWDataSource::screenCast(0)");
    QTest::newRow("resume") << 0 << 1
                            << QStringList{"SWDataSource::setVideoLevel(0)", "SWDataSource::screenCast(3)"};
    QTest::newRow("thumbnail") << 1 << 2
                               << QStringList{
                                      "SWDataSource::setVideoLevel(3)", "SWDataSource::screenCast(1)"};
}

void tst_StreamController::modes()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QStringList, calls);
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), from);
    takeCalls();
    controller.setStreamMode(to);
    QCOMPARE(takeCalls(), calls);
}

void tst_StreamController::sameModeDoesNothing()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 2);
    takeCalls();
    controller.setStreamMode(2);
    QCOMPARE(takeCalls(), QStringList());
    controller.setStreamMode(0);
    takeCalls();
    controller.setStreamMode(0);
    QCOMPARE(takeCalls(), QStringList());
}

void tst_StreamController::modeWithoutSessionIsNotStored()
{
    StreamController controller;
    controller.setStreamMode(0);
    QCOMPARE(takeCalls(), QStringList());
    // Mode 1 is still the present one.
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    controller.setStreamMode(1);
    QCOMPARE(takeCalls(), QStringList());
    controller.setStreamMode(0);
    QCOMPARE(takeCalls(), QStringList("SWDataSource::screenCast(0)"));
}

namespace {

// Every input slot once, with the calls it makes.
QStringList useEveryInput(StreamController &controller)
{
    QVector<int> xs = {10, 20};
    QVector<int> ys = {30, 40};
    controller.onTouchEvent(2, xs, ys);
    controller.onFunctionBtnClicked(172);
    controller.onInputEvent(QStringLiteral("hello"));
    controller.onSendPicture("jpeg");
    controller.onSendAudioData("pcm");
    controller.onVideoLevelChanged(0);
    controller.onKeyPressEvent(30);
    controller.onKeyReleaseEvent(31);
    return {"SWDataSource::sendTouchEvent(2, 2, [10, 20], [30, 40], [0, 0])",
        "SWDataSource::sendKeyEvent(3, 172)", "SWDataSource::sendInputString(\"hello\", 6)",
        "SWDataSource::sendPicture(\"jpeg\", 4)", "SWDataSource::sendAudio(1, \"pcm\", 3)",
        "SWDataSource::setVideoLevel(0)", "SWDataSource::sendKeyEvent(1, 30)",
        "SWDataSource::sendKeyEvent(2, 31)"};
}

} // namespace

void tst_StreamController::inputCalls()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    takeCalls();
    const QStringList expected = useEveryInput(controller);
    QCOMPARE(takeCalls(), expected);
}

void tst_StreamController::inputHoldsTheSessionLock()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    QCOMPARE(asStringList(Recorder::instance().callsUnderLock()), QStringList());
    const QStringList expected = useEveryInput(controller);
    QCOMPARE(asStringList(Recorder::instance().callsUnderLock()), expected);
}

void tst_StreamController::startStopAndModesLeaveTheLock_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("paused") << 1 << 0;
    QTest::newRow("full") << 0 << 1;
    QTest::newRow("thumbnail") << 1 << 2;
}

// Input from another thread does not wait for them.
void tst_StreamController::startStopAndModesLeaveTheLock()
{
    QFETCH(int, from);
    QFETCH(int, to);
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), from);
    controller.setStreamMode(to);
    controller.startStream(sampleData(), from); // ends the one before
    controller.stopStream();
    QVERIFY(Recorder::instance().calls().size() > 30);
    QCOMPARE(asStringList(Recorder::instance().callsUnderLock()), QStringList());
}

void tst_StreamController::inputWithoutSession()
{
    StreamController controller;
    useEveryInput(controller);
    QCOMPARE(takeCalls(), QStringList());
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    controller.stopStream();
    takeCalls();
    useEveryInput(controller);
    QCOMPARE(takeCalls(), QStringList());
}

void tst_StreamController::emptyTouch()
{
    StreamController controller;
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    QVector<int> none;
    controller.onTouchEvent(1, none, none);
    QCOMPARE(takeCalls(), QStringList("SWDataSource::sendTouchEvent(1, 0, [], [], [])"));
}

void tst_StreamController::nonAsciiText()
{
    StreamController controller;
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    controller.onInputEvent(QStringLiteral("h\u00e9\u4f60")); // 6 bytes of UTF-8
    controller.onInputEvent(QString::fromUtf8("\xF0\x9F\x98\x80")); // a surrogate pair
    controller.onInputEvent(QString());
    QCOMPARE(takeCalls(),
        (QStringList{QStringLiteral("SWDataSource::sendInputString(\"h\u00e9\u4f60\", 4)"),
            QString::fromUtf8("SWDataSource::sendInputString(\"\xF0\x9F\x98\x80\", 3)"),
            "SWDataSource::sendInputString(\"\", 1)"}));
}

void tst_StreamController::qualities_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("Auto") << 0 << QStringList("SWDataSource::setVideoLevel(0)");
    QTest::newRow("720P HQ") << 1 << QStringList("SWDataSource::setVideoLevel(2, 0, 720, 1280, 0, 6144, 25)");
    QTest::newRow("720P") << 2 << QStringList("SWDataSource::setVideoLevel(2, 0, 720, 1280, 0, 4096, 25)");
    QTest::newRow("576P") << 3 << QStringList("SWDataSource::setVideoLevel(2, 0, 576, 1024, 0, 2048, 20)");
    QTest::newRow("480P") << 4 << QStringList("SWDataSource::setVideoLevel(2, 0, 480, 848, 0, 1024, 15)");
    QTest::newRow("240P") << 5 << QStringList("SWDataSource::setVideoLevel(2, 0, 240, 424, 0, 512, 15)");
    QTest::newRow("tile") << 6 << QStringList("SWDataSource::setVideoLevel(2, 0, 144, 218, 0, 256, 5)");
    QTest::newRow("behind the table") << 7 << QStringList();
    QTest::newRow("above") << 8 << QStringList();
    QTest::newRow("negative") << -1 << QStringList();
}

void tst_StreamController::qualities()
{
    QFETCH(int, index);
    QFETCH(QStringList, calls);
    StreamController controller;
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    if (calls.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("no such video level: %1").arg(index)));
    controller.onVideoLevelChanged(index);
    QCOMPARE(takeCalls(), calls);
}

// The text is gone when the SDK's call has returned; the signal comes on the GUI thread all the same.
void tst_StreamController::playInfo()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    QByteArray received;
    QThread *receivedOn = nullptr;
    connect(&controller, &StreamController::sigPlayInfo, this, [&](const char *info) {
        received = info;
        receivedOn = QThread::currentThread();
    });
    std::thread sdk([] {
        QByteArray text("{\"delayTime\": 42}");
        Recorder::instance().listener()->onStreamInfo(text.constData());
        text.fill('x');
    });
    sdk.join();
    QVERIFY(received.isEmpty());
    QTRY_COMPARE(received, QByteArray("{\"delayTime\": 42}"));
    QCOMPARE(receivedOn, thread());
}

void tst_StreamController::videoResolution()
{
    StreamController controller;
    QVERIFY(!controller.videoResolution().isValid());
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    QCOMPARE(controller.videoResolution(), QSize(432, 768));
    QCOMPARE(takeCalls(),
        QStringList("SWDataSource::getVideoLevelResult([2, 432, 768, 20, 15, 1024, 45, 3, 3, 0, 0])"));
    Recorder::instance().setRemoteSize(720, 1280);
    QCOMPARE(controller.videoResolution(), QSize(720, 1280));
    controller.stopStream();
    QVERIFY(!controller.videoResolution().isValid());
}

void tst_StreamController::replacedDataSource()
{
    StreamController controller;
    const auto first = std::make_shared<SWDataSource>(1, nullptr);
    const auto second = std::make_shared<SWDataSource>(2, nullptr);
    controller.setDataSource(first);
    QCOMPARE(controller.dataSource(), first);
    takeCalls();
    controller.setDataSource(second);
    QCOMPARE(controller.dataSource(), second);
    QCOMPARE(first.use_count(), 1);
    QCOMPARE(takeCalls(), QStringList());
}

void tst_StreamController::keepAlive()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    QVERIFY(timersOf(controller).isEmpty());
    controller.startStream(sampleData(), 1);
    auto timers = timersOf(controller);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 1'200'000);
    QCOMPARE(timers.first().timerType, Qt::VeryCoarseTimer); // what Qt makes of a coarse one above 20 s
    const int firstId = timers.first().timerId;
    Recorder::instance().reset();

    QTimerEvent first(firstId);
    QCoreApplication::sendEvent(&controller, &first);
    QCOMPARE(
        asStringList(Recorder::instance().callsUnderLock()), QStringList("SWDataSource::sendKeyEvent(3, 0)"));
    QCOMPARE(timersOf(controller).size(), 2);
    takeCalls();

    // The first timer goes on, but no longer counts.
    QCoreApplication::sendEvent(&controller, &first);
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(timersOf(controller).size(), 2);

    timers = timersOf(controller);
    const int secondId = timers[0].timerId == firstId ? timers[1].timerId : timers[0].timerId;
    QTimerEvent second(secondId);
    controller.stopStream();
    takeCalls();
    QCoreApplication::sendEvent(&controller, &second);
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(timersOf(controller).size(), 3);
}

void tst_StreamController::operationStartsTheIntervalAnew()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    controller.startStream(sampleData(), 1);
    const int firstId = timersOf(controller).first().timerId;
    takeCalls();
    controller.onOperation();
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(timersOf(controller).size(), 2);
    QTimerEvent first(firstId);
    QCoreApplication::sendEvent(&controller, &first);
    QCOMPARE(takeCalls(), QStringList());
}

// A group's worker thread sends input while the window ends and starts sessions.
void tst_StreamController::inputFromAnotherThreadDuringStop()
{
    StreamController controller;
    controller.setVideoView(m_view.get());
    std::atomic<bool> done{false};
    std::atomic<int> rounds{0};
    std::thread worker([&] {
        while (!done) {
            QVector<int> xs = {1};
            QVector<int> ys = {2};
            controller.onTouchEvent(0, xs, ys);
            controller.onKeyPressEvent(30);
            controller.onInputEvent(QStringLiteral("x"));
            controller.videoResolution();
            ++rounds;
        }
    });
    for (int i = 0; i < 200 || rounds < 200; ++i) {
        controller.startStream(sampleData(), 1);
        controller.stopStream();
        takeCalls();
    }
    done = true;
    worker.join();
    QVERIFY(rounds >= 200);
}

QTEST_MAIN(tst_StreamController)

#include "tst_streamcontroller.moc"
