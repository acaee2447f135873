#pragma once

#include <QByteArray>
#include <QObject>

// Gives the device what it asks for when one of its apps opens the camera: pictures and sound of this
// computer. One forwarder may serve several sessions; a stop from any of them stops it for all. MultimediaMgr
// is the one of the product. Lives on the GUI thread.
class MultimediaForwarder : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Both may be called in any state.
    virtual void start() = 0;
    virtual void stop() = 0;

signals:
    void sigSendPicture(QByteArray ba); // one JPEG
    void sigSendAudioData(QByteArray ba);
};
