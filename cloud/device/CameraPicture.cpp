#include "device/CameraPicture.h"

#include <QBuffer>
#include <QImageReader>

namespace orvane::cloud {

namespace {

// Reads without copying; the bytes must stay while it is used.
class Reader
{
public:
    explicit Reader(const std::string &jpeg)
        : m_bytes(QByteArray::fromRawData(jpeg.data(), static_cast<int>(jpeg.size())))
        , m_buffer(&m_bytes)
        , m_reader(&m_buffer, "jpeg")
    { }

    QImageReader *operator->() { return &m_reader; }

private:
    QByteArray m_bytes;
    QBuffer m_buffer;
    QImageReader m_reader;
};

} // namespace

CameraPicture::CameraPicture(const std::string &jpeg)
    : m_jpeg(jpeg)
{
    const QSize size = Reader(jpeg)->size();
    if (size.isValid()) {
        m_size = size;
    }
}

bool CameraPicture::isTooLarge() const
{
    return qint64{m_size.width()} * m_size.height() > MaxPixels;
}

QImage CameraPicture::decoded(QSize box) const
{
    if (m_size.isEmpty() || isTooLarge()) {
        return {};
    }
    Reader reader(m_jpeg);
    const QSize fitted = m_size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (fitted.width() < m_size.width()) {
        reader->setScaledSize(fitted);
    }
    return reader->read();
}

} // namespace orvane::cloud
