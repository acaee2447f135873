#include "web/RelativeMove.h"

#include <QWidget>

namespace {
constexpr int SettledAfterMs = 1000; // reports come well before that, also on a busy machine
}

RelativeMove::RelativeMove(QWidget *window)
    : m_window(window)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(SettledAfterMs);
}

void RelativeMove::moveBy(const QPoint &offset)
{
    if (!m_settle.isActive())
        m_target = m_window->pos();
    m_target += offset;
    m_settle.start();
    m_window->move(m_target);
}

void RelativeMove::reset()
{
    m_settle.stop();
}
