#include "widgets/OvMaskDialog.h"

#include "widgets/OvWindowBase.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>

namespace {

// Sizes in pixels and colours that make the mask look as designed.
namespace Look {
constexpr int cornerRadius = 8;
constexpr QRgb mask = qRgba(0, 0, 0, 127);
} // namespace Look

} // namespace

OvMaskDialog::OvMaskDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowFlags(Qt::FramelessWindowHint); // with a parent no window of its own
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_TranslucentBackground, isWindow());
    setAttribute(Qt::WA_NoMousePropagation);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::ArrowCursor);
    hide(); // a child would be shown along with its parent
    if (parent)
        parent->installEventFilter(this);
    connect(
        qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *focused) { keepFocus(focused); });
}

// The focus moves on while the widget dies, when this is no mask dialog any more.
OvMaskDialog::~OvMaskDialog()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void OvMaskDialog::coverParent()
{
    const QWidget *parent = parentWidget();
    if (!parent)
        return;
    const auto *window = qobject_cast<const OvWindowBase *>(parent);
    const int margin = window ? window->shadowMargin() : 0;
    setFixedSize(window ? window->contentSize() : parent->size());
    move(margin, margin);
}

void OvMaskDialog::setFocusOrder(const QVector<QWidget *> &order, QWidget *first)
{
    m_focusOrder = order;
    m_firstFocus = first;
}

// A window behind a modal dialog has no shortcuts.
bool OvMaskDialog::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    return QDialog::event(event);
}

// Keys that mean nothing here mean nothing to what is covered either.
void OvMaskDialog::keyPressEvent(QKeyEvent *event)
{
    QDialog::keyPressEvent(event);
    event->accept();
}

bool OvMaskDialog::focusNextPrevChild(bool next)
{
    const int count = m_focusOrder.size();
    int at = m_focusOrder.indexOf(focusWidget());
    for (int step = 0; step < count; ++step) {
        at = next ? (at + 1) % count : (qMax(at, 0) + count - 1) % count;
        QWidget *candidate = m_focusOrder.at(at);
        if (candidate->isEnabled() && candidate->isVisibleTo(this)) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            break;
        }
    }
    return true;
}

void OvMaskDialog::focusFirst()
{
    if (m_firstFocus)
        m_firstFocus->setFocus();
}

void OvMaskDialog::keepFocus(QWidget *focused)
{
    if (!isVisible() || !focused || focused->window() != window())
        return;
    for (QWidget *holder = focused; holder; holder = holder->parentWidget()) {
        if (qobject_cast<OvMaskDialog *>(holder))
            return; // this one or one above it
    }
    focusFirst();
}

// The mask keeps its distance from the edges of the window.
bool OvMaskDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize && isVisible() && !isWindow()) {
        const auto *resized = static_cast<QResizeEvent *>(event);
        setMaskSize(size() + resized->size() - resized->oldSize());
    }
    return QDialog::eventFilter(watched, event);
}

void OvMaskDialog::setMaskSize(const QSize &size)
{
    if (minimumSize() == maximumSize())
        setFixedSize(size);
    else
        resize(size);
}

// At a fractional scale the window may be a pixel smaller than its content was meant to be.
void OvMaskDialog::takeRoundingOff()
{
    const QSize room = parentWidget()->size() - 2 * QSize(x(), y());
    const QSize over = size() - room;
    if (over.width() <= 1 && over.height() <= 1)
        setMaskSize(size().boundedTo(room));
}

// What a dialog does here is to look for a place on the screen; a mask has its place.
void OvMaskDialog::showEvent(QShowEvent *event)
{
    if (isWindow())
        QDialog::showEvent(event);
    else
        takeRoundingOff();
    raise();
    focusFirst();
}

// Nobody can answer it any more, and whoever waits for the answer would wait for ever. Not within the event:
// a window that is being destroyed hides as well, and must not be told anything.
void OvMaskDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous() && !isHidden())
        QMetaObject::invokeMethod(this, &OvMaskDialog::endWithItsWindow, Qt::QueuedConnection);
}

void OvMaskDialog::endWithItsWindow()
{
    if (!isVisible() && !isHidden())
        reject();
}

void OvMaskDialog::setVisible(bool visible)
{
    if (visible && !isVisible())
        m_focusBefore = window()->focusWidget();
    QDialog::setVisible(visible);
    if (!visible && m_focusBefore && m_focusBefore->isVisible())
        m_focusBefore->setFocus();
}

void OvMaskDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(Look::mask));
    painter.drawRoundedRect(rect(), Look::cornerRadius, Look::cornerRadius);
}
