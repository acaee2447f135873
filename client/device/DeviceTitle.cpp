#include "device/DeviceTitle.h"

#include "device/EditingMenu.h"
#include "device/QualityBox.h"
#include "widgets/OvTitleBarBase.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int TitlePixels = 14;
constexpr int BarRest = 10 + 3 * 40; // of the bar's width: the left margin and the caption buttons
constexpr int TitleGap = 8; // after the title
constexpr int DelayPixels = 12;
constexpr int DelayWidth = 64; // holds "9999ms"
constexpr int DelayMargin = 8;
constexpr QRgb TitleColour = qRgb(255, 255, 255);
} // namespace Look

} // namespace

DeviceTitle::DeviceTitle(OvTitleBarBase *titleBar)
    : QWidget(titleBar)
    , m_titleBar(titleBar)
    , m_qualityBox(new QualityBox(this))
    , m_delayLabel(new QLabel(this))
    , m_editingMenu(new EditingMenu(this))
{
    m_delayLabel->setObjectName(QStringLiteral("delayLabel"));
    m_delayLabel->setContentsMargins(0, 0, Look::DelayMargin, 0);
    m_delayLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_delayLabel->setMinimumWidth(Look::DelayWidth); // the bar keeps still while the figure changes
    m_delayLabel->setStyleSheet(QStringLiteral("color: #C0C4CC; font-size: %1px;").arg(Look::DelayPixels));
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_qualityBox);
    layout->addWidget(m_delayLabel);
    layout->addWidget(m_editingMenu);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setEditing(false);
    titleBar->buttonLayout()->addWidget(this);
}

DeviceTitle::~DeviceTitle() = default;

void DeviceTitle::showDelay(int delayMs)
{
    m_delayLabel->setText(QStringLiteral("%1ms").arg(delayMs));
}

void DeviceTitle::clearDelay()
{
    m_delayLabel->clear();
}

void DeviceTitle::setEditing(bool editing)
{
    m_qualityBox->setVisible(!editing);
    m_delayLabel->setVisible(!editing);
    m_editingMenu->setVisible(editing);
}

void DeviceTitle::showName(const QString &name, int barWidth)
{
    QFont font;
    font.setPixelSize(Look::TitlePixels);
    const int besides = m_editingMenu->isHidden() ? QualityBox::boxWidth + m_delayLabel->minimumWidth()
                                                  : m_editingMenu->sizeHint().width();
    const int room = barWidth - Look::BarRest - Look::TitleGap - besides;
    m_titleBar->setTitle(QFontMetrics(font).elidedText(name, Qt::ElideRight, room), Look::TitlePixels, false,
        QColor(Look::TitleColour));
}
