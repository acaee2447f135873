#include "group/RemoveDeviceDialog.h"

#include "group/GroupDialogBox.h"
#include "widgets/FittedText.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QSize Box(500, 153);
constexpr int QuestionHeight = 48; // two lines
constexpr int QuestionPixels = 18;
constexpr int SmallestPixels = 12;
constexpr QRgb QuestionColour = qRgb(0x60, 0x62, 0x66);
} // namespace Look

} // namespace

RemoveDeviceDialog::RemoveDeviceDialog(QWidget *parent)
    : OvMaskDialog(parent)
    , m_box(new GroupDialogBox(Look::Box, this))
    , m_questionLabel(new QLabel(m_box))
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_questionLabel->setObjectName(QStringLiteral("questionLabel"));
    m_questionLabel->setTextFormat(Qt::PlainText);
    m_questionLabel->setWordWrap(true);
    m_questionLabel->setAlignment(Qt::AlignCenter);
    m_questionLabel->setFixedSize(GroupDialogBox::textWidth, Look::QuestionHeight);
    QPalette palette = m_questionLabel->palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(Look::QuestionColour));
    m_questionLabel->setPalette(palette);
    m_box->content()->addWidget(m_questionLabel, 0, Qt::AlignHCenter);
    m_box->content()->addStretch();
    setTexts();
    setFocusOrder({m_box->cancelButton(), m_box->confirmButton()}, m_box->confirmButton());
    coverParent();

    connect(m_box->cancelButton(), &QPushButton::clicked, this, &QDialog::reject);
    connect(m_box->confirmButton(), &QPushButton::clicked, this, &QDialog::accept);
}

RemoveDeviceDialog::~RemoveDeviceDialog() = default;

void RemoveDeviceDialog::setTexts()
{
    const QString question = tr("Are you sure to remove the device from the group?");
    m_questionLabel->setFont(FittedText::wrapped(m_questionLabel->font(), question, m_questionLabel->size(),
        Look::QuestionPixels, Look::SmallestPixels));
    m_questionLabel->setText(question);
}

void RemoveDeviceDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    OvMaskDialog::changeEvent(event);
}

void RemoveDeviceDialog::resizeEvent(QResizeEvent *event)
{
    OvMaskDialog::resizeEvent(event);
    m_box->move((width() - m_box->width()) / 2, (height() - m_box->height()) / 2);
}
