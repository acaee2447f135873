#include "group/SaveGroupDialog.h"

#include "group/GroupDialogBox.h"
#include "widgets/FittedText.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// What the service takes as a group's name, in UTF-16 units.
constexpr int ShortestName = 1;
constexpr int LongestName = 50;

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QSize Box(500, 246);
constexpr int BoxTop = 26; // from the upper edge of the mask
constexpr int TitleHeight = 22;
constexpr int NameHeight = 25;
constexpr int EditHeight = 34;
constexpr int HintHeight = 28;
constexpr int ErrorHeight = 28;
constexpr int TitleGap = 6; // below the title
constexpr int TitlePixels = 18;
constexpr int TextPixels = 14;
constexpr int HintPixels = 13;
constexpr int ErrorPixels = 12;
constexpr int SmallestPixels = 9;
constexpr QRgb TitleColour = qRgb(0x30, 0x31, 0x33);
constexpr QRgb TextColour = qRgb(0x60, 0x62, 0x66);
constexpr QRgb HintColour = qRgb(0x90, 0x93, 0x99);
constexpr QRgb PlaceholderColour = qRgb(0xA8, 0xAB, 0xB2);
constexpr QRgb ErrorColour = qRgb(255, 153, 153);
} // namespace Look

void setFittedText(QLabel *label, const QString &text, int pixels)
{
    label->setFont(FittedText::wrapped(label->font(), text, label->size(), pixels, Look::SmallestPixels));
    label->setText(text);
}

} // namespace

SaveGroupDialog::SaveGroupDialog(QWidget *parent)
    : OvMaskDialog(parent)
    , m_box(new GroupDialogBox(Look::Box, this))
    , m_titleLabel(
          createLabel(QStringLiteral("titleLabel"), Look::TitleHeight, Look::TitlePixels, Look::TitleColour))
    , m_nameLabel(
          createLabel(QStringLiteral("nameLabel"), Look::NameHeight, Look::TextPixels, Look::TextColour))
    , m_nameEdit(new QLineEdit(m_box))
    , m_hintLabel(
          createLabel(QStringLiteral("hintLabel"), Look::HintHeight, Look::HintPixels, Look::HintColour))
    , m_errorLabel(
          createLabel(QStringLiteral("errorLabel"), Look::ErrorHeight, Look::ErrorPixels, Look::ErrorColour))
{
    createContent();
    setTexts();
    setFocusOrder({m_nameEdit, m_box->cancelButton(), m_box->confirmButton()}, m_nameEdit);
    connect(m_box->cancelButton(), &QPushButton::clicked, this, &SaveGroupDialog::onCancelBtnClicked);
    connect(m_box->confirmButton(), &QPushButton::clicked, this, &SaveGroupDialog::onConfirmBtnClicked);
}

SaveGroupDialog::~SaveGroupDialog() = default;

QLabel *SaveGroupDialog::createLabel(const QString &objectName, int height, int pixels, QRgb colour)
{
    auto *label = new QLabel(m_box);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedSize(GroupDialogBox::textWidth, height);
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(colour));
    label->setPalette(palette);
    return label;
}

void SaveGroupDialog::createContent()
{
    m_titleLabel->setAlignment(Qt::AlignCenter);
    m_nameEdit->setObjectName(QStringLiteral("nameEdit"));
    m_nameEdit->setFixedSize(GroupDialogBox::textWidth, Look::EditHeight);
    m_nameEdit->setStyleSheet(QStringLiteral(
        "QLineEdit { border: 1px solid #DCDFE6; border-radius: 4px; padding: 0 8px; background: white;"
        " font-size: %1px; selection-background-color: #FF9B7A; }"
        "QLineEdit:focus { border-color: #FF9B7A; }")
                                  .arg(Look::TextPixels));
    QPalette colours = m_nameEdit->palette();
    colours.setColor(QPalette::Text, QColor::fromRgb(Look::TitleColour));
    colours.setColor(QPalette::PlaceholderText, QColor::fromRgb(Look::PlaceholderColour));
    m_nameEdit->setPalette(colours);
    QVBoxLayout *content = m_box->content();
    const QVector<QWidget *> widgets = {m_titleLabel, m_nameLabel, m_nameEdit, m_hintLabel, m_errorLabel};
    for (QWidget *widget : widgets)
        content->addWidget(widget, 0, Qt::AlignHCenter);
    content->insertSpacing(1, Look::TitleGap);
    content->addStretch();
}

void SaveGroupDialog::setTexts()
{
    setWindowTitle(tr("Change the name"));
    setFittedText(m_titleLabel, tr("Change the name"), Look::TitlePixels);
    setFittedText(m_nameLabel, tr("Group name"), Look::TextPixels);
    m_nameEdit->setAccessibleName(m_nameLabel->text());
    m_nameEdit->setPlaceholderText(tr("Please enter group name"));
    setFittedText(
        m_hintLabel, tr("This is a temporary group. Do you want to save this group?"), Look::HintPixels);
    showError(m_nameRefused);
}

void SaveGroupDialog::showError(bool shown)
{
    m_nameRefused = shown;
    setFittedText(m_errorLabel,
        shown ? tr("The name length should be greater than one character and less than 50 characters")
              : QString(),
        Look::ErrorPixels);
}

void SaveGroupDialog::onCancelBtnClicked()
{
    hide();
}

void SaveGroupDialog::onConfirmBtnClicked()
{
    const QString name = m_nameEdit->text();
    if (name.length() < ShortestName || name.length() > LongestName) {
        showError(true);
        m_nameEdit->setFocus();
        return;
    }
    showError(false);
    emit saveGroup(name);
    hide();
}

void SaveGroupDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    OvMaskDialog::changeEvent(event);
}

void SaveGroupDialog::resizeEvent(QResizeEvent *event)
{
    OvMaskDialog::resizeEvent(event);
    m_box->move((width() - m_box->width()) / 2, Look::BoxTop);
}

// The name of the last time is offered again, and typing replaces it.
void SaveGroupDialog::showEvent(QShowEvent *event)
{
    showError(false);
    m_nameEdit->selectAll();
    OvMaskDialog::showEvent(event);
}
