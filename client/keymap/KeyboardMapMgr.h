#pragma once

#include "stream/TouchPointSource.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QPointer>
#include <QString>
#include <QVariantMap>
#include <QVector>

#include <functional>

class HttpHelper;
class OvAuxiliaryClick;
class OvAuxiliaryCrosshair;
class OvAuxiliaryKey;
class OvAuxiliaryWalking;
class QWidget;
struct ResponseData;

// The key mapping of one device window: the user's schemes as the service has them, the auxiliary keys that
// lie over the video now, and whether they are being edited. The video view asks it for the fingers of the
// keys.
//
// A scheme is a JSON object with "map_id", "map_name", "config" (the keys as JSON text; in the service's list
// encoded as Base64), "screen_orientation" (1 or true: landscape), "show_key", "show_key_desc",
// "key_transparency" (percent) and "key_size".
//
// GUI thread; a child of the device window, over which its messages appear. The keys belong to the video
// view.
class KeyboardMapMgr : public TouchPointSource
{
    Q_OBJECT

public:
    explicit KeyboardMapMgr(QWidget *parent = nullptr);
    ~KeyboardMapMgr() override;

    // Whether the editor is open.
    bool isRecording() const { return m_isRecording; }
    void setRecording(bool isRecording);
    // Whether the layout was changed since the scheme was selected.
    bool isModified() const { return m_isModified; }
    void setModified(bool isModified) { m_isModified = isModified; }
    // Set by the editor while it refills its combo box: what is selected meanwhile is not the user's choice.
    bool isComboBoxUpdating() const { return m_isComboBoxUpdating; }
    void setComboBoxUpdating(bool isUpdating);
    // What the scheme shows in play: the keys, and their notes.
    bool showKeys() const { return m_showKeys; }
    void setShowKeys(bool areShown);
    bool showKeyNotes() const { return m_showKeyNotes; }
    void setShowKeyNotes(bool areShown);

    // Takes a new key into the mapping. `type`: a keymap::KeyType. The key stays its parent's and may be
    // destroyed at any time.
    void addAuxiliaryKey(int type, OvAuxiliaryKey *key);
    // Whether another key of the type must not be made now: the last click key is not bound yet, or there is
    // the one walking (crosshair) key already.
    bool hasPendingKey(int type) const;
    // The newest click key, the walking key, the crosshair; null if there is none.
    OvAuxiliaryClick *lastClickKey() const;
    OvAuxiliaryWalking *walkingKey() const;
    OvAuxiliaryCrosshair *crosshairKey() const;
    // Every key, in the order in which a scheme holds them: click keys as they were made, walking key,
    // crosshair.
    QVector<OvAuxiliaryKey *> keys() const;
    // Whether a key of the keyboard (as of keyName()) cannot be bound, since another key has it or it is one
    // of W, A, S and D; the user is told so.
    bool isKeyBindingInUse(const QString &keyText);
    // Appends the fingers of the keys that are pressed now, in pixels of the device's portrait screen: click
    // keys, crosshair, walking key.
    void collectTouchPoints(QVector<int> &xs, QVector<int> &ys, QSize deviceSize);
    void appendTouchPoints(QVector<int> &xs, QVector<int> &ys, const QSize &remote) override;
    // Ends every touch of the keys, and mouse-look: before the stream pauses or ends, or the window closes.
    void liftFingers();
    // Puts every key to its spot in the view.
    void relayoutKeys();
    // Lifts and destroys every key at once.
    void clearKeys();

    // The keys as the text of a scheme's "config".
    QString keysToJson() const;
    // Completes a scheme of the editor with the keys, stores it on the service as the current one, and keeps
    // it in the settings file as well, where it is whether the service answers or not.
    void saveCurrentScheme(QVariantMap &scheme);
    // Keeps a scheme of the editor, with the keys, in the settings file alone.
    void keepLocalCopy(QVariantMap &scheme) const;
    // The scheme in the settings file, as JSON text; empty if there is none.
    static QString localCopy();
    // The scheme of the last save as JSON text, and its "map_id"; empty before.
    QString currentConfigJson() const { return m_currentConfigJson; }
    QString savedMapId() const { return m_savedMapId; }

    // The schemes as the service last gave them, "config" in Base64.
    QJsonArray mapConfigs() const { return m_mapConfigs; }
    // One of them; an empty object for an index that there is not.
    QJsonObject mapConfigAt(int index) const;
    // The "map_id" of the scheme in use, empty if none is.
    QString currentMapId() const { return m_currentMapId; }
    void setCurrentMapId(const QString &mapId) { m_currentMapId = mapId; }

signals:
    void sigRecordingStatusChanged(bool isRecording);
    void sigComboBoxUpdate(bool isUpdate);
    // The list of schemes was received.
    void sigRefreshConfigSuccess();
    // The schemes should be shown again as mapConfigs() has them: what was shown in advance (a new name) was
    // refused.
    void sigUpdateComboBox();
    // A save has ended: the service has the scheme, or it refused it or could not be reached.
    void sigSaved(bool isStored);

public slots:
    // For the sigDeleteBtnCicked of a key: removes it.
    void onKeyDeleteBtnClicked();
    // Asks the service for the schemes. An answer replaces the list; a failure is shown, logged, and changes
    // nothing, as with the other requests.
    void onRefreshMapConfig();
    // Makes an empty scheme, which becomes the current one.
    void onCreateMapConfig();
    // Changes a scheme: `type` is "update", "copy" or "delete". `mapConfig`: members of the request besides,
    // of which a "map_id" names another scheme than the current one.
    void onActionMapConfig(QString type, const QVariantMap &mapConfig);
    // Shares the current scheme.
    void onShareMapConfig();
    // A row was selected: that scheme is the current one, or none for what is not in the list.
    void onComboBoxItemChanged(int index);
    // States of the editor's check boxes, as Qt::CheckState.
    void onShowBtnCheckBoxStateChanged(int state);
    void onShowNoteCheckBoxStateChanged(int state);

private:
    // A request: what it is called in the log, and what follows.
    struct Operation
    {
        QString name;
        std::function<void(const ResponseData &)> onSuccess;
        std::function<void()> onFailure; // after it was logged and shown; may be empty
    };

    HttpHelper *httpHelper();
    void post(const char *path, const QJsonObject &body, const Operation &operation);
    void onAnswer(const Operation &operation, const ResponseData &response);
    void onTransportFailure(const Operation &operation, const QString &error);
    void takeMapConfigs(const QJsonValue &data);
    void showToast(const QString &text);

    bool m_isRecording = false;
    bool m_isModified = false;
    bool m_isComboBoxUpdating = false;
    bool m_showKeys = true;
    bool m_showKeyNotes = true;
    HttpHelper *m_httpHelper = nullptr; // child, made by the first request
    QPointer<OvAuxiliaryCrosshair> m_crosshairKey; // not owned, like the others
    QPointer<OvAuxiliaryWalking> m_walkingKey;
    QVector<QPointer<OvAuxiliaryClick>> m_clickKeys; // in the order of their creation
    QJsonArray m_mapConfigs;
    QString m_currentConfigJson;
    QString m_savedMapId;
    QString m_currentMapId;
};
