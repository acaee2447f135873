#include "gateway/YuvPicture.h"

#include <libyuv.h>

#include <stdexcept>

namespace orvane::cloud {

YuvPicture::YuvPicture(int width, int height)
    : m_width(width)
    , m_height(height)
{
    if (width < 2 || height < 2 || width % 2 != 0 || height % 2 != 0) {
        throw std::invalid_argument("the size of a YUV picture must be even");
    }
    m_data.resize(lumaSize() * 3 / 2);
}

void YuvPicture::convert(const QImage &image, const QRect &area)
{
    const QRect bounds(0, 0, m_width, m_height);
    if (image.size() != bounds.size() || image.depth() != 32) {
        throw std::invalid_argument("the image does not fit the YUV picture");
    }
    // Chroma samples cover two by two pixels: widen the area to even coordinates.
    const QRect wanted = area.intersected(bounds);
    if (wanted.isEmpty()) {
        return;
    }
    const int left = wanted.left() & ~1;
    const int top = wanted.top() & ~1;
    const int width = (wanted.right() + 2 - left) & ~1;
    const int height = (wanted.bottom() + 2 - top) & ~1;
    const std::size_t luma = std::size_t(top) * std::size_t(m_width) + std::size_t(left);
    const std::size_t chroma = std::size_t(top / 2) * std::size_t(chromaStride()) + std::size_t(left / 2);
    std::uint8_t *y = m_data.data();
    std::uint8_t *u = y + lumaSize();
    std::uint8_t *v = u + lumaSize() / 4;
    libyuv::ARGBToI420(image.constScanLine(top) + std::ptrdiff_t(left) * 4, image.bytesPerLine(), y + luma,
        m_width, u + chroma, chromaStride(), v + chroma, chromaStride(), width, height);
}

void YuvPicture::scaleFrom(const YuvPicture &source)
{
    // Averaging keeps text readable when much is thrown away; bilinear does as well down to a half and is
    // faster.
    const bool shrinksMuch = source.width() > 2 * m_width || source.height() > 2 * m_height;
    std::uint8_t *y = m_data.data();
    std::uint8_t *u = y + lumaSize();
    std::uint8_t *v = u + lumaSize() / 4;
    libyuv::I420Scale(source.y(), source.width(), source.u(), source.chromaStride(), source.v(),
        source.chromaStride(), source.width(), source.height(), y, m_width, u, chromaStride(), v,
        chromaStride(), m_width, m_height, shrinksMuch ? libyuv::kFilterBox : libyuv::kFilterBilinear);
}

} // namespace orvane::cloud
