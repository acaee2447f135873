#include "device/PushButton.h"

#include "device/App.h"
#include "device/Theme.h"

#include <QPainter>

namespace orvane::cloud {

PushButton::PushButton(QString label)
    : m_label(std::move(label))
{ }

void PushButton::draw(QPainter &painter, const QColor &colour) const
{
    QColor background = colour;
    background.setAlpha(m_pointer != 0 ? 90 : 34);
    theme::drawPill(painter, m_rect, background, colour, m_label);
}

bool PushButton::touchDown(const Pointer &pointer)
{
    if (m_pointer != 0 || !m_rect.contains(pointer.position)) {
        return false;
    }
    m_pointer = pointer.id;
    return true;
}

bool PushButton::touchUp(const Pointer &pointer)
{
    if (!owns(pointer.id)) {
        return false;
    }
    m_pointer = 0;
    return m_rect.contains(pointer.position);
}

void PushButton::touchCancel(int pointerId)
{
    if (owns(pointerId)) {
        m_pointer = 0;
    }
}

} // namespace orvane::cloud
