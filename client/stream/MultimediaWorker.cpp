#include "stream/MultimediaWorker.h"

#include <QBuffer>
#include <QDebug>

#include <utility>

void MultimediaWorker::onProcessVideoFrame()
{ }

void MultimediaWorker::onImageAvailable(int id, QVideoFrame frame)
{
    Q_UNUSED(id)
    m_frame = std::move(frame);
}

void MultimediaWorker::onImageCaptured(int id, QImage image)
{
    m_image = std::move(image);
    m_encoded.clear();
    QBuffer buffer(&m_encoded);
    buffer.open(QIODevice::WriteOnly);
    const bool failedBefore = std::exchange(m_failed, !m_image.save(&buffer, "JPG"));
    if (m_failed) {
        if (!failedBefore)
            qWarning() << "camera picture" << id << "of size" << m_image.size() << "cannot be encoded";
        return;
    }
    emit sigSendPicture(m_encoded);
}

void MultimediaWorker::onProcessAudioData()
{ }

void MultimediaWorker::onAudioDataChanged(QByteArray data)
{
    Q_UNUSED(data)
}
