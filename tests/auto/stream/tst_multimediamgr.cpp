// The computer's camera as sessions forward it. The camera is the one of the tests, behind Qt Multimedia.

#include "RecordedCalls.h"

#include "stream/MultimediaMgr.h"
#include "stream/MultimediaWorker.h"
#include "stream/StreamController.h"

#include <NumberedPicture.h>

#include <swplay/SWDataSource.h>

#include <QBuffer>
#include <QCamera>
#include <QCoreApplication>
#include <QImageReader>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <condition_variable>
#include <memory>
#include <mutex>

namespace {

constexpr int BackCamera = 212;
constexpr int FrontCamera = 199;
constexpr QSize NativeSize(640, 480); // of the test camera

MultimediaMgr &manager()
{
    return MultimediaMgr::instance();
}

// Pictures that the camera was asked for so far.
int requests()
{
    return qApp->property("testCameraRequests").toInt();
}

QCamera &camera()
{
    return *manager().findChild<QCamera *>();
}

QTimer &timer()
{
    return *manager().findChild<QTimer *>();
}

// One of the test camera's pictures as it is saved without saying anything about its quality.
QByteArray jpegOf(int number)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    numberedpicture::make(number, NativeSize).save(&buffer, "JPG");
    return buffer.data();
}

std::unique_ptr<StreamController> session()
{
    auto controller = std::make_unique<StreamController>();
    controller->setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    takeCalls();
    return controller;
}

} // namespace

// Stands in another thread's event queue. With the locks of the C++ library, which a thread sanitizer sees.
class ThreadGate : public QObject
{
    Q_OBJECT

public:
    // Queues itself: `thread` waits here when its turn comes. Deleted on the thread when it has passed.
    static std::shared_ptr<ThreadGate> putBefore(QThread *thread)
    {
        const std::shared_ptr<ThreadGate> gate(new ThreadGate, [](ThreadGate *g) { g->deleteLater(); });
        gate->moveToThread(thread);
        QMetaObject::invokeMethod(gate.get(), "pass", Qt::QueuedConnection);
        return gate;
    }
    void waitUntilReached()
    {
        std::unique_lock<std::mutex> lock(m_lock);
        m_changed.wait(lock, [this] { return m_reached; });
    }
    void open()
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        m_open = true;
        m_changed.notify_all();
    }

public slots:
    void pass()
    {
        std::unique_lock<std::mutex> lock(m_lock);
        m_reached = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_open; });
    }

private:
    std::mutex m_lock; // guards what follows
    std::condition_variable m_changed;
    bool m_reached = false;
    bool m_open = false;
};

// Notes where it is called.
class Caller : public QObject
{
    Q_OBJECT

public:
    QThread *waitForThread()
    {
        std::unique_lock<std::mutex> lock(m_lock);
        m_changed.wait(lock, [this] { return m_thread != nullptr; });
        return m_thread;
    }

public slots:
    void note(const QByteArray &)
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        m_thread = QThread::currentThread();
        m_changed.notify_all();
    }

private:
    std::mutex m_lock; // guards what follows
    std::condition_variable m_changed;
    QThread *m_thread = nullptr;
};

namespace {

// Has every event handled that is under way on either thread, so that nothing comes later unless the timer
// or somebody else asks for it.
void drain()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        const auto gate = ThreadGate::putBefore(manager().findChild<QThread *>());
        gate->waitUntilReached();
        gate->open();
    }
    QCoreApplication::processEvents();
}

} // namespace

class tst_MultimediaMgr : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingIsCreatedForAStop();
    void interface();
    void picturesAreJpegsOfTheNativeSize();
    void tenPicturesASecond();
    void firstPictureAtOnceWhenAlreadyActive();
    void nothingIsAskedForWhileTheCameraStarts();
    void stopEndsCameraAndTimerButNotTheThread();
    void startStartsTheThreadAgain();
    void everythingIsEncodedOnTheThread();
    void workerEncodesWhereItLives();
    void workerDropsWhatIsNoPicture();
    void bothSessionsGetTheSamePictures();
    void eitherSessionStopsForBoth_data();
    void eitherSessionStopsForBoth();
    void theEndOfAnySessionStopsTheCamera();
};

void tst_MultimediaMgr::initTestCase()
{
    QCoreApplication::addLibraryPath(QStringLiteral(TEST_PLUGIN_PATH));
}

void tst_MultimediaMgr::init()
{
    Recorder::instance().reset();
}

void tst_MultimediaMgr::cleanup()
{
    MultimediaMgr::stopInstance();
    if (qApp->property("testCameraServices").isValid())
        drain();
}

// The first test: no camera has been asked for yet.
void tst_MultimediaMgr::nothingIsCreatedForAStop()
{
    {
        const auto controller = session();
        controller->stopStream();
    }
    QVERIFY(!qApp->property("testCameraServices").isValid());
    QCOMPARE(&manager(), &manager());
    QCOMPARE(qApp->property("testCameraServices").toInt(), 1);
    QVERIFY(QMetaType::isRegistered(QMetaType::type("QVideoFrame")));
}

void tst_MultimediaMgr::interface()
{
    const auto names = [](const QMetaObject &type, QMetaMethod::MethodType kind) {
        QStringList list;
        for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i)
            if (type.method(i).methodType() == kind)
                list.append(QString::fromLatin1(type.method(i).methodSignature()));
        return list;
    };
    QCOMPARE(names(MultimediaMgr::staticMetaObject, QMetaMethod::Signal),
        (QStringList{"sigSendPicture(QByteArray)", "sigSendAudioData(QByteArray)",
            "sigAudioDataChanged(QByteArray)"}));
    QCOMPARE(names(MultimediaMgr::staticMetaObject, QMetaMethod::Slot),
        (QStringList{"onProcessAudioData()", "onProcessVideoFrame()"}));
    QCOMPARE(names(MultimediaWorker::staticMetaObject, QMetaMethod::Signal),
        (QStringList{"sigSendPicture(QByteArray)", "sigSendAudioData(QByteArray)"}));
    QCOMPARE(names(MultimediaWorker::staticMetaObject, QMetaMethod::Slot),
        (QStringList{"onProcessVideoFrame()", "onImageAvailable(int,QVideoFrame)",
            "onImageCaptured(int,QImage)", "onProcessAudioData()", "onAudioDataChanged(QByteArray)"}));
    QCOMPARE(camera().captureMode(), QCamera::CaptureStillImage);
}

void tst_MultimediaMgr::picturesAreJpegsOfTheNativeSize()
{
    QSignalSpy pictures(&manager(), &MultimediaMgr::sigSendPicture);
    QSignalSpy sound(&manager(), &MultimediaMgr::sigSendAudioData);
    const int before = requests();
    manager().start();
    QTRY_VERIFY(pictures.count() >= 3);
    for (int i = 0; i < 3; ++i) {
        QByteArray bytes = pictures.at(i).at(0).toByteArray();
        QCOMPARE(bytes, jpegOf(before + 1 + i)); // of the format's own quality
        QBuffer buffer(&bytes);
        QImageReader reader(&buffer);
        QCOMPARE(reader.format(), QByteArray("jpeg"));
        const QImage picture = reader.read();
        QCOMPARE(picture.size(), NativeSize);
        QCOMPARE(numberedpicture::read(picture), before + 1 + i);
    }
    QCOMPARE(sound.count(), 0);
}

void tst_MultimediaMgr::tenPicturesASecond()
{
    manager().start();
    QCOMPARE(timer().interval(), 100);
    QVERIFY(timer().isActive() && !timer().isSingleShot());
    QTRY_COMPARE(camera().state(), QCamera::ActiveState);
    // One request a tick.
    QSignalSpy ticks(&timer(), &QTimer::timeout);
    const int before = requests();
    QTRY_VERIFY(ticks.count() >= 5);
    QCOMPARE(requests(), before + ticks.count());
}

void tst_MultimediaMgr::firstPictureAtOnceWhenAlreadyActive()
{
    manager().start();
    QTRY_COMPARE(camera().state(), QCamera::ActiveState);
    const int before = requests();
    manager().start();
    QCOMPARE(requests(), before + 1);
}

void tst_MultimediaMgr::nothingIsAskedForWhileTheCameraStarts()
{
    const int before = requests();
    manager().start();
    QVERIFY(camera().state() != QCamera::ActiveState);
    manager().onProcessVideoFrame();
    QCOMPARE(requests(), before);
    QTRY_VERIFY(requests() > before);
}

void tst_MultimediaMgr::stopEndsCameraAndTimerButNotTheThread()
{
    manager().start();
    QTRY_COMPARE(camera().state(), QCamera::ActiveState);
    manager().stop();
    QVERIFY(camera().state() != QCamera::ActiveState);
    QVERIFY(!timer().isActive());
    QVERIFY(manager().findChild<QThread *>()->isRunning());
    drain();
    const int before = requests();
    manager().onProcessVideoFrame();
    QCOMPARE(requests(), before);
}

void tst_MultimediaMgr::startStartsTheThreadAgain()
{
    auto *thread = manager().findChild<QThread *>();
    thread->quit();
    thread->wait();
    QSignalSpy pictures(&manager(), &MultimediaMgr::sigSendPicture);
    manager().start();
    QVERIFY(thread->isRunning());
    QTRY_VERIFY(pictures.count() >= 1);
}

// While the thread is held up, pictures are captured and none is sent; afterwards all of them are.
void tst_MultimediaMgr::everythingIsEncodedOnTheThread()
{
    const auto gate = ThreadGate::putBefore(manager().findChild<QThread *>());
    gate->waitUntilReached();
    QSignalSpy pictures(&manager(), &MultimediaMgr::sigSendPicture);
    const int before = requests();
    manager().start();
    const bool captured = QTest::qWaitFor([&] { return requests() >= before + 3; });
    const int sentWhileHeld = pictures.count();
    gate->open();
    QVERIFY(captured);
    QCOMPARE(sentWhileHeld, 0);
    QTRY_VERIFY(pictures.count() >= 3);
}

void tst_MultimediaMgr::workerEncodesWhereItLives()
{
    QThread thread;
    auto *worker = new MultimediaWorker;
    worker->moveToThread(&thread);
    Caller caller;
    connect(
        worker, SIGNAL(sigSendPicture(QByteArray)), &caller, SLOT(note(QByteArray)), Qt::DirectConnection);
    connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    thread.start();
    QVERIFY(QMetaObject::invokeMethod(worker, "onImageCaptured", Qt::QueuedConnection, Q_ARG(int, 1),
        Q_ARG(QImage, numberedpicture::make(7, NativeSize))));
    QCOMPARE(caller.waitForThread(), &thread);
    thread.quit();
    thread.wait();
}

void tst_MultimediaMgr::workerDropsWhatIsNoPicture()
{
    MultimediaWorker worker;
    QSignalSpy pictures(&worker, &MultimediaWorker::sigSendPicture);
    QSignalSpy sound(&worker, &MultimediaWorker::sigSendAudioData);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("camera picture 1 .*cannot be encoded"));
    worker.onImageCaptured(1, QImage());
    worker.onImageCaptured(2, QImage());
    QCOMPARE(pictures.count(), 0);
    worker.onImageCaptured(3, numberedpicture::make(3, NativeSize));
    QCOMPARE(pictures.count(), 1);
    worker.onImageAvailable(4, QVideoFrame(numberedpicture::make(4, NativeSize)));
    worker.onProcessVideoFrame();
    worker.onProcessAudioData();
    worker.onAudioDataChanged("pcm");
    QCOMPARE(pictures.count(), 1);
    QCOMPARE(sound.count(), 0);
}

void tst_MultimediaMgr::bothSessionsGetTheSamePictures()
{
    const auto first = session();
    const auto second = session();
    first->onSensorInput(BackCamera, 1, 720, 1280);
    second->onSensorInput(FrontCamera, 1, 720, 1280);
    second->onSensorInput(FrontCamera, 1, 720, 1280); // no second connection
    QSignalSpy pictures(&manager(), &MultimediaMgr::sigSendPicture);
    QTRY_VERIFY(pictures.count() >= 3);
    manager().stop();
    drain();
    const QStringList calls = takeCalls();
    QCOMPARE(calls.size(), 2 * pictures.count());
    for (int i = 0; i < pictures.count(); ++i) {
        const std::string bytes = pictures.at(i).at(0).toByteArray().toStdString();
        const QString call = QString::fromStdString(
            "SWDataSource::sendPicture(\"" + bytes + "\", " + std::to_string(bytes.size()) + ')');
        QVERIFY(calls.at(2 * i) == call);
        QVERIFY(calls.at(2 * i + 1) == call);
    }
}

void tst_MultimediaMgr::eitherSessionStopsForBoth_data()
{
    QTest::addColumn<bool>("byTheFirst");
    QTest::newRow("first") << true;
    QTest::newRow("second") << false;
}

void tst_MultimediaMgr::eitherSessionStopsForBoth()
{
    QFETCH(bool, byTheFirst);
    const auto first = session();
    const auto second = session();
    for (StreamController *controller : {first.get(), second.get()})
        controller->onSensorInput(BackCamera, 1, 720, 1280);
    QTRY_COMPARE(camera().state(), QCamera::ActiveState);
    (byTheFirst ? first : second)->onSensorInput(BackCamera, 0, 720, 1280);
    QVERIFY(camera().state() != QCamera::ActiveState);
    QVERIFY(!timer().isActive());
    drain();
    takeCalls();
    const int before = requests();
    manager().onProcessVideoFrame();
    drain();
    QCOMPARE(requests(), before);
    QCOMPARE(takeCalls(), QStringList());
}

// Also of one that has never asked for it.
void tst_MultimediaMgr::theEndOfAnySessionStopsTheCamera()
{
    const auto asking = session();
    const auto other = session();
    asking->onSensorInput(BackCamera, 1, 720, 1280);
    QTRY_COMPARE(camera().state(), QCamera::ActiveState);
    other->stopStream();
    QVERIFY(camera().state() != QCamera::ActiveState);
    QVERIFY(!timer().isActive());
}

QTEST_MAIN(tst_MultimediaMgr)

#include "tst_multimediamgr.moc"
