#include "stream/DataSourceListener.h"

#include <QPointer>

namespace {

// What a device means that names no picture size with its request, in pixels.
constexpr int DefaultSensorWidth = 720;
constexpr int DefaultSensorHeight = 1280;

} // namespace

DataSourceListener::DataSourceListener(QObject *parent)
    : QObject(parent)
{ }

void DataSourceListener::onSensorRequest(int inputType, int state, int width, int height)
{
    enqueue(SensorRequest{inputType, state, width, height});
}

void DataSourceListener::onSensorRequest(int inputType, int state)
{
    onSensorRequest(inputType, state, DefaultSensorWidth, DefaultSensorHeight);
}

void DataSourceListener::onStreamInfo(const char *info)
{
    enqueue(QByteArray(info));
}

void DataSourceListener::onControlGrant(int)
{ }

void DataSourceListener::enqueue(Event event)
{
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        m_events.push_back(std::move(event));
        if (m_events.size() > 1)
            return; // a delivery is already on its way
    }
    QMetaObject::invokeMethod(this, "deliver", Qt::AutoConnection);
}

void DataSourceListener::deliver()
{
    std::vector<Event> events;
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        events.swap(m_events);
    }
    const QPointer<DataSourceListener> self(this); // a receiver may end the session
    for (const Event &event : events) {
        if (!self)
            return;
        if (const auto *request = std::get_if<SensorRequest>(&event))
            emit sigSensorInput(request->inputType, request->state, request->width, request->height);
        else
            emit sigPlayInfo(std::get<QByteArray>(event).constData());
    }
}
