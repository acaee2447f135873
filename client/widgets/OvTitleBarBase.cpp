#include "widgets/OvTitleBarBase.h"

#include <QDebug>
#include <QFont>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPushButton>
#include <QShortcut>
#include <QStyleOption>

namespace {

// Sizes in pixels and colours that make the bar look as designed.
namespace Look {
constexpr int barHeight = 40;
constexpr int buttonExtent = 40;
constexpr int iconExtent = 16; // of a caption button
constexpr int leftMargin = 10;
constexpr int titleIndent = 8; // from an icon
constexpr int cornerRadius = 8;
constexpr QRgb background = qRgb(68, 68, 68);
} // namespace Look

QString buttonStyle()
{
    return QStringLiteral("QPushButton { border: none; background: transparent; }"
                          "QPushButton:hover { background: rgba(255, 255, 255, 36); }"
                          "QPushButton:pressed { background: rgba(255, 255, 255, 20); }");
}

QString closeButtonStyle()
{
    return QStringLiteral(
        "QPushButton { border: none; background: transparent; border-top-right-radius: 8px; }"
        "QPushButton:hover { background: #E5484D; }"
        "QPushButton:pressed { background: #C93B40; }");
}

} // namespace

OvTitleBarBase::OvTitleBarBase(QWidget *parent)
    : QWidget(parent)
    , m_iconLabel(new QLabel(this))
    , m_titleLabel(new QLabel(this))
    , m_buttonLayout(new QHBoxLayout)
    , m_minButton(
          createButton(QStringLiteral("minButton"), QStringLiteral(":/icon/svg/min.svg"), buttonStyle()))
    , m_maxButton(
          createButton(QStringLiteral("maxButton"), QStringLiteral(":/icon/svg/max.svg"), buttonStyle()))
    , m_restoreButton(createButton(
          QStringLiteral("restoreButton"), QStringLiteral(":/icon/svg/restore.svg"), buttonStyle()))
    , m_closeButton(createButton(
          QStringLiteral("closeButton"), QStringLiteral(":/icon/svg/close.svg"), closeButtonStyle()))
    , m_backgroundColor(Look::background)
{
    setWindowFlags(Qt::FramelessWindowHint);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setFixedHeight(Look::barHeight);
    createLayout();
    setButtonType(MinMaxCloseButtons);

    connect(m_minButton, &QPushButton::clicked, this, &OvTitleBarBase::btnMinClicked);
    connect(m_maxButton, &QPushButton::clicked, this, &OvTitleBarBase::onBtnMaxClicked);
    connect(m_restoreButton, &QPushButton::clicked, this, &OvTitleBarBase::onBtnRestoreClicked);
    connect(m_closeButton, &QPushButton::clicked, this, &OvTitleBarBase::btnCloseClicked);
    auto *maximize = new QShortcut(Qt::Key_F11, this);
    maximize->setAutoRepeat(false);
    connect(maximize, &QShortcut::activated, this, &OvTitleBarBase::onMaximizeShortcutActivated);
}

OvTitleBarBase::~OvTitleBarBase() = default;

QPushButton *OvTitleBarBase::createButton(
    const QString &objectName, const QString &iconPath, const QString &styleSheet)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setIcon(QIcon(iconPath));
    button->setIconSize({Look::iconExtent, Look::iconExtent});
    button->setFixedSize(Look::buttonExtent, Look::buttonExtent);
    button->setFocusPolicy(Qt::NoFocus);
    button->setMouseTracking(true);
    button->setStyleSheet(styleSheet);
    return button;
}

void OvTitleBarBase::createLayout()
{
    m_iconLabel->setObjectName(QStringLiteral("iconLabel"));
    m_iconLabel->setFixedSize(0, 0);
    m_titleLabel->setObjectName(QStringLiteral("titleLabel"));
    m_titleLabel->setTextFormat(Qt::PlainText);

    m_buttonLayout->setSpacing(0);
    m_buttonLayout->setContentsMargins(0, 0, 0, 0);
    m_buttonLayout->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_buttonLayout->addStretch();

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(Look::leftMargin, 0, 0, 0);
    layout->addWidget(m_iconLabel);
    layout->addWidget(m_titleLabel);
    layout->addLayout(m_buttonLayout);
    layout->addWidget(m_minButton);
    layout->addWidget(m_maxButton);
    layout->addWidget(m_restoreButton);
    layout->addWidget(m_closeButton);
}

void OvTitleBarBase::setButtonType(int buttonType)
{
    m_buttonType = buttonType;
    if (buttonType < NoButtons || buttonType > MinMaxCloseButtons)
        return;
    m_minButton->setVisible(buttonType >= MinCloseButtons);
    m_maxButton->setVisible(buttonType == MinMaxCloseButtons);
    m_restoreButton->setVisible(false);
    m_closeButton->setVisible(buttonType >= CloseButton);
}

void OvTitleBarBase::setTitle(const QString &text, int pixelSize, bool bold, const QColor &color)
{
    m_title = text;
    QFont font = m_titleLabel->font();
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    QPalette palette = m_titleLabel->palette();
    palette.setColor(QPalette::WindowText, color);
    m_titleLabel->setFont(font);
    m_titleLabel->setPalette(palette);
    m_titleLabel->setText(text);
}

void OvTitleBarBase::setIcon(const QString &imagePath, const QSize &size)
{
    QPixmap image = QIcon(imagePath).pixmap(size * devicePixelRatioF());
    if (image.isNull()) {
        qWarning().noquote() << "the title bar icon could not be read:" << imagePath;
        m_iconLabel->clear();
        m_iconLabel->setFixedSize(0, 0);
        m_titleLabel->setIndent(0);
        return;
    }
    image.setDevicePixelRatio(1.0);
    image = image.scaled(size * devicePixelRatioF(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(devicePixelRatioF());
    m_iconLabel->setFixedSize(size);
    m_iconLabel->setPixmap(image);
    m_titleLabel->setIndent(Look::titleIndent);
}

void OvTitleBarBase::setDraggable(bool draggable)
{
    m_draggable = draggable;
    m_pressed = m_pressed && draggable;
}

void OvTitleBarBase::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void OvTitleBarBase::setNormalGeometry(const QPoint &pos, const QSize &size)
{
    m_normalPos = pos;
    m_normalSize = size;
}

QRect OvTitleBarBase::normalGeometry() const
{
    return {m_normalPos, m_normalSize};
}

void OvTitleBarBase::showRestoreButton(bool restorable)
{
    m_maxButton->setVisible(!restorable);
    m_restoreButton->setVisible(restorable);
}

void OvTitleBarBase::onBtnMaxClicked()
{
    showRestoreButton(true);
    emit btnMaxClicked();
}

void OvTitleBarBase::onBtnRestoreClicked()
{
    showRestoreButton(false);
    emit btnRestoreClicked();
}

void OvTitleBarBase::onMaximizeShortcutActivated()
{
    emit sigMaximizeShortcutActivated();
    if (m_buttonType != MinMaxCloseButtons)
        return;
    if (!m_maxButton->isHidden())
        onBtnMaxClicked();
    else if (!m_restoreButton->isHidden())
        onBtnRestoreClicked();
}

void OvTitleBarBase::mousePressEvent(QMouseEvent *event)
{
    if (!m_draggable || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_pressed = true;
    m_lastGlobalPos = event->globalPos();
}

void OvTitleBarBase::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton))
        m_pressed = false;
    if (!m_pressed) {
        event->ignore(); // the window follows the pointer to know which edge is under it
        return;
    }
    if (!m_restoreButton->isHidden())
        restoreUnderPointer(event->pos().x());
    window()->move(window()->pos() + event->globalPos() - m_lastGlobalPos);
    m_lastGlobalPos = event->globalPos();
}

// A maximised window that is dragged becomes normal first, and lies under the pointer.
void OvTitleBarBase::restoreUnderPointer(int pointerX)
{
    const bool isRightHalf = pointerX > width() / 2;
    m_normalPos = QPoint(isRightHalf ? width() - m_normalSize.width() : 0, 0);
    onBtnRestoreClicked();
}

void OvTitleBarBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = false;
}

void OvTitleBarBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

// Round upper corners follow the window's body; below, the content begins. What a style sheet adds comes on
// top.
void OvTitleBarBase::paintEvent(QPaintEvent *)
{
    QPainterPath shape;
    shape.setFillRule(Qt::WindingFill);
    shape.addRoundedRect(rect(), Look::cornerRadius, Look::cornerRadius);
    shape.addRect(QRect(0, height() - Look::cornerRadius, width(), Look::cornerRadius));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, m_backgroundColor);
    if (testAttribute(Qt::WA_StyledBackground)) {
        QStyleOption option;
        option.init(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
}
