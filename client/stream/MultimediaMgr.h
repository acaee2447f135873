#pragma once

#include "stream/MultimediaForwarder.h"

#include <QCameraImageCapture>

class MultimediaWorker;
class QCamera;
class QThread;
class QTimer;

// Forwards the computer's default camera: still pictures, ten a second while it is started, encoded as JPEG
// on a thread of its own. Microphone data has its signals and slots, but there is no source of it.
//
// One per process. Lives on the GUI thread, like the camera; owned by the process: it ends, and its thread
// with it, when the application object is destroyed.
class MultimediaMgr : public MultimediaForwarder
{
    Q_OBJECT

public:
    // Creates it on the first call. GUI thread, while the application object lives.
    static MultimediaMgr &instance();
    // Stops the camera for all sessions; does nothing, and creates nothing, when nobody has asked for it yet.
    static void stopInstance();

    // Ends the thread; pictures that are not encoded yet are dropped.
    ~MultimediaMgr() override;

    // Without a camera only the timer and the thread start, and no picture is ever sent.
    void start() override;
    // The thread goes on waiting for pictures.
    void stop() override;

signals:
    void sigAudioDataChanged(QByteArray data);

public slots:
    void onProcessAudioData();
    // Asks the camera for one picture if it is active.
    void onProcessVideoFrame();

private:
    MultimediaMgr();
    void startThread();
    void createCamera();
    void connectWorker();
    void onCameraError();
    void onCaptureError(int id, QCameraImageCapture::Error error, const QString &text);
    void tellFailure(const QString &what);

    QCameraImageCapture *m_imageCapture = nullptr; // child of m_camera
    QCamera *m_camera = nullptr;
    QThread *m_thread = nullptr;
    QTimer *m_timer = nullptr; // captures
    MultimediaWorker *m_worker = nullptr; // lives on m_thread and is destroyed there at its end
    bool m_failureTold = false; // since the last start
};
