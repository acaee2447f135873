#include "device/QualityBox.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {

// In the order of the video levels.
constexpr const char *Labels[] = {
    QT_TRANSLATE_NOOP("QualityBox", "Auto"),
    QT_TRANSLATE_NOOP("QualityBox", "720P HQ"),
    QT_TRANSLATE_NOOP("QualityBox", "720P"),
    QT_TRANSLATE_NOOP("QualityBox", "576P"),
    QT_TRANSLATE_NOOP("QualityBox", "480P"),
    QT_TRANSLATE_NOOP("QualityBox", "240P"),
};

// Sizes in device-independent pixels and colours, for the dark title bar.
namespace Look {
constexpr int Height = 24;
constexpr int TextPixels = 12;
constexpr int Margin = 8;
constexpr int Gap = 6; // between text and chevron
constexpr int CornerRadius = 4;
constexpr int ChevronWidth = 8;
constexpr double ChevronPen = 1.5;
constexpr QRgb TextColour = qRgb(229, 231, 237);
constexpr QRgb HoverColour = qRgba(255, 255, 255, 36);
} // namespace Look

QString listStyle()
{
    return QStringLiteral("QComboBox { combobox-popup: 0; font-size: %1px; }"
                          "QComboBox QAbstractItemView { background: #303133; color: #E5E7ED; border: none;"
                          " outline: none; padding: 4px 0; selection-background-color: #4A4B4D;"
                          " selection-color: white; }"
                          "QComboBox QAbstractItemView::item { min-height: 26px; padding: 0 8px; }")
        .arg(Look::TextPixels);
}

} // namespace

QualityBox::QualityBox(QWidget *parent)
    : QComboBox(parent)
{
    for (const char *label : Labels)
        addItem(QLatin1String(label));
    setFixedSize(boxWidth, Look::Height);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    setMaxVisibleItems(count());
    setItemDelegate(new QStyledItemDelegate(this)); // the one that styles the list's rows
    setStyleSheet(listStyle());
    setAttribute(Qt::WA_Hover);
    setTexts();
}

QualityBox::~QualityBox() = default;

void QualityBox::setTexts()
{
    for (int i = 0; i < count(); ++i)
        setItemText(i, tr(Labels[i]));
}

void QualityBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QComboBox::changeEvent(event);
}

void QualityBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || view()->isVisible()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgba(Look::HoverColour));
        painter.drawRoundedRect(rect(), Look::CornerRadius, Look::CornerRadius);
    }
    const QRect textRect
        = rect().adjusted(Look::Margin, 0, -Look::Margin - Look::ChevronWidth - Look::Gap, 0);
    QFont textFont = font();
    textFont.setPixelSize(Look::TextPixels);
    painter.setFont(textFont);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QColor(Look::TextColour));
    const QString text = painter.fontMetrics().elidedText(currentText(), Qt::ElideRight, textRect.width());
    painter.drawText(textRect, Qt::AlignRight | Qt::AlignVCenter, text);

    const QPointF tip(
        width() - Look::Margin - Look::ChevronWidth / 2.0, height() / 2.0 + Look::ChevronWidth / 4.0);
    const QPointF side(Look::ChevronWidth / 2.0, -Look::ChevronWidth / 2.0);
    painter.setPen(
        QPen(QColor(Look::TextColour), Look::ChevronPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({tip + QPointF(-side.x(), side.y()), tip, tip + side}));
}

void QualityBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
