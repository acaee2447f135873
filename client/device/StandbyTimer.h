#pragma once

#include <QObject>
#include <QSet>

// Counts the time without input after which a device window goes to stand-by. Each restart begins a timer of
// its own and only the newest counts: earlier ones are not touched by a restart, which happens with every
// move of a finger, and are disposed of when their event comes.
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
    // Ends every timer.
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
    QSet<int> m_running; // m_timerId and earlier ones
};
