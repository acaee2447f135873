#include "keymap/OvAuxiliaryCrosshair.h"

#include "keymap/CapturedCursor.h"
#include "keymap/OvAuxiliaryKeyEditor.h"

#include <QKeyEvent>

#include <cmath>

namespace {

// Part of the way of the mouse that the finger goes at a sensitivity of 1.
constexpr double FingerShare = 0.25;

constexpr int SettleMs = 16;

} // namespace

OvAuxiliaryCrosshair::OvAuxiliaryCrosshair(KeyboardMapMgr *manager, QWidget *videoView)
    : OvAuxiliaryKey(
        keymap::CrosshairKey, QStringLiteral(":/icon/svg/auxiliary_crosshair.svg"), manager, videoView)
{
    createNoteEditor(true);
    m_settle.setSingleShot(true);
    m_settle.setInterval(SettleMs);
    connect(&m_settle, &QTimer::timeout, this, [this] {
        if (m_cursor)
            look();
    });
}

OvAuxiliaryCrosshair::~OvAuxiliaryCrosshair()
{
    OvAuxiliaryCrosshair::liftFinger();
}

void OvAuxiliaryCrosshair::setSensitivity(double sensitivity)
{
    m_sensitivity = std::isnan(sensitivity) ? defaultSensitivity
                                            : qBound(minimumSensitivity, sensitivity, maximumSensitivity);
}

void OvAuxiliaryCrosshair::syncNoteEditor()
{
    OvAuxiliaryKey::syncNoteEditor();
    noteEditor()->setSensitivity(m_sensitivity);
}

QPointF OvAuxiliaryCrosshair::touchPoint(QSize deviceSize)
{
    if (!isPressed())
        return OvAuxiliaryKey::touchPoint(deviceSize);
    const double x
        = deviceSize.width() * spot().x() + m_sensitivity * (deviceSize.width() * m_ax) * FingerShare;
    const double y
        = deviceSize.height() * spot().y() + deviceSize.height() * m_ay * m_sensitivity * FingerShare;
    if (x > deviceSize.width() || x < 0 || y > deviceSize.height() || y < 0)
        m_needsRecentre = true;
    return {x, y};
}

// The pointer may leave the view before a move is seen.
bool OvAuxiliaryCrosshair::playEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!isBoundTo(*static_cast<QKeyEvent *>(event)))
            break;
        if (m_cursor)
            stopLooking();
        else
            startLooking();
        break;
    case QEvent::MouseMove:
    case QEvent::Leave:
        if (m_cursor)
            look();
        break;
    default:
        break;
    }
    return false;
}

QPoint OvAuxiliaryCrosshair::centreOnScreen() const
{
    return videoView()->mapToGlobal(QPoint(x() + width() / 2, y() + height() / 2));
}

void OvAuxiliaryCrosshair::startLooking()
{
    setPressed(true);
    m_cursor = std::make_unique<CapturedCursor>(videoView(), centreOnScreen());
    emitAction(keymap::Press);
    if (m_cursor)
        m_cursor->hide();
}

void OvAuxiliaryCrosshair::stopLooking()
{
    setPressed(false);
    emitAction(keymap::Release);
    m_cursor.reset();
    m_ax = 0;
    m_ay = 0;
    m_needsRecentre = false;
}

// Qt drops a move that ends where the last one did, which a pointer that is put back in between does often:
// what the mouse went last would wait for its next move.
void OvAuxiliaryCrosshair::look()
{
    const QPointF way = m_cursor->takeWay(centreOnScreen());
    const double width = videoView()->width();
    const double height = videoView()->height();
    if (way.isNull() || width <= 0 || height <= 0)
        return;
    m_settle.start();
    if (screenOrientation() == ScreenOrientation::Portrait) {
        m_ax += way.x() / width;
        m_ay += way.y() / height;
    } else {
        m_ax += -way.y() / height;
        m_ay += way.x() / width;
    }
    emitAction(keymap::Move);
    if (!m_needsRecentre)
        return;
    setPressed(false);
    m_needsRecentre = false;
    emitAction(keymap::Release);
    if (!m_cursor)
        return; // whoever was told ended it
    m_ax = 0;
    m_ay = 0;
    setPressed(true);
    emitAction(keymap::Press);
}

void OvAuxiliaryCrosshair::liftFinger()
{
    if (m_cursor)
        stopLooking();
}
