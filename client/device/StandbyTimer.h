#pragma once

#include <QObject>

// Counts the time without input after which a device window goes to stand-by. Each restart begins a timer of
// its own in place of the one before; an event of an earlier one that is still under way does not count.
//
// GUI thread; child of its window.
class StandbyTimer : public QObject
{
    Q_OBJECT

public:
    // How long a window waits that nobody has told.
    static constexpr int defaultMinutes = 5;

    explicit StandbyTimer(QObject *parent = nullptr);

    // Minutes without input; 0 or less: never. Takes effect with the next restart.
    void setMinutes(int minutes) { m_minutes = minutes; }
    int minutes() const { return m_minutes; }
    // The timer that counts; -1: none.
    int timerId() const { return m_timerId; }

    void restart();
    void stop();

signals:
    // The time is over; nothing counts any more.
    void sigExpired();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    static constexpr int NoTimer = -1;

    int m_minutes = defaultMinutes;
    int m_timerId = NoTimer;
};
