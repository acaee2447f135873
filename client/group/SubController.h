#pragma once

#include "group/GroupDevice.h"

#include <QDateTime>
#include <QSize>
#include <QWidget>

#include <memory>

class QLabel;
class StreamController;
class TileMenu;
class VideoView;

namespace group {
class TileInput;
} // namespace group

// One controlled device in the group's grid: its live picture in a session of its own, its name and remaining
// time, and, while the pointer is over it or the keyboard in it, a menu.
//
// A tile gets pictures only while it is live; otherwise its session stays, takes input, and the last picture
// remains. GUI thread, but for the input slots; owned by the page, which removes it through the batch thread.
class SubController : public QWidget
{
    Q_OBJECT

public:
    explicit SubController(QWidget *parent = nullptr);
    ~SubController() override;

    // Connects to this device, in place of an earlier one, whose picture goes.
    void setDevice(const group::GroupDevice &device);
    const group::GroupDevice &device() const { return m_device; }
    QString serviceId() const { return m_device.serviceId; }
    // Ends the session and starts a new one with the same device; the last picture remains meanwhile.
    void restartStream();

    // Whether the device sends pictures. Not live at first.
    void setLive(bool live);
    bool isLive() const { return m_live; }

    // Shows the time that the device has left at `now`, local time. Does next to nothing if the text stays.
    void showRemainingTime(const QDateTime &now);

    // None before the first device; another one after each.
    VideoView *videoView() const { return m_view; }
    StreamController *streamController() const { return m_stream; }
    // The way of input for other threads, which outlives the tile. Never none; any thread.
    std::shared_ptr<group::TileInput> input() const { return m_input; }

signals:
    void setAsMainController();
    void restartController();
    void removeController(bool slient);
    void openSingleController();

public slots:
    // Any thread while the tile lives. `action`: 0 down, 1 up, 2 move. The place as fractions of the remote
    // portrait screen; a finger that goes up is told as (-1, -1).
    void onSubControlTouchEvent(int action, float percentX, float percentY);
    // Any thread while the tile lives.
    void onInputEvent(const QString &text);
    // Any thread while the tile lives. A key going down and up at once, as a Linux input key code.
    void onFunctionBtnClicked(int keyType);
    // GUI thread. The tile's size in device-independent pixels.
    void onResizeSubController(const QSize &size);
    // Any thread while the tile lives. Keys as codes of the SDK.
    void onKeyPressEvent(int key);
    void onKeyReleaseEvent(int key);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createLabels();
    void createView();
    void startStream();
    void showPicture();
    void showTexts();
    void placeParts();
    void showMenu();
    void hideMenuWhenLeft();

    group::GroupDevice m_device;
    bool m_live = false;
    QString m_remainingTime; // as shown; empty before the first
    StreamController *const m_stream; // child
    const std::shared_ptr<group::TileInput> m_input;
    VideoView *m_view = nullptr; // child; a new one with each device
    QLabel *m_infoLabel = nullptr; // child; covers the view until the first picture
    QLabel *m_captionLabel = nullptr; // child
    TileMenu *m_menu = nullptr; // child; made when it is first shown
};
