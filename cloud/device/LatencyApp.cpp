#include "device/LatencyApp.h"

#include "device/Theme.h"

#include <QPainter>

namespace orvane::cloud {

namespace {

// Far apart in brightness, so that no video compression blurs the difference.
constexpr QRgb EvenColour = theme::Night;
constexpr QRgb OddColour = theme::Coral;

} // namespace

void LatencyApp::draw(QPainter &painter, const QRect &clip)
{
    painter.fillRect(clip, QColor(isDark() ? EvenColour : OddColour));
    const QRect line(0, body().bottom() - 80, screen().width(), 60);
    if (line.intersects(clip)) {
        QColor colour(isDark() ? theme::Paper : theme::Ink);
        colour.setAlpha(170);
        theme::drawLine(painter, line, Qt::AlignHCenter, theme::font(26), colour,
            QStringLiteral("Touch to flip · %1").arg(m_flips));
    }
}

void LatencyApp::describe(QJsonObject &state) const
{
    state.insert(QStringLiteral("flips"), m_flips);
}

void LatencyApp::touchDown(const Pointer &)
{
    ++m_flips;
    invalidateAll();
}

} // namespace orvane::cloud
