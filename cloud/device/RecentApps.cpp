#include "device/RecentApps.h"

#include "device/AppIcon.h"
#include "device/Theme.h"
#include "device/Wallpaper.h"

#include <QPainter>
#include <QPainterPath>

namespace orvane::cloud {

namespace {

constexpr int TitleHeight = 58; // icon and name above each picture
constexpr int Gap = 28;
constexpr std::size_t FewCards = 6; // up to here they are in rows of three, then in rows of four

bool isLandscape(QSize screen)
{
    return screen.width() > screen.height();
}

} // namespace

RecentApps::RecentApps()
    : m_closeAll(QStringLiteral("Close all"))
{ }

QSize RecentApps::pictureSize(QSize screen, std::size_t cardCount)
{
    if (isLandscape(screen)) {
        return {272, 153};
    }
    return cardCount <= FewCards ? QSize(189, 336) : QSize(146, 260);
}

void RecentApps::show(const std::vector<AppKind> &apps, QSize screen)
{
    m_shown = true;
    m_cards.clear();
    for (const AppKind kind : apps) {
        m_cards.push_back({kind, {}});
    }
    m_screen = screen;
    m_pointer = 0;
    m_pressed.reset();
    m_closeAll.setRect(
        {screen.width() / 2 - 110, screen.height() - theme::NavigationBarHeight - 92, 220, 60});
}

void RecentApps::hide()
{
    m_shown = false;
    m_cards.clear(); // with their pictures
}

QRect RecentApps::pictureRect(std::size_t index) const
{
    const QSize size = pictureSize(m_screen, m_cards.size());
    const int perRow = m_cards.size() <= FewCards ? 3 : 4;
    const auto count = static_cast<int>(m_cards.size());
    const int rows = (count + perRow - 1) / perRow;
    const int row = static_cast<int>(index) / perRow;
    const int inRow = std::min(perRow, count - row * perRow);
    const int cardHeight = size.height() + TitleHeight + Gap;
    const int left = (m_screen.width() - inRow * size.width() - (inRow - 1) * Gap) / 2;
    const int top = (theme::StatusBarHeight + m_closeAll.rect().top() - rows * cardHeight + Gap) / 2;
    return {left + static_cast<int>(index) % perRow * (size.width() + Gap),
        top + row * cardHeight + TitleHeight, size.width(), size.height()};
}

std::optional<std::size_t> RecentApps::cardAt(QPoint position) const
{
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        if (pictureRect(i).adjusted(0, -TitleHeight, 0, 0).contains(position)) {
            return i;
        }
    }
    return std::nullopt;
}

void RecentApps::touchDown(const Pointer &pointer)
{
    if (m_pointer != 0 || (!m_cards.empty() && m_closeAll.touchDown(pointer))) {
        return;
    }
    m_pointer = pointer.id;
    m_pressed = cardAt(pointer.position);
}

void RecentApps::touchCancel(int pointerId)
{
    m_closeAll.touchCancel(pointerId);
    if (m_pointer == pointerId) {
        m_pointer = 0;
        m_pressed.reset();
    }
}

RecentApps::Choice RecentApps::touchUp(const Pointer &pointer)
{
    if (m_closeAll.owns(pointer.id)) {
        return m_closeAll.touchUp(pointer) ? Choice::CloseAll : Choice::Nothing;
    }
    if (m_pointer != pointer.id) {
        return Choice::Nothing;
    }
    m_pointer = 0;
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (cardAt(pointer.position) != pressed) {
        return Choice::Nothing;
    }
    if (!pressed) {
        return Choice::Close;
    }
    m_chosen = m_cards[*pressed].kind;
    return Choice::Open;
}

void RecentApps::draw(QPainter &painter, QSize screen, const QRect &clip, const PictureSource &source)
{
    painter.drawImage(clip.topLeft(), wallpaper(screen), clip);
    painter.fillRect(clip, QColor(14, 21, 40, 150));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        const QRect rect = pictureRect(i);
        QImage &picture = m_cards[i].picture;
        if (picture.isNull()) {
            picture = source(m_cards[i].kind, rect.size());
        }
        drawAppIcon(painter, m_cards[i].kind, QRectF(rect.left() + 2, rect.top() - 48, 38, 38));
        theme::drawLine(painter, QRectF(rect.left() + 50, rect.top() - 52, rect.width() - 50, 46),
            Qt::AlignLeft, theme::font(rect.width() < 180 ? 21 : 25), QColor(theme::Paper),
            appName(m_cards[i].kind));
        QPainterPath outline;
        outline.addRoundedRect(rect, 20, 20);
        painter.save();
        painter.setClipPath(outline, Qt::IntersectClip);
        painter.drawImage(rect.topLeft(), picture);
        painter.restore();
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(m_pressed == i ? QColor(theme::Cyan) : QColor(255, 255, 255, 60), m_pressed == i ? 5 : 2));
        painter.drawPath(outline);
    }
    if (m_cards.empty()) {
        theme::drawLine(painter, QRect(0, screen.height() / 2 - 60, screen.width(), 60), Qt::AlignHCenter,
            theme::font(30), QColor(255, 255, 255, 200), QStringLiteral("No apps are open"));
    } else {
        m_closeAll.draw(painter, QColor(theme::Paper));
    }
}

} // namespace orvane::cloud
