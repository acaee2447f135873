#include "widgets/OvSlider.h"

#include "widgets/OvBubble.h"

#include <QLabel>
#include <QStyleOptionSlider>

namespace {

constexpr QRgb BubbleColor = qRgb(48, 49, 51);

// Width and height of a handle are without its border.
QString sliderStyle()
{
    return QStringLiteral(
        "QSlider { min-height: 20px; }"
        "QSlider:vertical { min-width: 20px; min-height: 0; }"
        "QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: #E5E7ED; }"
        "QSlider::groove:vertical { width: 4px; border-radius: 2px; background: #E5E7ED; }"
        "QSlider::sub-page:horizontal, QSlider::add-page:vertical"
        "{ border-radius: 2px; background: #07CCFB; }"
        "QSlider::handle { background: white; border: 2px solid #07CCFB; border-radius: 8px; }"
        "QSlider::handle:horizontal { width: 12px; margin: -6px 0; }"
        "QSlider::handle:vertical { height: 12px; margin: 0 -6px; }"
        "QSlider::sub-page:horizontal:disabled, QSlider::add-page:vertical:disabled { background: #C0C4CC; }"
        "QSlider::handle:disabled { border-color: #C0C4CC; }");
}

} // namespace

OvSlider::OvSlider(QWidget *parent)
    : OvSlider(Qt::Horizontal, parent)
{ }

OvSlider::OvSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_bubble(new OvBubble(this))
    , m_valueLabel(new QLabel)
{
    setFocusPolicy(Qt::NoFocus);
    setStyleSheet(sliderStyle());
    m_valueLabel->setAlignment(Qt::AlignCenter);
    m_valueLabel->setContentsMargins(6, 2, 6, 2);
    m_valueLabel->setStyleSheet(QStringLiteral("color: white; font-size: 12px;"));
    m_bubble->setColor(QColor::fromRgb(BubbleColor));
    m_bubble->setArrowDirection(OvBubble::ArrowDown);
    m_bubble->setContentWidget(m_valueLabel);
    connect(this, &QSlider::valueChanged, this, &OvSlider::onValueChanged);
}

OvSlider::~OvSlider() = default;

QRect OvSlider::handle() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect local = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    return {mapToGlobal(local.topLeft()), local.size()};
}

void OvSlider::onValueChanged(int value)
{
    m_valueLabel->setText(QString::number(value));
    m_bubble->pointAt(handle());
}

void OvSlider::enterEvent(QEvent *event)
{
    onValueChanged(value());
    m_bubble->show();
    QSlider::enterEvent(event);
}

void OvSlider::leaveEvent(QEvent *event)
{
    m_bubble->hide();
    QSlider::leaveEvent(event);
}

void OvSlider::hideEvent(QHideEvent *event)
{
    m_bubble->hide();
    QSlider::hideEvent(event);
}

// A new range moves the handle of an unchanged value.
void OvSlider::sliderChange(SliderChange change)
{
    QSlider::sliderChange(change);
    if (change == SliderRangeChange && m_bubble->isVisible())
        onValueChanged(value());
}
