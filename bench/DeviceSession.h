#pragma once

#include "Service.h"

#include "stream/StreamingData.h"

#include <QString>

namespace bench {

// The real service in a process of its own with one device, and a granted session with it.
class DeviceSession
{
public:
    // Starts the service and applies for the device. Throws e2e::StepFailed.
    DeviceSession();

    e2e::Service &service() { return m_service; }
    const stream::StreamingData &streamingData() const { return m_data; }
    const QString &serviceId() const { return m_serviceId; }
    // Brings an app to the device's front.
    void openApp(const QString &app) { m_service.openApp(m_data.padCode, app); }

private:
    e2e::Service m_service;
    QString m_serviceId;
    stream::StreamingData m_data;
};

} // namespace bench
