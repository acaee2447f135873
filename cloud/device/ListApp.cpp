#include "device/ListApp.h"

#include "device/Theme.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane::cloud {

namespace {

constexpr int RowCount = 1000;
constexpr qreal RowHeight = 112; // pixels at zoom 1
constexpr qreal SmallestZoom = 0.5;
constexpr qreal LargestZoom = 3;
constexpr qreal SmallestSpan = 24; // pixels; fingers closer together than this count as so far apart
constexpr std::chrono::milliseconds TickInterval{33};

struct Topic
{
    const char *title;
    const char *detail;
    QRgb colour;
};

constexpr std::array<Topic, 8> Topics{{
    {"Harbour at dawn", "Twelve photographs, one short film", 0xFF2D7DD2},
    {"Weekend in the hills", "Route, huts and timetable", 0xFF00A878},
    {"Orange and fennel", "A salad for four, twenty minutes", 0xFFFF9B7A},
    {"Night sky in autumn", "What to look for after ten o'clock", 0xFF6C5CE7},
    {"Repairing a bicycle", "Chain, brakes and a little patience", 0xFF0489B5},
    {"Letters from the coast", "Unread since Tuesday", 0xFFE84A8A},
    {"Paper boats", "Three ways to fold one", 0xFFF2A516},
    {"Field recordings", "Rain on a tin roof, forty minutes", 0xFF8D6B53},
}};

const Topic &topic(int row)
{
    return Topics.at(static_cast<std::size_t>(row * 5 + row / 8) % Topics.size());
}

} // namespace

QRect ListApp::viewport() const
{
    const QRect body = this->body();
    return body.adjusted(0, theme::HeaderHeight, 0, 0);
}

qreal ListApp::rowHeight() const
{
    return RowHeight * m_zoom;
}

qreal ListApp::maxOffset() const
{
    return std::max(0.0, RowCount * rowHeight() - viewport().height());
}

void ListApp::layout()
{
    m_offset = std::clamp(m_offset, 0.0, maxOffset());
}

void ListApp::scrollTo(qreal offset)
{
    const qreal wanted = std::clamp(offset, 0.0, maxOffset());
    if (wanted != offset) {
        m_fling.stop(); // at an end
    }
    if (wanted != m_offset) {
        m_offset = wanted;
        invalidateAll();
    }
}

void ListApp::describe(QJsonObject &state) const
{
    state.insert(QStringLiteral("offset"), static_cast<qint64>(std::llround(m_offset)));
    state.insert(QStringLiteral("zoom"), std::round(m_zoom * 1000) / 1000);
    state.insert(QStringLiteral("firstRow"), static_cast<int>(m_offset / rowHeight()));
    state.insert(QStringLiteral("rows"), RowCount);
}

std::pair<qreal, qreal> ListApp::span() const
{
    const QPointF first = m_fingers.begin()->second;
    const QPointF second = std::next(m_fingers.begin())->second;
    return {std::max(QLineF(first, second).length(), SmallestSpan),
        (first.y() + second.y()) / 2 - viewport().top()};
}

// Scrolling and zooming start anew from where the fingers are, so that nothing jumps.
void ListApp::fingersChanged(TimePoint now)
{
    m_nextTick.reset();
    if (m_fingers.size() == 1) {
        m_dragFrom = m_fingers.begin()->second;
        m_fling.stop();
        m_fling.drag(m_dragFrom.y(), now);
    } else if (m_fingers.size() > 1) {
        m_fling.stop();
        const auto [length, middle] = span();
        m_pinchSpan = length;
        m_pinchZoom = m_zoom;
        m_pinchRow = (m_offset + middle) / rowHeight();
    }
}

void ListApp::touchDown(const Pointer &pointer)
{
    if (!viewport().contains(pointer.position)) {
        return;
    }
    m_fingers.emplace(pointer.id, pointer.position);
    fingersChanged(pointer.time);
}

void ListApp::touchMove(const Pointer &pointer)
{
    const auto finger = m_fingers.find(pointer.id);
    if (finger == m_fingers.end()) {
        return;
    }
    finger->second = pointer.position;
    if (m_fingers.size() > 1) {
        pinch();
        return;
    }
    m_fling.drag(pointer.position.y(), pointer.time);
    scrollTo(m_offset - (pointer.position.y() - m_dragFrom.y()));
    m_dragFrom = pointer.position;
}

void ListApp::pinch()
{
    const auto [length, middle] = span();
    const qreal zoom = std::clamp(m_pinchZoom * length / m_pinchSpan, SmallestZoom, LargestZoom);
    if (zoom != m_zoom) {
        m_zoom = zoom;
        invalidateAll();
    }
    scrollTo(m_pinchRow * rowHeight() - middle);
}

void ListApp::touchUp(const Pointer &pointer)
{
    if (m_fingers.erase(pointer.id) == 0) {
        return;
    }
    if (!m_fingers.empty()) {
        fingersChanged(pointer.time);
        return;
    }
    m_fling.release(pointer.time);
    if (m_fling.isMoving()) {
        m_nextTick = pointer.time + TickInterval;
    }
}

void ListApp::touchCancel(int id)
{
    m_fingers.erase(id);
    m_fling.stop();
}

void ListApp::pause()
{
    m_fling.stop();
    m_nextTick.reset();
}

std::optional<TimePoint> ListApp::nextTick() const
{
    return m_nextTick;
}

void ListApp::tick(TimePoint now)
{
    if (!m_nextTick || now < *m_nextTick) {
        return;
    }
    scrollTo(m_offset - m_fling.advance(now));
    m_nextTick = m_fling.isMoving() ? std::optional(now + TickInterval) : std::nullopt;
}

void ListApp::draw(QPainter &painter, const QRect &clip)
{
    painter.fillRect(clip, QColor(theme::Mist));
    const QRect view = viewport();
    if (clip.intersects(view)) {
        painter.save();
        painter.setClipRect(view, Qt::IntersectClip);
        painter.setRenderHint(QPainter::Antialiasing);
        const int first = static_cast<int>(m_offset / rowHeight());
        for (int row = first; row < RowCount; ++row) {
            const qreal top = view.top() + row * rowHeight() - m_offset;
            if (top > clip.bottom() || top > view.bottom()) {
                break;
            }
            drawRow(painter, row, QRectF(0, std::round(top), view.width(), rowHeight()));
        }
        drawScrollBar(painter);
        painter.restore();
    }
    if (clip.top() < view.top()) {
        drawHeader(painter);
    }
}

void ListApp::drawHeader(QPainter &painter)
{
    const int width = screen().width();
    theme::drawTitle(painter, QStringLiteral("List"), QColor(theme::Ink));
    const int row = static_cast<int>(m_offset / rowHeight()) + 1;
    const QString place
        = QStringLiteral("%1 of %2  ·  %3 %").arg(row).arg(RowCount).arg(std::lround(m_zoom * 100));
    theme::drawLine(painter,
        QRectF(width - theme::Margin - 380, theme::StatusBarHeight, 380, theme::HeaderHeight), Qt::AlignRight,
        theme::font(26), QColor(theme::Slate), place);
    painter.fillRect(QRect(0, viewport().top() - 2, width, 2), QColor(theme::Line));
}

void ListApp::drawRow(QPainter &painter, int row, const QRectF &rect) const
{
    const Topic &topic = orvane::cloud::topic(row);
    const QRectF card = rect.adjusted(20, 5, -20, -5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(theme::Paper));
    painter.drawRoundedRect(card, 18, 18);
    const qreal side = card.height() - 28 * m_zoom;
    const QRectF badge(card.left() + 18, card.center().y() - side / 2, side, side);
    painter.setBrush(QColor(topic.colour));
    painter.drawRoundedRect(badge, side * 0.3, side * 0.3);
    theme::drawLine(painter, badge, Qt::AlignHCenter, theme::font(std::max(8, int(26 * m_zoom)), true),
        QColor(theme::Paper), QString::number(row + 1));
    const QRectF texts(badge.right() + 22, card.top(), card.right() - badge.right() - 40, card.height());
    const qreal half = card.height() / 2;
    theme::drawLine(painter, texts.adjusted(0, half * 0.16, 0, -half * 0.98), Qt::AlignLeft,
        theme::font(std::max(8, int(30 * m_zoom)), true), QColor(theme::Ink), QString::fromUtf8(topic.title));
    theme::drawLine(painter, texts.adjusted(0, half * 0.94, 0, -half * 0.2), Qt::AlignLeft,
        theme::font(std::max(8, int(23 * m_zoom))), QColor(theme::Slate), QString::fromUtf8(topic.detail));
}

void ListApp::drawScrollBar(QPainter &painter) const
{
    const QRectF view = viewport();
    const qreal length = std::max(60.0, view.height() * view.height() / (RowCount * rowHeight()));
    const qreal way = view.height() - length - 16;
    const qreal top = view.top() + 8 + (maxOffset() > 0 ? way * m_offset / maxOffset() : 0);
    QColor colour(theme::Ink);
    colour.setAlpha(70);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(view.right() - 11, top, 6, length), 3, 3);
}

} // namespace orvane::cloud
