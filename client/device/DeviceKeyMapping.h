#pragma once

#include "keymap/KeyMapTypes.h"

#include <QJsonObject>
#include <QObject>
#include <QPointer>

class KeyMapGuide;
class KeyboardMapEditor;
class KeyboardMapMgr;
class OvAuxiliaryKey;
class OvMaskTipsDialog;
class OvWindowBase;
class SchemeImporter;
class ShareConfigDlg;
class VideoView;

// The key mapping of one device window: makes the auxiliary keys and connects them with the video view, and
// opens and closes what belongs to editing them. Its window gives it the shape and has the buttons.
//
// While the layout has unsaved changes, leaving asks first; a window that is closed without asking (the user
// signs out) keeps the layout as the local copy, so that one click brings it back.
//
// GUI thread; child of its window.
class DeviceKeyMapping : public QObject
{
    Q_OBJECT

public:
    // `view`: over which the keys lie; in `window`, whose events they see.
    DeviceKeyMapping(VideoView *view, OvWindowBase *window);
    ~DeviceKeyMapping() override;

    KeyboardMapMgr *manager() const { return m_manager; }
    // Not shown at first; for the window's layout.
    KeyboardMapEditor *editor() const { return m_editor; }
    bool isEditing() const;
    bool hasUnsavedEdits() const;

    // Begins to edit: shows the panel, lets the keys be dragged and bound, and reads the schemes again.
    void beginEditing();
    void endEditing();
    // How the video stands now.
    void followOrientation();

    // Asks whether to save the changes: sigSaveWanted, sigDiscardWanted or sigStayWanted follows, which
    // Escape means. One question at a time.
    void askToSave();
    void save();
    void discardChanges();
    // Ends the question, and keeps unsaved changes as the local copy.
    void abandon();

    // A new key for the user, if none of the kind is pending. It has the keyboard, to be bound.
    void addKey(keymap::KeyType type);
    // A key of a scheme that is being applied.
    OvAuxiliaryKey *createKey(keymap::KeyType type);
    // Lays the keys of the local copy over the video. Keys that the scheme hides in play are seen for a
    // moment.
    void applyLocalCopy();

    void openGuide();
    // Asks for a sharing code; sigShareConfirmed when it is confirmed.
    void openShareDialog(const QWidget *opener);
    // Imports the scheme with the code that was confirmed.
    void importShared();
    void liftFingers();

signals:
    void sigSaveWanted();
    void sigDiscardWanted();
    void sigStayWanted();
    void sigShareConfirmed();
    // The user edits; what is edited is not sent to the device.
    void sigOperation();

protected:
    // Of the keys and of the question.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    template <typename Key>
    OvAuxiliaryKey *makeKey();
    void onDeclined();
    void restorePlayed();
    void showKeysForAMoment();
    void setKeysShown(bool shown);

    VideoView *m_view; // not owned, like the window
    OvWindowBase *m_window;
    KeyboardMapMgr *m_manager; // child of the window, like the next two
    KeyboardMapEditor *m_editor;
    SchemeImporter *m_importer;
    QPointer<OvMaskTipsDialog> m_question; // these three delete themselves
    QPointer<ShareConfigDlg> m_shareDialog;
    QPointer<KeyMapGuide> m_guide;
    QJsonObject m_played; // the local copy whose keys are used; empty: none, or a scheme was chosen since
};
