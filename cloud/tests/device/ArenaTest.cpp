#include "ArenaFixture.h"

#include "device/ArenaWorld.h"

#include <linux/input-event-codes.h>

#include <cmath>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

class ArenaTest : public ArenaFixture
{ };

TEST_F(ArenaTest, theJoystickWalksTheFigure)
{
    touch(Down, {at("joystick")});
    EXPECT_FALSE(state()["walking"].toBool()) << "in the middle";
    EXPECT_FALSE(device.nextTick());
    touch(Move, {at("joystick", 0, -100)});
    EXPECT_TRUE(state()["walking"].toBool());
    pass(1s);
    EXPECT_NEAR(north(), 6, 0.15);
    EXPECT_NEAR(east(), 0, 0.01);
    touch(Move, {at("joystick", 0, -50)}); // half the speed
    pass(500ms);
    EXPECT_NEAR(north(), 7.5, 0.2);
    touch(Move, {at("joystick", 100, 100)}); // diagonally, no faster
    pass(1s);
    EXPECT_NEAR(east(), 4.24, 0.2);
    EXPECT_NEAR(north(), 3.26, 0.3);
    touch(Up, {{-1, -1}});
    EXPECT_FALSE(state()["walking"].toBool());
    const double before = north();
    pass(1s);
    EXPECT_EQ(north(), before);
}

TEST_F(ArenaTest, walkingFollowsTheView)
{
    touch(Down, {at("look")});
    touch(Move, {at("look", 300, 0)});
    touch(Move, {at("look", 150, 0)});
    EXPECT_NEAR(value("heading"), 30, 0.01);
    touch(Up, {{-1, -1}});
    touch(Down, {at("joystick", 0, -100)});
    pass(500ms);
    EXPECT_NEAR(east(), 1.5, 0.1);
    EXPECT_NEAR(north(), 2.6, 0.1);
}

TEST_F(ArenaTest, draggingLooksAround)
{
    touch(Down, {at("look")});
    touch(Move, {at("look", -50, -50)});
    EXPECT_NEAR(value("heading"), 350, 0.01);
    EXPECT_NEAR(value("pitch"), 10, 0.01);
    touch(Move, {at("look", -50, -300)});
    EXPECT_NEAR(value("pitch"), 20, 0.01) << "no further";
    touch(Move, {at("look", -50, 300)});
    EXPECT_NEAR(value("pitch"), -20, 0.01);
    // Put down elsewhere, the finger goes on from where the view is.
    touch(Up, {{-1, -1}});
    touch(Down, {at("look", 100, 100)});
    EXPECT_NEAR(value("heading"), 350, 0.01);
}

TEST_F(ArenaTest, firingReachesTheTarget)
{
    EXPECT_TRUE(state()["targetInSight"].toBool());
    touch(Down, {at("fire")});
    EXPECT_EQ(value("shots"), 1);
    EXPECT_EQ(value("hits"), 0) << "under way";
    EXPECT_EQ(value("ammunition"), 29);
    pass(2s);
    EXPECT_EQ(value("hits"), 1);
    EXPECT_EQ(value("shots"), 1) << "one for each press";
    EXPECT_FALSE(state()["targetInSight"].toBool()) << "it is somewhere else now";
    touch(Up, {{-1, -1}});
    press("fire");
    pass(2s);
    EXPECT_EQ(value("shots"), 2);
    EXPECT_EQ(value("hits"), 1);
    EXPECT_FALSE(device.nextTick());
}

TEST_F(ArenaTest, anEmptyMagazineHasToBeReloaded)
{
    for (int i = 0; i < ArenaWorld::MagazineSize + 3; ++i) {
        press("fire");
    }
    EXPECT_EQ(value("shots"), 30);
    EXPECT_EQ(value("ammunition"), 0);
    press("reload");
    EXPECT_EQ(value("reloads"), 1);
    EXPECT_EQ(value("ammunition"), 30);
    press("fire");
    EXPECT_EQ(value("shots"), 31);
}

TEST_F(ArenaTest, jumpingTakesAMoment)
{
    press("jump");
    EXPECT_TRUE(state()["inAir"].toBool());
    press("jump");
    EXPECT_EQ(value("jumps"), 1) << "nothing to jump from";
    pass(1s);
    EXPECT_FALSE(state()["inAir"].toBool());
    EXPECT_FALSE(device.nextTick());
    press("jump");
    EXPECT_EQ(value("jumps"), 2);
}

TEST_F(ArenaTest, theFieldEnds)
{
    touch(Down, {at("joystick", 100, 0)});
    pass(10s);
    EXPECT_EQ(east(), ArenaWorld::HalfField);
    device.takeDirty();
    EXPECT_EQ(framesDuring(2s), 0) << "nothing moves";
    touch(Move, {at("joystick", -100, 0)});
    EXPECT_GT(framesDuring(500ms), 20);
}

// --- When it is drawn ---

TEST_F(ArenaTest, restingCostsNothing)
{
    const auto version = device.pictureVersion();
    pass(std::chrono::hours(1));
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(device.pictureVersion(), version);
    // Nor do fingers that rest.
    touch(Down, {at("fire"), at("look"), at("joystick")});
    pass(3s);
    ticks = 0;
    device.takeDirty();
    pass(std::chrono::hours(1));
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(device.takeDirty().isEmpty());
}

TEST_F(ArenaTest, walkingIsDrawnSixtyTimesASecond)
{
    touch(Down, {at("joystick", 0, -40)});
    device.takeDirty();
    const int frames = framesDuring(1s);
    EXPECT_GE(frames, 57);
    EXPECT_LE(frames, 60);
}

TEST_F(ArenaTest, aFastMouseIsDrawnSixtyTimesASecond)
{
    pass(1s);
    touch(Down, {at("look")});
    device.takeDirty();
    const auto [x, y] = at("look");
    int frames = 0;
    for (int i = 1; i <= 1000; ++i) {
        now += 1ms;
        touch(Move, {{x + (i % 2 == 0 ? i / 4 : i / 4 + 1), y}});
        frames += device.takeDirty().isEmpty() ? 0 : 1;
    }
    EXPECT_GE(frames, 50);
    EXPECT_LE(frames, 60);
    EXPECT_NEAR(value("heading"), 50, 0.01) << "the newest position counts";
    touch(Up, {{-1, -1}});
    // That is drawn although no input follows.
    framesDuring(100ms);
    const QImage last = device.frame().copy();
    device.openApp("Home");
    device.openApp("Arena");
    EXPECT_EQ(device.frame(), last);
}

TEST_F(ArenaTest, aPressIsDrawnAtOnce)
{
    pass(1s);
    touch(Down, {at("reload")});
    EXPECT_FALSE(device.takeDirty().isEmpty());
    pass(1s);
    touch(Up, {{-1, -1}});
    EXPECT_FALSE(device.takeDirty().isEmpty());
}

TEST_F(ArenaTest, lateTicksChangeNothingAboutTheWay)
{
    touch(Down, {at("joystick", 60, -80)});
    now += 2s;
    device.tick(now);
    EXPECT_NEAR(east(), 7.2, 0.1);
    EXPECT_NEAR(north(), 9.6, 0.1);
    device.tick(now); // again at the same time
    EXPECT_NEAR(north(), 9.6, 0.1);
}

TEST_F(ArenaTest, timeStandsStillWhileAnotherAppIsInFront)
{
    press("fire");
    click(KEY_MENU);
    EXPECT_EQ(app(), "Recents");
    pass(10s);
    click(KEY_BACK);
    EXPECT_EQ(app(), "Arena");
    EXPECT_EQ(value("hits"), 0) << "the bullet is still under way";
    pass(2s);
    EXPECT_EQ(value("hits"), 1);
}

TEST_F(ArenaTest, worksInEveryRotation)
{
    for (const int rotation : {1, 2, 3, 0}) {
        const double shots = value("shots");
        const double jumps = value("jumps");
        const double reloads = value("reloads");
        enter(rotation);
        press("fire");
        press("reload");
        press("jump");
        pass(2s);
        EXPECT_EQ(value("shots"), shots + 1) << rotation;
        EXPECT_EQ(value("reloads"), reloads + 1) << rotation;
        EXPECT_EQ(value("jumps"), jumps + 1) << rotation;
        const double before = north();
        touch(Down, {at("joystick", 0, -100)});
        pass(500ms);
        EXPECT_NEAR(north(), before + 3, 0.2) << rotation;
        touch(Move, {at("joystick", 0, 100)});
        pass(500ms);
        touch(Up, {{-1, -1}});
        const double heading = value("heading");
        touch(Down, {at("look")});
        touch(Move, {at("look", 50, 0)});
        EXPECT_NEAR(value("heading"), heading + 10, 0.01) << rotation;
        touch(Move, {at("look", 0, 0)});
        touch(Up, {{-1, -1}});
    }
}

TEST_F(ArenaTest, controlsAreApartAndOnTheScreen)
{
    for (const int rotation : {0, 1}) {
        enter(rotation);
        const QSize screen = rotation == 0 ? QSize(720, 1280) : QSize(1280, 720);
        const QJsonObject controls = state()["controls"].toObject();
        EXPECT_EQ(controls.size(), 5);
        const QRect body(0, 48, screen.width(), screen.height() - 48 - 84);
        for (const QString &name : controls.keys()) {
            const QJsonObject place = controls[name].toObject();
            const QPoint middle(place["x"].toInt(), place["y"].toInt());
            const QSize half = name == "look" ? QSize(place["width"].toInt(), place["height"].toInt()) / 2
                                              : QSize(place["radius"].toInt(), place["radius"].toInt());
            EXPECT_TRUE(body.contains(QRect(middle - QPoint(half.width(), half.height()), half * 2)))
                << name.toStdString();
            for (const QString &other : controls.keys()) {
                if (other == name || other == "look" || name == "look") {
                    continue;
                }
                const QJsonObject second = controls[other].toObject();
                const QPoint way = middle - QPoint(second["x"].toInt(), second["y"].toInt());
                EXPECT_GT(std::hypot(way.x(), way.y()), place["radius"].toInt() + second["radius"].toInt())
                    << name.toStdString() << other.toStdString();
            }
        }
    }
}

} // namespace
} // namespace orvane::cloud
