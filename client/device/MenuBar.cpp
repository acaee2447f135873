#include "device/MenuBar.h"

#include "device/MenuButton.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr QRgb Background = qRgb(68, 68, 68); // the title bar's

// Keys of the device, as Linux input key codes.
namespace KeyType {
constexpr int HomePage = 172;
constexpr int VolumeUp = 115;
constexpr int VolumeDown = 114;
} // namespace KeyType

// What the buttons are for, from top to bottom.
constexpr const char *Labels[] = {
    QT_TRANSLATE_NOOP("MenuBar", "Home page"),
    QT_TRANSLATE_NOOP("MenuBar", "Volume up"),
    QT_TRANSLATE_NOOP("MenuBar", "Volume down"),
    QT_TRANSLATE_NOOP("MenuBar", "Screen capture"),
    QT_TRANSLATE_NOOP("MenuBar", "Screen Rotate"),
    QT_TRANSLATE_NOOP("MenuBar", "Key editing"),
    QT_TRANSLATE_NOOP("MenuBar", "Apply Key Binding with One Click"),
};

} // namespace

MenuBar::MenuBar(QWidget *parent)
    : QWidget(parent)
{
    setFixedWidth(barWidth);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);

    addKeyButton(":/icon/svg/emitHome.svg", KeyType::HomePage);
    addKeyButton(":/icon/svg/volumeUp.svg", KeyType::VolumeUp);
    addKeyButton(":/icon/svg/volumeDown.svg", KeyType::VolumeDown);
    MenuButton *capture = addButton(":/icon/svg/snapshot.svg");
    MenuButton *rotate = addButton(":icon/svg/switchScreen.svg");
    MenuButton *editKeys = addButton(":icon/svg/key.svg");
    MenuButton *applyBinding = addButton(":icon/svg/useLastConfig.svg");
    layout->addStretch();

    connect(capture, &QPushButton::clicked, this, &MenuBar::screenCaptureBtnClicked);
    connect(rotate, &QPushButton::clicked, this, &MenuBar::screenRotateBtnClicked);
    connect(editKeys, &QPushButton::clicked, this, &MenuBar::keyboardMapBtnClicked);
    connect(applyBinding, &QPushButton::clicked, this, &MenuBar::applyKeyBindingBtnClicked);
    setTexts();
}

MenuBar::~MenuBar() = default;

MenuButton *MenuBar::addButton(const char *iconPath)
{
    auto *button = new MenuButton(QString::fromLatin1(iconPath), this);
    layout()->addWidget(button);
    layout()->setAlignment(button, Qt::AlignHCenter);
    m_buttons.append(button);
    return button;
}

void MenuBar::addKeyButton(const char *iconPath, int keyType)
{
    connect(addButton(iconPath), &QPushButton::clicked, this,
        [this, keyType] { emit functionBtnClicked(keyType); });
}

void MenuBar::setTexts()
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setLabel(tr(Labels[i]));
}

void MenuBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void MenuBar::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor(Background));
}
