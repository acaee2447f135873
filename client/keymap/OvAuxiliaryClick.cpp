#include "keymap/OvAuxiliaryClick.h"

#include <QKeyEvent>

OvAuxiliaryClick::OvAuxiliaryClick(KeyboardMapMgr *manager, QWidget *videoView)
    : OvAuxiliaryKey(keymap::ClickKey, QStringLiteral(":/icon/svg/auxiliary_click.svg"), manager, videoView)
{
    createNoteEditor(false);
    connect(this, &OvAuxiliaryClick::sigAuxiliaryKeyAction, this, &OvAuxiliaryKey::sigAuxiliaryKeyAction);
}

OvAuxiliaryClick::~OvAuxiliaryClick()
{
    OvAuxiliaryClick::liftFinger();
}

void OvAuxiliaryClick::emitAction(int action)
{
    emit sigAuxiliaryKeyAction(action);
}

bool OvAuxiliaryClick::playEvent(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (isBoundTo(key)) {
            m_heldScanCode = key.nativeScanCode();
            m_ignoresRelease = false;
            setPressed(true);
            emitAction(keymap::Press);
        }
    } else if (event->type() == QEvent::KeyRelease) {
        if (takesRelease(*static_cast<QKeyEvent *>(event))) {
            setPressed(false);
            emitAction(keymap::Release);
        }
    }
    return false;
}

// A key may come up as another than it went down as, since Shift or the layout changed meanwhile.
bool OvAuxiliaryClick::takesRelease(const QKeyEvent &event)
{
    const bool isHeldKey = m_heldScanCode != 0 && event.nativeScanCode() == m_heldScanCode;
    if (!isHeldKey && !isBoundTo(event))
        return false;
    m_heldScanCode = 0;
    const bool wasLifted = m_ignoresRelease;
    m_ignoresRelease = false;
    return !wasLifted;
}

void OvAuxiliaryClick::liftFinger()
{
    m_ignoresRelease = true; // also of a press that went elsewhere
    OvAuxiliaryKey::liftFinger();
}
