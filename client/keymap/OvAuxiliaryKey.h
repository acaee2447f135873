#pragma once

#include "keymap/KeyMapTypes.h"
#include "stream/ScreenOrientation.h"

#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>

class KeyboardMapMgr;
class OvAuxiliaryKeyEditor;
class OvKeyNoteBubble;
class QKeyEvent;
class QLabel;
class QMouseEvent;
class QPushButton;
class QSvgRenderer;

// A key that lies over the video and marks a spot of the device's screen: while the key of the keyboard that
// it is bound to is held, a finger is on that spot. This is what the three kinds (OvAuxiliaryClick,
// OvAuxiliaryWalking, OvAuxiliaryCrosshair) have in common: place, look, note, and being edited.
//
// A key sends nothing. It tells by sigAuxiliaryKeyAction that its finger went down, moved or came up, and the
// video view asks the manager for the points of all fingers. Whoever makes one:
//
//     auto *key = new OvAuxiliaryClick(manager, videoView);
//     connect(key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, videoView, &VideoView::onAuxiliaryKeyAction);
//     connect(videoView, &VideoView::screenRotation, key, &OvAuxiliaryKey::onScreenRotation);
//     key->onScreenRotation(videoView->orientation());
//     manager->addAuxiliaryKey(key->type(), key);
//     window->installEventFilter(key);
//     key->show();
//
// In play it takes keys and mouse from the window whose events it filters; while the manager records, it can
// be dragged, bound, resized, annotated and deleted instead. Whatever takes the keyboard away (the view loses
// the focus, is hidden or disabled, the window is deactivated, the editor opens, the key is deleted) lifts
// its finger. It follows the size of the video view by itself.
//
// GUI thread; a child of the video view.
class OvAuxiliaryKey : public QWidget
{
    Q_OBJECT

public:
    ~OvAuxiliaryKey() override;

    // Where its finger is, in pixels of the device's portrait screen of that size; (-1, -1) while it is not
    // pressed.
    virtual QPointF touchPoint(QSize deviceSize);
    // Whether it holds a finger on the device.
    virtual bool isPressed() const { return m_isPressed; }
    // A keymap::KeyType.
    virtual int type() const { return m_type; }
    // Whether a key of the keyboard is bound to it.
    virtual bool isBound() const;
    // Whether it is being edited; never without a manager.
    virtual bool isRecording() const;
    // Opacity in percent, 0 to 100; what is beyond is cut. Does not mark the scheme as modified.
    virtual void applyAlpha(int alpha);
    // The value of the editor's key size, 20 to 40: the key becomes a square of scaled(size + 10) pixels
    // around its spot. What is beyond the range is cut. Does not mark the scheme as modified.
    virtual void applySize(int size);
    // The bound key's name as of keyName(); empty while there is none.
    virtual QString keyText() const;
    virtual void setKeyText(const QString &text);
    // Takes its spot from a left and upper edge in a view of 340 x 600 pixels, 600 x 340 in landscape,
    // whatever the video view's size is, and goes there. Works whether or not the key is being edited.
    virtual void setPositionInReference(int x, int y);
    // Moves its left upper corner to a place in the video view and takes its spot from there, at once and
    // whether or not the key is being edited or shown yet; a plain move() is noticed only while the key is
    // visible and being edited, or the combo box is being refilled.
    void placeAt(const QPoint &topLeft);
    // Goes to its spot in the video view as that is now.
    virtual void relayout();
    virtual ScreenOrientation screenOrientation() const { return m_screenOrientation; }
    // While set the key is seen in play even if the manager does not show the keys (the crosshair never is).
    virtual void setNoteFlag(bool isSet);
    // What the user wrote about the key.
    virtual QString note() const { return m_note; }
    virtual void setNote(const QString &note);
    // Gives the note's popup the values of the key.
    virtual void syncNoteEditor();

    // Ends its touch, if there is one: emits a release, and what is held on the keyboard counts as let go.
    virtual void liftFinger();

    // Opacity in percent.
    int alpha() const { return m_alpha; }
    // The spot, as fractions of the device's portrait screen.
    QPointF spot() const { return {m_fx, m_fy}; }
    OvAuxiliaryKeyEditor *noteEditor() const { return m_noteEditor; }
    // Where the note is shown in play; a child of the video view.
    QWidget *noteBubble() const;

    // Sees the window's events and the video view's.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    // A keymap::KeyAction. The receiver must be connected directly: the order of keys and touches counts.
    void sigAuxiliaryKeyAction(int action);
    // Its delete button was clicked.
    void sigDeleteBtnCicked();
    // Its note button was clicked.
    void sigNoteBtnCicked();

public slots:
    // As applySize and applyAlpha, by the user: the scheme is modified.
    virtual void onSizeChanged(int size);
    virtual void onAlphaChannelChanged(int alpha);
    // The video view was turned.
    virtual void onScreenRotation(ScreenOrientation screenOrientation);
    // Editing began or ended.
    virtual void onRecordingStatusChanged(bool isRecording);
    // While the schemes' combo box is being refilled, moves by the program store the spot.
    virtual void onComboBoxUpdate(bool isUpdate);
    // Shows the note's popup at the key's lower right corner.
    virtual void onNoteBtnClicked();
    // What the manager shows in play has changed.
    void onShownChanged();

protected:
    // `picture`: path of its SVG picture. `manager` may be null and destroyed at any time.
    OvAuxiliaryKey(keymap::KeyType type, const QString &picture, KeyboardMapMgr *manager, QWidget *videoView);

    // An event of the window, or of the mouse on the video view, while the key is not being edited. True
    // consumes it.
    virtual bool playEvent(QEvent *event) = 0;
    // The key of the keyboard, while the key is being edited.
    virtual void bindKey(int key);
    // Whether it is drawn at all: in play not always.
    bool isSeen() const;
    // Its letters in the colour of the opacity.
    virtual void styleLabels();
    // Shows or hides its letters.
    virtual void setLabelsVisible(bool areVisible);
    // Which popup it has; called once.
    void createNoteEditor(bool hasSensitivity);

    void setPressed(bool isPressed) { m_isPressed = isPressed; }
    virtual void emitAction(int action);
    QWidget *videoView() const { return parentWidget(); }
    KeyboardMapMgr *manager() const;
    QLabel *keyLabel() const { return m_keyLabel; }
    void markModified();
    // Whether a key of the keyboard is the bound one.
    bool isBoundTo(const QKeyEvent &event) const;

    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &icon);
    bool losesKeyboard(QObject *watched, QEvent *event) const;
    void createChildren();
    void fitKeyLabel();
    void storeSpot();
    void storeSpot(const QPoint &topLeft, const QSize &view);
    void placeAttachments();
    void placeNoteEditor();
    void showNote();

    const keymap::KeyType m_type;
    bool m_isComboBoxUpdating = false; // the manager's
    bool m_isPressed = false;
    bool m_isPlacing = false; // relayout is moving the key: its spot stays
    bool m_noteFlag = false;
    int m_alpha = 100; // percent
    QLabel *m_keyLabel; // children, like the buttons
    QSvgRenderer *m_svgRenderer;
    QPixmap m_picture; // the picture as last drawn, in device pixels
    QPushButton *m_deleteButton;
    QPushButton *m_noteButton;
    OvAuxiliaryKeyEditor *m_noteEditor = nullptr; // child, a window of its own
    QPointer<KeyboardMapMgr> m_manager; // not owned
    QPointer<OvKeyNoteBubble> m_noteBubble; // child of the video view
    bool m_isDragging = false;
    QPoint m_lastGlobalPos; // of the mouse, while dragging
    double m_fx = 0.5; // the spot: the key's centre as fractions of the device's portrait screen
    double m_fy = 0.5;
    QString m_note;
    ScreenOrientation m_screenOrientation = ScreenOrientation::Portrait; // of the video view
};
