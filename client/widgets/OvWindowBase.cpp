#include "widgets/OvWindowBase.h"

#include "widgets/EdgeResize.h"
#include "widgets/OvTitleBarBase.h"

#include <QChildEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace {

// Sizes in pixels and colours that make the window look as designed.
namespace Look {
constexpr int shadowMargin = 10;
constexpr int cornerRadius = 8;
constexpr QRgb background = qRgba(245, 247, 250, 255);
constexpr QRgb mouseCatcher = qRgba(0, 0, 0, 1); // as good as invisible, yet mouse events arrive on it
} // namespace Look

constexpr int FollowIntervalMs = 250;

} // namespace

OvWindowBase::OvWindowBase(QWidget *parent)
    : QWidget(parent)
    , m_mainLayout(new QVBoxLayout(this))
    , m_backgroundColor(QColor::fromRgba(Look::background))
    , m_shadowMargin(Look::shadowMargin)
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_MouseTracking);
    m_mainLayout->setSpacing(0);
    setShadowMargin(m_shadowMargin);
    m_titleBar = new OvTitleBarBase(this);
    m_mainLayout->addWidget(m_titleBar);
    setAvailableGeometry([this](const QPoint &pos) { return screenGeometryAt(pos); });

    connect(m_titleBar, &OvTitleBarBase::btnMinClicked, this, &QWidget::showMinimized);
    connect(m_titleBar, &OvTitleBarBase::btnMaxClicked, this, &OvWindowBase::onBtnMaxClicked);
    connect(m_titleBar, &OvTitleBarBase::btnRestoreClicked, this, &OvWindowBase::onBtnRestoreClicked);
    connect(m_titleBar, &OvTitleBarBase::btnCloseClicked, this, &OvWindowBase::onBtnCloseClicked);
}

OvWindowBase::~OvWindowBase() = default;

// Whether the window has a size but for the rounding by which the window system's reports are off at a
// fractional scale.
bool OvWindowBase::isRoundingOf(const QSize &target) const
{
    const QSize off = size() - target;
    const bool fractional = !qFuzzyCompare(devicePixelRatioF(), qRound(devicePixelRatioF()));
    return fractional && qAbs(off.width()) <= 1 && qAbs(off.height()) <= 1;
}

QSize OvWindowBase::wantedWindowSize() const
{
    const int margins = 2 * m_shadowMargin;
    return (contentSize() + QSize(margins, margins)).expandedTo(minimumSize());
}

void OvWindowBase::updateWindowSize()
{
    const QSize target = wantedWindowSize();
    // A move must not be answered with a resize for a rounding: a resize names the position as well and would
    // undo moves that are still under way.
    if (!m_followingMove || !isRoundingOf(target))
        resize(target);
    const auto descendants = findChildren<QWidget *>();
    for (QWidget *descendant : descendants)
        descendant->update();
}

// The content size is kept as well, so that the next move leaves the window as it is.
void OvWindowBase::setFixedContentSize(const QSize &size)
{
    setResizeLocked(true);
    setContentSize(size);
    resize(size + QSize(2 * m_shadowMargin, 2 * m_shadowMargin));
}

void OvWindowBase::setAspectRatio(double aspectRatio)
{
    m_aspectRatio = aspectRatio;
}

void OvWindowBase::setResizeLocked(bool locked)
{
    m_resizeLocked = locked;
    if (locked) {
        m_resizing = false;
        leaveEdge();
    }
}

void OvWindowBase::setShadowMargin(int margin)
{
    m_shadowMargin = margin;
    m_mainLayout->setContentsMargins(margin, margin, margin, margin);
}

void OvWindowBase::setMoveWithEdge(bool moveWithEdge)
{
    m_moveWithEdge = moveWithEdge;
}

void OvWindowBase::setContentSize(const QSize &size)
{
    m_contentSize = size;
}

QSize OvWindowBase::contentSize() const
{
    return m_contentSize.expandedTo(QSize(0, 0));
}

void OvWindowBase::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void OvWindowBase::setAvailableGeometry(AvailableGeometry availableGeometry)
{
    m_availableGeometry = std::move(availableGeometry);
}

// A window that is partly off the screen may have its position on none.
QRect OvWindowBase::screenGeometryAt(const QPoint &pos) const
{
    const QScreen *holder = QGuiApplication::screenAt(pos);
    if (!holder)
        holder = QGuiApplication::screenAt(geometry().center());
    return (holder ? holder : screen())->availableGeometry();
}

void OvWindowBase::onBtnMinClicked()
{
    showMinimized();
}

void OvWindowBase::onBtnMaxClicked()
{
    const QSize margins(2 * m_shadowMargin, 2 * m_shadowMargin);
    if (!m_maximized)
        m_titleBar->setNormalGeometry(pos(), m_contentSize.isValid() ? m_contentSize : size() - margins);
    m_maximized = true;
    const QRect available = m_availableGeometry(pos());
    m_contentSize = available.size();
    move(available.topLeft() - QPoint(m_shadowMargin, m_shadowMargin));
    updateWindowSize();
}

void OvWindowBase::onBtnRestoreClicked()
{
    m_maximized = false;
    const QRect normal = m_titleBar->normalGeometry();
    if (!normal.isValid())
        return; // never maximised
    m_contentSize = normal.size();
    setShadowMargin(m_shadowMargin);
    setGeometry(normal);
    updateWindowSize();
}

void OvWindowBase::onBtnCloseClicked()
{
    emit sigCloseBtnClicked();
    close();
}

void OvWindowBase::updateEdge(const QPoint &pointer)
{
    m_edgeRegion = EdgeResize::edgesAt(pointer, size(), m_shadowMargin);
    const Qt::CursorShape shape = EdgeResize::cursorFor(m_edgeRegion);
    if (cursor().shape() != shape)
        setCursor(shape);
}

void OvWindowBase::leaveEdge()
{
    m_edgeRegion = EdgeResize::NoEdge;
    setCursor(Qt::ArrowCursor);
}

// A drag goes on outside the window.
void OvWindowBase::leaveEvent(QEvent *event)
{
    if (!m_resizing)
        leaveEdge();
    QWidget::leaveEvent(event);
}

void OvWindowBase::childEvent(QChildEvent *event)
{
    if (event->added() && event->child()->isWidgetType())
        event->child()->installEventFilter(this);
    QWidget::childEvent(event);
}

// Entering a child is no leaving of the window, but the pointer is off the edge all the same.
bool OvWindowBase::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter && watched->parent() == this && !m_resizing)
        leaveEdge();
    return QWidget::eventFilter(watched, event);
}

void OvWindowBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_edgeRegion == EdgeResize::NoEdge || m_resizeLocked) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_resizing = true;
    m_lastGlobalPos = event->globalPos();
    event->accept();
}

void OvWindowBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_resizing = false;
        m_edgeRegion = EdgeResize::NoEdge;
    }
    QWidget::mouseReleaseEvent(event);
}

void OvWindowBase::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton)) {
        m_resizing = false;
        // A drag may have left the content smaller than the window can be.
        const int margins = 2 * m_shadowMargin;
        if (minimumWidth() > contentSize().width() + margins)
            m_contentSize = QSize(minimumWidth(), contentSize().height());
        if (minimumHeight() > contentSize().height() + margins)
            m_contentSize = QSize(contentSize().width(), minimumHeight());
    }
    if (m_resizing)
        resizeTo(event->globalPos());
    else if (!m_resizeLocked)
        updateEdge(event->pos());
}

void OvWindowBase::resizeTo(const QPoint &globalPos)
{
    const QPoint delta = globalPos - m_lastGlobalPos;
    m_lastGlobalPos = globalPos;
    EdgeResize::Rules rules;
    rules.edges = m_edgeRegion;
    rules.aspectRatio = m_aspectRatio;
    rules.moveWithEdge = m_moveWithEdge;
    rules.margins = QSize(2 * m_shadowMargin, 2 * m_shadowMargin);
    rules.minimumWindowSize = minimumSize();
    rules.maximumWindowSize = maximumSize();
    const EdgeResize::Step step = EdgeResize::resizeStep(rules, geometry(), m_contentSize, delta);
    m_contentSize = step.contentSize;
    m_newPos = step.windowPos;
    move(m_newPos);
    updateWindowSize();
}

void OvWindowBase::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    const QSize target = wantedWindowSize();
    if (m_moveFollowed.isActive() && (size() == target || isRoundingOf(target))) {
        m_followAgain = true;
        return;
    }
    followMove();
}

// The repaint of everything that belongs to it takes longer than a move: while the window is dragged, moves
// that leave its size right are followed together.
void OvWindowBase::followMove()
{
    m_followAgain = false;
    m_moveFollowed.start(FollowIntervalMs, this);
    const QScopedValueRollback<bool> followingMove(m_followingMove, true);
    updateWindowSize();
}

void OvWindowBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_moveFollowed.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_moveFollowed.stop();
    if (m_followAgain)
        followMove();
}

void OvWindowBase::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(Look::mouseCatcher));
    painter.drawRoundedRect(rect(), Look::cornerRadius, Look::cornerRadius);
    painter.setBrush(m_backgroundColor);
    painter.drawRoundedRect(rect().adjusted(m_shadowMargin, m_shadowMargin, -m_shadowMargin, -m_shadowMargin),
        Look::cornerRadius, Look::cornerRadius);
}
