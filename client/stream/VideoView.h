#pragma once

#include "stream/ScreenOrientation.h"
#include "stream/WheelGesture.h"

#include <swplay/VideoDisplayWinBase.h>

#include <QImage>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class StreamController;
class TouchPointSource;

namespace stream {

// What a VideoView is for.
enum ViewMode : int {
    InteractiveView = 1,
    TileView = 2, // one of many in a group: no wheel gestures, and the device's rotation is not followed
};

} // namespace stream

// Shows one device's screen and turns mouse, wheel and text input on it into touches and text for that
// device. It is the streaming SDK's render target as well: the SDK leaves pictures in its frame buffer and
// the widget paints the newest. It sends nothing itself; its owner connects the signals.
//
// Lives on the GUI thread; owned by its parent widget. Only onScreenRotation, onFrameArrival and what the
// display base keeps are called on threads of the SDK.
class VideoView : public QWidget, public VideoDisplayWinBase
{
    Q_OBJECT

public:
    // Time since any fixed moment, never going back.
    using MonotonicClock = std::function<std::chrono::milliseconds()>;

    explicit VideoView(QWidget *parent = nullptr);
    ~VideoView() override;

    using QWidget::render; // paints the widget somewhere else
    using VideoDisplayWinBase::render; // takes a picture from the SDK

    // Turns the view by a quarter: exchanges its width and height.
    void setOrientation(ScreenOrientation orientation);
    ScreenOrientation orientation() const { return m_orientation; }
    // A stream::ViewMode.
    void setViewMode(int mode);
    // Takes pictures with no more pixels than the view has, until a stream is started or this is called
    // again: they are scaled before they are converted, and painted as they are. On another screen, which
    // may have more pixels in the same size, the view does so again by itself. For views much smaller than
    // 720 x 1280.
    void fitPicturesToView();
    // Tells the size of the remote screen; without it no touch is sent.
    void setStreamController(const std::weak_ptr<StreamController> &controller);
    // The key mapping's fingers, or none. Not owned; may be destroyed at any time.
    void setTouchPointSource(TouchPointSource *source);
    // Ends the touch of a mouse button that is held: what it points at is about to change. The button's
    // release is ignored then.
    void liftFinger();
    // Shows no picture until the next one comes: what is shown is another device's from now on. The session
    // before must have ended.
    void forgetPicture();
    // For tests: replaces the clock that spaces the moves.
    void setClock(MonotonicClock clock);

    // The picture that is shown, turned as shown, with its own pixels (720 x 1280, or 1280 x 720; after
    // fitPicturesToView those of the view); null before the first.
    QImage picture();

    // SDK threads.
    void onScreenRotation(int rotation) override;
    void onFrameArrival() override;

signals:
    // `action`: 0 down, 1 up, 2 move. Every finger, in remote pixels despite the names; (-1, -1) alone =
    // none. Receivers must be connected directly.
    void touchEvent(int action, QVector<int> &vecPercentX, QVector<int> &vecPercentY);
    // The mouse alone, as fractions of the remote portrait screen.
    void subControlTouchEvent(int action, float percentX, float percentY);
    // Declared for the function buttons around a view; the view itself does not emit it.
    void functionBtnClicked(int keyType);
    void screenRotation(ScreenOrientation orientation);
    void inputEvent(QString inputString);
    // The first picture can be seen, also the first after forgetPicture.
    void sigFirstPicture();
    // First thing of the destruction: whoever draws into the view must stop before this returns.
    void sigAboutToBeDestroyed();

public slots:
    // Asks the user where to save the picture that is shown now.
    void onScreenCaptureBtnClicked();
    // An auxiliary key was pressed (0), released (1) or moved (2).
    void onAuxiliaryKeyAction(int action);
    // While key mapping is being edited the mouse belongs to the editor.
    void onRecordingStatusChanged(bool isRecording);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    // The Tab keys are the device's.
    bool focusNextPrevChild(bool next) override;

private:
    enum TouchAction : int { TouchDown = 0, TouchUp = 1, TouchMove = 2 };

    // SDK threads leave something for the GUI thread here.
    struct Arrivals
    {
        bool visible = false; // whether a new picture is worth painting
        bool updateQueued = false; // presentFrame is on its way
        bool pictureHasCome = false; // since the beginning or forgetPicture
        bool pictureForgotten = false; // the one in the frame buffer is not to be shown
        std::vector<int> rotations; // not yet followed, oldest first
    };

    Q_INVOKABLE void presentFrame();
    Q_INVOKABLE void followRotations();

    void tellFirstPicture();
    bool isPictureForgotten();
    void setPosition(const QPointF &position);
    std::optional<QSize> remoteSize() const;
    void appendHeldPoints(QVector<int> &xs, QVector<int> &ys, const QSize &remote) const;
    void sendTouch(int action);
    bool sendGesture(int action);
    void sendMouse(int action);
    void stepGesture();
    void savePicture(const QImage &picture, const QString &fileName);

    bool m_pressed = false; // the left mouse button is held on the view
    bool m_ctrlHeld = false; // the wheel pinches
    bool m_hasPicture = false; // sigFirstPicture was emitted
    bool m_fitsPictures = false; // fitPicturesToView was called
    bool m_inputDisabled = false; // mouse and wheel are ignored
    float m_percentX = 0; // last pointer position, fraction of the remote portrait frame
    float m_percentY = 0;
    ScreenOrientation m_orientation = ScreenOrientation::Portrait;
    int m_viewMode = stream::InteractiveView;
    MonotonicClock m_clock;
    std::chrono::milliseconds m_lastMove{0}; // when the last press or move was sent
    QTimer *m_gestureTimer = nullptr; // created on first use
    WheelGesture m_gesture;
    std::weak_ptr<StreamController> m_streamController;
    QPointer<TouchPointSource> m_touchPoints;
    std::mutex m_frameLock; // guards m_arrivals
    Arrivals m_arrivals;
};
