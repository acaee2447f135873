#include "group/BatchProcessThread.h"

#include "group/SubController.h"
#include "group/TileInput.h"

#include <algorithm>
#include <utility>

BatchProcessThread::BatchProcessThread(QObject *parent)
    : QThread(parent)
{
    setObjectName(QStringLiteral("group-input")); // the thread's name as well
}

BatchProcessThread::~BatchProcessThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = true;
    }
    m_stopWanted.notify_all();
    quit();
    wait();
    // After the thread's last step also for tools that do not see into the toolkit's wait.
    const std::lock_guard<std::mutex> lock(m_mutex);
}

void BatchProcessThread::setControllers(const Controllers &controllers)
{
    auto targets = std::make_shared<Targets>();
    targets->reserve(static_cast<std::size_t>(controllers.size()));
    for (const QPointer<SubController> &controller : controllers) {
        if (controller)
            targets->push_back({controller, controller->input()});
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_targets = std::move(targets);
}

void BatchProcessThread::removeController(SubController *controller)
{
    if (!controller)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        auto targets = std::make_shared<Targets>(*m_targets);
        targets->erase(std::remove_if(targets->begin(), targets->end(),
                           [controller](const Target &target) { return target.controller == controller; }),
            targets->end());
        m_targets = std::move(targets);
    }
    controller->input()->close(); // a replay that is under way has it still
    controller->deleteLater();
}

void BatchProcessThread::addEvent(const group::InputEvent &event)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_queue.push_back(event);
}

int BatchProcessThread::waitingEvents() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<int>(m_queue.size());
}

void BatchProcessThread::run()
{
    std::shared_ptr<const Targets> targets;
    while (const std::optional<group::InputEvent> event = takeEvent(targets)) {
        for (const Target &target : *targets)
            target.input->replay(*event);
        targets.reset(); // does not keep a removed tile's input while it sleeps
    }
}

// Waits for the next event and takes the list it goes to. None: the thread is to end.
std::optional<group::InputEvent> BatchProcessThread::takeEvent(std::shared_ptr<const Targets> &targets)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stopped && m_queue.empty())
        m_stopWanted.wait_for(lock, pollInterval, [this] { return m_stopped; });
    if (m_stopped)
        return std::nullopt;
    std::optional<group::InputEvent> event(std::move(m_queue.front()));
    m_queue.pop_front();
    targets = m_targets;
    return event;
}
