#include "keymap/OvAuxiliaryKey.h"

#include "keymap/KeyName.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryKeyEditor.h"
#include "keymap/OvKeyNoteBubble.h"
#include "stream/VideoView.h"
#include "widgets/DpiScaling.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr double NoFinger = -1.0;

// The view that setPositionInReference takes places from, in portrait; pixels.
constexpr QSize ReferenceView(340, 600);

// The range of the editor's key size, and how much larger the key is; device-independent pixels.
constexpr int SmallestKeySize = 20;
constexpr int LargestKeySize = 40;
constexpr int RoomAroundKeySize = 10;

constexpr int FullAlpha = 100; // percent

// Pixels of the view.
constexpr int ButtonSide = 16;
constexpr int ButtonIconSide = 14;
constexpr int LargestLetters = 14;
constexpr int SmallestLetters = 6;
constexpr int RoomBesideLetters = 4;
constexpr int SmallKey = 44; // the buttons of a smaller one would hide its letters

// Where an edge of a key lies whose place was computed from fractions: the pixel before, but never one before
// the pixel that the fractions were taken from.
int pixelOf(double place)
{
    constexpr double RoundingError = 1e-6;
    constexpr double FarAway = 1e6;
    return static_cast<int>(std::floor(qBound(-FarAway, place + RoundingError, FarAway)));
}

} // namespace

OvAuxiliaryKey::OvAuxiliaryKey(
    keymap::KeyType type, const QString &picture, KeyboardMapMgr *manager, QWidget *videoView)
    : QWidget(videoView)
    , m_type(type)
    , m_keyLabel(new QLabel(this))
    , m_svgRenderer(new QSvgRenderer(picture, this))
    , m_manager(manager)
    , m_noteBubble(new OvKeyNoteBubble(videoView))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    createChildren();
    videoView->installEventFilter(this);
    if (auto *video = qobject_cast<VideoView *>(videoView))
        connect(video, &VideoView::sigAboutToBeDestroyed, this, &OvAuxiliaryKey::liftFinger);
    OvAuxiliaryKey::applyAlpha(FullAlpha);
    OvAuxiliaryKey::applySize(SmallestKeySize);
    m_keyLabel->setVisible(isSeen());
}

OvAuxiliaryKey::~OvAuxiliaryKey()
{
    if (!m_noteBubble)
        return;
    m_noteBubble->hide();
    m_noteBubble->deleteLater();
}

void OvAuxiliaryKey::createChildren()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_keyLabel);
    m_keyLabel->setObjectName(QStringLiteral("keyLabel"));
    m_keyLabel->setTextFormat(Qt::PlainText);
    m_keyLabel->setAlignment(Qt::AlignCenter);
    m_keyLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_keyLabel->setMinimumWidth(1); // a long name does not widen the key

    m_deleteButton
        = createButton(QStringLiteral("deleteButton"), QStringLiteral(":/icon/svg/auxiliary_delete"));
    m_noteButton = createButton(QStringLiteral("noteButton"), QStringLiteral(":/icon/svg/auxiliary_edit"));
    connect(m_deleteButton, &QPushButton::clicked, this, &OvAuxiliaryKey::sigDeleteBtnCicked);
    connect(m_noteButton, &QPushButton::clicked, this, &OvAuxiliaryKey::sigNoteBtnCicked);
    connect(m_noteButton, &QPushButton::clicked, this, &OvAuxiliaryKey::onNoteBtnClicked);
}

QPushButton *OvAuxiliaryKey::createButton(const QString &objectName, const QString &icon)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFixedSize(ButtonSide, ButtonSide);
    button->setIcon(QIcon(icon));
    button->setIconSize(QSize(ButtonIconSide, ButtonIconSide));
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(QStringLiteral("border: none; background-color: #7F000000; border-radius: 4px;"));
    button->setVisible(OvAuxiliaryKey::isRecording());
    return button;
}

void OvAuxiliaryKey::createNoteEditor(bool hasSensitivity)
{
    m_noteEditor = new OvAuxiliaryKeyEditor(this, hasSensitivity);
}

KeyboardMapMgr *OvAuxiliaryKey::manager() const
{
    return m_manager;
}

QWidget *OvAuxiliaryKey::noteBubble() const
{
    return m_noteBubble;
}

void OvAuxiliaryKey::markModified()
{
    if (m_manager)
        m_manager->setModified(true);
}

// ---- The finger ----

QPointF OvAuxiliaryKey::touchPoint(QSize deviceSize)
{
    if (!isPressed())
        return {NoFinger, NoFinger};
    return {deviceSize.width() * m_fx, deviceSize.height() * m_fy};
}

void OvAuxiliaryKey::emitAction(int action)
{
    emit sigAuxiliaryKeyAction(action);
}

void OvAuxiliaryKey::liftFinger()
{
    if (!m_isPressed)
        return;
    m_isPressed = false;
    emitAction(keymap::Release);
}

// Its keys and mouse come from the window: what the view's own filter sees besides would count twice.
bool OvAuxiliaryKey::eventFilter(QObject *watched, QEvent *event)
{
    if (losesKeyboard(watched, event))
        liftFinger();
    const bool isView = watched == videoView();
    if (isView && event->type() == QEvent::Resize)
        relayout();
    else if (event->type() == QEvent::Move)
        placeNoteEditor();
    if (isRecording() || !videoView()->isEnabled() || !videoView()->isVisible())
        return false;
    const bool isMouseOnView = event->type() == QEvent::MouseMove || event->type() == QEvent::Leave;
    if (isView && !videoView()->isWindow() && !isMouseOnView)
        return false;
    return playEvent(event);
}

// Whether the releases of what is held may go elsewhere from now on.
bool OvAuxiliaryKey::losesKeyboard(QObject *watched, QEvent *event) const
{
    const QWidget *view = videoView();
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::WindowDeactivate:
        return watched == view || watched == view->window();
    case QEvent::EnabledChange:
        return watched == view && !view->isEnabled();
    case QEvent::FocusOut: {
        if (watched != view && watched != this)
            return false;
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
            return true;
        // From the view to a key and back nothing is lost.
        const QWidget *next = QApplication::focusWidget();
        return next != view && !view->isAncestorOf(next);
    }
    default:
        return false;
    }
}

// As the view in eventFilter, for all keys: this one has the focus.
bool OvAuxiliaryKey::event(QEvent *event)
{
    if (losesKeyboard(this, event)) {
        if (m_manager)
            m_manager->liftFingers();
        else
            liftFinger();
    }
    return QWidget::event(event);
}

bool OvAuxiliaryKey::isBoundTo(const QKeyEvent &event) const
{
    return isBound() && keyName(event.key()) == keyText();
}

// ---- Look ----

bool OvAuxiliaryKey::isSeen() const
{
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): in the constructor the base's own is meant
    if (isRecording())
        return true;
    if (m_type == keymap::CrosshairKey)
        return false;
    return m_noteFlag || !m_manager || m_manager->showKeys();
}

void OvAuxiliaryKey::applyAlpha(int alpha)
{
    m_alpha = qBound(0, alpha, FullAlpha);
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): in the constructor the base's own is meant
    styleLabels();
    update();
}

void OvAuxiliaryKey::styleLabels()
{
    m_keyLabel->setStyleSheet(QStringLiteral("color: rgba(96, 98, 102, %1)").arg(m_alpha / 100.0));
}

void OvAuxiliaryKey::setLabelsVisible(bool areVisible)
{
    m_keyLabel->setVisible(areVisible);
}

void OvAuxiliaryKey::applySize(int size)
{
    const int bounded = qBound(SmallestKeySize, size, LargestKeySize);
    const int side = scaled(bounded + RoomAroundKeySize, this);
    m_keyLabel->setFixedHeight(bounded);
    resize(side, side);
    fitKeyLabel();
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): in the constructor the base's own is meant
    relayout();
}

// A long name in smaller letters; in a small key that is being edited, beside its buttons.
void OvAuxiliaryKey::fitKeyLabel()
{
    const int buttons = OvAuxiliaryKey::isRecording() && width() < SmallKey ? ButtonSide : 0;
    m_keyLabel->setContentsMargins(0, 0, buttons, 0);
    QFont font = m_keyLabel->font();
    int pixels = LargestLetters;
    font.setPixelSize(pixels);
    while (pixels > SmallestLetters
        && QFontMetrics(font).horizontalAdvance(m_keyLabel->text()) > width() - buttons - RoomBesideLetters)
        font.setPixelSize(--pixels);
    m_keyLabel->setFont(font);
}

void OvAuxiliaryKey::onSizeChanged(int size)
{
    applySize(size);
    markModified();
}

void OvAuxiliaryKey::onAlphaChannelChanged(int alpha)
{
    applyAlpha(alpha);
    markModified();
}

void OvAuxiliaryKey::paintEvent(QPaintEvent *)
{
    if (!isSeen() || m_alpha == 0)
        return;
    const QSize wanted = size() * devicePixelRatioF();
    if (m_picture.size() != wanted) { // drawn once, not with each picture of the video below
        m_picture = QPixmap(wanted);
        m_picture.fill(Qt::transparent);
        QPainter painter(&m_picture);
        m_svgRenderer->render(&painter);
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setOpacity(m_alpha / 100.0);
    painter.drawPixmap(rect(), m_picture);
}

// ---- Place ----

void OvAuxiliaryKey::storeSpot()
{
    storeSpot(pos(), videoView()->size());
}

void OvAuxiliaryKey::storeSpot(const QPoint &topLeft, const QSize &view)
{
    if (view.isEmpty())
        return;
    const double acrossView = (topLeft.x() + width() / 2.0) / view.width();
    const double downView = (topLeft.y() + height() / 2.0) / view.height();
    if (m_screenOrientation == ScreenOrientation::Portrait) {
        m_fx = acrossView;
        m_fy = downView;
    } else {
        m_fx = 1 - downView;
        m_fy = acrossView;
    }
}

void OvAuxiliaryKey::setPositionInReference(int x, int y)
{
    storeSpot(QPoint(x, y),
        m_screenOrientation == ScreenOrientation::Portrait ? ReferenceView : ReferenceView.transposed());
    relayout();
}

void OvAuxiliaryKey::placeAt(const QPoint &topLeft)
{
    storeSpot(topLeft, videoView()->size());
    relayout();
}

void OvAuxiliaryKey::relayout()
{
    const double viewWidth = videoView()->width();
    const double viewHeight = videoView()->height();
    m_isPlacing = true;
    if (m_screenOrientation == ScreenOrientation::Portrait) {
        const int halfWidth = width() / 2;
        const int halfHeight = height() / 2;
        move(pixelOf(viewWidth * m_fx - halfWidth), pixelOf(viewHeight * m_fy - halfHeight));
    } else {
        const int halfWidth = width() / 2;
        const int halfHeight = height() / 2;
        move(pixelOf(viewWidth * m_fy - halfHeight), pixelOf(viewHeight * (1 - m_fx) - halfWidth));
    }
    m_isPlacing = false;
    placeAttachments();
}

void OvAuxiliaryKey::placeAttachments()
{
    m_deleteButton->move(width() - ButtonSide, 0);
    m_noteButton->move(width() - ButtonSide, height() - ButtonSide);
    if (m_noteBubble)
        m_noteBubble->placeUnder(geometry());
    placeNoteEditor();
}

void OvAuxiliaryKey::placeNoteEditor()
{
    if (m_noteEditor && m_noteEditor->isVisible())
        m_noteEditor->moveTo(mapToGlobal(QPoint(width(), height())));
}

void OvAuxiliaryKey::onScreenRotation(ScreenOrientation screenOrientation)
{
    if (screenOrientation == m_screenOrientation)
        return;
    m_screenOrientation = screenOrientation;
    relayout();
}

void OvAuxiliaryKey::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    if (!m_isPlacing && (isRecording() || m_isComboBoxUpdating))
        storeSpot();
    placeAttachments();
}

void OvAuxiliaryKey::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeAttachments();
}

// ---- Editing ----

bool OvAuxiliaryKey::isRecording() const
{
    return m_manager && m_manager->isRecording();
}

void OvAuxiliaryKey::onRecordingStatusChanged(bool isRecording)
{
    liftFinger();
    m_isDragging = false;
    fitKeyLabel();
    m_deleteButton->setVisible(isRecording);
    m_noteButton->setVisible(isRecording);
    if (isRecording)
        setCursor(Qt::SizeAllCursor);
    else
        unsetCursor();
    if (!isRecording && m_noteEditor->isVisible())
        m_noteEditor->onCancelBtnClicked();
    onShownChanged();
}

void OvAuxiliaryKey::onComboBoxUpdate(bool isUpdate)
{
    m_isComboBoxUpdating = isUpdate;
}

void OvAuxiliaryKey::onShownChanged()
{
    setLabelsVisible(isSeen());
    showNote();
    update();
}

bool OvAuxiliaryKey::isBound() const
{
    return !m_keyLabel->text().isEmpty();
}

QString OvAuxiliaryKey::keyText() const
{
    return m_keyLabel->text();
}

void OvAuxiliaryKey::setKeyText(const QString &text)
{
    m_keyLabel->setText(text);
    fitKeyLabel();
}

void OvAuxiliaryKey::bindKey(int key)
{
    const QString name = keyName(key);
    if (name.isEmpty() || (m_manager && m_manager->isKeyBindingInUse(name)))
        return;
    setKeyText(name);
    markModified();
}

// A key that is held binds once.
void OvAuxiliaryKey::keyPressEvent(QKeyEvent *event)
{
    if (!isRecording()) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat())
        bindKey(event->key());
    event->accept();
}

void OvAuxiliaryKey::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(isRecording());
}

// The Tab keys can be bound.
bool OvAuxiliaryKey::focusNextPrevChild(bool)
{
    return false;
}

void OvAuxiliaryKey::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(isRecording());
    if (!isRecording())
        return;
    setFocus(Qt::MouseFocusReason);
    m_isDragging = true;
    m_lastGlobalPos = event->globalPos();
}

void OvAuxiliaryKey::mouseMoveEvent(QMouseEvent *event)
{
    event->setAccepted(isRecording());
    if (!isRecording() || !m_isDragging || event->buttons() == Qt::NoButton)
        return;
    const QPoint wanted = pos() + event->globalPos() - m_lastGlobalPos;
    m_lastGlobalPos = event->globalPos();
    move(qBound(0, wanted.x(), qMax(0, videoView()->width() - width())),
        qBound(0, wanted.y(), qMax(0, videoView()->height() - height())));
    placeNoteEditor();
}

void OvAuxiliaryKey::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(isRecording());
    if (!isRecording() || !m_isDragging)
        return;
    m_isDragging = event->buttons() != Qt::NoButton;
    storeSpot();
    markModified();
}

// ---- Note ----

void OvAuxiliaryKey::setNoteFlag(bool isSet)
{
    m_noteFlag = isSet;
    onShownChanged();
}

void OvAuxiliaryKey::setNote(const QString &note)
{
    m_note = note;
    showNote();
}

void OvAuxiliaryKey::showNote()
{
    if (!m_noteBubble)
        return;
    m_noteBubble->setText(m_note);
    m_noteBubble->placeUnder(geometry());
    const bool areShown = !m_manager || m_manager->showKeyNotes();
    m_noteBubble->setVisible(
        !m_note.isEmpty() && !isRecording() && m_type != keymap::CrosshairKey && areShown);
}

void OvAuxiliaryKey::syncNoteEditor()
{
    m_noteEditor->setNoteText(m_note);
}

void OvAuxiliaryKey::onNoteBtnClicked()
{
    m_noteEditor->show();
    syncNoteEditor();
    placeNoteEditor();
    m_noteEditor->activateWindow();
}
