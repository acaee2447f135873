#include "widgets/Compositing.h"

#include <QPainterPath>
#include <QRegion>
#include <QWidget>

#ifdef ORVANE_X11
#include <QX11Info>
#endif

bool Compositing::isActive()
{
#ifdef ORVANE_X11
    return !QX11Info::isPlatformX11() || QX11Info::isCompositingManagerRunning();
#else
    return true;
#endif
}

void Compositing::setShape(QWidget *window, const QPainterPath &shape)
{
    if (isActive())
        window->clearMask();
    else
        window->setMask(QRegion(shape.toFillPolygon().toPolygon()));
}
