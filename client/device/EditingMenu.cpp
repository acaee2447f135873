#include "device/EditingMenu.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace {

// In device-independent pixels.
namespace Look {
constexpr int ButtonHeight = 26;
constexpr int Spacing = 2;
constexpr int RightMargin = 6; // to the caption buttons
} // namespace Look

QString buttonStyle()
{
    return QStringLiteral("QPushButton { border: none; border-radius: 4px; padding: 0 10px;"
                          " background: transparent; color: #E5E7ED; font-size: 12px; }"
                          "QPushButton:hover { background: rgba(255, 255, 255, 36); }"
                          "QPushButton:pressed { background: rgba(255, 255, 255, 20); }");
}

} // namespace

EditingMenu::EditingMenu(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_tutorialButton(addButton("tutorialButton"))
    , m_uploadButton(addButton("uploadButton"))
    , m_exitButton(addButton("exitButton"))
{
    m_layout->setSpacing(Look::Spacing);
    m_layout->setContentsMargins(0, 0, Look::RightMargin, 0);
    connect(m_tutorialButton, &QPushButton::clicked, this, &EditingMenu::tutorialBtnClicked);
    connect(m_uploadButton, &QPushButton::clicked, this, &EditingMenu::uploadBtnClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &EditingMenu::exitBtnClicked);
    setTexts();
}

EditingMenu::~EditingMenu() = default;

QPushButton *EditingMenu::addButton(const char *objectName)
{
    auto *button = new QPushButton(this);
    button->setObjectName(QString::fromLatin1(objectName));
    button->setFixedHeight(Look::ButtonHeight);
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(buttonStyle());
    m_layout->addWidget(button);
    return button;
}

QWidget *EditingMenu::uploadButton() const
{
    return m_uploadButton;
}

void EditingMenu::setTexts()
{
    m_tutorialButton->setText(tr("Tutorial"));
    m_uploadButton->setText(tr("Upload scheme"));
    //: Leaves the editor of the key mapping.
    m_exitButton->setText(tr("Exit"));
}

void EditingMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}
