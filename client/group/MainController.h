#pragma once

#include "group/GroupDevice.h"
#include "stream/ScreenOrientation.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

class FunctionBar;
class QLabel;
class StreamController;
class SubController;
class VideoView;

// The left part of the group's window: the master device's live picture, large enough to be worked, its name
// over it, and a bar of buttons under it. Input goes to the master's own session; what the other devices are
// to follow is told by the signals of this panel and of its view.
//
// GUI thread; child of the group's window, which gives it its size.
class MainController : public QWidget
{
    Q_OBJECT

public:
    explicit MainController(QWidget *parent = nullptr);
    // Ends the session first.
    ~MainController() override;

    // Connects to this device, in place of an earlier one.
    void setDevice(const group::GroupDevice &device);
    const group::GroupDevice &device() const { return m_device; }
    // Empty without a device.
    QString serviceId() const { return m_device.serviceId; }
    // The master and the tile's device change places. Nothing without a master.
    void setMainController(SubController *controller);
    // What stands in the place of the picture before the first device: that it is being waited for, or why it
    // does not come. Nothing once there is a device.
    void showConnecting();
    void showFailure(const QString &message);
    // Connects to the device anew; nothing without one.
    void restartStream();
    void stopStream();

    VideoView *videoView() const;
    // Types the text on the device.
    void onPasteText(const QString &text);

signals:
    // `keyType`: a Linux input key code, which the session gets already.
    void functionBtnClicked(int keyType);
    void restartBtnClicked();

public slots:
    // Keys as codes of the SDK.
    void onKeyPressEvent(int key);
    void onKeyReleaseEvent(int key);
    // The picture has been turned.
    void onScreenRotation(ScreenOrientation orientation);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void createVideo();
    void connectStream();
    void startStream();
    void forgetPicture();
    void setTexts();
    void showStatus();
    void showName();
    void layOutVideo();
    QSize videoSize() const;

    group::GroupDevice m_device;
    QString m_failure; // why there is no device; empty otherwise
    ScreenOrientation m_orientation = ScreenOrientation::Portrait;
    std::shared_ptr<StreamController> m_stream;
    QWidget *m_videoContainer; // children
    QPointer<VideoView> m_videoView;
    QLabel *m_nameLabel;
    QLabel *m_statusLabel; // until the first picture of the device
    FunctionBar *m_bar;
};
