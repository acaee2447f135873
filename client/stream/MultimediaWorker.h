#pragma once

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QVideoFrame>

// Encodes captured pictures as JPEG. Lives on the thread of MultimediaMgr, which owns it; every slot is
// called there, through the thread's event queue.
class MultimediaWorker : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    // One JPEG of the picture's own size. Emitted on the worker's thread.
    void sigSendPicture(QByteArray data);
    void sigSendAudioData(QByteArray data);

public slots:
    void onProcessVideoFrame();
    // Keeps the frame: the newest one that the camera has offered.
    void onImageAvailable(int id, QVideoFrame frame);
    // A picture that cannot be encoded is dropped; the first of a series is logged.
    void onImageCaptured(int id, QImage image);
    // Sound is not captured; these do nothing.
    void onProcessAudioData();
    void onAudioDataChanged(QByteArray data);

private:
    QVideoFrame m_frame;
    QImage m_image;
    QByteArray m_encoded;
    bool m_failed = false; // the last picture could not be encoded
};
