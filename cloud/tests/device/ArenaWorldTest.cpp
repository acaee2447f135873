#include "device/ArenaWorld.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvane::cloud {
namespace {

void walk(ArenaWorld &world, QPointF stick, double seconds)
{
    world.push(stick);
    world.advance(seconds);
    world.push({});
}

TEST(ArenaWorldTest, nobodyWalksThroughBlocks)
{
    for (const ArenaWorld::Block &block : ArenaWorld::blocks()) {
        ArenaWorld world;
        // To its west side, then east into it.
        walk(world, {block.east < 0 ? -1.0 : 1.0, 0}, std::abs(block.east - block.side) / 6.0);
        walk(world, {0, block.north > 0 ? -1.0 : 1.0}, std::abs(block.north) / 6.0);
        world.push({1, 0});
        for (int i = 0; i < 200; ++i) {
            world.advance(0.05);
            const ArenaPoint figure = world.figure();
            EXPECT_FALSE(std::abs(figure.east - block.east) < block.side / 2
                && std::abs(figure.north - block.north) < block.side / 2);
        }
    }
}

TEST(ArenaWorldTest, theStickHasALimit)
{
    ArenaWorld fast;
    ArenaWorld normal;
    walk(fast, {0, 30}, 1);
    walk(normal, {0, 1}, 1);
    EXPECT_NEAR(fast.figure().north, normal.figure().north, 1e-9);
}

TEST(ArenaWorldTest, headingsGoAround)
{
    ArenaWorld world;
    world.look({-90, 0});
    EXPECT_DOUBLE_EQ(world.heading(), 270);
    world.look({1000, 0});
    EXPECT_NEAR(world.heading(), 190, 1e-9);
    world.look({-100000, 0});
    EXPECT_GE(world.heading(), 0);
    EXPECT_LT(world.heading(), 360);
    world.look({0, -1000});
    EXPECT_EQ(world.pitch(), ArenaWorld::SteepestPitch);
}

TEST(ArenaWorldTest, everyTargetCanBeHit)
{
    ArenaWorld world;
    // Turns until something is in sight, at every pitch; targets that are hit come back elsewhere.
    for (int turn = 0; turn < 40 && world.hits() < 12; ++turn) {
        world.look({0, turn % 2 == 0 ? 1.0 : -1.0});
        for (int step = 0; step < 720; ++step) {
            world.look({0.5, 0});
            if (world.isTargetInSight() && world.ammunition() > 0) {
                const int before = world.hits();
                world.fire();
                world.advance(3);
                EXPECT_EQ(world.hits(), before + 1);
                world.reload();
            }
        }
        walk(world, {turn % 3 == 0 ? 1.0 : -0.5, turn % 2 == 0 ? 1.0 : -1.0}, 0.7);
    }
    EXPECT_GE(world.hits(), 12);
    EXPECT_EQ(world.targets().size(), 6u);
}

TEST(ArenaWorldTest, twoBulletsHitOneTargetOnce)
{
    ArenaWorld world;
    ASSERT_TRUE(world.isTargetInSight());
    world.fire();
    world.fire();
    world.advance(3);
    EXPECT_EQ(world.shots(), 2);
    EXPECT_EQ(world.hits(), 1);
    EXPECT_FALSE(world.isMoving());
    EXPECT_FALSE(world.advance(10));
}

TEST(ArenaWorldTest, aJumpIsAsHighHoweverItIsCut)
{
    for (const double step : {0.001, 0.016, 0.2}) {
        ArenaWorld world;
        world.jump();
        double highest = 0;
        double seconds = 0;
        while (world.isInAir()) {
            world.advance(step);
            seconds += step;
            highest = std::max(highest, world.figure().up);
        }
        EXPECT_NEAR(seconds, 0.77, step + 0.02);
        if (step < 0.1) {
            EXPECT_NEAR(highest, 0.96, 0.02);
        }
    }
}

} // namespace
} // namespace orvane::cloud
