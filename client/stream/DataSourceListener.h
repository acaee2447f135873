#pragma once

#include <swplay/SWDataSourceListener.h>

#include <QByteArray>
#include <QObject>

#include <mutex>
#include <variant>
#include <vector>

// Turns the streaming SDK's events into signals on the GUI thread. The SDK calls it on threads of its own,
// one call at a time; the object itself lives on the GUI thread and belongs to the StreamController that
// created it. All other events of the SDK keep its default, which is to do nothing: the SDK repairs a lost
// connection by itself.
class DataSourceListener : public QObject, public SWDataSourceListener
{
    Q_OBJECT

public:
    explicit DataSourceListener(QObject *parent);

    // SDK threads. A call on the GUI thread emits before it returns; any other is delivered by the event
    // loop.
    void onSensorRequest(int inputType, int state, int width, int height) override;
    void onSensorRequest(int inputType, int state) override;
    void onStreamInfo(const char *info) override;
    void onControlGrant(int state) override;

signals:
    // Emitted on the GUI thread, in the order of the SDK's calls.
    void sigSensorInput(int inputtype, int state, int width, int height);
    // `info` is a JSON object in UTF-8, valid during the emission only.
    void sigPlayInfo(const char *info);

private:
    struct SensorRequest
    {
        int inputType;
        int state;
        int width;
        int height;
    };
    using Event = std::variant<SensorRequest, QByteArray>; // QByteArray: stream information

    void enqueue(Event event);
    // GUI thread: emits whatever the SDK's threads have left.
    Q_INVOKABLE void deliver();

    std::mutex m_lock; // guards m_events
    std::vector<Event> m_events; // what has not been emitted yet, oldest first
};
