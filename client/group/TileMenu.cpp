#include "group/TileMenu.h"

#include "widgets/DoubleClickFilter.h"

#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QRgb Dimming = qRgba(0, 0, 0, 51); // a fifth
constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr int EntryHeight = 32;
} // namespace Look

// One style sheet for the whole menu: they are slow to parse.
QString menuStyle()
{
    return QStringLiteral(
        "QPushButton { color: white; background: rgba(0, 0, 0, 0.55); border: 1px solid transparent;"
        " border-radius: 4px; padding: 0 4px; font-size: 13px; }"
        "QPushButton:hover { background: rgba(255, 155, 122, 1); }"
        "QPushButton:focus { border-color: rgba(255, 155, 122, 1); }"
        "QPushButton:pressed { background: rgba(230, 134, 102, 1); }");
}

} // namespace

TileMenu::TileMenu(QWidget *parent)
    : QWidget(parent)
{
    setStyleSheet(menuStyle());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    layout->setSpacing(Look::Spacing);
    layout->addStretch();
    m_setAsMain = addEntry(layout, "setAsMainButton", &TileMenu::setAsMainClicked);
    m_restart = addEntry(layout, "restartButton", &TileMenu::restartClicked);
    m_remove = addEntry(layout, "removeButton", &TileMenu::removeClicked);
    m_singleControl = addEntry(layout, "singleControlButton", &TileMenu::singleControlClicked);
    layout->addStretch();
    setTexts();
}

TileMenu::~TileMenu() = default;

QPushButton *TileMenu::addEntry(QVBoxLayout *layout, const char *objectName, void (TileMenu::*clicked)())
{
    auto *button = new QPushButton(this);
    button->setObjectName(QLatin1String(objectName));
    button->setFixedHeight(Look::EntryHeight);
    button->setMinimumWidth(1); // long words are cut rather than making the tile wider
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
    new DoubleClickFilter(button);
    connect(button, &QPushButton::clicked, this, clicked);
    layout->addWidget(button);
    return button;
}

void TileMenu::setTexts()
{
    const auto setText = [](QPushButton *button, const QString &text) {
        button->setText(text);
        button->setToolTip(text); // a narrow tile may cut it
    };
    //: Entry of the menu over a device of a group: it becomes the device whose input the others follow.
    setText(m_setAsMain, tr("Set as master"));
    //: Entry of the menu over a device of a group.
    setText(m_restart, tr("Restart"));
    //: Entry of the menu over a device of a group: it leaves the group.
    setText(m_remove, tr("Remove"));
    //: Entry of the menu over a device of a group: it opens in a window of its own.
    setText(m_singleControl, tr("Single control"));
}

void TileMenu::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor::fromRgba(Look::Dimming));
}

void TileMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

bool TileMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        emit sigFocusOut();
    return QWidget::eventFilter(watched, event);
}
