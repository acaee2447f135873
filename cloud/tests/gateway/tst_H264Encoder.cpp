#include "gateway/H264Encoder.h"

#include "Bytes.h"
#include "TestDecoder.h"
#include "TestPictures.h"

#include <gmock/gmock.h>

using namespace orvane::cloud;
using namespace orvane::cloud::test;

namespace {

YuvPicture pictureOf(const QImage &image)
{
    YuvPicture picture(image.width(), image.height());
    picture.convert(image, image.rect());
    return picture;
}

// Types of the NAL units of an access unit in Annex B form.
std::vector<int> unitTypes(const std::string &accessUnit)
{
    std::vector<int> types;
    for (std::size_t i = 0; i + 3 < accessUnit.size(); ++i) {
        if (accessUnit.compare(i, 3, std::string("\0\0\1", 3)) == 0) {
            types.push_back(accessUnit[i + 3] & 31);
        }
    }
    return types;
}

} // namespace

TEST(YuvPicture, KnownColours)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(qRgb(255, 255, 255));
    YuvPicture picture(4, 4);
    picture.convert(image, image.rect());
    EXPECT_NEAR(picture.y()[0], 235, 1);
    EXPECT_NEAR(picture.u()[0], 128, 1);
    EXPECT_NEAR(picture.v()[0], 128, 1);
    image.fill(qRgb(255, 0, 0)); // BT.601: 81, 90, 240
    picture.convert(image, image.rect());
    EXPECT_NEAR(picture.y()[15], 81, 2);
    EXPECT_NEAR(picture.u()[3], 90, 2);
    EXPECT_NEAR(picture.v()[3], 240, 2);
}

TEST(YuvPicture, ConvertingTheDirtyPartGivesTheSameAsConvertingAll)
{
    QImage image = busyScreen(1);
    YuvPicture partly = pictureOf(image);
    const QRect areas[] = {{101, 203, 51, 77}, {0, 0, 1, 1}, {719, 1279, 1, 1}, {718, 3, 2, 1}};
    for (const QRect &area : areas) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                image.setPixel(x, y, qRgb(x % 256, y % 256, 77));
            }
        }
        partly.convert(image, area);
    }
    const YuvPicture whole = pictureOf(image);
    const std::size_t bytes = 720 * 1280 * 3 / 2;
    EXPECT_TRUE(std::equal(whole.y(), whole.y() + bytes, partly.y()));
}

TEST(YuvPicture, AreasOutsideAreHarmless)
{
    YuvPicture picture(16, 16);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::white);
    picture.convert(image, {-50, -50, 20, 20});
    EXPECT_EQ(picture.y()[0], 0);
    picture.convert(image, {-50, -50, 500, 500});
    EXPECT_NEAR(picture.y()[255], 235, 1);
    EXPECT_THROW(picture.convert(QImage(8, 16, QImage::Format_RGB32), {0, 0, 8, 16}), std::invalid_argument);
    EXPECT_THROW(YuvPicture(15, 16), std::invalid_argument);
}

TEST(H264Encoder, KeyFrameHasItsParameterSets)
{
    H264Encoder encoder({720, 1280, 25, 6144});
    const YuvPicture picture = pictureOf(busyScreen(1));
    const auto first = encoder.encode(picture, {});
    EXPECT_TRUE(first.keyFrame);
    EXPECT_EQ(first.data.substr(0, 4), hex("00 00 00 01"));
    const auto types = unitTypes(first.data);
    EXPECT_THAT(types, testing::IsSupersetOf({7, 8, 5}));
    const auto second = encoder.encode(picture, {});
    EXPECT_FALSE(second.keyFrame);
    EXPECT_THAT(unitTypes(second.data), testing::ElementsAre(1));
    const auto requested = encoder.encode(picture, {true, {}});
    EXPECT_TRUE(requested.keyFrame);
    EXPECT_THAT(unitTypes(requested.data), testing::IsSupersetOf({7, 8, 5}));
}

TEST(H264Encoder, EveryPictureComesOutAtOnceAndCanBeDecoded)
{
    H264Encoder encoder({720, 1280, 25, 6144});
    TestDecoder decoder;
    for (int i = 0; i < 10; ++i) {
        const YuvPicture picture = pictureOf(scrolled(busyScreen(3), i * 7));
        const auto unit = encoder.encode(picture, {});
        const auto luma = decoder.decode(unit.data);
        ASSERT_TRUE(luma) << i;
        EXPECT_GT(psnr(*luma, picture), 20) << i;
        EXPECT_NEAR(psnr(*luma, picture), unit.psnr, 0.5) << i;
    }
}

TEST(H264Encoder, NoPictureIsLargerThanThePathShouldHaveToCarryAtOnce)
{
    for (const auto &[width, height, rate, kbit] :
        {std::tuple(720, 1280, 25, 6144), {576, 1024, 20, 2048}, {480, 848, 15, 1024}, {240, 424, 15, 512}}) {
        H264Encoder encoder({width, height, rate, kbit});
        for (int i = 0; i < 5; ++i) {
            const auto unit = encoder.encode(pictureOf(busyScreen(i, width, height)), {i == 3, {}});
            EXPECT_LT(unit.data.size() * 8, std::size_t(kbit) * 200) << width << " picture " << i; // 0.2 s
        }
    }
}

TEST(H264Encoder, ChangesItsRatesWithoutAKeyFrame)
{
    H264Encoder encoder({720, 1280, 25, 6144});
    TestDecoder decoder;
    ASSERT_TRUE(decoder.decode(encoder.encode(pictureOf(busyScreen(1)), {}).data));
    ASSERT_TRUE(encoder.setRates(25, 1024));
    EXPECT_EQ(encoder.settings().bitRate, 1024);
    const auto unit = encoder.encode(pictureOf(busyScreen(2)), {});
    EXPECT_FALSE(unit.keyFrame);
    EXPECT_LT(unit.data.size(), 40'000U);
    EXPECT_TRUE(decoder.decode(unit.data));
}

TEST(H264Encoder, RefusesWhatItCannotDo)
{
    EXPECT_THROW(H264Encoder({0, 0, 25, 1000}), std::runtime_error);
    H264Encoder encoder({144, 218, 5, 256});
    EXPECT_THROW(encoder.encode(YuvPicture(720, 1280), {}), std::runtime_error);
}
