// The camera that a session forwards when its device asks for it.

#include "RecordedCalls.h"

#include "stream/StreamController.h"
#include "stream/VideoView.h"

#include <swplay/SWDataSource.h>
#include <swplay/SWDataSourceListener.h>

#include <QTest>

#include <thread>

namespace {

// A camera that counts, and notes what the SDK had been asked for when it was stopped last.
class CountingForwarder : public MultimediaForwarder
{
public:
    void start() override { ++starts; }
    void stop() override
    {
        ++stops;
        callsAtStop = asStringList(Recorder::instance().calls());
    }

    int starts = 0;
    int stops = 0;
    QStringList callsAtStop;
};

// As the device asks, on a thread of the SDK.
void requestCamera(int inputType, int state)
{
    std::thread sdk([=] { Recorder::instance().listener()->onSensorRequest(inputType, state); });
    sdk.join();
}

} // namespace

class tst_StreamCamera : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sensorOfOtherTypes_data();
    void sensorOfOtherTypes();
    void camera_data();
    void camera();
    void deviceAsksForTheCamera_data();
    void deviceAsksForTheCamera();
    void cameraOfAnEndedSession();
    void stopEndsForwarding();
};

void tst_StreamCamera::init()
{
    Recorder::instance().reset();
}

void tst_StreamCamera::sensorOfOtherTypes_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {0, 1, 198, 200, 211, 213, -199})
        QTest::addRow("%d", type) << type;
}

void tst_StreamCamera::sensorOfOtherTypes()
{
    QFETCH(int, type);
    CountingForwarder forwarder;
    StreamController controller;
    controller.setMultimediaForwarder(&forwarder);
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    controller.onSensorInput(type, 1, 720, 1280);
    controller.onSensorInput(type, 0, 720, 1280);
    emit forwarder.sigSendPicture("jpeg");
    QCOMPARE(forwarder.starts + forwarder.stops, 0);
    QCOMPARE(takeCalls(), QStringList());
}

void tst_StreamCamera::camera_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("199") << 199;
    QTest::newRow("212") << 212;
}

// Asked for twice, the camera's pictures still arrive once.
void tst_StreamCamera::camera()
{
    QFETCH(int, type);
    CountingForwarder forwarder;
    StreamController controller;
    controller.setMultimediaForwarder(&forwarder);
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    controller.onSensorInput(type, 1, 720, 1280);
    controller.onSensorInput(type, 1, 1, 1);
    QCOMPARE(forwarder.starts, 2);
    QCOMPARE(forwarder.stops, 0);
    emit forwarder.sigSendPicture("jpeg");
    emit forwarder.sigSendAudioData("pcm");
    QCOMPARE(takeCalls(),
        (QStringList{"SWDataSource::sendPicture(\"jpeg\", 4)", "SWDataSource::sendAudio(1, \"pcm\", 3)"}));
    controller.onSensorInput(type, 0, 720, 1280);
    QCOMPARE(forwarder.starts, 2);
    QCOMPARE(forwarder.stops, 1);
}

void tst_StreamCamera::deviceAsksForTheCamera_data()
{
    camera_data();
}

void tst_StreamCamera::deviceAsksForTheCamera()
{
    QFETCH(int, type);
    VideoView view;
    CountingForwarder forwarder;
    StreamController controller;
    controller.setMultimediaForwarder(&forwarder);
    controller.setVideoView(&view);
    controller.startStream({}, 1);
    requestCamera(type, 1);
    QCOMPARE(forwarder.starts, 0); // not on the SDK's thread
    QTRY_COMPARE(forwarder.starts, 1);
    requestCamera(type, 1);
    QTRY_COMPARE(forwarder.starts, 2);
    takeCalls();
    emit forwarder.sigSendPicture("jpeg");
    QCOMPARE(takeCalls(), QStringList("SWDataSource::sendPicture(\"jpeg\", 4)"));
    requestCamera(type, 0);
    QCOMPARE(forwarder.stops, 0);
    QTRY_COMPARE(forwarder.stops, 1);
    QCOMPARE(forwarder.starts, 2);
}

void tst_StreamCamera::cameraOfAnEndedSession()
{
    CountingForwarder forwarder;
    StreamController controller;
    controller.setMultimediaForwarder(&forwarder);
    controller.onSensorInput(199, 1, 720, 1280);
    QCOMPARE(forwarder.starts, 0);
}

void tst_StreamCamera::stopEndsForwarding()
{
    VideoView view;
    CountingForwarder forwarder;
    {
        StreamController controller;
        controller.setMultimediaForwarder(&forwarder);
        controller.setVideoView(&view);
        controller.startStream({}, 1);
        QCOMPARE(forwarder.stops, 0);
        takeCalls();
        controller.stopStream();
        QCOMPARE(forwarder.stops, 1);
        QCOMPARE(forwarder.callsAtStop, QStringList()); // before anything of the session is taken down
        controller.startStream({}, 1);
        takeCalls();
    }
    QCOMPARE(forwarder.stops, 2);
    QCOMPARE(forwarder.callsAtStop, QStringList());
}

QTEST_MAIN(tst_StreamCamera)

#include "tst_streamcamera.moc"
