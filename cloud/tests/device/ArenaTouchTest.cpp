#include "ArenaFixture.h"

#include <gmock/gmock.h>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

class ArenaTouchTest : public ArenaFixture
{
protected:
    // Each finger: one down first, one up or cancel last, moves of one control between.
    void expectWholeGestures()
    {
        std::map<int, QString> owners;
        std::set<int> over;
        for (const QJsonValue entry : touches()) {
            const QJsonObject touch = entry.toObject();
            const int finger = touch["finger"].toInt();
            const QString action = touch["action"].toString();
            EXPECT_EQ(over.count(finger), 0u) << "after its end";
            if (action == "down") {
                EXPECT_EQ(owners.count(finger), 0u) << "twice";
                owners[finger] = touch["control"].toString();
            }
            EXPECT_EQ(owners[finger], touch["control"].toString());
            if (action == "up" || action == "cancel") {
                over.insert(finger);
            }
        }
        EXPECT_EQ(over.size(), owners.size());
    }
};

// The frames that a key mapping sends: keys in the order click, crosshair, walking, whatever was pressed
// first.
TEST_F(ArenaTouchTest, walkLookAndFireAtOnce)
{
    touch(Down, {at("joystick")});
    touch(Move, {at("joystick", 0, -100)});
    touch(Down, {at("look"), at("joystick", 0, -100)});
    touch(Move, {at("look", 40, 0), at("joystick", 0, -100)});
    touch(Down, {at("fire"), at("look", 40, 0), at("joystick", 0, -100)});
    touch(Move, {at("fire"), at("look", 60, 10), at("joystick", 5, -95)});
    EXPECT_EQ(held().size(), 3);
    pass(200ms);
    EXPECT_EQ(value("shots"), 1);
    EXPECT_NEAR(value("heading"), 12, 0.01);
    EXPECT_GT(north(), 1);
    touch(Up, {at("look", 60, 10), at("joystick", 5, -95)}); // fire
    touch(Up, {at("look", 60, 10)}); // walking
    EXPECT_FALSE(state()["walking"].toBool());
    touch(Up, {{-1, -1}});
    EXPECT_TRUE(held().isEmpty());
    EXPECT_THAT(lines(),
        testing::ElementsAre("1 down joystick 190,990", "1 move joystick 190,890", "2 down look 360,470",
            "2 move look 400,470", "3 down fire 560,930", "2 move look 420,480", "1 move joystick 195,895",
            "3 up fire 560,930", "1 up joystick 195,895", "2 up look 420,480"));
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, lookingGoesOnWhenTheFingerIsPutDownAgain)
{
    touch(Down, {at("look")});
    touch(Move, {at("look", 355, 0)});
    touch(Up, {{-1, -1}});
    touch(Down, {at("look")});
    touch(Move, {at("look", 45, 0)});
    EXPECT_NEAR(value("heading"), 80, 0.01);
    touch(Up, {{-1, -1}});
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, aFingerStaysWithTheControlItWentDownOn)
{
    touch(Down, {at("joystick", 20, 0)});
    touch(Move, {at("fire")});
    touch(Move, {at("look")});
    EXPECT_EQ(value("shots"), 0);
    EXPECT_EQ(value("heading"), 0);
    EXPECT_TRUE(state()["walking"].toBool());
    touch(Up, {{-1, -1}});
    touch(Down, {at("fire")});
    touch(Move, {at("look")});
    touch(Move, {at("look", 100, 0)});
    touch(Move, {at("jump")});
    EXPECT_EQ(value("heading"), 0);
    EXPECT_EQ(value("jumps"), 0);
    EXPECT_EQ(value("shots"), 1);
    touch(Up, {{-1, -1}});
    touch(Down, {at("look")});
    touch(Move, {at("fire")});
    EXPECT_EQ(value("shots"), 1);
    EXPECT_NEAR(value("heading"), 40, 0.01);
    touch(Up, {{-1, -1}});
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, aSecondFingerOnAControlIsIgnored)
{
    touch(Down, {at("fire")});
    touch(Down, {at("fire"), at("fire", 20, 20)});
    EXPECT_EQ(value("shots"), 1);
    touch(Up, {at("fire", 20, 20)}); // the first one goes
    EXPECT_TRUE(held().isEmpty());
    touch(Up, {{-1, -1}});
    EXPECT_THAT(lines(), testing::Contains("2 down - 580,950"));
    press("fire");
    EXPECT_EQ(value("shots"), 2);
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, touchesBesideTheControlsDoNothing)
{
    touch(Down, {{360, 880}});
    touch(Move, {at("fire")});
    touch(Up, {{-1, -1}});
    EXPECT_EQ(value("shots"), 0);
    EXPECT_EQ(lines().front(), "1 down - 360,880");
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, twoSessionsPlayTogether)
{
    touch(Down, {at("joystick", 0, -100)}, "one");
    touch(Down, {at("fire")}, "two");
    touch(Up, {{-1, -1}}, "two");
    EXPECT_TRUE(state()["walking"].toBool());
    EXPECT_EQ(value("shots"), 1);
    device.sessionGone("one", now);
    EXPECT_FALSE(state()["walking"].toBool());
    EXPECT_TRUE(held().isEmpty());
    EXPECT_THAT(lines().back(), testing::StrEq("1 cancel joystick 190,890"));
    pass(5s);
    EXPECT_FALSE(device.nextTick());
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, turningTheScreenLetsGo)
{
    touch(Down, {at("joystick", 0, -100), at("look")});
    device.setRotation(1);
    EXPECT_TRUE(held().isEmpty());
    EXPECT_FALSE(state()["walking"].toBool());
    touch(Move, {{500, 500}, {300, 300}});
    touch(Up, {{-1, -1}});
    EXPECT_EQ(value("heading"), 0);
    expectWholeGestures();
}

TEST_F(ArenaTouchTest, placesAreThoseOfTheScreenAsItIsHeld)
{
    enter(1);
    const auto [x, y] = at("fire");
    touch(Down, {{x, y}});
    touch(Up, {{-1, -1}});
    EXPECT_THAT(lines(), testing::ElementsAre("1 down fire 1120,400", "1 up fire 1120,400"));
    EXPECT_EQ(x, 719 - 400);
    EXPECT_EQ(y, 1120);
}

TEST_F(ArenaTouchTest, timesAreTheDevices)
{
    touch(Down, {at("look")});
    now += 1500us;
    touch(Move, {at("look", 10, 0)});
    const qint64 first = static_cast<qint64>(touches()[0].toObject()["time_us"].toDouble());
    EXPECT_EQ(first, qint64{5} * 3600 * 1'000'000);
    EXPECT_EQ(touches()[1].toObject()["time_us"].toDouble(), static_cast<double>(first + 1500));
}

TEST_F(ArenaTouchTest, theLogKeepsTheNewest)
{
    const auto [x, y] = at("look");
    touch(Down, {{x, y}});
    for (int i = 1; i <= 2500; ++i) {
        now += 1ms;
        touch(Move, {{x + i % 300, y + i % 200}});
    }
    EXPECT_EQ(touches().size(), 2000);
    EXPECT_EQ(value("touchCount"), 2501);
    EXPECT_EQ(lines().back(), "1 move look 460,570");
    touch(Up, {{-1, -1}});
    EXPECT_EQ(value("touchCount"), 2502);
}

} // namespace
} // namespace orvane::cloud
