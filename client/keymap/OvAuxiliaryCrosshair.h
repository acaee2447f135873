#pragma once

#include "keymap/OvAuxiliaryKey.h"

#include <QTimer>

#include <memory>

class CapturedCursor;

// An auxiliary key that looks around: its bound key switches mouse-look on and off. While it is on, the
// pointer is hidden and held at the key, and a finger drags as the mouse moves; where the finger would leave
// the screen it is lifted and put down at the key again.
//
// GUI thread; a child of the video view.
class OvAuxiliaryCrosshair : public OvAuxiliaryKey
{
    Q_OBJECT

public:
    // Range and default of the mouse sensitivity, a factor.
    static constexpr double minimumSensitivity = 1.0;
    static constexpr double maximumSensitivity = 20.0;
    static constexpr double defaultSensitivity = 1.9;

    OvAuxiliaryCrosshair(KeyboardMapMgr *manager, QWidget *videoView);
    ~OvAuxiliaryCrosshair() override;

    // Notes whether the point is off the screen: the finger is put down anew after the next move.
    QPointF touchPoint(QSize deviceSize) override;
    void syncNoteEditor() override;
    void liftFinger() override;

    double sensitivity() const { return m_sensitivity; }
    // What is beyond the range is cut, what is no number is the default.
    void setSensitivity(double sensitivity);

protected:
    bool playEvent(QEvent *event) override;

private:
    QPoint centreOnScreen() const;
    void startLooking();
    void stopLooking();
    void look();

    std::unique_ptr<CapturedCursor> m_cursor; // while mouse-look is on
    QTimer m_settle; // runs out a frame after a look that found a way: looks once more
    double m_ax = 0; // how far the mouse has gone, as fractions of the view, in the device's portrait frame
    double m_ay = 0;
    double m_sensitivity = defaultSensitivity;
    bool m_needsRecentre = false;
};
