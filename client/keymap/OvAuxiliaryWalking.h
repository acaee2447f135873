#pragma once

#include "keymap/OvAuxiliaryKey.h"

#include <QHash>

class QTimer;

// An auxiliary key that walks: a joystick driven by W, A, S and D. Its finger goes down in the middle,
// travels towards the held directions in steps, and comes up when the last of the letters is let go. What the
// window system repeats while a key is held is consumed, whatever the key.
//
// GUI thread; a child of the video view.
class OvAuxiliaryWalking : public OvAuxiliaryKey
{
    Q_OBJECT

public:
    OvAuxiliaryWalking(KeyboardMapMgr *manager, QWidget *videoView);
    ~OvAuxiliaryWalking() override;

    QPointF touchPoint(QSize deviceSize) override;
    // Its letters are always W, A, S and D.
    void setKeyText(const QString &text) override;
    // Its size is always the same.
    void applySize(int size) override;
    void liftFinger() override;

    // The held letters: W 1, A 2, S 4, D 8.
    int heldMask() const { return m_heldMask; }
    // The finger's distance from the middle, in pixels of the device: where it goes, and where it is.
    QPointF target() const { return m_target; }
    QPointF offset() const { return m_offset; }

public slots:
    // A direction that is held is that of the picture as it stands now.
    void onScreenRotation(ScreenOrientation screenOrientation) override;

protected:
    bool playEvent(QEvent *event) override;
    void bindKey(int key) override;
    void styleLabels() override;
    void setLabelsVisible(bool areVisible) override;

private:
    void createLetter(int index, const char *text, const QPoint &place);
    void press(const QKeyEvent &event);
    void release(const QKeyEvent &event);
    int takeReleasedLetter(const QKeyEvent &event);
    void aim();
    void startSteps();
    void step();

    int m_heldMask = 0;
    int m_ignoredReleases = 0; // letters whose presses were ended by liftFinger
    QHash<quint32, int> m_letterOfScanCode; // the keyboard's own codes of held letters
    QTimer *m_stepTimer = nullptr; // child, made on first use
    QLabel *m_letters[4] = {}; // children: W, S, A, D
    QPointF m_target;
    QPointF m_offset;
};
