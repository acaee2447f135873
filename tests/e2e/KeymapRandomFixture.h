#pragma once

#include "DeviceFingers.h"
#include "Service.h"
#include "Waiting.h"

#include "device/SingleController.h"
#include "keymap/KeyboardMapEditor.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "net/HttpHelper.h"
#include "stream/VideoView.h"

#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

// A device window against the real service, with a scheme for the device's game in play, and what must hold
// whatever happens: the device is told of every finger that is held and of no other, and none is left when
// the keyboard is lost. Used by the test of random events, on the GUI thread.
class KeymapRandomFixture : public QObject
{
protected:
    static constexpr int unknownFingers = -1;

    // A service with one device, which plays Arena; signs in.
    void startService();
    // Shows a window with the device's picture, which is active.
    void openWindow();
    // Lays the five keys of the service's scheme for Arena over the video.
    void applyScheme();

    // The wheel moves fingers.
    bool isGestureUnderWay() const;
    // Fingers that keys and mouse hold down now, as the view would send them.
    int pressedFingers() const;
    void checkSentTouches() const;
    // No key is pressed, the pointer is free, and the device has no finger. `when`: for the failure's text.
    void checkNothingIsHeld(const QString &when);

    std::unique_ptr<e2e::Service> m_service;
    QString m_pad;
    std::unique_ptr<SingleController> m_window;
    VideoView *m_view = nullptr; // of the window, like the next two
    KeyboardMapMgr *m_manager = nullptr;
    KeyboardMapEditor *m_editor = nullptr;
    std::unique_ptr<e2e::DeviceFingers> m_fingers;
    int m_lastSent = 0; // fingers in the last touch that the view emitted, or unknownFingers

private:
    void fetchScheme();

    QJsonObject m_user; // the answer to the sign-in
    QJsonObject m_scheme;
    QString m_serviceId;
    bool m_mouseDown = false; // the view holds a finger for the mouse
};

// A service of its own for each seed: what was saved before would change what happens.
inline void KeymapRandomFixture::startService()
{
    e2e::steps([this] {
        m_service = std::make_unique<e2e::Service>(
            QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-cloud"), 1);
        m_service->start();
        qputenv("ORVANE_API_BASE_URL", m_service->apiBaseUrl().toUtf8());
        m_user = m_service->signIn();
        HttpHelper::setLoginParams(m_user.value(QLatin1String("access_token")).toString(),
            m_user.value(QLatin1String("login_id")).toString());
        const QJsonObject device = m_service->admin(QStringLiteral("GET"), QStringLiteral("/admin/devices"))
                                       .value(QLatin1String("devices"))
                                       .toArray()
                                       .at(0)
                                       .toObject();
        m_serviceId = device.value(QLatin1String("service_id")).toString();
        m_pad = device.value(QLatin1String("pad_code")).toString();
        m_service->openApp(m_pad, QStringLiteral("Arena"));
        fetchScheme();
        m_fingers = std::make_unique<e2e::DeviceFingers>(*m_service, m_pad);
    });
}

inline void KeymapRandomFixture::openWindow()
{
    m_window = std::make_unique<SingleController>(m_serviceId, QStringLiteral("Aurora"));
    m_window->setStandbyTime(0);
    m_view = m_window->findChild<VideoView *>();
    m_manager = m_window->findChild<KeyboardMapMgr *>();
    m_editor = m_window->findChild<KeyboardMapEditor *>();
    connect(m_view, &VideoView::touchEvent, this, [this](int, const QVector<int> &xs, const QVector<int> &) {
        // A gesture of the wheel adds its own, also to the touch that ends it.
        m_lastSent = isGestureUnderWay() ? unknownFingers : xs.first() == -1 ? 0 : xs.size();
    });
    connect(
        m_view, &VideoView::subControlTouchEvent, this, [this](int action) { m_mouseDown = action != 1; });
    m_lastSent = 0;
    m_mouseDown = false;
    m_window->show();
    m_window->applyDevice();
    e2e::waitUntil(QStringLiteral("the first picture"), [this] { return !m_view->picture().isNull(); });
    m_window->activateWindow();
    m_view->setFocus();
    e2e::waitUntil(QStringLiteral("the window is active"), [this] { return m_window->isActiveWindow(); });
}

// The scheme that the service has for Arena, with the keys as plain text.
inline void KeymapRandomFixture::fetchScheme()
{
    const QJsonObject headers{{QStringLiteral("access-token"), m_user.value(QLatin1String("access_token"))},
        {QStringLiteral("login-id"), m_user.value(QLatin1String("login_id"))}};
    const QJsonObject answer = m_service->call(
        QStringLiteral("GET"), QStringLiteral("/apiv1/keyboard_map/mapConfigList"), {}, headers);
    m_scheme = answer.value(QLatin1String("data")).toArray().at(0).toObject();
    const QByteArray keys = m_scheme.value(QLatin1String("config")).toString().toUtf8();
    m_scheme.insert(QStringLiteral("config"), QString::fromUtf8(QByteArray::fromBase64(keys)));
}

inline void KeymapRandomFixture::applyScheme()
{
    m_editor->applySchemeObject(m_scheme, true);
    if (m_manager->keys().size() != 5)
        throw e2e::StepFailed(
            QStringLiteral("the scheme gives %1 keys instead of 5").arg(m_manager->keys().size()));
}

inline bool KeymapRandomFixture::isGestureUnderWay() const
{
    const auto timers = m_view->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(timers.begin(), timers.end(), [](const QTimer *timer) { return timer->isActive(); });
}

inline int KeymapRandomFixture::pressedFingers() const
{
    int fingers = 0;
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    for (const OvAuxiliaryKey *key : keys)
        fingers += key->isPressed() ? 1 : 0;
    return fingers + (m_mouseDown ? 1 : 0);
}

// The last touch that was sent tells of every finger, and of no other.
inline void KeymapRandomFixture::checkSentTouches() const
{
    if (m_lastSent == unknownFingers)
        return;
    const int held = pressedFingers();
    if (held != m_lastSent)
        throw e2e::StepFailed(
            QStringLiteral("%1 fingers are held, the device was told of %2").arg(held).arg(m_lastSent));
}

inline void KeymapRandomFixture::checkNothingIsHeld(const QString &when)
{
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    for (const OvAuxiliaryKey *key : keys) {
        if (key->isPressed())
            throw e2e::StepFailed(QStringLiteral("%1: a key of kind %2 is held").arg(when).arg(key->type()));
    }
    m_view->liftFinger(); // a mouse may be held without the keyboard
    if (m_view->cursor().shape() == Qt::BlankCursor || m_view->hasMouseTracking())
        throw e2e::StepFailed(QStringLiteral("%1: the pointer is still caught").arg(when));
    e2e::waitUntil(
        QStringLiteral("%1: no finger is down on the device").arg(when),
        [this] { return m_fingers->down().isEmpty() && !isGestureUnderWay(); },
        30000); // a gesture ends by itself
}
