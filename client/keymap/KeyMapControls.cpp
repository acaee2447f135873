#include "keymap/KeyMapControls.h"

#include "keymap/KeyKindButton.h"
#include "keymap/KeyMapScheme.h"
#include "keymap/WrappingCheckBox.h"
#include "widgets/OvSlider.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels.
namespace Look {
constexpr int TextPixels = 13;
constexpr int SliderLabelWidth = 140;
constexpr int SliderSpacing = 8;
constexpr int SliderRowSpacing = 4;
constexpr int KindSpacing = 8;
} // namespace Look

QString areaStyle()
{
    return QStringLiteral(
        "QScrollArea { background: transparent; border: none; }"
        "QScrollBar:vertical { background: transparent; width: 6px; margin: 0; }"
        "QScrollBar::handle:vertical { background: #606266; border-radius: 3px; min-height: 24px; }"
        "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
        "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }");
}

QLabel *createLabel(const QString &objectName)
{
    auto *label = new QLabel;
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(Look::TextPixels);
    label->setFont(font);
    label->setStyleSheet(QStringLiteral("color: white;"));
    return label;
}

KeyKindButton *createKeyKind(const QString &objectName, const char *iconPath)
{
    auto *button = new KeyKindButton(QString::fromLatin1(iconPath));
    button->setObjectName(objectName);
    return button;
}

OvSlider *createSlider(const QString &objectName, int minimum, int maximum)
{
    auto *slider = new OvSlider;
    slider->setObjectName(objectName);
    slider->setRange(minimum, maximum);
    slider->setValue(minimum);
    return slider;
}

WrappingCheckBox *createCheckBox(const QString &objectName)
{
    auto *box = new WrappingCheckBox;
    box->setObjectName(objectName);
    box->setFocusPolicy(Qt::NoFocus);
    box->setCursor(Qt::PointingHandCursor);
    QFont font = box->font();
    font.setPixelSize(Look::TextPixels);
    box->setFont(font);
    return box;
}

} // namespace

KeyMapControls::KeyMapControls(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(areaStyle());
    createParts();

    auto *content = new QWidget;
    m_content = new QVBoxLayout(content);
    m_content->setContentsMargins(0, 0, 0, 0);
    m_content->addWidget(m_kindsLabel);
    m_content->addWidget(createKeyKinds());
    m_content->addWidget(m_promptsLabel);
    m_content->addLayout(createSliders());
    m_content->addWidget(m_showKeysBox);
    m_content->addWidget(m_showNotesBox);
    m_content->addStretch();
    setWidget(content);
    content->setAutoFillBackground(false); // which the area has switched on
    viewport()->setAutoFillBackground(false);
    setTexts();
}

KeyMapControls::~KeyMapControls() = default;

void KeyMapControls::createParts()
{
    m_kindsLabel = createLabel(QStringLiteral("kindsLabel"));
    m_clickButton = createKeyKind(QStringLiteral("clickButton"), ":icon/svg/option_click.svg");
    m_walkingButton = createKeyKind(QStringLiteral("walkingButton"), ":icon/svg/option_walking.svg");
    m_crosshairButton = createKeyKind(QStringLiteral("crosshairButton"), ":icon/svg/option_crosshair.svg");
    m_promptsLabel = createLabel(QStringLiteral("promptsLabel"));
    m_opacityLabel = createLabel(QStringLiteral("opacityLabel"));
    m_opacitySlider = createSlider(
        QStringLiteral("opacitySlider"), KeyMapScheme::minimumOpacity, KeyMapScheme::maximumOpacity);
    m_opacitySlider->setPageStep(10);
    m_sizeLabel = createLabel(QStringLiteral("sizeLabel"));
    m_sizeSlider
        = createSlider(QStringLiteral("sizeSlider"), KeyMapScheme::minimumSize, KeyMapScheme::maximumSize);
    m_sizeSlider->setSingleStep(1);
    m_showKeysBox = createCheckBox(QStringLiteral("showKeysBox"));
    m_showNotesBox = createCheckBox(QStringLiteral("showNotesBox"));
}

QWidget *KeyMapControls::createKeyKinds()
{
    auto *kinds = new QWidget;
    auto *layout = new QHBoxLayout(kinds);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::KindSpacing);
    for (KeyKindButton *button : {m_clickButton, m_walkingButton, m_crosshairButton})
        layout->addWidget(button, 1);
    return kinds;
}

QLayout *KeyMapControls::createSliders()
{
    auto *sliders = new QGridLayout;
    sliders->setContentsMargins(0, 0, 0, 0);
    sliders->setHorizontalSpacing(Look::SliderSpacing);
    sliders->setVerticalSpacing(Look::SliderRowSpacing);
    for (QLabel *label : {m_opacityLabel, m_sizeLabel})
        label->setFixedWidth(Look::SliderLabelWidth);
    sliders->addWidget(m_opacityLabel, 0, 0);
    sliders->addWidget(m_opacitySlider, 0, 1);
    sliders->addWidget(m_sizeLabel, 1, 0);
    sliders->addWidget(m_sizeSlider, 1, 1);
    return sliders;
}

void KeyMapControls::setTexts()
{
    m_kindsLabel->setText(tr("Please Select Auxiliary Key"));
    m_clickButton->setText(tr("Click"));
    m_walkingButton->setText(tr("keyboard walking"));
    m_crosshairButton->setText(tr("crosshair"));
    m_promptsLabel->setText(tr("Key prompts"));
    m_opacityLabel->setText(tr("Button transparency"));
    m_opacitySlider->setAccessibleName(m_opacityLabel->text());
    m_sizeLabel->setText(tr("Key size"));
    m_sizeSlider->setAccessibleName(m_sizeLabel->text());
    m_showKeysBox->setText(tr("Show buttons when entering the game"));
    m_showNotesBox->setText(tr("Show notes when entering the game"));
}

// The toolkit shows no cursor of a widget that is disabled, but that of what is below it.
void KeyMapControls::setEditable(bool editable)
{
    for (KeyKindButton *button : {m_clickButton, m_walkingButton, m_crosshairButton}) {
        button->setEnabled(editable);
        button->parentWidget()->setCursor(editable ? Qt::ArrowCursor : Qt::ForbiddenCursor);
        if (editable)
            button->setCursor(Qt::PointingHandCursor);
        else
            button->unsetCursor();
    }
    m_opacitySlider->setEnabled(editable);
    m_sizeSlider->setEnabled(editable);
    m_showKeysBox->setEnabled(editable);
    m_showNotesBox->setEnabled(editable);
}

void KeyMapControls::setSpacing(int spacing)
{
    m_content->setSpacing(spacing);
}

void KeyMapControls::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QScrollArea::changeEvent(event);
}
