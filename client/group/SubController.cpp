#include "group/SubController.h"

#include "group/TileInput.h"
#include "group/TileMenu.h"
#include "group/TileText.h"
#include "stream/StreamController.h"
#include "stream/VideoView.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QResizeEvent>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QRgb CaptionBackground = qRgba(0, 0, 0, 127);
constexpr int CaptionMarginX = 8;
constexpr int CaptionMarginY = 4;
constexpr int NamePixels = 14; // as the caption's template has it
} // namespace Look

void setColours(QLabel *label, const QColor &background)
{
    QPalette colours = label->palette();
    colours.setColor(QPalette::Window, background);
    label->setPalette(colours);
    label->setAutoFillBackground(true);
}

} // namespace

SubController::SubController(QWidget *parent)
    : QWidget(parent)
    , m_stream(new StreamController(this))
    , m_input(std::make_shared<group::TileInput>(*m_stream))
{
    setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard with the master
    createLabels();
}

// The batch thread may still hold the way of input.
SubController::~SubController()
{
    m_input->close();
}

void SubController::createLabels()
{
    m_infoLabel = new QLabel(this);
    m_infoLabel->setObjectName(QStringLiteral("infoLabel"));
    m_infoLabel->setAlignment(Qt::AlignCenter);
    m_infoLabel->setWordWrap(true);
    setColours(m_infoLabel, Qt::white);
    m_captionLabel = new QLabel(this);
    m_captionLabel->setObjectName(QStringLiteral("captionLabel"));
    m_captionLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_captionLabel->setContentsMargins(
        Look::CaptionMarginX, Look::CaptionMarginY, Look::CaptionMarginX, Look::CaptionMarginY);
    setColours(m_captionLabel, QColor::fromRgba(Look::CaptionBackground));
    for (QLabel *label : {m_infoLabel, m_captionLabel}) {
        label->setTextFormat(Qt::RichText);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

void SubController::setDevice(const group::GroupDevice &device)
{
    m_device = device;
    setAccessibleName(device.aliasName);
    m_remainingTime = group::remainingTime(device.expireTime, QDateTime::currentDateTime());
    createView();
    showTexts();
    startStream();
}

// The picture of another device must not be taken for this one's, so each device begins with an empty view.
void SubController::createView()
{
    delete m_view;
    m_view = new VideoView(this);
    m_view->setViewMode(stream::TileView);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setAttribute(Qt::WA_InputMethodEnabled, false);
    m_view->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(m_view, &VideoView::sigFirstPicture, this, &SubController::showPicture);
    m_stream->setVideoView(m_view);
    m_view->lower();
    m_infoLabel->show();
    placeParts();
    m_view->show();
}

void SubController::restartStream()
{
    if (m_view)
        startStream();
}

void SubController::startStream()
{
    m_stream->startStream(streamingDataOf(m_device), m_live ? stream::Thumbnail : stream::Paused);
    m_view->fitPicturesToView();
}

void SubController::setLive(bool live)
{
    if (live == m_live)
        return;
    m_live = live;
    m_stream->setStreamMode(live ? stream::Thumbnail : stream::Paused);
}

void SubController::showPicture()
{
    m_infoLabel->hide();
}

// ---- Texts ----

void SubController::showRemainingTime(const QDateTime &now)
{
    const QString time = group::remainingTime(m_device.expireTime, now);
    if (time == m_remainingTime)
        return;
    m_remainingTime = time;
    showTexts();
}

void SubController::showTexts()
{
    QFont font = m_captionLabel->font();
    font.setPixelSize(Look::NamePixels);
    const QString name = QFontMetrics(font).elidedText(
        m_device.aliasName, Qt::ElideRight, qMax(0, width() - 2 * Look::CaptionMarginX));
    m_captionLabel->setText(group::lightText(name, m_remainingTime));
    if (m_infoLabel->isHidden())
        return; // its texts wait until it is shown again
    //: State of a device of a group whose picture is on its way.
    const QString status = tr("Connecting");
    //: Followed by a colon and the time after which a device is given back.
    const QString time = m_remainingTime.isEmpty()
        ? QString()
        : tr("Remaining time") + QStringLiteral(": ") + m_remainingTime;
    m_infoLabel->setText(group::darkText(status, time));
}

void SubController::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_view) {
        m_remainingTime = group::remainingTime(m_device.expireTime, QDateTime::currentDateTime());
        showTexts();
    }
    QWidget::changeEvent(event);
}

// ---- Layout ----

void SubController::onResizeSubController(const QSize &size)
{
    setFixedSize(size);
}

void SubController::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeParts();
    if (m_view && event->size().width() != event->oldSize().width())
        showTexts();
}

// By hand: no text may ever make the grid lay itself out anew.
void SubController::placeParts()
{
    if (m_view) {
        m_view->setGeometry(rect());
        m_view->fitPicturesToView();
    }
    m_infoLabel->setGeometry(rect());
    const int captionHeight = qMin(height(), m_captionLabel->sizeHint().height());
    m_captionLabel->setGeometry(0, height() - captionHeight, width(), captionHeight);
    if (m_menu)
        m_menu->setGeometry(rect());
}

// ---- Menu ----

void SubController::showMenu()
{
    if (!m_menu) {
        m_menu = new TileMenu(this);
        m_menu->setGeometry(rect());
        connect(m_menu, &TileMenu::setAsMainClicked, this, &SubController::setAsMainController);
        connect(m_menu, &TileMenu::restartClicked, this, &SubController::restartController);
        connect(m_menu, &TileMenu::removeClicked, this, [this] { emit removeController(false); });
        connect(m_menu, &TileMenu::singleControlClicked, this, &SubController::openSingleController);
        connect(m_menu, &TileMenu::sigFocusOut, this, &SubController::hideMenuWhenLeft);
    }
    m_menu->raise();
    m_menu->show();
}

void SubController::hideMenuWhenLeft()
{
    const QWidget *focused = QApplication::focusWidget();
    const bool hasFocus = focused && (focused == this || isAncestorOf(focused));
    if (m_menu && !hasFocus && !underMouse())
        m_menu->hide();
}

void SubController::enterEvent(QEvent *event)
{
    showMenu();
    QWidget::enterEvent(event);
}

void SubController::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    hideMenuWhenLeft();
}

// A window that becomes active may give a tile the focus without having been asked.
void SubController::focusInEvent(QFocusEvent *event)
{
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        showMenu();
    QWidget::focusInEvent(event);
}

void SubController::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    hideMenuWhenLeft();
}

void SubController::hideEvent(QHideEvent *event)
{
    if (m_menu)
        m_menu->hide();
    QWidget::hideEvent(event);
}

// ---- Input ----

void SubController::onSubControlTouchEvent(int action, float percentX, float percentY)
{
    m_input->touch(action, percentX, percentY);
}

void SubController::onInputEvent(const QString &text)
{
    m_input->text(text);
}

void SubController::onFunctionBtnClicked(int keyType)
{
    m_input->functionButton(keyType);
}

void SubController::onKeyPressEvent(int key)
{
    m_input->keyPress(key);
}

void SubController::onKeyReleaseEvent(int key)
{
    m_input->keyRelease(key);
}
