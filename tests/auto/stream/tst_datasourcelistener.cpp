#include "stream/DataSourceListener.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <thread>

class tst_DataSourceListener : public QObject
{
    Q_OBJECT

private slots:
    void signalOrder();
    void sensorRequestWithSize();
    void sensorRequestWithoutSize();
    void otherEventsDoNothing();
    void eventsOfAnotherThreadKeepTheirOrder();
    void receiverMayDestroyTheListener();
};

void tst_DataSourceListener::signalOrder()
{
    const QMetaObject &meta = DataSourceListener::staticMetaObject;
    QCOMPARE(
        meta.method(meta.methodOffset()).methodSignature(), QByteArray("sigSensorInput(int,int,int,int)"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(), QByteArray("sigPlayInfo(const char*)"));
}

void tst_DataSourceListener::sensorRequestWithSize()
{
    DataSourceListener listener(nullptr);
    QSignalSpy requests(&listener, &DataSourceListener::sigSensorInput);
    SWDataSourceListener &sdkSide = listener;
    sdkSide.onSensorRequest(199, 1, 640, 480);
    QCOMPARE(requests, (QList<QVariantList>{{199, 1, 640, 480}}));
}

void tst_DataSourceListener::sensorRequestWithoutSize()
{
    DataSourceListener listener(nullptr);
    QSignalSpy requests(&listener, &DataSourceListener::sigSensorInput);
    SWDataSourceListener &sdkSide = listener;
    sdkSide.onSensorRequest(212, 0);
    QCOMPARE(requests, (QList<QVariantList>{{212, 0, 720, 1280}}));
}

void tst_DataSourceListener::otherEventsDoNothing()
{
    DataSourceListener listener(nullptr);
    QSignalSpy requests(&listener, &DataSourceListener::sigSensorInput);
    int infos = 0;
    connect(&listener, &DataSourceListener::sigPlayInfo, this, [&infos] { ++infos; });
    SWDataSourceListener &sdkSide = listener;
    sdkSide.onConnected();
    sdkSide.onDisconnected(1);
    sdkSide.onReconnecting(3);
    sdkSide.onScreenRotation(1);
    sdkSide.onCopyFromRemote("text", 4);
    sdkSide.onRecvKeyboardType(1);
    sdkSide.onControlGrant(1);
    QCoreApplication::processEvents();
    QCOMPARE(requests.count() + infos, 0);
}

void tst_DataSourceListener::eventsOfAnotherThreadKeepTheirOrder()
{
    constexpr int Rounds = 500;
    DataSourceListener listener(nullptr);
    QStringList received;
    bool onThisThread = true;
    connect(&listener, &DataSourceListener::sigSensorInput, this, [&](int type, int state, int, int) {
        received.append(QStringLiteral("%1 %2").arg(type).arg(state));
        onThisThread = onThisThread && QThread::currentThread() == thread();
    });
    connect(&listener, &DataSourceListener::sigPlayInfo, this, [&](const char *info) {
        received.append(QString::fromUtf8(info));
        onThisThread = onThisThread && QThread::currentThread() == thread();
    });
    QStringList sent;
    for (int i = 0; i < Rounds; ++i)
        sent << QStringLiteral("199 %1").arg(i) << QStringLiteral("{\"delayTime\": %1}").arg(i);

    std::thread sdk([&listener] {
        for (int i = 0; i < Rounds; ++i) {
            listener.onSensorRequest(199, i);
            const std::string info = "{\"delayTime\": " + std::to_string(i) + '}';
            listener.onStreamInfo(info.c_str());
        }
    });
    QTRY_COMPARE(received.size(), sent.size());
    sdk.join();
    QCOMPARE(received, sent);
    QVERIFY(onThisThread);
}

void tst_DataSourceListener::receiverMayDestroyTheListener()
{
    auto *listener = new DataSourceListener(nullptr);
    int received = 0;
    connect(listener, &DataSourceListener::sigPlayInfo, this, [&] {
        ++received;
        delete listener;
    });
    std::thread sdk([listener] {
        listener->onStreamInfo("{}");
        listener->onStreamInfo("{}");
    });
    sdk.join();
    QTRY_COMPARE(received, 1);
    QCoreApplication::processEvents();
    QCOMPARE(received, 1);
}

QTEST_GUILESS_MAIN(tst_DataSourceListener)

#include "tst_datasourcelistener.moc"
