#pragma once

#include "group/InputEvent.h"

#include <QList>
#include <QPointer>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class SubController;

namespace group {
class TileInput;
} // namespace group

// Replays the master's input on every tile of a group, first in, first out, so that the GUI thread waits for
// none of the sessions. It looks for events every 100 ms while there are none and is not woken by one; once
// there are some, it takes all of them without a pause.
//
// Created and used on the GUI thread, child of the page; its destruction ends the thread and waits for it,
// for one event's replay at most. The thread never touches a tile: it holds its input side
// (group::TileInput), which outlives it. No lock is held while it sleeps or while events are replayed.
class BatchProcessThread : public QThread
{
    Q_OBJECT

public:
    using Controllers = QList<QPointer<SubController>>;

    // How long an idle thread waits before it looks for events again.
    static constexpr std::chrono::milliseconds pollInterval{100};

    explicit BatchProcessThread(QObject *parent = nullptr);
    ~BatchProcessThread() override;

    // Whom the events taken from now on go to, in this order; tiles that are gone are left out. GUI thread.
    void setControllers(const Controllers &controllers);
    // Ends the tile: when it returns, no input is on its way to it and none will follow. The tile is deleted
    // by the event loop, also one that the thread does not know. GUI thread.
    void removeController(SubController *controller);
    // Appends to the queue. Any thread; never waits for a replay.
    void addEvent(const group::InputEvent &event);
    // How many events have not been taken from the queue yet. Any thread.
    int waitingEvents() const;

protected:
    void run() override;

private:
    struct Target
    {
        const SubController *controller; // to compare only: the thread must not use it
        std::shared_ptr<group::TileInput> input;
    };
    using Targets = std::vector<Target>;

    std::optional<group::InputEvent> takeEvent(std::shared_ptr<const Targets> &targets);

    mutable std::mutex m_mutex;
    std::condition_variable m_stopWanted;
    bool m_stopped = false; // m_mutex
    std::deque<group::InputEvent> m_queue; // m_mutex
    // m_mutex; the list itself never changes, so that the thread goes through it without the lock.
    std::shared_ptr<const Targets> m_targets = std::make_shared<Targets>();
};
