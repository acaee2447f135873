#include "widgets/DoubleClickFilter.h"

#include <QAbstractButton>
#include <QMouseEvent>

DoubleClickFilter::DoubleClickFilter(QAbstractButton *button)
    : QObject(button)
{
    button->installEventFilter(this);
}

DoubleClickFilter::~DoubleClickFilter() = default;

// The release of a second click may never come, if the button was hidden meanwhile.
bool DoubleClickFilter::eventFilter(QObject *watched, QEvent *event)
{
    const auto isOfLeftButton
        = [event] { return static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton; };
    if (event->type() == QEvent::MouseButtonDblClick && isOfLeftButton()) {
        m_inSecondClick = true;
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        m_inSecondClick = false;
    } else if (event->type() == QEvent::MouseButtonRelease && m_inSecondClick && isOfLeftButton()) {
        m_inSecondClick = false;
        return true;
    }
    return QObject::eventFilter(watched, event);
}
