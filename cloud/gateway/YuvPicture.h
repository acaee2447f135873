#pragma once

#include <QImage>
#include <QRect>

#include <cstdint>
#include <vector>

namespace orvane::cloud {

// A picture in the encoder's colour space: planar 4:2:0, BT.601 limited range, even size, rows without
// padding. Plain data; used by one thread at a time (the strand of its device).
class YuvPicture
{
public:
    // `width`, `height`: even, at least 2.
    YuvPicture(int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }
    int chromaStride() const { return m_width / 2; }
    const std::uint8_t *y() const { return m_data.data(); }
    const std::uint8_t *u() const { return m_data.data() + lumaSize(); }
    const std::uint8_t *v() const { return u() + lumaSize() / 4; }

    // Takes over `area` of an image (Format_RGB32) of the same size. The rest stays as it was.
    void convert(const QImage &image, const QRect &area);
    // Takes over the whole of another picture, scaled to this one's size.
    void scaleFrom(const YuvPicture &source);

private:
    std::size_t lumaSize() const { return std::size_t(m_width) * std::size_t(m_height); }

    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_data;
};

} // namespace orvane::cloud
