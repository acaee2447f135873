#include "keymap/CapturedCursor.h"

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

QPoint CapturedCursor::takeWay(const QPoint &place)
{
    const QPoint way = QCursor::pos() - m_rest;
    if (!way.isNull() || place != m_place)
        holdAt(place);
    return way;
}

void CapturedCursor::holdAt(const QPoint &place)
{
    QCursor::setPos(place);
    if (place == m_place && m_isHeld)
        return; // it rests where it did before; asking again would swallow what the mouse has done since
    m_place = place;
    m_rest = QCursor::pos();
    m_isHeld = true;
}
