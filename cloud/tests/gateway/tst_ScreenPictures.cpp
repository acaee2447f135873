#include "gateway/ScreenPictures.h"

#include "device/VirtualDevice.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace orvane::cloud;

namespace {

constexpr QSize Screen(720, 1280);
constexpr QSize Thumbnail(144, 218);
constexpr QSize Half(360, 640);

class ScreenPicturesTest : public testing::Test
{
protected:
    // As many as the picture's brightness has pixels.
    static std::vector<std::uint8_t> luma(const YuvPicture &picture)
    {
        return {picture.y(), picture.y() + std::ptrdiff_t(picture.width()) * picture.height()};
    }
    static int meanLuma(const YuvPicture &picture)
    {
        const auto samples = luma(picture);
        double sum = 0;
        for (const std::uint8_t sample : samples) {
            sum += sample;
        }
        return static_cast<int>(sum / static_cast<double>(samples.size()));
    }

    DeviceMutex mutex{[](const DeviceMutex::Input &) { return false; }, [] {}};
    VirtualDevice device{"VM1", "One"};
    ScreenPictures pictures{device, mutex};
};

} // namespace

TEST_F(ScreenPicturesTest, EverySizeShowsTheSame)
{
    device.openApp("List");
    const int whole = meanLuma(pictures.picture(Screen));
    for (const QSize size : {Thumbnail, Half, QSize(576, 1024)}) {
        const YuvPicture &picture = pictures.picture(size);
        EXPECT_EQ(QSize(picture.width(), picture.height()), size);
        EXPECT_NEAR(meanLuma(picture), whole, 4) << size.width();
    }
}

TEST_F(ScreenPicturesTest, FollowsTheDevice)
{
    device.openApp("Latency"); // dark, and bright after a touch
    for (const QSize size : {Screen, Half, Thumbnail}) {
        device.touch("one", 0, {{360, 640, 1}}, {});
        device.touch("one", 1, {}, {});
        const int before = meanLuma(pictures.picture(size));
        device.touch("one", 0, {{360, 640, 1}}, {});
        device.touch("one", 1, {}, {});
        EXPECT_GT(std::abs(meanLuma(pictures.picture(size)) - before), 60) << size.width();
    }
}

TEST_F(ScreenPicturesTest, IsMadeOnceForEverybody)
{
    device.openApp("List");
    for (const QSize size : {Half, Thumbnail}) {
        const YuvPicture *first = &pictures.picture(size);
        // Would show if it were drawn again.
        auto *sample = const_cast<std::uint8_t *>(first->y());
        *sample = static_cast<std::uint8_t>(*sample + 100);
        const std::uint8_t marked = *sample;
        const YuvPicture *second = &pictures.picture(size);
        EXPECT_EQ(second, first);
        EXPECT_EQ(*second->y(), marked) << size.width();
        device.openApp(size == Half ? "Notes" : "Home");
        EXPECT_NE(luma(pictures.picture(size)).front(), marked) << size.width();
    }
}

TEST_F(ScreenPicturesTest, SmallOnesNeedNoPictureOfTheScreen)
{
    device.takeDirty();
    device.openApp("Notes");
    pictures.picture(Thumbnail);
    EXPECT_FALSE(device.takeDirty().isEmpty()) << "the screen was drawn";
}

TEST_F(ScreenPicturesTest, GivesBackWhatNobodyWants)
{
    pictures.picture(Screen);
    pictures.picture(Thumbnail);
    pictures.keep({Screen});
    device.takeDirty();
    EXPECT_TRUE(device.takeDirty().isEmpty()) << "the screen's picture is kept";
    pictures.keep({Thumbnail});
    EXPECT_EQ(device.takeDirty(), QRect({}, Screen)) << "it is gone";
    const auto whole = luma(pictures.picture(Screen));
    EXPECT_NE(*std::max_element(whole.begin(), whole.end()), 0) << "and comes again";
}

TEST_F(ScreenPicturesTest, ASnapshotLeavesNothingBehind)
{
    device.openApp("List");
    const QImage alone = pictures.snapshot();
    EXPECT_EQ(alone.size(), Screen);
    EXPECT_EQ(device.takeDirty(), QRect({}, Screen)) << "its memory was given back";

    pictures.picture(Screen);
    EXPECT_EQ(pictures.snapshot(), alone);
    EXPECT_TRUE(device.takeDirty().isEmpty()) << "somebody needs it";
}
