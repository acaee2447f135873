#include "device/StandbyTimer.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimerEvent>

class tst_StandbyTimer : public QObject
{
    Q_OBJECT

private slots:
    void minutes();
    void restartTakesNewTimer();
    void onlyTheNewestCounts();
    void onlyOneTimerRuns();
    void noMinutes_data();
    void noMinutes();
    void veryLong();
    void stop();
    void expiryEndsTheTimer();

private:
    static void fire(StandbyTimer &timer, int id);
    static QList<QAbstractEventDispatcher::TimerInfo> running(StandbyTimer &timer);
};

// The event of a timer as it comes when its time is over.
void tst_StandbyTimer::fire(StandbyTimer &timer, int id)
{
    QTimerEvent event(id);
    QCoreApplication::sendEvent(&timer, &event);
}

QList<QAbstractEventDispatcher::TimerInfo> tst_StandbyTimer::running(StandbyTimer &timer)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&timer);
}

void tst_StandbyTimer::minutes()
{
    StandbyTimer timer;
    QCOMPARE(timer.minutes(), 5);
    QCOMPARE(timer.timerId(), -1);
    timer.setMinutes(7);
    timer.restart();
    const auto timers = running(timer);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst().timerId, timer.timerId());
    QCOMPARE(timers.constFirst().interval, 7 * 60'000);
    QVERIFY(timers.constFirst().timerType != Qt::PreciseTimer);
}

void tst_StandbyTimer::restartTakesNewTimer()
{
    StandbyTimer timer;
    timer.restart();
    const int first = timer.timerId();
    timer.restart();
    QVERIFY(timer.timerId() != first);
}

void tst_StandbyTimer::onlyTheNewestCounts()
{
    StandbyTimer timer;
    QSignalSpy expired(&timer, &StandbyTimer::sigExpired);
    timer.restart();
    const int first = timer.timerId();
    timer.restart();
    const int second = timer.timerId();
    fire(timer, first);
    QCOMPARE(expired.size(), 0);
    QCOMPARE(timer.timerId(), second);
    fire(timer, second);
    QCOMPARE(expired.size(), 1);
    fire(timer, second);
    QCOMPARE(expired.size(), 1);
    fire(timer, -1);
    QCOMPARE(expired.size(), 1);
}

// A finger that moves restarts the count a hundred times a second.
void tst_StandbyTimer::onlyOneTimerRuns()
{
    StandbyTimer timer;
    for (int i = 0; i < 1000; ++i)
        timer.restart();
    QCOMPARE(running(timer).size(), 1);
    QCOMPARE(running(timer).constFirst().timerId, timer.timerId());
}

void tst_StandbyTimer::noMinutes_data()
{
    QTest::addColumn<int>("minutes");
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -3;
}

// Also the timer that counted until then counts no more.
void tst_StandbyTimer::noMinutes()
{
    QFETCH(int, minutes);
    StandbyTimer timer;
    QSignalSpy expired(&timer, &StandbyTimer::sigExpired);
    timer.restart();
    const int first = timer.timerId();
    timer.setMinutes(minutes);
    timer.restart();
    QCOMPARE(timer.timerId(), -1);
    fire(timer, first);
    QCOMPARE(expired.size(), 0);
    QCOMPARE(running(timer).size(), 0);
}

void tst_StandbyTimer::veryLong()
{
    StandbyTimer timer;
    timer.setMinutes(std::numeric_limits<int>::max());
    timer.restart();
    QVERIFY(timer.timerId() != -1);
    QVERIFY(running(timer).constFirst().interval > 24 * 60 * 60'000);
}

void tst_StandbyTimer::stop()
{
    StandbyTimer timer;
    for (int i = 0; i < 5; ++i)
        timer.restart();
    timer.stop();
    QCOMPARE(timer.timerId(), -1);
    QCOMPARE(running(timer).size(), 0);
}

void tst_StandbyTimer::expiryEndsTheTimer()
{
    StandbyTimer timer;
    for (int i = 0; i < 5; ++i)
        timer.restart();
    fire(timer, timer.timerId());
    QCOMPARE(timer.timerId(), -1);
    QCOMPARE(running(timer).size(), 0);
}

QTEST_GUILESS_MAIN(tst_StandbyTimer)

#include "tst_standbytimer.moc"
