#pragma once

#include <QCoreApplication>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QStringList>
#include <QWidget>

// Helpers of the widgets' tests.
namespace widgettest {

// Hands a mouse event to a widget directly, so that the display's own pointer has no part in it. The position
// is in screen coordinates.
inline void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &globalPos, Qt::MouseButton button,
    Qt::MouseButtons buttons)
{
    QMouseEvent event(type, widget->mapFromGlobal(globalPos), globalPos, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

inline void press(QWidget *widget, const QPoint &globalPos)
{
    sendMouse(widget, QEvent::MouseButtonPress, globalPos, Qt::LeftButton, Qt::LeftButton);
}

inline void release(QWidget *widget, const QPoint &globalPos)
{
    sendMouse(widget, QEvent::MouseButtonRelease, globalPos, Qt::LeftButton, Qt::NoButton);
}

inline void drag(QWidget *widget, const QPoint &globalPos)
{
    sendMouse(widget, QEvent::MouseMove, globalPos, Qt::NoButton, Qt::LeftButton);
}

inline void hover(QWidget *widget, const QPoint &globalPos)
{
    sendMouse(widget, QEvent::MouseMove, globalPos, Qt::NoButton, Qt::NoButton);
}

// Names of a class's own methods of a kind, in the order of declaration.
inline QStringList ownMethods(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return methods;
}

} // namespace widgettest
