#include "web/RelativeMove.h"

#include <QWidget>

namespace {
constexpr qint64 SettledAfterMs = 1000; // reports come well before that, also on a busy machine
}

RelativeMove::RelativeMove(QWidget *window)
    : m_window(window)
{ }

void RelativeMove::moveBy(const QPoint &offset)
{
    if (!m_sinceMove.isValid() || m_sinceMove.hasExpired(SettledAfterMs))
        m_target = m_window->pos();
    m_target += offset;
    m_sinceMove.restart();
    m_window->move(m_target);
}

void RelativeMove::reset()
{
    m_sinceMove.invalidate();
}
