#include "video/H264Decoder.h"
#include "TestEncoder.h"
#include "video/I420.h"

#include <gtest/gtest.h>

#include <cmath>

using swplay::AccessUnit;
using swplay::H264Decoder;
using Result = H264Decoder::Result;

namespace {

// Mean distance of the decoded planes from the picture that was encoded.
double planeError(const VideoFrame &frame, const TestPicture &picture)
{
    double sum = 0;
    double count = 0;
    for (int plane = 0; plane < 3; ++plane) {
        const int w = plane == 0 ? picture.width : picture.width / 2;
        const int h = plane == 0 ? picture.height : picture.height / 2;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                sum += std::abs(frame.planes[plane][y * frame.strides[plane] + x]
                    - picture.planes[plane][std::size_t(y) * w + x]);
        count += double(w) * h;
    }
    return sum / count;
}

} // namespace

TEST(H264Decoder, GivesEachUnitsPictureAtOnce)
{
    TestEncoder encoder(720, 1280);
    H264Decoder decoder;
    EXPECT_EQ(decoder.picture(), nullptr);
    for (int i = 1; i <= 5; ++i) {
        const TestPicture picture = TestPicture::gradient(720, 1280, i * 7);
        ASSERT_EQ(decoder.decode(encoder.encode(picture, i == 1)), Result::Picture) << decoder.problem();
        ASSERT_NE(decoder.picture(), nullptr);
        const VideoFrame &frame = *decoder.picture();
        EXPECT_EQ(frame.frameId, std::uint64_t(i));
        EXPECT_EQ(frame.captureUs, i * 40000);
        EXPECT_EQ(frame.width, 720);
        EXPECT_EQ(frame.height, 1280);
        EXPECT_FALSE(frame.fullRange);
        ASSERT_NE(frame.native, nullptr);
        EXPECT_EQ(frame.native->data[0], frame.planes[0]);
        EXPECT_LT(planeError(frame, picture), 1.0);
    }
}

TEST(H264Decoder, TakesTheDataWithoutCopyingItWhereThereIsRoom)
{
    TestEncoder encoder(64, 64);
    H264Decoder decoder;
    AccessUnit unit = encoder.next(true);
    unit.data.reserve(unit.data.size() + 1000);
    ASSERT_EQ(decoder.decode(std::move(unit)), Result::Picture);
    AccessUnit tight = encoder.next(false);
    tight.data.shrink_to_fit();
    EXPECT_EQ(decoder.decode(std::move(tight)), Result::Picture);
}

TEST(H264Decoder, TellsFullRange)
{
    TestEncoder encoder(64, 64, TestEncoder::Chroma::C420, true);
    H264Decoder decoder;
    ASSERT_EQ(decoder.decode(encoder.next(true)), Result::Picture);
    EXPECT_TRUE(decoder.picture()->fullRange);
}

TEST(H264Decoder, HandsOutOtherChromaFormatsAsI420)
{
    for (const TestEncoder::Chroma chroma : {TestEncoder::Chroma::C422, TestEncoder::Chroma::C444}) {
        TestEncoder encoder(96, 64, chroma);
        H264Decoder decoder;
        const TestPicture picture = TestPicture::gradient(96, 64, 3);
        ASSERT_EQ(decoder.decode(encoder.encode(picture, true)), Result::Picture) << decoder.problem();
        ASSERT_NE(decoder.picture()->native, nullptr);
        EXPECT_TRUE(swplay::isI420(*decoder.picture()->native));
        EXPECT_EQ(decoder.picture()->frameId, 1U);
        EXPECT_LT(planeError(*decoder.picture(), picture), 1.5);
    }
}

TEST(H264Decoder, FollowsAChangeOfSize)
{
    H264Decoder decoder;
    TestEncoder large(720, 1280);
    TestEncoder small(144, 218);
    ASSERT_EQ(decoder.decode(large.next(true)), Result::Picture);
    ASSERT_EQ(decoder.decode(small.next(true)), Result::Picture);
    EXPECT_EQ(decoder.picture()->width, 144);
    EXPECT_EQ(decoder.picture()->height, 218);
    ASSERT_EQ(decoder.decode(small.next(false)), Result::Picture);
    ASSERT_EQ(decoder.decode(large.next(true)), Result::Picture);
    EXPECT_EQ(decoder.picture()->width, 720);
}

TEST(H264Decoder, RefusesPicturesThatAreTooLarge)
{
    TestEncoder encoder(H264Decoder::MaxSide + 16, 32);
    H264Decoder decoder;
    EXPECT_EQ(decoder.decode(encoder.next(true)), Result::Unsupported);
    EXPECT_EQ(decoder.problem(), "a picture of 4112 x 32");
    EXPECT_EQ(decoder.picture(), nullptr);
    TestEncoder largest(H264Decoder::MaxSide, 32);
    EXPECT_EQ(decoder.decode(largest.next(true)), Result::Picture);
}

TEST(H264Decoder, ReportsDamageAndKeepsTheLastPicture)
{
    TestEncoder encoder(320, 240);
    H264Decoder decoder;
    ASSERT_EQ(decoder.decode(encoder.next(true)), Result::Picture);
    ASSERT_EQ(decoder.decode(encoder.next(false)), Result::Picture);
    AccessUnit cut = encoder.next(true);
    cut.data.resize(cut.data.size() / 2);
    EXPECT_EQ(decoder.decode(std::move(cut)), Result::Corrupt);
    EXPECT_FALSE(decoder.problem().empty());
    ASSERT_NE(decoder.picture(), nullptr);
    EXPECT_EQ(decoder.picture()->frameId, 2U);
    decoder.restart();
    EXPECT_EQ(decoder.picture()->frameId, 2U);
    EXPECT_EQ(decoder.decode(encoder.next(true)), Result::Picture);
}

TEST(H264Decoder, ReportsUnitsThatAreNone)
{
    H264Decoder decoder;
    AccessUnit empty;
    EXPECT_EQ(decoder.decode(empty), Result::Corrupt);
    EXPECT_EQ(decoder.problem(), "empty access unit");
    AccessUnit garbage;
    garbage.data = std::string(5000, '\x5a');
    EXPECT_EQ(decoder.decode(garbage), Result::Corrupt);
    AccessUnit zeros;
    zeros.data = std::string(5000, '\0');
    EXPECT_EQ(decoder.decode(zeros), Result::Corrupt);
    // An empty unit is not the end of the stream.
    TestEncoder encoder(64, 64);
    EXPECT_EQ(decoder.decode(encoder.next(true)), Result::Picture);
}

TEST(H264Decoder, RestartForgetsTheStream)
{
    TestEncoder encoder(64, 64);
    H264Decoder decoder;
    decoder.restart();
    ASSERT_EQ(decoder.decode(encoder.next(true)), Result::Picture);
    decoder.restart();
    EXPECT_NE(decoder.decode(encoder.next(false)), Result::Picture);
    EXPECT_EQ(decoder.decode(encoder.next(true)), Result::Picture);
    EXPECT_EQ(decoder.decode(encoder.next(false)), Result::Picture);
}
