#include "device/FingerTracker.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orvane::cloud {
namespace {

using Phase = FingerEvent::Phase;

struct Seen
{
    Phase phase;
    int id;
    QPoint position;
};

bool operator==(const Seen &a, const Seen &b)
{
    return a.phase == b.phase && a.id == b.id && a.position == b.position;
}

void PrintTo(const Seen &seen, std::ostream *out)
{
    const char *names[] = {"down", "move", "up"};
    *out << names[static_cast<int>(seen.phase)] << " " << seen.id << " at " << seen.position.x() << ","
         << seen.position.y();
}

class FingerTrackerTest : public testing::Test
{
protected:
    static constexpr int Down = 0;
    static constexpr int Up = 1;
    static constexpr int Move = 2;

    static std::vector<Seen> seen(const std::vector<FingerEvent> &events)
    {
        std::vector<Seen> result;
        result.reserve(events.size());
        for (const FingerEvent &event : events) {
            result.push_back({event.phase, event.id, event.position});
        }
        return result;
    }
    std::vector<Seen> frame(int action, const std::vector<QPoint> &points, const std::string &session = "one")
    {
        std::vector<TouchPoint> list;
        list.reserve(points.size());
        for (const QPoint &point : points) {
            list.push_back({point.x(), point.y(), 1});
        }
        return seen(tracker.frame(session, action, list));
    }

    FingerTracker tracker{QSize(720, 1280)};
    using List = std::vector<Seen>;
};

TEST_F(FingerTrackerTest, clickIsDownAndUp)
{
    EXPECT_EQ(frame(Down, {{100, 200}}), (List{{Phase::Down, 1, {100, 200}}}));
    EXPECT_EQ(frame(Up, {{-1, -1}}), (List{{Phase::Up, 1, {100, 200}}}));
    EXPECT_EQ(tracker.count(), 0);
    EXPECT_EQ(frame(Down, {{5, 6}}), (List{{Phase::Down, 2, {5, 6}}}));
    EXPECT_EQ(frame(Up, {}), (List{{Phase::Up, 2, {5, 6}}}));
    EXPECT_EQ(frame(Up, {}), (List{}));
}

TEST_F(FingerTrackerTest, fingerKeepsItsIdentityWhenTheListShifts)
{
    frame(Down, {{600, 900}}); // the mouse
    // A key of the key mapping comes down in front of it.
    EXPECT_EQ(frame(Down, {{100, 1100}, {604, 905}}),
        (List{{Phase::Move, 1, {604, 905}}, {Phase::Down, 2, {100, 1100}}}));
    EXPECT_EQ(frame(Move, {{100, 1050}, {604, 905}}), (List{{Phase::Move, 2, {100, 1050}}}));
    // And another one between the two, while all move.
    EXPECT_EQ(frame(Down, {{102, 1049}, {300, 500}, {610, 910}}),
        (List{{Phase::Move, 2, {102, 1049}}, {Phase::Move, 1, {610, 910}}, {Phase::Down, 3, {300, 500}}}));
    // The first leaves: the others shift forward.
    EXPECT_EQ(frame(Up, {{300, 500}, {610, 910}}), (List{{Phase::Up, 2, {102, 1049}}}));
    EXPECT_EQ(frame(Up, {{610, 910}}), (List{{Phase::Up, 3, {300, 500}}}));
    EXPECT_EQ(frame(Up, {}), (List{{Phase::Up, 1, {610, 910}}}));
}

TEST_F(FingerTrackerTest, sameNumberIsMatchedByPlaceHoweverFar)
{
    frame(Down, {{100, 100}, {200, 100}});
    EXPECT_EQ(frame(Move, {{200, 100}, {100, 100}}),
        (List{{Phase::Move, 1, {200, 100}}, {Phase::Move, 2, {100, 100}}}));
}

TEST_F(FingerTrackerTest, pinchAppearsAndLeavesInOneFrame)
{
    EXPECT_EQ(frame(Down, {{360, 500}, {360, 700}}),
        (List{{Phase::Down, 1, {360, 500}}, {Phase::Down, 2, {360, 700}}}));
    EXPECT_EQ(frame(Move, {{360, 450}, {360, 750}}),
        (List{{Phase::Move, 1, {360, 450}}, {Phase::Move, 2, {360, 750}}}));
    EXPECT_EQ(frame(Up, {{-1, -1}}), (List{{Phase::Up, 1, {360, 450}}, {Phase::Up, 2, {360, 750}}}));
}

TEST_F(FingerTrackerTest, wheelGestureEndsThoughItsLastFrameStillListsIt)
{
    frame(Down, {{360, 600}});
    frame(Move, {{360, 640}});
    EXPECT_EQ(frame(Up, {{360, 640}}), (List{{Phase::Up, 1, {360, 640}}}));
    EXPECT_EQ(tracker.count(), 0);
    // The next gesture is a new finger.
    EXPECT_EQ(frame(Down, {{360, 300}}), (List{{Phase::Down, 2, {360, 300}}}));
    // Its last frame may move it, too.
    EXPECT_EQ(frame(Up, {{360, 310}}), (List{{Phase::Move, 2, {360, 310}}, {Phase::Up, 2, {360, 310}}}));
}

TEST_F(FingerTrackerTest, wheelGestureEndsBesideFingersThatStay)
{
    frame(Down, {{600, 900}}); // the mouse
    frame(Down, {{360, 500}, {360, 700}, {600, 900}}); // a pinch comes down
    EXPECT_EQ(frame(Up, {{360, 500}, {360, 700}, {600, 900}}),
        (List{{Phase::Up, 2, {360, 500}}, {Phase::Up, 3, {360, 700}}}));
    EXPECT_EQ(tracker.count(), 1);
    EXPECT_EQ(frame(Move, {{601, 900}}), (List{{Phase::Move, 1, {601, 900}}}));
}

TEST_F(FingerTrackerTest, upFrameBringsNoFingerDown)
{
    EXPECT_EQ(frame(Up, {{360, 640}}), (List{})); // the end of a gesture that a restart has cut off
    EXPECT_EQ(tracker.count(), 0);
    frame(Down, {{100, 100}});
    EXPECT_EQ(frame(Up, {{100, 100}, {500, 500}}), (List{}));
    EXPECT_EQ(tracker.count(), 1);
}

TEST_F(FingerTrackerTest, sessionsHaveTheirOwnFingers)
{
    frame(Down, {{100, 100}}, "one");
    EXPECT_EQ(frame(Down, {{100, 100}}, "two"), (List{{Phase::Down, 2, {100, 100}}}));
    EXPECT_EQ(tracker.count(), 2);
    EXPECT_EQ(frame(Move, {{110, 100}}, "one"), (List{{Phase::Move, 1, {110, 100}}}));
    EXPECT_EQ(seen(tracker.lift("two")), (List{{Phase::Up, 2, {100, 100}}}));
    EXPECT_EQ(seen(tracker.lift("two")), (List{}));
    EXPECT_EQ(tracker.count(), 1);
}

TEST_F(FingerTrackerTest, fingerThatDoesNotMoveIsNoEvent)
{
    frame(Down, {{100, 100}});
    EXPECT_EQ(frame(Move, {{100, 100}}), (List{}));
    EXPECT_EQ(frame(Down, {{100, 100}}), (List{})); // as a held key repeats
}

TEST_F(FingerTrackerTest, valuesOutOfRange)
{
    constexpr int Largest = std::numeric_limits<int>::max();
    constexpr int Smallest = std::numeric_limits<int>::min();
    EXPECT_EQ(frame(Down, {{Largest, Smallest}, {-1, 5}}),
        (List{{Phase::Down, 1, {719, 0}}, {Phase::Down, 2, {0, 5}}}));
    tracker.clear();
    EXPECT_EQ(frame(Down, std::vector<QPoint>(500, {3, 3})).size(), FingerTracker::MaxFingers);
    EXPECT_EQ(tracker.count(), 10);
    tracker.clear();
    const float pressures[] = {std::nanf(""), -1, 0, std::numeric_limits<float>::infinity(), 7};
    for (const float pressure : pressures) {
        EXPECT_EQ(tracker.frame("one", Down, {{1, 1, pressure}}).front().pressure, 1.0F) << pressure;
        tracker.clear();
    }
    EXPECT_EQ(tracker.frame("one", Down, {{1, 1, 0.25F}}).front().pressure, 0.25F);
}

} // namespace
} // namespace orvane::cloud
