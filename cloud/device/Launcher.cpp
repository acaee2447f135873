#include "device/Launcher.h"

#include "device/AppIcon.h"
#include "device/Theme.h"
#include "device/Wallpaper.h"

#include <QFontMetricsF>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace orvane::cloud {

namespace {

constexpr int IconSize = 120;
constexpr int CellWidth = 190;
constexpr int CellHeight = 196; // icon and label

} // namespace

Launcher::Launcher(Host host, QString deviceName, Open open)
    : App(std::move(host))
    , m_deviceName(std::move(deviceName))
    , m_open(std::move(open))
{ }

void Launcher::setTime(const QDateTime &time)
{
    m_time = time;
    invalidate(clockArea());
}

QRect Launcher::clockArea() const
{
    const int gap = screen().width() > screen().height() ? 16 : 60;
    return {theme::Margin + 16, theme::StatusBarHeight + gap, 620, 280};
}

// Rows of equal length as far as possible, centred: as many as fit beside each other, all in one row in
// landscape.
void Launcher::layout()
{
    const auto &apps = installedApps();
    const auto count = static_cast<int>(apps.size());
    const bool landscape = screen().width() > screen().height();
    const int perRow = landscape ? count : std::min(count, std::max(3, (count + 1) / 2));
    const int rows = (count + perRow - 1) / perRow;
    const int cellWidth = std::min(CellWidth, (screen().width() - 2 * theme::Margin) / perRow);
    const int width = perRow * cellWidth + 40;
    const int height = rows * CellHeight + 40;
    m_panel = QRect((screen().width() - width) / 2, body().bottom() - height - 20, width, height);
    m_entries.clear();
    for (int i = 0; i < count; ++i) {
        const int row = i / perRow;
        const int inRow = std::min(perRow, count - row * perRow);
        const int left = m_panel.center().x() - inRow * cellWidth / 2 + i % perRow * cellWidth;
        const QRect cell(left, m_panel.top() + 20 + row * CellHeight, cellWidth, CellHeight);
        const QRect icon(cell.center().x() - IconSize / 2, cell.top() + 14, IconSize, IconSize);
        m_entries.push_back({apps[static_cast<std::size_t>(i)], cell, icon, 0});
    }
}

void Launcher::draw(QPainter &painter, const QRect &clip)
{
    painter.drawImage(clip.topLeft(), wallpaper(screen()), clip);
    painter.setRenderHint(QPainter::Antialiasing);
    if (clip.intersects(clockArea())) {
        drawClock(painter);
    }
    if (!clip.intersects(m_panel)) {
        return;
    }
    painter.setPen(QPen(QColor(255, 255, 255, 40), 1));
    painter.setBrush(QColor(255, 255, 255, 26));
    painter.drawRoundedRect(QRectF(m_panel).adjusted(0.5, 0.5, -0.5, -0.5), 40, 40);
    for (const Entry &entry : m_entries) {
        if (!entry.cell.intersects(clip)) {
            continue;
        }
        const int shrink = entry.pointer != 0 ? 6 : 0;
        if (entry.pointer != 0) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(255, 255, 255, 46));
            painter.drawRoundedRect(QRectF(entry.cell).adjusted(6, 2, -6, -2), 30, 30);
        }
        drawAppIcon(painter, entry.kind, QRectF(entry.icon).adjusted(shrink, shrink, -shrink, -shrink));
        theme::drawLine(painter, QRectF(entry.cell.left(), entry.icon.bottom() + 6, entry.cell.width(), 44),
            Qt::AlignHCenter, theme::font(25), QColor(theme::Paper), appName(entry.kind));
    }
}

void Launcher::drawClock(QPainter &painter) const
{
    const QRect area = clockArea();
    const QColor white(theme::Paper);
    theme::drawLine(painter, QRectF(area.left(), area.top(), area.width(), 140), Qt::AlignLeft,
        theme::font(128), white, m_time.toString(QStringLiteral("HH:mm")));
    theme::drawLine(painter, QRectF(area.left() + 6, area.top() + 148, area.width(), 46), Qt::AlignLeft,
        theme::font(32), QColor(255, 255, 255, 220),
        QLocale(QLocale::English).toString(m_time, QStringLiteral("dddd, d MMMM")));
    const QFont font = theme::font(25);
    const qreal width
        = std::min<qreal>(QFontMetricsF(font).horizontalAdvance(m_deviceName) + 70, area.width() - 6);
    const QRectF chip(area.left() + 4, area.top() + 222, width, 50);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 36));
    painter.drawRoundedRect(chip, 25, 25);
    painter.setBrush(QColor(theme::Cyan));
    painter.drawEllipse(QPointF(chip.left() + 26, chip.center().y()), 6, 6);
    theme::drawLine(painter, chip.adjusted(44, 0, -20, 0), Qt::AlignLeft, font, white, m_deviceName);
}

void Launcher::describe(QJsonObject &state) const
{
    QJsonArray apps;
    QJsonObject icons; // centres, in pixels of the screen as it is held
    for (const Entry &entry : m_entries) {
        const QPoint centre = entry.icon.center();
        apps.append(appName(entry.kind));
        icons.insert(appName(entry.kind), QJsonArray{centre.x(), centre.y()});
    }
    state.insert(QStringLiteral("apps"), apps);
    state.insert(QStringLiteral("icons"), icons);
}

void Launcher::touchDown(const Pointer &pointer)
{
    for (Entry &entry : m_entries) {
        if (entry.cell.contains(pointer.position) && entry.pointer == 0) {
            entry.pointer = pointer.id;
            invalidate(entry.cell);
        }
    }
}

void Launcher::touchUp(const Pointer &pointer)
{
    for (Entry &entry : m_entries) {
        if (entry.pointer == pointer.id) {
            entry.pointer = 0;
            invalidate(entry.cell);
            if (entry.cell.contains(pointer.position)) {
                m_open(entry.kind);
            }
            return;
        }
    }
}

void Launcher::touchCancel(int id)
{
    for (Entry &entry : m_entries) {
        if (entry.pointer == id) {
            entry.pointer = 0;
            invalidate(entry.cell);
        }
    }
}

} // namespace orvane::cloud
