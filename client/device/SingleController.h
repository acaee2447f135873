#pragma once

#include "device/DeviceKeyboard.h"
#include "device/StandbyTimer.h"
#include "device/TurnableWindow.h"
#include "stream/ScreenOrientation.h"
#include "stream/StreamingData.h"

#include <QPointer>
#include <QString>

#include <memory>

class DeviceKeyMapping;
class DeviceTitle;
class HttpHelper;
class LoadingPage;
class MenuBar;
class OvToast;
class QJsonValue;
class QStackedLayout;
class StandbyWidget;
class StreamController;
class VideoView;

// The window in which the user operates one device. It applies for the device at the service, shows a loading
// page meanwhile, and then streams the device's screen and passes on mouse, keyboard and clipboard text. A
// menu bar stands beside the video, the quality and the delay in the title bar. Without input for a while the
// stream pauses and the stand-by page covers the video. Closing it ends the stream; giving the device back to
// the service is its owner's business (OvWindowBase::sigCloseBtnClicked).
//
// While the key mapping is edited, its panel stands in the place of the menu bar, a menu in the title bar in
// the place of quality and delay, and nothing reaches the device. The user cannot close the window without
// being asked about a layout that is not saved.
//
// GUI thread; owned by whoever creates it.
class SingleController : public TurnableWindow
{
    Q_OBJECT

public:
    // `serviceId` names the device towards the service, `deviceName` towards the user.
    SingleController(const QString &serviceId, const QString &deviceName, QWidget *parent = nullptr);
    ~SingleController() override;

    QString serviceId() const { return m_serviceId; }
    QString deviceName() const { return m_deviceName; }
    // How the stream is reached; filled by the service's answer.
    const stream::StreamingData &streamingData() const { return m_streamingData; }

    // Minutes without input after which the stream pauses; 0 or less: never. A new value counts from now.
    void setStandbyTime(int minutes);
    int standbyTime() const { return m_standbyTimer->minutes(); }

    // Asks the service for the device and starts the stream when it is granted. A refusal is shown and
    // logged; the window stays on its loading page then, and it may be asked again.
    void applyDevice();

public slots:
    // Turns the picture by a quarter; the device is not told.
    void onScreenRotateBtnClicked();
    // The picture has been turned.
    void onScreenRotation(ScreenOrientation orientation);
    // Ends the stand-by; the user's quality holds again.
    void onResumeBtnClicked();
    // The same as the close button.
    void onExitBtnClicked();
    // The user was active: the time to stand-by begins anew.
    void onOperation();
    // Types the clipboard's text on the device.
    void onPasteText();
    // `info`: a JSON object in UTF-8; "delayTime" is in milliseconds.
    void onPlayInfo(const char *info);
    // Maximises the window, or restores it.
    void onMaximizeShortcutActivated();
    // Opens the editor of the key mapping.
    void onKeyboardMapBtnClicked();
    // Lays the keys of the local copy over the video.
    void onApplyKeyBindingBtnClicked();
    // Of the editor's menu: the tutorial, a scheme that somebody else has shared, and leaving, which asks
    // first if there are unsaved changes.
    void onTutorialBtnClicked();
    void onUploadBtnClicked();
    void onExitKeyBoardEditBtnClicked();
    // The scheme has been given away to be saved: closes the editor.
    void onSaveAndCloseKeyboardEditor();
    // New keys for the user, unless one of the kind is pending.
    void onAuxiliaryClickBtnClicked();
    void onAuxiliaryCrosshairClicked();
    void onAuxiliaryWalkingClicked();
    // Keys of a scheme that is being applied.
    void onCreateAuxiliaryClickKey();
    void onCreateAuxiliaryCrosshairKey();
    void onCreateAuxiliaryWalkingKey();
    // A sharing code has been confirmed: imports its scheme.
    void onShareConfig();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    // The Tab keys are the device's.
    bool focusNextPrevChild(bool next) override;

private:
    void createPages();
    QWidget *createVideoPage();
    void connectStream();
    void connectMenuBar();
    void connectKeyMapping();
    void liftEverything();
    bool showsVideo() const;
    bool isStandingBy() const;
    bool takesInput() const;
    void onDeviceApplied(const QJsonValue &data);
    void onApplyRefused(int code, const QString &message);
    void onApplyFailed(const QString &error);
    void showToast(const QString &text);
    void applyQuality();
    void startStandby();
    void endStandby();
    void layOutStandbyPage();
    void showEditor(bool shown);
    void leaveEditor(bool save);
    void onSaved(bool isStored);
    void closeByUser();
    void endStream();
    void closeQuestions();
    void showPortrait();
    void showTitle();

    QString m_serviceId;
    QString m_deviceName;
    stream::StreamingData m_streamingData;
    HttpHelper *m_httpHelper
        = nullptr; // child, made by the first request; its end drops the requests under way
    std::shared_ptr<StreamController> m_stream;
    DeviceKeyboard m_keyboard;
    QStackedLayout *m_pages = nullptr;
    LoadingPage *m_loadingPage = nullptr; // children
    QWidget *m_videoPage = nullptr;
    VideoView *m_videoView = nullptr;
    MenuBar *m_menuBar = nullptr;
    StandbyWidget *m_standbyPage = nullptr; // over the video
    DeviceTitle *m_title = nullptr;
    DeviceKeyMapping *m_keyMapping = nullptr;
    StandbyTimer *m_standbyTimer;
    QPointer<OvToast> m_toast; // child, while one is shown
    bool m_closesAfterEditing = false; // the user wants to close the window, and is asked about the layout
};
