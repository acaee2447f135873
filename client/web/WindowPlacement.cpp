#include "web/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

void centerOnScreen(QWidget *widget)
{
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QRect available = screen->availableGeometry();
        widget->move(available.x() + (available.width() - widget->width()) / 2,
            available.y() + (available.height() - widget->height()) / 2);
    }
    widget->raise();
    widget->repaint();
}

QRect maximizedGeometry(const QPoint &pos)
{
    constexpr int overlap = 3;
    const QScreen *screen = QGuiApplication::screenAt(pos);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect available = screen ? screen->availableGeometry() : QRect();
    return available.adjusted(-overlap, -overlap, overlap, overlap);
}
