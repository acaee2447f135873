#pragma once

#include "keymap/KeyMapScheme.h"
#include "stream/ScreenOrientation.h"

#include <QJsonObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>
#include <QWidget>

class KeyMapControls;
class KeyboardMapMgr;
class OvAuxiliaryKey;
class QBoxLayout;
class QLabel;
class QPushButton;
class SchemeBox;

// The panel beside the video while the key mapping is edited: chooses among the user's schemes and lays the
// keys of the chosen one over the video, adds keys, sets how keys look, and saves. It makes no keys and sends
// no requests itself: the device window makes the keys it asks for and registers them with the manager, and
// the manager does the requests.
//
//     auto *editor = new KeyboardMapEditor(manager, window);
//     connect(editor, &KeyboardMapEditor::sigCreateAuxiliaryClickKey, window, …); // and the other signals
//     editor->setOrientation(videoView->orientation());
//     manager->onRefreshMapConfig(); // fills it
//
// It lives as long as its window, hidden while nothing is edited, so that its sliders always say how the keys
// over the video look. GUI thread; child of the device window.
class KeyboardMapEditor : public QWidget
{
    Q_OBJECT

public:
    // In device-independent pixels.
    static constexpr int panelWidth = 300;

    // `manager` may be null and destroyed at any time.
    explicit KeyboardMapEditor(KeyboardMapMgr *manager, QWidget *parent = nullptr);
    ~KeyboardMapEditor() override;

    // How the video view stands now; upright at first.
    void setOrientation(ScreenOrientation orientation) { m_orientation = orientation; }
    ScreenOrientation orientation() const { return m_orientation; }
    // What new keys look like: percent, and a value from 20 to 40.
    int opacity() const;
    int keySize() const;

    // Replaces the keys over the video by those of a scheme's local copy, whose "config" is plain JSON text.
    // `oneClick`: the user applies it by the button of the menu bar. While the manager does not record, the
    // view may have any size and the keys go to the same spots of the picture.
    void applySchemeObject(const QJsonObject &scheme, bool oneClick);
    // Puts the current scheme back over the video as it was saved last; without one, removes the keys.
    void discardChanges();
    // The scheme that is being edited, without its keys.
    QVariantMap scheme() const;

signals:
    // The user asks for a new key of a kind.
    void sigAuxiliaryClickBtnClicked();
    void sigAuxiliaryCrosshairClicked();
    void sigAuxiliaryWalkingClicked();
    // A key of a scheme must be made now, whatever there is already. The receiver must be connected directly:
    // when the signal returns, the key is the manager's newest of its kind.
    void sigCreateAuxiliaryClickKey();
    void sigCreateAuxiliaryCrosshairKey();
    void sigCreateAuxiliaryWalkingKey();
    // The look of all keys was changed: percent, and a value from 20 to 40.
    void sigOpacityValueChanged(int value);
    void sigSizeValueChanged(int value);
    // The scheme has been given to the manager to be saved; the editor is to be closed.
    void sigSaveAndClose();

public slots:
    // Of the buttons of a scheme's row, which is the sender's.
    void onItemEditBtnClicked();
    void onItemShareBtnClicked();
    void onItemCopyBtnClicked();
    void onItemDeleteBtnClicked();
    // The manager has a new list of schemes: shows it.
    void onRefreshConfigSuccess();
    // Removes the keys from the video; the stored scheme stays until it is saved.
    void onResetBtnClicked();
    void onSaveBtnClicked();
    // A row was selected: lays the keys of its scheme over the video. Rows that are selected while the list
    // is refilled are nobody's choice and change nothing.
    void onComboBoxItemChanged(int index);
    // The sender is a scheme's row whose name has been edited.
    void onItemTextChanged(QString text);
    // Shows the schemes again as the manager has them.
    void onUpdateComboBox();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void createWidgets();
    void createLayout();
    void connectWidgets();
    void connectManager();
    void setTexts();
    void showHeaderTexts();
    void setEditControlsEnabled(bool enabled);
    void fillRows();
    void selectCurrentScheme();
    void actOnScheme(const QString &action, const QVariantMap &scheme);
    void showSharingCode(const QString &code);

    void apply(const KeyMapScheme &scheme, bool toReference);
    void applySettings(const KeyMapScheme &scheme);
    OvAuxiliaryKey *createKey(keymap::KeyType type);
    void applyKey(const KeyMapScheme &scheme, const KeyMapScheme::Key &saved, bool toReference);
    void placeKey(
        OvAuxiliaryKey *key, const KeyMapScheme &scheme, const KeyMapScheme::Key &saved, bool toReference);

    QPointer<KeyboardMapMgr> m_manager; // not owned
    ScreenOrientation m_orientation = ScreenOrientation::Portrait; // of the video view
    QString m_shownMapId; // the scheme that was applied last; empty: none
    bool m_isFilling = false; // the rows are being made anew
    QLabel *m_headerLabel = nullptr; // children
    QPushButton *m_addButton = nullptr;
    QPushButton *m_refreshButton = nullptr;
    SchemeBox *m_schemeBox = nullptr;
    KeyMapControls *m_controls = nullptr;
    QPushButton *m_resetButton = nullptr;
    QPushButton *m_saveButton = nullptr;
    QBoxLayout *m_frame = nullptr;
};
