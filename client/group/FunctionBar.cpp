#include "group/FunctionBar.h"

#include "group/FunctionButton.h"
#include "widgets/DoubleClickFilter.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <numeric>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int Spacing = 20;
constexpr QMargins Margins(15, 0, 15, 0);
constexpr int TextPixels = 11;
constexpr int SmallestPixels = 9;
constexpr QRgb Background = qRgba(85, 85, 85, 255);
constexpr QRgb TopBorder = qRgba(89, 89, 89, 255);
} // namespace Look

// The buttons from left to right; the keys are Linux input key codes, which the device's system understands.
constexpr int Restart = 0; // no key
struct Function
{
    const char *text;
    const char *iconPath;
    int keyType;
};
constexpr Function Functions[] = {
    {QT_TRANSLATE_NOOP("FunctionBar", "Volume up"), ":/icon/svg/volume-up.svg", 115},
    {QT_TRANSLATE_NOOP("FunctionBar", "Volume down"), ":/icon/svg/volume-down.svg", 114},
    {QT_TRANSLATE_NOOP("FunctionBar", "Restart"), ":/icon/svg/group-reboot.svg", Restart},
    {QT_TRANSLATE_NOOP("FunctionBar", "Go back"), ":/icon/svg/group-back.svg", 158},
    {QT_TRANSLATE_NOOP("FunctionBar", "Home page"), ":/icon/svg/group-home.svg", 172},
    {QT_TRANSLATE_NOOP("FunctionBar", "Menu"), ":/icon/svg/group-menu.svg", 139},
};

} // namespace

FunctionBar::FunctionBar(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(barHeight);
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(Look::Spacing);
    layout->setContentsMargins(Look::Margins);
    for (const Function &function : Functions) {
        auto *button = new FunctionButton(QString::fromLatin1(function.iconPath), this);
        layout->addWidget(button);
        m_buttons.append(button);
        if (function.keyType == Restart) {
            new DoubleClickFilter(button);
            connect(button, &QPushButton::clicked, this, &FunctionBar::restartBtnClicked);
        } else {
            connect(button, &QPushButton::clicked, this,
                [this, keyType = function.keyType] { emit functionBtnClicked(keyType); });
        }
    }
    setTexts();
}

FunctionBar::~FunctionBar() = default;

void FunctionBar::setTexts()
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setText(tr(Functions[i].text));
    fitTexts();
}

// One height for all; with texts that are too long for the bar, only the icons.
void FunctionBar::fitTexts()
{
    const int gaps = Look::Margins.left() + Look::Margins.right() + Look::Spacing * (m_buttons.size() - 1);
    const auto fits = [&](int pixels) {
        return gaps
            + std::accumulate(m_buttons.cbegin(), m_buttons.cend(), 0,
                [&](int sum, const FunctionButton *button) { return sum + button->widthFor(pixels); })
            <= width();
    };
    int pixels = Look::TextPixels;
    while (pixels >= Look::SmallestPixels && !fits(pixels))
        --pixels;
    for (FunctionButton *button : qAsConst(m_buttons))
        button->setTextPixels(pixels >= Look::SmallestPixels ? pixels : 0);
}

void FunctionBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void FunctionBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgba(Look::Background));
    painter.fillRect(0, 0, width(), 1, QColor::fromRgba(Look::TopBorder));
}

void FunctionBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitTexts();
}
