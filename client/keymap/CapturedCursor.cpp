#include "keymap/CapturedCursor.h"

#include "keymap/ScreenPointer.h"

#include <QCursor>
#include <QWidget>

CapturedCursor::CapturedCursor(QWidget *widget, const QPoint &place)
    : m_widget(widget)
    , m_savedPosition(QCursor::pos())
{
    holdAt(place);
}

CapturedCursor::~CapturedCursor()
{
    QCursor::setPos(m_savedPosition.toPoint());
    if (!m_isHidden || !m_widget)
        return;
    m_widget->setMouseTracking(m_wasTracking);
    m_widget->setCursor(Qt::ArrowCursor);
}

void CapturedCursor::hide()
{
    if (m_isHidden || !m_widget)
        return;
    m_isHidden = true;
    m_wasTracking = m_widget->hasMouseTracking();
    m_widget->setMouseTracking(true); // moves without a button count
    m_widget->setCursor(Qt::BlankCursor);
}

QPointF CapturedCursor::takeWay(const QPoint &place)
{
    const QPoint way = ScreenPointer::position() - m_rest;
    if (place != m_place)
        holdAt(place);
    else if (!way.isNull())
        ScreenPointer::moveBy(-way);
    return m_widget ? QPointF(way) / ScreenPointer::pixelRatio(*m_widget) : QPointF();
}

void CapturedCursor::holdAt(const QPoint &place)
{
    QCursor::setPos(place);
    m_place = place;
    m_rest = ScreenPointer::position();
}
