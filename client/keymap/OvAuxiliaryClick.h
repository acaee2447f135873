#pragma once

#include "keymap/OvAuxiliaryKey.h"

// An auxiliary key that taps: its finger is on the spot while the bound key of the keyboard is held. What the
// window system repeats while a key is held is passed on as it comes.
//
// GUI thread; a child of the video view.
class OvAuxiliaryClick : public OvAuxiliaryKey
{
    Q_OBJECT

public:
    OvAuxiliaryClick(KeyboardMapMgr *manager, QWidget *videoView);
    ~OvAuxiliaryClick() override;

    void liftFinger() override;

signals:
    // The same action as the base's signal of this name, which follows it: a receiver connects one of them.
    void sigAuxiliaryKeyAction(int action); // clazy:exclude=overridden-signal

protected:
    bool playEvent(QEvent *event) override;
    void emitAction(int action) override;

private:
    bool takesRelease(const QKeyEvent &event);

    quint32 m_heldScanCode = 0; // the keyboard's own code of the key that is held; 0 if unknown
    bool m_ignoresRelease = false; // of a press that was ended by liftFinger
};
