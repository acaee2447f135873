#include "device/MenuButton.h"

#include "widgets/OvBubble.h"

#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QPainter>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int Extent = 45;
constexpr int IconExtent = 26;
constexpr int LabelPixels = 13;
constexpr int LabelMarginX = 8;
constexpr int LabelMarginY = 4;
constexpr QRgb BubbleColour = qRgb(48, 49, 51);
constexpr QRgb HoverColour = qRgba(255, 255, 255, 36);
constexpr QRgb PressedColour = qRgba(255, 255, 255, 20);
constexpr double DisabledOpacity = 0.35;
} // namespace Look

} // namespace

MenuButton::MenuButton(const QString &iconPath, QWidget *parent)
    : QPushButton(parent)
    , m_bubble(new OvBubble(this))
    , m_labelText(new QLabel)
{
    setIcon(QIcon(iconPath));
    setIconSize({Look::IconExtent, Look::IconExtent});
    setFixedSize(Look::Extent, Look::Extent);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);

    QFont font = m_labelText->font();
    font.setPixelSize(Look::LabelPixels);
    m_labelText->setFont(font);
    m_labelText->setTextFormat(Qt::PlainText);
    m_labelText->setContentsMargins(
        Look::LabelMarginX, Look::LabelMarginY, Look::LabelMarginX, Look::LabelMarginY);
    QPalette colours = m_labelText->palette();
    colours.setColor(QPalette::WindowText, Qt::white);
    m_labelText->setPalette(colours);
    m_bubble->setColor(QColor(Look::BubbleColour));
    m_bubble->setArrowDirection(OvBubble::ArrowRight);
    m_bubble->setContentWidget(m_labelText);
}

MenuButton::~MenuButton() = default;

void MenuButton::setLabel(const QString &label)
{
    m_labelText->setText(label);
    setAccessibleName(label);
    if (m_bubble->isVisible())
        placeBubble();
}

QString MenuButton::label() const
{
    return m_labelText->text();
}

void MenuButton::placeBubble()
{
    m_bubble->pointAt(QRect(mapToGlobal(QPoint(0, 0)), size()));
}

void MenuButton::enterEvent(QEvent *event)
{
    if (isEnabled()) {
        placeBubble();
        m_bubble->show();
    }
    QPushButton::enterEvent(event);
}

void MenuButton::leaveEvent(QEvent *event)
{
    m_bubble->hide();
    QPushButton::leaveEvent(event);
}

void MenuButton::hideEvent(QHideEvent *event)
{
    m_bubble->hide();
    QPushButton::hideEvent(event);
}

void MenuButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        m_bubble->hide();
    QPushButton::changeEvent(event);
}

// Who presses the button knows it by now, and a click may move the window away under its bubble.
void MenuButton::mousePressEvent(QMouseEvent *event)
{
    m_bubble->hide();
    QPushButton::mousePressEvent(event);
}

void MenuButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (isDown())
        painter.fillRect(rect(), QColor::fromRgba(Look::PressedColour));
    else if (isEnabled() && underMouse())
        painter.fillRect(rect(), QColor::fromRgba(Look::HoverColour));
    if (!isEnabled())
        painter.setOpacity(Look::DisabledOpacity);
    QRect iconRect(QPoint(0, 0), iconSize());
    iconRect.moveCenter(rect().center());
    icon().paint(&painter, iconRect);
}
