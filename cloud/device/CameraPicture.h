#pragma once

#include <QImage>
#include <QSize>

#include <string>

namespace orvane::cloud {

// One picture of a client's camera as it came: a JPEG that nobody has looked at yet.
class CameraPicture
{
public:
    // More pixels than this are not decoded.
    static constexpr qint64 MaxPixels = qint64{4096} * 4096;

    // `jpeg` must outlive it.
    explicit CameraPicture(const std::string &jpeg);

    // As its header says; 0 x 0 when it is no JPEG.
    QSize size() const { return m_size; }
    bool isTooLarge() const;
    // The picture, made smaller if it does not fit into `box`. None when it is no JPEG, is too large or is
    // damaged.
    QImage decoded(QSize box) const;

private:
    const std::string &m_jpeg;
    QSize m_size{0, 0};
};

} // namespace orvane::cloud
