#include "keymap/KeyMapGuide.h"

#include "net/HttpHelper.h"
#include "widgets/FittedText.h"
#include "widgets/OvTitleBarBase.h"

#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QSvgRenderer>
#include <QSvgWidget>
#include <QVBoxLayout>

namespace {

constexpr int SuccessCode = 200;
const char GuidePath[] = "/apiv1/keyboard_map/guide";

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QSize Content(528, 580);
constexpr QSize Picture(480, 270);
constexpr int Margin = 24;
constexpr int Spacing = 12;
constexpr int TitleBarPixels = 14;
constexpr int PageTitlePixels = 18;
constexpr int TextPixels = 14;
constexpr int SmallestTextPixels = 10;
constexpr int NumberPixels = 13;
constexpr QSize Button(104, 32);
constexpr int ButtonMargin = 6; // of its text
constexpr QRgb Ground = qRgb(28, 28, 46); // the editor's
constexpr QRgb TitleBarGround = qRgb(68, 68, 68);
} // namespace Look

QString buttonStyle(bool isAccent)
{
    const QString common = QStringLiteral("QPushButton { border-radius: 4px; color: white; %1 }"
                                          "QPushButton:hover { %2 }"
                                          "QPushButton:pressed { %3 }"
                                          "QPushButton:disabled { color: #606266; %4 }");
    if (isAccent)
        return common.arg(QStringLiteral("background: #07CCFB; border: 1px solid #07CCFB;"),
            QStringLiteral("background: #3AD7FC;"), QStringLiteral("background: #06B4DE;"),
            QStringLiteral("background: #303244;"));
    return common.arg(QStringLiteral("background: transparent; border: 1px solid #606266;"),
        QStringLiteral("border-color: #07CCFB;"), QStringLiteral("background: #303244;"),
        QStringLiteral("border-color: #303244;"));
}

QPushButton *createButton(const QString &objectName, bool isAccent)
{
    auto *button = new QPushButton;
    button->setObjectName(objectName);
    button->setFixedSize(Look::Button);
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::NoFocus); // the keys leaf
    button->setStyleSheet(buttonStyle(isAccent));
    return button;
}

void setButtonText(QPushButton *button, const QString &text)
{
    const int room = button->width() - 2 * Look::ButtonMargin;
    button->setFont(
        FittedText::onOneLine(button->font(), text, room, Look::TextPixels, Look::SmallestTextPixels));
    button->setText(text);
}

QLabel *createLabel(const QString &objectName, int pixels, const QColor &colour, bool isBold = false)
{
    auto *label = new QLabel;
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setBold(isBold);
    label->setFont(font);
    label->setStyleSheet(QStringLiteral("color: %1; background: transparent;").arg(colour.name()));
    return label;
}

} // namespace

KeyMapGuide::KeyMapGuide(QWidget *parent)
    : OvWindowBase(parent)
    , m_httpHelper(new HttpHelper(this))
    , m_pages(new QStackedLayout)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setBackgroundColor(QColor(Look::Ground));
    setFixedContentSize(Look::Content);
    titleBar()->setButtonType(OvTitleBarBase::CloseButton);
    titleBar()->setBackgroundColor(QColor(Look::TitleBarGround));
    m_pages->addWidget(createMessagePage());
    m_pages->addWidget(createGuidePage());
    mainLayout()->addLayout(m_pages, 1);
    setFocusPolicy(Qt::StrongFocus);
    setTexts();
    connect(m_previousButton, &QPushButton::clicked, this, &KeyMapGuide::onPreviousBtnClicked);
    connect(m_nextButton, &QPushButton::clicked, this, &KeyMapGuide::onNextBtnClicked);
    connect(m_retryButton, &QPushButton::clicked, this, &KeyMapGuide::load);
}

KeyMapGuide::~KeyMapGuide() = default;

QWidget *KeyMapGuide::createMessagePage()
{
    auto *page = new QWidget;
    m_message = createLabel(QStringLiteral("message"), Look::TextPixels, Qt::white);
    m_message->setAlignment(Qt::AlignCenter);
    m_retryButton = createButton(QStringLiteral("retryButton"), true);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    layout->setSpacing(Look::Spacing);
    layout->addStretch();
    layout->addWidget(m_message);
    layout->addWidget(m_retryButton, 0, Qt::AlignHCenter);
    layout->addStretch();
    return page;
}

QWidget *KeyMapGuide::createGuidePage()
{
    auto *page = new QWidget;
    m_picture = new QSvgWidget;
    m_picture->setObjectName(QStringLiteral("picture"));
    m_picture->setFixedSize(Look::Picture);
    m_pageTitle = createLabel(QStringLiteral("pageTitle"), Look::PageTitlePixels, Qt::white, true);
    m_pageText = createLabel(QStringLiteral("pageText"), Look::TextPixels, QColor(0xE5, 0xE7, 0xED));
    m_pageText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_textArea = new QScrollArea;
    m_textArea->setFrameShape(QFrame::NoFrame);
    m_textArea->setFocusPolicy(Qt::NoFocus);
    m_textArea->setWidgetResizable(true);
    m_textArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_textArea->setWidget(m_pageText);
    m_textArea->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    m_pageNumber = createLabel(QStringLiteral("pageNumber"), Look::NumberPixels, QColor(0x90, 0x93, 0x99));
    m_pageNumber->setAlignment(Qt::AlignCenter);
    m_previousButton = createButton(QStringLiteral("previousButton"), false);
    m_nextButton = createButton(QStringLiteral("nextButton"), true);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_previousButton);
    buttons->addWidget(m_pageNumber, 1);
    buttons->addWidget(m_nextButton);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    layout->setSpacing(Look::Spacing);
    layout->addWidget(m_picture, 0, Qt::AlignHCenter);
    layout->addWidget(m_pageTitle);
    layout->addWidget(m_textArea, 1);
    layout->addLayout(buttons);
    return page;
}

void KeyMapGuide::setTexts()
{
    const QString title = m_guide.title.isEmpty() ? tr("Tutorial") : m_guide.title;
    setWindowTitle(title);
    titleBar()->setTitle(title, Look::TitleBarPixels, false, Qt::white);
    m_message->setText(m_loading ? tr("Loading the tutorial") : tr("The tutorial could not be loaded."));
    setButtonText(m_retryButton, tr("Try again"));
    setButtonText(m_previousButton, tr("Back"));
    setButtonText(m_nextButton, m_page + 1 < pageCount() ? tr("Next") : tr("Done"));
}

void KeyMapGuide::load()
{
    if (m_loading)
        return;
    m_loading = true;
    showMessage();
    m_httpHelper->get(
        HttpHelper::apiBaseUrl() + QLatin1String(GuidePath),
        [this](const ResponseData &response) {
            if (response.code != SuccessCode) {
                onFailed(response.msg);
                return;
            }
            const GuidePages guide = GuidePages::fromJson(response.data);
            if (guide.pages.isEmpty())
                onFailed(QStringLiteral("no pages"));
            else
                showGuide(guide);
        },
        [this](const QString &error) { onFailed(error); });
}

void KeyMapGuide::onFailed(const QString &reason)
{
    qWarning().noquote() << "the tutorial of the key mapping could not be loaded:" << reason;
    m_loading = false;
    showMessage();
}

void KeyMapGuide::showMessage()
{
    m_guide = {};
    m_page = -1;
    m_retryButton->setVisible(!m_loading);
    setTexts();
    m_pages->setCurrentIndex(0);
}

void KeyMapGuide::showGuide(const GuidePages &guide)
{
    m_loading = false;
    m_guide = guide;
    m_pages->setCurrentIndex(1);
    showPage(0);
}

// A page without a picture gives its room to the text.
void KeyMapGuide::showPage(int page)
{
    if (page < 0 || page >= pageCount())
        return;
    m_page = page;
    const GuidePages::Page &shown = m_guide.pages.at(page);
    m_picture->load(shown.picture);
    m_picture->renderer()->setAspectRatioMode(Qt::KeepAspectRatio);
    m_picture->setVisible(m_picture->renderer()->isValid());
    m_pageTitle->setText(shown.title);
    m_pageTitle->setVisible(!shown.title.isEmpty());
    m_pageText->setText(shown.text);
    m_textArea->verticalScrollBar()->setValue(0);
    m_pageNumber->setText(QStringLiteral("%1 / %2").arg(page + 1).arg(pageCount()));
    m_previousButton->setEnabled(page > 0);
    setTexts();
}

void KeyMapGuide::onPreviousBtnClicked()
{
    showPage(m_page - 1);
}

void KeyMapGuide::onNextBtnClicked()
{
    if (m_page + 1 < pageCount())
        showPage(m_page + 1);
    else
        close();
}

void KeyMapGuide::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    OvWindowBase::changeEvent(event);
}

void KeyMapGuide::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        onPreviousBtnClicked();
        break;
    case Qt::Key_Right:
        showPage(m_page + 1);
        break;
    case Qt::Key_Escape:
        close();
        break;
    default:
        OvWindowBase::keyPressEvent(event);
    }
}
