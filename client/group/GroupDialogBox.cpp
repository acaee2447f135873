#include "group/GroupDialogBox.h"

#include "widgets/FittedText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels.
namespace Look {
constexpr QMargins Margins(16, 30, 16, 16);
constexpr int CornerRadius = 8;
constexpr QSize Button(234, 50);
constexpr int ButtonMargin = 8; // of its text
constexpr int ButtonPixels = 16;
constexpr int SmallestPixels = 10;
} // namespace Look

} // namespace

GroupDialogBox::GroupDialogBox(const QSize &size, QWidget *parent)
    : QFrame(parent)
    , m_content(new QVBoxLayout)
    , m_cancelButton(
          createButton(QStringLiteral("cancelButton"), QStringLiteral("QPushButton { color: #606266; }")))
    , m_confirmButton(createButton(QStringLiteral("confirmButton"),
          QStringLiteral("QPushButton { color: rgba(255, 155, 122, 1); border-left: 1px solid #EBEEF5; }")))
{
    setObjectName(QStringLiteral("box"));
    setFixedSize(size);
    setStyleSheet(
        QStringLiteral("QFrame#box { background: white; border-radius: %1px; }").arg(Look::CornerRadius));
    m_confirmButton->setDefault(true);

    m_content->setSpacing(0);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    buttons->addWidget(m_cancelButton);
    buttons->addWidget(m_confirmButton);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(Look::Margins);
    layout->addLayout(m_content, 1);
    layout->addLayout(buttons);
    setTexts();
}

GroupDialogBox::~GroupDialogBox() = default;

QPushButton *GroupDialogBox::createButton(const QString &objectName, const QString &colours)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFixedSize(Look::Button);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(
        QStringLiteral("QPushButton { background: white; border: none; border-top: 1px solid #EBEEF5; }"
                       "QPushButton:focus { background: #FFF5F1; }"
                       "QPushButton:hover { background: #F5F7FA; }"
                       "QPushButton:pressed { background: #EBEEF5; }")
        + colours);
    return button;
}

void GroupDialogBox::setTexts()
{
    m_cancelButton->setText(tr("Cancel"));
    m_confirmButton->setText(tr("Confirm"));
    for (QPushButton *button : {m_cancelButton, m_confirmButton}) {
        button->setFont(FittedText::onOneLine(button->font(), button->text(),
            Look::Button.width() - 2 * Look::ButtonMargin, Look::ButtonPixels, Look::SmallestPixels));
    }
}

void GroupDialogBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QFrame::changeEvent(event);
}
