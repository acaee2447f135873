#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

// Colours, sizes and fonts of the virtual device's screens. Sizes are pixels of the 720 x 1280 screen.
namespace orvane::cloud::theme {

inline constexpr QRgb Coral = 0xFFFF9B7A;
inline constexpr QRgb Cyan = 0xFF07CCFB;
inline constexpr QRgb CyanDeep = 0xFF0489B5; // cyan that is readable on white
inline constexpr QRgb Ink = 0xFF1B2337; // text
inline constexpr QRgb Slate = 0xFF707C92; // secondary text
inline constexpr QRgb Line = 0xFFE3E8F0;
inline constexpr QRgb Mist = 0xFFF5F7FA; // background
inline constexpr QRgb Paper = 0xFFFFFFFF;
inline constexpr QRgb Night = 0xFF0E1528;

inline constexpr int StatusBarHeight = 48;
inline constexpr int NavigationBarHeight = 84;
inline constexpr int HeaderHeight = 96; // title line of an app, below the status bar
inline constexpr int Margin = 32;

// The font of all text; falls back to what has the script. `pixelSize` > 0.
QFont font(int pixelSize, bool bold = false);
// One line of text inside `rect`, vertically centred, elided at its end if it does not fit.
void drawLine(QPainter &painter, const QRectF &rect, Qt::Alignment horizontal, const QFont &font,
    const QColor &colour, const QString &text);
// The title of an app in its header line.
void drawTitle(QPainter &painter, const QString &title, const QColor &colour);
// A label with round ends that fills the rectangle.
void drawPill(QPainter &painter, const QRectF &rect, const QColor &background, const QColor &colour,
    const QString &text);

} // namespace orvane::cloud::theme
