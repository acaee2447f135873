#include "device/TurnableWindow.h"

#include "device/DeviceWindowShape.h"
#include "widgets/DpiScaling.h"
#include "widgets/OvTitleBarBase.h"

#include <QVBoxLayout>

namespace {

// A window system that does not follow must not be asked for ever, and the user may move the window.
constexpr int MostPlacings = 5;
constexpr int PlacingMs = 1000;

} // namespace

// Only here are the base's own ways of maximising replaced. The bar makes F11 a click on one of its two
// buttons.
TurnableWindow::TurnableWindow(QWidget *parent)
    : OvWindowBase(parent)
{
    disconnect(titleBar(), &OvTitleBarBase::btnMaxClicked, this, &OvWindowBase::onBtnMaxClicked);
    disconnect(titleBar(), &OvTitleBarBase::btnRestoreClicked, this, &OvWindowBase::onBtnRestoreClicked);
    connect(titleBar(), &OvTitleBarBase::btnMaxClicked, this, &TurnableWindow::maximize);
    connect(titleBar(), &OvTitleBarBase::btnRestoreClicked, this, &TurnableWindow::restore);
    applyContent(DeviceWindowShape::contentSize(m_orientation));
}

void TurnableWindow::turnTo(ScreenOrientation orientation)
{
    if (orientation == m_orientation)
        return;
    m_orientation = orientation;
    if (m_maximized) {
        // What is restored later stands as the picture does then.
        const QRect normal = titleBar()->normalGeometry();
        titleBar()->setNormalGeometry(normal.topLeft(), normal.size().transposed());
        fillScreen();
        return;
    }
    const QRect area = availableGeometry(); // before it reaches over to another screen
    const QSize turned = m_hasEditingShape ? normalContentSize() : DeviceWindowShape::turned(contentSize());
    applyContent(DeviceWindowShape::fitted(turned, area.size()));
    moveInto(area);
}

void TurnableWindow::applyContent(const QSize &content)
{
    const QSize margins(2 * shadowMargin(), 2 * shadowMargin());
    setMinimumSize(0, 0); // that of the other orientation
    setAspectRatio(DeviceWindowShape::aspectRatio(content));
    setContentSize(content);
    updateWindowSize();
    setMinimumSize(DeviceWindowShape::smallestContentSize(m_orientation) + margins);
}

void TurnableWindow::moveInto(const QRect &area)
{
    const QPoint margin(shadowMargin(), shadowMargin());
    const QRect body(pos() + margin, contentSize());
    const QPoint target = DeviceWindowShape::positionWithin(area, body);
    if (!isVisible() || target == body.topLeft())
        return;
    m_placings = 0;
    move(target - margin);
}

void TurnableWindow::place(const QRect &geometry)
{
    m_placed = geometry;
    m_placings = MostPlacings;
    m_sincePlaced.start();
    setGeometry(geometry);
}

void TurnableWindow::moveEvent(QMoveEvent *event)
{
    const bool mayPlace = m_placings > 0 && m_sincePlaced.elapsed() < PlacingMs && !titleBar()->isDragged();
    if (!mayPlace || pos() == m_placed.topLeft()) {
        OvWindowBase::moveEvent(event);
        return;
    }
    --m_placings;
    setGeometry(m_placed);
}

void TurnableWindow::mousePressEvent(QMouseEvent *event)
{
    m_placings = 0;
    OvWindowBase::mousePressEvent(event);
}

void TurnableWindow::toggleMaximized()
{
    if (m_hasEditingShape)
        return;
    if (m_maximized)
        titleBar()->onBtnRestoreClicked();
    else
        titleBar()->onBtnMaxClicked();
}

QSize TurnableWindow::normalContentSize() const
{
    return m_hasEditingShape ? DeviceWindowShape::editingContentSize(m_orientation)
                             : DeviceWindowShape::contentSize(m_orientation);
}

// In the one shape there is nothing to maximise and no edge to drag: the places of the keys depend on it.
void TurnableWindow::setEditingShape(bool editing)
{
    if (editing == m_hasEditingShape)
        return;
    if (editing) {
        m_wasMaximized = m_maximized;
        if (m_maximized)
            toggleMaximized();
    }
    m_hasEditingShape = editing;
    m_placings = 0;
    const QRect area = availableGeometry();
    setResizeLocked(editing);
    titleBar()->setButtonType(editing ? OvTitleBarBase::MinCloseButtons : OvTitleBarBase::MinMaxCloseButtons);
    applyContent(DeviceWindowShape::fitted(normalContentSize(), area.size()));
    moveInto(area);
    if (!editing && m_wasMaximized)
        toggleMaximized();
}

void TurnableWindow::maximize()
{
    if (m_maximized)
        return;
    titleBar()->setNormalGeometry(pos(), contentSize());
    m_maximizedOrientation = m_orientation;
    m_maximized = true;
    setResizeLocked(true);
    mainLayout()->setContentsMargins(0, 0, 0, 0);
    fillScreen();
}

// The window keeps its proportions; without its margins it has nothing transparent at the screen's edges.
void TurnableWindow::fillScreen()
{
    using namespace DeviceWindowShape;
    const QSize normal = titleBar()->normalGeometry().size();
    const QSize shape = m_orientation == m_maximizedOrientation ? normal : turned(normal.transposed());
    const bool isLandscape = m_orientation == ScreenOrientation::Landscape;
    const QRect target = maximized(
        availableGeometry(), aspectRatio(shape), isLandscape ? scaled(maximizedLandscapeWidth, this) : 0);
    setMinimumSize(0, 0);
    setContentSize(target.size() - QSize(2 * shadowMargin(), 2 * shadowMargin()));
    place(target);
    updateWindowSize();
}

// Dragging the bar restores as well; the bar gives the position within itself then.
void TurnableWindow::restore()
{
    if (!m_maximized)
        return;
    const bool dragged = titleBar()->isDragged();
    QRect normal = titleBar()->normalGeometry();
    if (m_orientation != m_maximizedOrientation)
        normal.setSize(DeviceWindowShape::fitted(normal.size(), availableGeometry().size()));
    const QPoint margin(shadowMargin(), shadowMargin());
    const QPoint target = dragged ? pos() + normal.topLeft() - margin : normal.topLeft();
    m_maximized = false;
    setResizeLocked(false);
    setShadowMargin(shadowMargin());
    setContentSize(normal.size());
    place({target, normal.size() + QSize(2 * margin.x(), 2 * margin.y())});
    applyContent(normal.size());
    if (!dragged)
        moveInto(availableGeometry());
}
