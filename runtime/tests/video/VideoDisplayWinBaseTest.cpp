#include "swplay/VideoDisplayWinBase.h"
#include "Pixels.h"
#include "TestEncoder.h"
#include "TestLog.h"
#include "swplay/VideoFrame.h"
#include "video/H264Decoder.h"

#include <gtest/gtest.h>

using swplay::H264Decoder;

TEST(VideoDisplayWinBase, TakesBgraWithoutTurnOnly)
{
    VideoDisplayWinBase display;
    EXPECT_EQ(display.setDstFormat(-1, 720, 1280, 0), 0);
    EXPECT_EQ(display.setDstFormat(0, 720, 1280, 0), -1);
    EXPECT_EQ(display.setDstFormat(-1, 720, 1280, 1), -1);
    EXPECT_EQ(display.setDstFormat(-1, 0, 1280, 0), -1);
    EXPECT_EQ(display.setDstFormat(-1, 720, 8193, 0), -1);
}

TEST(VideoDisplayWinBase, KeepsNoPictureBeforeItsFormatIsSet)
{
    VideoDisplayWinBase display;
    const TestPicture picture = TestPicture::flat(64, 64, 120);
    VideoFrame frame = picture.asFrame();
    EXPECT_EQ(display.render(&frame), -1);
    EXPECT_EQ(display.lockFrameBuffer(), nullptr);
    ASSERT_EQ(display.setDstFormat(-1, 64, 64, 0), 0);
    EXPECT_EQ(display.lockFrameBuffer(), nullptr);
    EXPECT_EQ(display.render(&frame), 0);
    EXPECT_NE(display.lockFrameBuffer(), nullptr);
    display.unlockFrameBuffer();
}

TEST(VideoDisplayWinBase, ReferencesADecodedPictureInsteadOfCopyingIt)
{
    TestEncoder encoder(720, 1280);
    H264Decoder decoder;
    VideoDisplayWinBase display;
    ASSERT_EQ(display.setDstFormat(-1, 720, 1280, 0), 0);
    ASSERT_EQ(decoder.decode(encoder.encode(TestPicture::gradient(720, 1280, 5), true)),
        H264Decoder::Result::Picture);
    VideoFrame frame = *decoder.picture();
    const AVBufferRef *pixels = frame.native->buf[0];
    const int before = av_buffer_get_ref_count(pixels);
    ASSERT_EQ(display.render(&frame), 0);
    EXPECT_EQ(av_buffer_get_ref_count(pixels), before + 1);
    const FrameBuffer *buffer = display.lockFrameBuffer();
    ASSERT_NE(buffer, nullptr);
    EXPECT_LT(gradientError(*buffer, 5), 2.5);
    EXPECT_TRUE(isOpaque(*buffer));
    display.unlockFrameBuffer();
}

TEST(VideoDisplayWinBase, CopiesPlanesThatAreNotTheDecoders)
{
    VideoDisplayWinBase display;
    ASSERT_EQ(display.setDstFormat(-1, 64, 48, 0), 0);
    {
        const TestPicture picture = TestPicture::gradient(64, 48, 2);
        VideoFrame frame = picture.asFrame();
        ASSERT_EQ(display.render(&frame), 0);
    }
    const FrameBuffer *buffer = display.lockFrameBuffer();
    ASSERT_NE(buffer, nullptr);
    EXPECT_LT(gradientError(*buffer, 2), 2.5);
    display.unlockFrameBuffer();
}

TEST(VideoDisplayWinBase, RefusesWhatIsNoPicture)
{
    VideoDisplayWinBase display;
    ASSERT_EQ(display.setDstFormat(-1, 64, 48, 0), 0);
    EXPECT_EQ(display.render(nullptr), -1);
    VideoFrame empty;
    EXPECT_EQ(display.render(&empty), -1);
    const TestPicture picture = TestPicture::flat(64, 48, 50);
    VideoFrame noColour = picture.asFrame();
    noColour.planes[2] = nullptr;
    EXPECT_EQ(display.render(&noColour), -1);
}

TEST(VideoDisplayWinBase, LogsThePictureSizeWithItsName)
{
    testlog::clear();
    VideoDisplayWinBase display;
    display.setLogId("pad 7");
    ASSERT_EQ(display.setDstFormat(-1, 64, 48, 0), 0);
    const TestPicture picture = TestPicture::flat(64, 48, 50);
    const TestPicture larger = TestPicture::flat(128, 48, 50);
    for (int i = 0; i < 3; ++i) {
        VideoFrame frame = picture.asFrame();
        display.render(&frame);
    }
    VideoFrame frame = larger.asFrame();
    display.render(&frame);
    EXPECT_EQ(testlog::count("Display \"pad 7\" receives pictures of 64 x 48"), 1);
    EXPECT_EQ(testlog::count("Display \"pad 7\" receives pictures of 128 x 48"), 1);
}
