#include "widgets/OvMaskTipsDialog.h"

#include "widgets/DoubleClickFilter.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Sizes in pixels and colours that make the dialog look as designed.
namespace Look {
constexpr int cornerRadius = 8;
constexpr int boxMargin = 16;
constexpr int boxSpacing = 16;
constexpr int boxWidth = 320;
constexpr int distanceFromMask = 16; // at least
constexpr int titlePixelSize = 18;
constexpr QRgb titleColor = qRgb(0x30, 0x31, 0x33);
constexpr int messagePixelSize = 14;
constexpr QRgb messageColor = qRgb(0x60, 0x62, 0x66);
constexpr int buttonSpacing = 10;
constexpr int buttonWidth = 76; // at least
constexpr int buttonHeight = 32;
} // namespace Look

QString closeButtonColors()
{
    return QStringLiteral("QPushButton { background: #FFFFFF; border: 1px solid #E5E7ED; color: #606266; }"
                          "QPushButton:hover { background: #F5F7FA; }"
                          "QPushButton:pressed { background: #E5E7ED; }"
                          "QPushButton:focus { border-color: #606266; }");
}

QString confirmButtonColors()
{
    return QStringLiteral("QPushButton { background: #FF9B7A; border: 1px solid #FF9B7A; color: #FFFFFF; }"
                          "QPushButton:hover { background: #FFAB8F; }"
                          "QPushButton:pressed { background: #F0805B; }"
                          "QPushButton:focus { border-color: #D9663F; }");
}

QLabel *createLabel(QWidget *parent, const QString &objectName, int pixelSize, QRgb color)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(color));
    label->setPalette(palette);
    return label;
}

} // namespace

OvMaskTipsDialog::OvMaskTipsDialog(QWidget *parent)
    : OvMaskDialog(parent)
    , m_box(new QFrame(this))
    , m_titleLabel(createLabel(m_box, QStringLiteral("titleLabel"), Look::titlePixelSize, Look::titleColor))
    , m_messageLabel(
          createLabel(m_box, QStringLiteral("messageLabel"), Look::messagePixelSize, Look::messageColor))
    , m_closeButton(createButton(QStringLiteral("closeButton"), closeButtonColors()))
    , m_confirmButton(createButton(QStringLiteral("confirmButton"), confirmButtonColors()))
{
    setAttribute(Qt::WA_DeleteOnClose);
    createBox();
    setTexts();
    setFocusOrder({m_closeButton, m_confirmButton}, m_confirmButton);

    connect(m_closeButton, &QPushButton::clicked, this, &OvMaskTipsDialog::reject);
    connect(m_confirmButton, &QPushButton::clicked, this, &OvMaskTipsDialog::confirm);
}

OvMaskTipsDialog::~OvMaskTipsDialog() = default;

QPushButton *OvMaskTipsDialog::createButton(const QString &objectName, const QString &colors)
{
    auto *button = new QPushButton(m_box);
    button->setObjectName(objectName);
    button->setMinimumWidth(Look::buttonWidth);
    button->setFixedHeight(Look::buttonHeight);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(
        colors + QStringLiteral("QPushButton { border-radius: 4px; font-size: 14px; padding: 0 12px; }"));
    return button;
}

void OvMaskTipsDialog::createBox()
{
    m_box->setObjectName(QStringLiteral("box"));
    m_box->setStyleSheet(
        QStringLiteral("QFrame#box { background: white; border-radius: %1px; }").arg(Look::cornerRadius));
    m_box->setMaximumWidth(Look::boxWidth);
    m_confirmButton->setDefault(true);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Look::buttonSpacing);
    buttons->addStretch();
    buttons->addWidget(m_closeButton);
    buttons->addWidget(m_confirmButton);

    auto *content = new QVBoxLayout(m_box);
    content->setSpacing(Look::boxSpacing);
    content->setContentsMargins(Look::boxMargin, Look::boxMargin, Look::boxMargin, Look::boxMargin);
    content->addWidget(m_titleLabel);
    content->addWidget(m_messageLabel);
    content->addLayout(buttons);

    // The box takes the width that there is, up to its own.
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_box, 1);
    row->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(
        Look::distanceFromMask, Look::distanceFromMask, Look::distanceFromMask, Look::distanceFromMask);
    layout->addStretch();
    layout->addLayout(row);
    layout->addStretch();
}

void OvMaskTipsDialog::setTexts()
{
    m_titleLabel->setText(m_title.isEmpty() ? tr("Hints") : m_title);
    m_closeButton->setText(tr("Close"));
    m_confirmButton->setText(tr("Confirm"));
}

void OvMaskTipsDialog::setTitle(const QString &title)
{
    m_title = title;
    setTexts();
}

QString OvMaskTipsDialog::title() const
{
    return m_titleLabel->text();
}

void OvMaskTipsDialog::setText(const QString &text)
{
    m_messageLabel->setText(text);
}

QString OvMaskTipsDialog::text() const
{
    return m_messageLabel->text();
}

void OvMaskTipsDialog::setUnprompted()
{
    m_confirmButton->setDefault(false);
    setFocusOrder({m_closeButton, m_confirmButton}, this);
    new DoubleClickFilter(m_closeButton);
    new DoubleClickFilter(m_confirmButton);
}

void OvMaskTipsDialog::reject()
{
    emit sigCancelBtnClicked();
    OvMaskDialog::reject();
}

void OvMaskTipsDialog::confirm()
{
    emit sigConfirmBtnClicked();
    accept();
}

void OvMaskTipsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    OvMaskDialog::changeEvent(event);
}
