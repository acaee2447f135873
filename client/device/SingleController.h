#pragma once

#include "device/StandbyTimer.h"
#include "device/TurnableWindow.h"
#include "stream/HeldKeys.h"
#include "stream/ScreenOrientation.h"
#include "stream/StreamingData.h"

#include <QPointer>
#include <QString>

#include <memory>

class HttpHelper;
class LoadingPage;
class MenuBar;
class OvToast;
class QJsonValue;
class QLabel;
class QStackedLayout;
class QualityBox;
class StandbyWidget;
class StreamController;
class VideoView;

// The window in which the user operates one device. It applies for the device at the service, shows a loading
// page meanwhile, and then streams the device's screen and passes on mouse, keyboard and clipboard text. A
// menu bar stands beside the video, the quality and the delay in the title bar. Without input for a while the
// stream pauses and the stand-by page covers the video. Closing it ends the stream; giving the device back to
// the service is its owner's business (OvWindowBase::sigCloseBtnClicked).
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
    void createTitle();
    void createPages();
    QWidget *createVideoPage();
    void connectStream();
    void connectMenuBar();
    bool showsVideo() const;
    bool isStandingBy() const;
    bool takesInput() const;
    void onDeviceApplied(const QJsonValue &data);
    void onApplyRefused(int code, const QString &message);
    void onApplyFailed(const QString &error);
    void showToast(const QString &text);
    void releaseHeldKeys();
    void applyQuality();
    void startStandby();
    void endStandby();
    void layOutStandbyPage();
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
    QStackedLayout *m_pages = nullptr;
    LoadingPage *m_loadingPage = nullptr; // children
    QWidget *m_videoPage = nullptr;
    VideoView *m_videoView = nullptr;
    MenuBar *m_menuBar = nullptr;
    StandbyWidget *m_standbyPage = nullptr; // over the video
    QualityBox *m_qualityBox = nullptr;
    QLabel *m_delayLabel = nullptr;
    StandbyTimer *m_standbyTimer;
    QPointer<OvToast> m_toast; // child, while one is shown
    HeldKeys m_heldKeys;
};
