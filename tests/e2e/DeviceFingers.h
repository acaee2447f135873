#pragma once

#include "Service.h"
#include "Waiting.h"

#include <QSet>

namespace e2e {

// The fingers that are down on a device, by the touches that its game Arena has seen. Used on one thread.
class DeviceFingers
{
public:
    DeviceFingers(const Service &service, QString pad)
        : m_service(service)
        , m_pad(std::move(pad))
    { }

    // Reads on, and gives the fingers that are down. Throws StepFailed when a finger came up that was not
    // down, went down twice, or when touches were missed.
    const QSet<int> &down();
    int downs() const { return m_downs; }
    int lifts() const { return m_lifts; }

private:
    void follow(int finger, const QString &action);

    const Service &m_service;
    const QString m_pad;
    qint64 m_seen = 0; // touches
    int m_downs = 0; // so far, like the next
    int m_lifts = 0;
    QSet<int> m_down;
};

inline const QSet<int> &DeviceFingers::down()
{
    QJsonObject state = m_service.appState(m_pad);
    if (state.value(QLatin1String("app")).toString() != QLatin1String("Arena")) {
        m_service.openApp(m_pad, QStringLiteral("Arena"));
        state = m_service.appState(m_pad);
    }
    const QJsonArray touches = state.value(QLatin1String("touches")).toArray();
    const auto count = static_cast<qint64>(state.value(QLatin1String("touchCount")).toDouble());
    const qint64 news = count - m_seen;
    if (news < 0 || news > touches.size())
        throw StepFailed(QStringLiteral("touches of the device were missed: %1 new ones").arg(news));
    for (int i = touches.size() - static_cast<int>(news); i < touches.size(); ++i) {
        const QJsonObject touch = touches.at(i).toObject();
        follow(touch.value(QLatin1String("finger")).toInt(), touch.value(QLatin1String("action")).toString());
    }
    m_seen = count;
    return m_down;
}

inline void DeviceFingers::follow(int finger, const QString &action)
{
    if (action == QLatin1String("move"))
        return;
    const bool isDown = action == QLatin1String("down");
    if (m_down.contains(finger) == isDown)
        throw StepFailed(QStringLiteral("finger %1 at the device: %2, but it was %3")
                             .arg(finger)
                             .arg(action, isDown ? QStringLiteral("down") : QStringLiteral("up")));
    if (isDown)
        m_down.insert(finger);
    else
        m_down.remove(finger);
    ++(isDown ? m_downs : m_lifts);
}

} // namespace e2e
