// The gateway's decisions about when to send and how much, with a clock that the tests set.
#include "gateway/FramePacer.h"
#include "gateway/LevelSelection.h"
#include "gateway/QualityControl.h"
#include "gateway/SendWindow.h"
#include "gateway/TokenBucket.h"

#include <gmock/gmock.h>

using namespace orvane::cloud;
using namespace std::chrono_literals;

namespace {

constexpr TimePoint Start = TimePoint(1h);

// The client's table.
std::vector<Level> clientTable()
{
    const int rows[][4] = {{720, 1280, 25, 6144}, {720, 1280, 25, 6144}, {720, 1280, 25, 4096},
        {576, 1024, 20, 2048}, {480, 848, 15, 1024}, {240, 424, 15, 512}, {144, 218, 5, 256}};
    std::vector<Level> table;
    for (const auto &row : rows) {
        Level level;
        level.width = row[0];
        level.height = row[1];
        level.frameRate = row[2];
        level.bitRate = row[3];
        table.push_back(level);
    }
    return table;
}

QualityControl startedControl()
{
    QualityControl control;
    control.setRows(1, 5, {6144, 6144, 4096, 2048, 1024, 512, 256});
    return control;
}

// Observes every 50 ms until the row changes; the time it took, or nothing within `limit`.
std::optional<Clock::duration> timeToChange(
    QualityControl &control, TimePoint &now, Clock::duration limit, bool congested, int kbitPerSec = 0)
{
    const TimePoint begin = now;
    while (now - begin <= limit) {
        if (control.observe(now, congested, kbitPerSec)) {
            return now - begin;
        }
        now += 50ms;
    }
    return std::nullopt;
}

} // namespace

// --- SendWindow ---

TEST(SendWindow, OneFrameMayAlwaysGo)
{
    SendWindow window;
    EXPECT_TRUE(window.isOpen());
    window.sent(1, 10'000'000, Start);
    EXPECT_FALSE(window.isOpen());
    EXPECT_TRUE(window.acknowledged(1, Start + 50ms));
    EXPECT_TRUE(window.isOpen());
    EXPECT_TRUE(window.isEmpty());
}

TEST(SendWindow, ClosesWhenNothingIsAcknowledged)
{
    SendWindow window;
    std::uint64_t id = 0;
    while (window.isOpen()) {
        window.sent(++id, 5000, Start);
        ASSERT_LT(id, 100U);
    }
    EXPECT_LE(window.bytesUnderWay(), 60'000U); // half a second at 1 Mbit/s
}

TEST(SendWindow, OneAcknowledgementCoversAllBefore)
{
    SendWindow window;
    for (std::uint64_t id = 1; id <= 3; ++id) {
        window.sent(id, 1000, Start);
    }
    EXPECT_TRUE(window.acknowledged(2, Start + 10ms));
    EXPECT_EQ(window.bytesUnderWay(), 1000U);
}

TEST(SendWindow, IgnoresAcknowledgementsOfNothing)
{
    SendWindow window;
    EXPECT_FALSE(window.acknowledged(1, Start));
    window.sent(5, 1000, Start);
    EXPECT_FALSE(window.acknowledged(4, Start));
    EXPECT_FALSE(window.acknowledged(6, Start));
    EXPECT_FALSE(window.acknowledged(~std::uint64_t(0), Start));
    EXPECT_EQ(window.bytesUnderWay(), 1000U);
}

TEST(SendWindow, ShrinksToWhatThePathCarries)
{
    SendWindow window;
    window.learnPathDelay(20ms, Start);
    // 48 KB that take 400 ms: about 1 Mbit/s.
    for (std::uint64_t id = 1; id <= 10; ++id) {
        window.sent(id, 5000, Start);
    }
    const auto ack = window.acknowledged(10, Start + 400ms);
    ASSERT_TRUE(ack);
    EXPECT_EQ(ack->queueDelay, 380ms);
    EXPECT_NEAR(ack->kbitPerSec, 1000, 10);
    // 140 ms of 125 bytes/ms
    EXPECT_NEAR(double(window.windowBytes()), 17'500, 200);
}

TEST(SendWindow, GrowsWhileThePathIsFreeAndMoreIsWanted)
{
    SendWindow window;
    window.learnPathDelay(200ms, Start);
    const std::size_t before = window.windowBytes();
    window.sent(1, 20'000, Start);
    window.acknowledged(1, Start + 210ms);
    EXPECT_EQ(window.windowBytes(), before); // nobody wanted more
    window.noteDemand();
    window.sent(2, 20'000, Start + 210ms);
    window.acknowledged(2, Start + 420ms);
    EXPECT_EQ(window.windowBytes(), before + 20'000);
}

TEST(SendWindow, IsCongestedWhileTheClientIsSilent)
{
    SendWindow window;
    window.learnPathDelay(20ms, Start);
    EXPECT_FALSE(window.isCongested(Start + 10s)); // nothing is under way
    window.sent(1, 1000, Start);
    EXPECT_FALSE(window.isCongested(Start + 100ms));
    EXPECT_TRUE(window.isCongested(Start + 150ms));
}

TEST(SendWindow, APathThatCarriesNoMoreIsCongestedEvenWithShortQueues)
{
    SendWindow window;
    window.learnPathDelay(10ms, Start);
    window.sent(1, 10'000, Start);
    EXPECT_FALSE(window.acknowledged(1, Start + 90ms)->congested); // nobody wanted more
    window.sent(2, 10'000, Start + 90ms);
    window.noteDemand();
    const auto ack = window.acknowledged(2, Start + 180ms);
    EXPECT_TRUE(ack->congested);
    EXPECT_NEAR(ack->kbitPerSec, 888, 2);
    window.sent(3, 10'000, Start + 180ms);
    window.noteDemand();
    EXPECT_FALSE(window.acknowledged(3, Start + 220ms)->congested); // the window may still grow
}

TEST(SendWindow, ALongerRouteIsLearntButAQueueIsNotTakenForOne)
{
    SendWindow window;
    window.learnPathDelay(20ms, Start);
    TimePoint now = Start;
    std::uint64_t id = 0;
    std::chrono::microseconds last{};
    const auto exchange = [&](std::chrono::milliseconds delay) {
        window.sent(++id, 1000, now);
        now += delay;
        last = window.acknowledged(id, now)->queueDelay;
    };
    while (now < Start + 60s) {
        exchange(220ms);
    }
    EXPECT_EQ(last, 0us);
    while (now < Start + 120s) {
        exchange(5s);
    }
    EXPECT_GT(last, 4s);
}

// --- QualityControl ---

TEST(QualityControl, StartsWithTheBestRow)
{
    EXPECT_EQ(startedControl().row(), 1);
    EXPECT_FALSE(startedControl().needsEvaluation());
}

TEST(QualityControl, GoesDownWithinASecondOfCongestion)
{
    QualityControl control = startedControl();
    TimePoint now = Start;
    EXPECT_FALSE(timeToChange(control, now, 3s, false));
    const auto time = timeToChange(control, now, 3s, true);
    ASSERT_TRUE(time);
    EXPECT_LE(*time, 1s);
    EXPECT_EQ(control.row(), 2);
}

TEST(QualityControl, GoesStraightToTheRowThatThePathCarries)
{
    QualityControl control = startedControl();
    TimePoint now = Start;
    ASSERT_TRUE(timeToChange(control, now, 3s, true, 1200));
    EXPECT_EQ(control.row(), 4); // 1024 of 1200 kbit/s

    QualityControl slow = startedControl();
    ASSERT_TRUE(timeToChange(slow, now, 3s, true, 100));
    EXPECT_EQ(slow.row(), 5); // nothing fits: the last
}

TEST(QualityControl, AStallOfHalfASecondIsForgiven)
{
    QualityControl control = startedControl();
    TimePoint now = Start;
    for (int i = 0; i < 10; ++i) {
        EXPECT_FALSE(timeToChange(control, now, 2s, false));
        EXPECT_FALSE(timeToChange(control, now, 450ms, true));
    }
    EXPECT_EQ(control.row(), 1);
}

TEST(QualityControl, StaysWithinItsRows)
{
    QualityControl control = startedControl();
    TimePoint now = Start;
    while (timeToChange(control, now, 5s, true)) { }
    EXPECT_EQ(control.row(), 5);
    int steps = 0;
    while (timeToChange(control, now, 70s, false)) {
        ++steps;
    }
    EXPECT_EQ(control.row(), 1);
    EXPECT_EQ(steps, 4);
    EXPECT_FALSE(control.needsEvaluation());
}

TEST(QualityControl, GoesUpOneRowAfterFiveCalmSeconds)
{
    QualityControl control = startedControl();
    TimePoint now = Start;
    ASSERT_TRUE(timeToChange(control, now, 3s, true, 700));
    ASSERT_EQ(control.row(), 5);
    const auto time = timeToChange(control, now, 20s, false);
    ASSERT_TRUE(time);
    EXPECT_GE(*time, 4900ms);
    EXPECT_LE(*time, 6s);
    EXPECT_EQ(control.row(), 4);
}

TEST(QualityControl, WaitsLongerAfterEveryStepUpThatWasTooMuch)
{
    QualityControl control = startedControl();
    TimePoint now = Start;
    ASSERT_TRUE(timeToChange(control, now, 3s, true, 1200));
    ASSERT_EQ(control.row(), 4);
    Clock::duration before = 0s;
    for (int i = 0; i < 5; ++i) {
        const auto time = timeToChange(control, now, 100s, false); // up to 3
        ASSERT_TRUE(time);
        EXPECT_GT(*time, before);
        EXPECT_LE(*time, 62s);
        before = std::min<Clock::duration>(*time, 55s);
        ASSERT_TRUE(timeToChange(control, now, 3s, true, 1200)); // and back
        ASSERT_EQ(control.row(), 4);
    }
}

// --- FramePacer ---

TEST(FramePacer, KeepsToTheFrameRate)
{
    FramePacer pacer;
    pacer.setFrameRate(25);
    int frames = 0;
    for (TimePoint now = Start; now < Start + 10s; now += 1ms) {
        if (pacer.nextFrameTime(FrameCause::Animation, now) <= now) {
            pacer.frameSent(FrameCause::Animation, now);
            ++frames;
        }
    }
    EXPECT_NEAR(frames, 250, 2);
}

TEST(FramePacer, FollowsAnAnimationOfTheSameRateWithoutDroppingFrames)
{
    FramePacer pacer;
    pacer.setFrameRate(25);
    for (int i = 0; i < 500; ++i) {
        const TimePoint now = Start + 40ms * i + std::chrono::milliseconds(i % 7); // up to 6 ms late
        EXPECT_LE(pacer.nextFrameTime(FrameCause::Animation, now), now) << i;
        pacer.frameSent(FrameCause::Animation, now);
    }
}

TEST(FramePacer, DoesNotHoldBackWhatInputCaused)
{
    FramePacer pacer;
    pacer.setFrameRate(10);
    pacer.frameSent(FrameCause::Animation, Start);
    EXPECT_GT(pacer.nextFrameTime(FrameCause::Animation, Start + 1ms), Start + 40ms);
    EXPECT_EQ(pacer.nextFrameTime(FrameCause::Motion, Start + 1ms), Start + 1ms);
    EXPECT_EQ(pacer.nextFrameTime(FrameCause::Press, Start + 1ms), Start + 1ms);
    pacer.frameSent(FrameCause::Motion, Start + 1ms);
    EXPECT_LE(pacer.nextFrameTime(FrameCause::Motion, Start + 5ms), Start + 20ms);
}

TEST(FramePacer, ALevelToLookOnKeepsToItsRateWhateverTheInput)
{
    FramePacer pacer;
    pacer.setFrameRate(5);
    pacer.frameSent(FrameCause::Press, Start);
    for (const FrameCause cause : {FrameCause::Animation, FrameCause::Motion, FrameCause::Press}) {
        EXPECT_EQ(pacer.nextFrameTime(cause, Start + 1ms), Start + 100ms); // half an interval may be made up
        EXPECT_EQ(pacer.nextFrameTime(cause, Start + 150ms), Start + 150ms);
    }
}

TEST(FramePacer, MotionAtAThousandPerSecondGivesSixtyFrames)
{
    FramePacer pacer;
    pacer.setFrameRate(25);
    int frames = 0;
    for (TimePoint now = Start; now < Start + 1s; now += 1ms) {
        if (pacer.nextFrameTime(FrameCause::Motion, now) <= now) {
            pacer.frameSent(FrameCause::Motion, now);
            ++frames;
        }
    }
    EXPECT_GE(frames, 55);
    EXPECT_LE(frames, 65);
}

TEST(FramePacer, APressGoesAtOnceEvenInTheMiddleOfMotion)
{
    FramePacer pacer;
    pacer.setFrameRate(25);
    for (int i = 0; i < 1000; ++i) {
        const TimePoint now = Start + 1ms * i;
        const FrameCause cause = i % 50 == 0 ? FrameCause::Press : FrameCause::Motion;
        const TimePoint due = pacer.nextFrameTime(cause, now);
        if (cause == FrameCause::Press) {
            EXPECT_EQ(due, now) << i;
        }
        if (due <= now) {
            pacer.frameSent(cause, now);
        }
    }
}

TEST(FramePacer, AFloodOfPressesIsBounded)
{
    FramePacer pacer;
    pacer.setFrameRate(25);
    int frames = 0;
    for (TimePoint now = Start; now < Start + 10s; now += 1ms) {
        if (pacer.nextFrameTime(FrameCause::Press, now) <= now) {
            pacer.frameSent(FrameCause::Press, now);
            ++frames;
        }
    }
    EXPECT_LE(frames, 640);
}

// --- TokenBucket ---

TEST(TokenBucket, PassesTheRateAndNoMore)
{
    TokenBucket bucket;
    bucket.setRate(1000, Start); // 125 bytes/ms
    std::size_t passed = 0;
    for (TimePoint now = Start; now < Start + 10s; now += 1ms) {
        const std::size_t bytes = bucket.available(1'000'000, now);
        bucket.take(bytes);
        passed += bytes;
    }
    EXPECT_NEAR(double(passed), 1'250'000, 5000);
}

TEST(TokenBucket, WithoutALimitEverythingPasses)
{
    TokenBucket bucket;
    EXPECT_FALSE(bucket.isLimited());
    EXPECT_EQ(bucket.available(123'456'789, Start), 123'456'789U);
    bucket.setRate(8, Start);
    EXPECT_TRUE(bucket.isLimited());
    EXPECT_EQ(bucket.available(1000, Start), 0U);
    EXPECT_GT(bucket.available(1000, bucket.nextTime(Start)), 0U);
    bucket.setRate(0, Start);
    EXPECT_FALSE(bucket.isLimited());
}

// --- LevelSelection ---

TEST(LevelSelection, AutomaticMovesBetweenRowsOneAndFive)
{
    LevelSelection selection;
    selection.setCastMode(CastMode::Full);
    selection.setTable(clientTable());
    EXPECT_TRUE(selection.isAutomatic());
    EXPECT_EQ(selection.firstAutomaticRow(), 1);
    EXPECT_EQ(selection.lastAutomaticRow(), 5);
    const auto effective = selection.effective(3);
    EXPECT_EQ(effective.row, 3);
    EXPECT_TRUE(effective.automatic);
    EXPECT_EQ(effective.level.width, 576);
}

TEST(LevelSelection, RowsAndCustomLevelsAreFixed)
{
    LevelSelection selection;
    selection.setCastMode(CastMode::Full);
    selection.setTable(clientTable());
    ASSERT_TRUE(selection.chooseRow(4));
    EXPECT_FALSE(selection.isAutomatic());
    EXPECT_EQ(selection.effective(1).row, 4);
    EXPECT_EQ(selection.effective(1).level.bitRate, 1024);
    EXPECT_FALSE(selection.chooseRow(7)); // the table ends with row 6
    EXPECT_EQ(selection.effective(1).row, 4);
    Level custom;
    custom.width = 144;
    custom.height = 218;
    selection.chooseCustom(custom);
    EXPECT_EQ(selection.effective(1).row, -1);
    EXPECT_EQ(selection.effective(1).level, custom);
    EXPECT_FALSE(selection.effective(1).automatic);
}

TEST(LevelSelection, AThumbnailIsTheLastRowWhateverTheChoice)
{
    LevelSelection selection;
    selection.setTable(clientTable());
    selection.chooseRow(2);
    selection.setCastMode(CastMode::Thumbnail);
    EXPECT_EQ(selection.effective(1).row, 6);
    EXPECT_EQ(selection.effective(1).level.width, 144);
    selection.setCastMode(CastMode::Full);
    EXPECT_EQ(selection.effective(1).row, 2);
}

TEST(LevelSelection, ShortAndMissingTables)
{
    LevelSelection selection;
    selection.setCastMode(CastMode::Full);
    EXPECT_EQ(selection.effective(1).row, -1);
    EXPECT_EQ(selection.effective(1).level, Level());
    ASSERT_TRUE(selection.chooseRow(3)); // the table may follow
    auto table = clientTable();
    table.resize(1);
    selection.setTable(table);
    EXPECT_TRUE(selection.isAutomatic()); // it has no row 3
    EXPECT_EQ(selection.firstAutomaticRow(), 0);
    EXPECT_EQ(selection.lastAutomaticRow(), 0);
    EXPECT_EQ(selection.effective(5).row, 0);
}
