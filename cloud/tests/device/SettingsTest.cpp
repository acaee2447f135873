#include "DeviceFixture.h"

#include <gmock/gmock.h>

#include <linux/input-event-codes.h>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

class SettingsTest : public DeviceFixture
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(device.openApp("Settings"));
        device.onRotation = [this](int rotation) { m_rotations.push_back(rotation); };
    }
    std::pair<int, int> place(const char *control) const
    {
        const QJsonArray centre = state()["controls"].toObject()[QLatin1String(control)].toArray();
        EXPECT_EQ(centre.size(), 2) << control;
        return onFrame(centre[0].toInt(), centre[1].toInt());
    }
    void press(const char *control)
    {
        touch(Down, {place(control)});
        touch(Up, {{-1, -1}});
    }

    std::vector<int> m_rotations;
};

TEST_F(SettingsTest, turnsTheScreenEveryWay)
{
    const std::pair<const char *, int> ways[]{{"landscape", 1}, {"portraitReversed", 2},
        {"landscapeReversed", 3}, {"landscape", 1}, {"portrait", 0}, {"landscapeReversed", 3},
        {"portrait", 0}, {"portraitReversed", 2}, {"landscape", 1}};
    std::vector<int> expected;
    for (const auto &[control, rotation] : ways) {
        press(control);
        EXPECT_EQ(device.rotation(), rotation) << control;
        EXPECT_EQ(number("rotation"), rotation);
        EXPECT_EQ(app(), "Settings");
        expected.push_back(rotation);
    }
    EXPECT_EQ(m_rotations, expected);
    press("landscape"); // as it is already
    EXPECT_EQ(m_rotations, expected);
}

TEST_F(SettingsTest, theFingerThatTurnedTheScreenIsForgotten)
{
    press("landscape");
    press("volumeUp");
    EXPECT_EQ(number("volume"), 9);
    // Another finger that was down meanwhile triggers nothing.
    touch(Down, {place("volumeDown")}, "two");
    press("portrait");
    EXPECT_EQ(device.rotation(), 0);
    touch(Up, {{-1, -1}}, "two");
    EXPECT_EQ(number("volume"), 9);
}

TEST_F(SettingsTest, aFingerThatSlidesOffTriggersNothing)
{
    touch(Down, {place("landscape")});
    touch(Move, {place("volumeUp")});
    touch(Up, {{-1, -1}});
    EXPECT_EQ(device.rotation(), 0);
    EXPECT_EQ(number("volume"), 8);
    touch(Down, {place("landscape")});
    device.sessionGone("one", now);
    EXPECT_EQ(device.rotation(), 0);
    press("landscape");
    EXPECT_EQ(device.rotation(), 1);
}

TEST_F(SettingsTest, setsTheVolume)
{
    press("volumeUp");
    EXPECT_EQ(number("volume"), 9);
    press("volumeDown");
    press("volumeDown");
    EXPECT_EQ(number("volume"), 7);
    for (int i = 0; i < 20; ++i) {
        press("volumeDown");
    }
    EXPECT_EQ(number("volume"), 0);
    for (int i = 0; i < 20; ++i) {
        press("volumeUp");
    }
    EXPECT_EQ(number("volume"), 15);
}

TEST_F(SettingsTest, showsAVolumeThatKeysChanged)
{
    const QImage before = device.frame().copy();
    click(KEY_VOLUMEUP);
    pass(10s); // the volume panel is gone
    EXPECT_FALSE(device.nextTick());
    EXPECT_NE(device.frame(), before);
    click(KEY_VOLUMEDOWN);
    pass(10s);
    EXPECT_EQ(device.frame(), before);
}

TEST_F(SettingsTest, tellsAboutTheDevice)
{
    EXPECT_EQ(state()["deviceName"].toString(), "Aurora");
    EXPECT_EQ(state()["padCode"].toString(), "VM100001");
    EXPECT_THAT(
        state()["version"].toString().toStdString(), testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+"));
    EXPECT_EQ(state()["screen"].toArray(), (QJsonArray{720, 1280}));
    press("landscape");
    EXPECT_EQ(state()["screen"].toArray(), (QJsonArray{720, 1280}));
}

TEST_F(SettingsTest, isReachedFromTheHomeScreen)
{
    click(KEY_HOMEPAGE);
    tapIcon("Settings");
    EXPECT_EQ(app(), "Settings");
}

} // namespace
} // namespace orvane::cloud
