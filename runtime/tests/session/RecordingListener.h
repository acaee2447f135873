#pragma once

#include "WaitingQueue.h"

#include "swplay/SWDataSourceListener.h"

#include <functional>
#include <string>

// Writes down what a data source tells, one line per callback.
class RecordingListener : public SWDataSourceListener
{
public:
    // The next event, "" if none comes in time. Stream information goes to `infos` instead.
    std::string next() { return m_events.pop().value_or(""); }
    bool isEmpty() const { return m_events.isEmpty(); }

    WaitingQueue<std::string> infos;
    // Runs within every callback that is written down; set before start.
    std::function<void(const std::string &)> during;

    void onConnected() override { add("connected"); }
    void onDisconnected(int reason) override { add("disconnected " + std::to_string(reason)); }
    void onReconnecting(int attempt) override { add("reconnecting " + std::to_string(attempt)); }
    void onScreenRotation(int rotation) override { add("rotation " + std::to_string(rotation)); }
    void onSensorRequest(int inputType, int state, int width, int height) override
    {
        add("sensor " + std::to_string(inputType) + ' ' + std::to_string(state) + ' ' + std::to_string(width)
            + 'x' + std::to_string(height));
    }
    void onSensorRequest(int inputType, int state) override
    {
        add("sensor " + std::to_string(inputType) + ' ' + std::to_string(state));
    }
    void onStreamInfo(const char *info) override { infos.push(info); }
    void onCopyFromRemote(const char *text, int length) override
    {
        add("copy " + std::to_string(length) + ' ' + text);
    }
    void onRecvKeyboardType(int type) override { add("keyboard " + std::to_string(type)); }
    void onControlGrant(int state) override { add("control " + std::to_string(state)); }

private:
    void add(const std::string &event)
    {
        m_events.push(event);
        if (during)
            during(event);
    }

    WaitingQueue<std::string> m_events;
};
