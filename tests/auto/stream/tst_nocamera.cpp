// A computer without a camera: no back end of Qt Multimedia can be loaded in this program.

#include "RecordedCalls.h"

#include "stream/MultimediaMgr.h"
#include "stream/StreamController.h"

#include <swplay/SWDataSource.h>

#include <QCamera>
#include <QGuiApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace {

QStringList logLines;

void keepLogLine(QtMsgType, const QMessageLogContext &, const QString &text)
{
    logLines.append(text);
}

} // namespace

class tst_NoCamera : public QObject
{
    Q_OBJECT

private slots:
    void onlyTimerAndThreadStart();
};

void tst_NoCamera::onlyTimerAndThreadStart()
{
    QCoreApplication::setLibraryPaths({});
    StreamController controller;
    controller.setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    const QtMessageHandler handler = qInstallMessageHandler(keepLogLine);
    controller.onSensorInput(212, 1, 720, 1280);
    MultimediaMgr &manager = MultimediaMgr::instance();
    auto *timer = manager.findChild<QTimer *>();
    QSignalSpy pictures(&manager, &MultimediaMgr::sigSendPicture);
    QSignalSpy ticks(timer, &QTimer::timeout);
    takeCalls();
    const bool ticked = ticks.wait() && ticks.wait() && ticks.wait();
    qInstallMessageHandler(handler);

    QVERIFY(ticked);
    QVERIFY(timer->isActive());
    QVERIFY(manager.findChild<QThread *>()->isRunning());
    QCOMPARE(manager.findChild<QCamera *>()->state(), QCamera::UnloadedState);
    QCOMPARE(pictures.count(), 0);
    QCOMPARE(takeCalls(), QStringList());
    // One line of ours; Qt's own about the back end is the only other.
    QCOMPARE(logLines.filter(QStringLiteral("the camera cannot be forwarded")).size(), 1);
    QVERIFY2(logLines.size() <= 2, qPrintable(logLines.join(QLatin1Char('\n'))));
    controller.onSensorInput(212, 0, 720, 1280);
    QVERIFY(!timer->isActive());
}

// The thread must end with the application object, which only main can see.
int main(int argc, char **argv)
{
    int failures = 0;
    QPointer<QThread> thread;
    {
        QGuiApplication app(argc, argv);
        tst_NoCamera test;
        failures = QTest::qExec(&test, argc, argv);
        thread = MultimediaMgr::instance().findChild<QThread *>();
    }
    if (thread) { // one that still runs cannot be destroyed
        qCritical("the camera's thread has outlived the application object");
        return 1;
    }
    return failures;
}

#include "tst_nocamera.moc"
