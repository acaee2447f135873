#include "video/PictureConverter.h"
#include "Pixels.h"
#include "TestEncoder.h"
#include "TestLog.h"
#include "video/H264Decoder.h"
#include "video/I420.h"

#include <gtest/gtest.h>

#include <vector>

using swplay::FramePtr;
using swplay::H264Decoder;
using swplay::PictureConverter;

namespace {

struct Target
{
    Target(int width, int height)
        : bytes(std::size_t(width) * 4 * height)
        , view{bytes.data(), width, height, width * 4}
    { }
    std::vector<std::uint8_t> bytes;
    FrameBuffer view;
};

// A picture of one colour.
FramePtr onePixelColour(std::uint8_t y, std::uint8_t u, std::uint8_t v)
{
    FramePtr frame = swplay::makeI420(16, 16);
    std::fill_n(frame->data[0], frame->linesize[0] * 16, y);
    std::fill_n(frame->data[1], frame->linesize[1] * 8, u);
    std::fill_n(frame->data[2], frame->linesize[2] * 8, v);
    return frame;
}

// Compares the first pixel, as blue, green, red.
void expectPixel(const Target &target, int blue, int green, int red)
{
    EXPECT_NEAR(target.bytes[0], blue, 3);
    EXPECT_NEAR(target.bytes[1], green, 3);
    EXPECT_NEAR(target.bytes[2], red, 3);
    EXPECT_EQ(target.bytes[3], 255);
}

} // namespace

class ConvertedSize : public testing::TestWithParam<std::pair<int, int>>
{ };

TEST_P(ConvertedSize, KeepsTheColours)
{
    TestEncoder encoder(720, 1280);
    H264Decoder decoder;
    ASSERT_EQ(decoder.decode(encoder.encode(TestPicture::gradient(720, 1280, 9), true)),
        H264Decoder::Result::Picture);
    Target target(GetParam().first, GetParam().second);
    PictureConverter converter;
    ASSERT_TRUE(converter.convert(*decoder.picture()->native, target.view));
    EXPECT_LT(gradientError(target.view, 9), 2.5);
    EXPECT_TRUE(isOpaque(target.view));
}

INSTANTIATE_TEST_SUITE_P(Sizes, ConvertedSize,
    testing::Values(std::pair(720, 1280), std::pair(144, 218), std::pair(1080, 1920), std::pair(333, 217)));

TEST(PictureConverter, ScalesAThumbnailUp)
{
    TestEncoder encoder(144, 218);
    H264Decoder decoder;
    ASSERT_EQ(decoder.decode(encoder.encode(TestPicture::gradient(144, 218, 4), true)),
        H264Decoder::Result::Picture);
    Target target(720, 1280);
    PictureConverter converter;
    ASSERT_TRUE(converter.convert(*decoder.picture()->native, target.view));
    EXPECT_LT(gradientError(target.view, 4), 2.5);
}

TEST(PictureConverter, ReadsRangeAndMatrixFromThePicture)
{
    // Pure red by each of the four definitions (ITU-R BT.601 and BT.709, limited and full range).
    struct Case
    {
        AVColorSpace space;
        AVColorRange range;
        std::uint8_t y, u, v;
    };
    const Case cases[] = {
        {AVCOL_SPC_UNSPECIFIED, AVCOL_RANGE_UNSPECIFIED, 81, 90, 240},
        {AVCOL_SPC_SMPTE170M, AVCOL_RANGE_MPEG, 81, 90, 240},
        {AVCOL_SPC_SMPTE170M, AVCOL_RANGE_JPEG, 76, 85, 255},
        {AVCOL_SPC_BT709, AVCOL_RANGE_MPEG, 63, 102, 240},
        {AVCOL_SPC_BT709, AVCOL_RANGE_JPEG, 54, 99, 255},
    };
    PictureConverter converter;
    Target target(16, 16);
    for (const Case &c : cases) {
        FramePtr frame = onePixelColour(c.y, c.u, c.v);
        frame->colorspace = c.space;
        frame->color_range = c.range;
        ASSERT_TRUE(converter.convert(*frame, target.view));
        expectPixel(target, 0, 0, 255);
    }
    FramePtr old = onePixelColour(76, 85, 255);
    old->format = AV_PIX_FMT_YUVJ420P;
    ASSERT_TRUE(converter.convert(*old, target.view));
    expectPixel(target, 0, 0, 255);
}

TEST(PictureConverter, SaysWhenItCannot)
{
    testlog::clear();
    PictureConverter converter;
    FramePtr frame = onePixelColour(81, 90, 240);
    FrameBuffer nowhere;
    nowhere.width = 16;
    nowhere.height = 16;
    EXPECT_FALSE(converter.convert(*frame, nowhere));
    EXPECT_EQ(testlog::count("Cannot convert a picture of 16 x 16 to 16 x 16"), 1);
}
