#pragma once

#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryKeyEditor.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"
#include "widgets/OvToast.h"

#include <InputFocus.h>
#include <Recorder.h>

#include <swplay/SWDataSource.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>

#include <memory>

// What the tests of the key mapping share: a window with a video view of 340 x 600 pixels, whose device has
// 720 x 1280, a field that can take the focus, and a manager; keys are wired as a device window wires them.
class KeyMapFixture : public QObject
{
protected:
    void setUp();
    void tearDown();
    void activate();

    template <typename Key>
    Key *make(const QString &boundKey = {});
    void turn(ScreenOrientation orientation);

    // From the keyboard to the view that has the focus. `scanCode`: the keyboard's own code.
    void send(QEvent::Type type, int key, bool isAutoRepeat = false, quint32 scanCode = 0);
    void press(int key) { send(QEvent::KeyPress, key); }
    void release(int key) { send(QEvent::KeyRelease, key); }
    static void mouse(
        QWidget *widget, QEvent::Type type, const QPoint &position, Qt::MouseButtons held = Qt::LeftButton);

    QStringList takeSent();
    QString toastText() const;

    std::unique_ptr<QWidget> m_window;
    VideoView *m_view = nullptr;
    QLineEdit *m_field = nullptr;
    KeyboardMapMgr *m_manager = nullptr;
    std::shared_ptr<StreamController> m_controller;
    QStringList m_sent; // touches of the view: "action: x,y x,y"
};

inline void KeyMapFixture::setUp()
{
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
    m_controller = std::make_shared<StreamController>();
    m_controller->setDataSource(std::make_shared<SWDataSource>(1, nullptr));
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(300, 100, 700, 720);
    m_view = new VideoView(m_window.get());
    m_view->setGeometry(10, 40, 340, 600);
    m_view->setStreamController(m_controller);
    m_field = new QLineEdit(m_window.get());
    m_manager = new KeyboardMapMgr(m_window.get());
    m_view->setTouchPointSource(m_manager);
    m_sent.clear();
    connect(m_view, &VideoView::touchEvent, this, [this](int action, QVector<int> &xs, QVector<int> &ys) {
        QStringList points;
        for (int i = 0; i < xs.size(); ++i)
            points.append(QStringLiteral("%1,%2").arg(xs.at(i)).arg(ys.at(i)));
        m_sent.append(QStringLiteral("%1: %2").arg(action).arg(points.join(' ')));
    });
    m_window->show();
    activate();
}

inline void KeyMapFixture::activate()
{
    m_window->activateWindow();
    QVERIFY(waitForInputFocus(*m_window));
    m_view->setFocus();
    QTRY_VERIFY(m_view->hasFocus());
}

inline void KeyMapFixture::tearDown()
{
    m_window.reset();
    m_controller.reset();
}

template <typename Key>
Key *KeyMapFixture::make(const QString &boundKey)
{
    auto *key = new Key(m_manager, m_view);
    connect(key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, m_view, &VideoView::onAuxiliaryKeyAction);
    connect(m_view, &VideoView::screenRotation, key, &OvAuxiliaryKey::onScreenRotation);
    key->onScreenRotation(m_view->orientation());
    m_manager->addAuxiliaryKey(key->type(), key);
    m_window->installEventFilter(key);
    key->setKeyText(boundKey);
    key->show();
    return key;
}

inline void KeyMapFixture::turn(ScreenOrientation orientation)
{
    if (m_view->orientation() != orientation)
        m_view->setOrientation(orientation);
}

inline void KeyMapFixture::send(QEvent::Type type, int key, bool isAutoRepeat, quint32 scanCode)
{
    QKeyEvent event(type, key, Qt::NoModifier, scanCode, 0, 0, QString(), isAutoRepeat);
    QApplication::sendEvent(m_view, &event);
}

inline void KeyMapFixture::mouse(
    QWidget *widget, QEvent::Type type, const QPoint &position, Qt::MouseButtons held)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons
        = type == QEvent::MouseButtonRelease ? Qt::MouseButtons(Qt::NoButton) : held;
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

inline QStringList KeyMapFixture::takeSent()
{
    QStringList sent;
    sent.swap(m_sent);
    return sent;
}

// Of the newest toast; empty if there is none.
inline QString KeyMapFixture::toastText() const
{
    const QList<OvToast *> toasts = m_window->findChildren<OvToast *>();
    return toasts.isEmpty() ? QString() : toasts.last()->text();
}
