#pragma once

#include "device/HeldKeys.h"
#include "stream/StreamingData.h"
#include "widgets/OvWindowBase.h"

#include <QString>

#include <memory>

class HttpHelper;
class LoadingPage;
class QJsonValue;
class QLabel;
class QStackedLayout;
class StreamController;
class VideoView;

// The window in which the user operates one device. It applies for the device at the service, shows a loading
// page meanwhile, and then streams the device's screen and passes on mouse, keyboard and clipboard text.
// Closing it ends the stream; giving the device back to the service is its owner's business
// (OvWindowBase::sigCloseBtnClicked).
//
// GUI thread; owned by whoever creates it.
class SingleController : public OvWindowBase
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

    // Minutes without input after which the stream pauses.
    void setStandbyTime(int minutes) { m_standbyMinutes = minutes; }
    int standbyTime() const { return m_standbyMinutes; }

    // Asks the service for the device and starts the stream when it is granted. A refusal is shown and
    // logged; the window stays on its loading page then, and it may be asked again.
    void applyDevice();

public slots:
    // Types the clipboard's text on the device.
    void onPasteText();
    // `info`: a JSON object in UTF-8; "delayTime" is in milliseconds.
    void onPlayInfo(const char *info);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    // The Tab keys are the device's.
    bool focusNextPrevChild(bool next) override;

private:
    void createTitle();
    void createPages();
    void connectStream();
    bool showsVideo() const;
    void onDeviceApplied(const QJsonValue &data);
    void onApplyRefused(int code, const QString &message);
    void onApplyFailed(const QString &error);
    void showToast(const QString &text);
    void releaseHeldKeys();
    void endStream();

    QString m_serviceId;
    QString m_deviceName;
    int m_standbyMinutes = 5;
    stream::StreamingData m_streamingData;
    HttpHelper *m_httpHelper
        = nullptr; // child, made by the first request; its end drops the requests under way
    std::shared_ptr<StreamController> m_stream;
    QStackedLayout *m_pages = nullptr;
    LoadingPage *m_loadingPage = nullptr; // children
    VideoView *m_videoView = nullptr;
    QLabel *m_delayLabel = nullptr;
    HeldKeys m_heldKeys;
};
