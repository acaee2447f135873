// One session's video against a client and a path that are simulated with a clock of their own.
#include "gateway/Viewer.h"

#include "TestDecoder.h"
#include "TestPictures.h"
#include "stream.pb.h"

#include <gmock/gmock.h>

#include <deque>

using namespace orvane::cloud;
using namespace orvane::cloud::test;
using namespace std::chrono_literals;

namespace {

constexpr TimePoint Start = TimePoint(1h);

// Keeps what was sent.
class RecordingLink : public ClientLink
{
public:
    void accept(std::string) override { }
    void refuse(LoginCode, const std::string &) override { }
    void sendControl(std::string message) override { control.push_back(parse(message)); }
    void sendVideo(std::string message) override
    {
        sizes.push_back(message.size());
        video.push_back(parse(message).video_frame());
    }
    void end(EndCode code, const std::string &) override { ended = code; }

    std::vector<swplay::wire::StreamMessage> control;
    std::vector<swplay::wire::VideoFrame> video;
    std::vector<std::size_t> sizes;
    std::optional<EndCode> ended;

private:
    static swplay::wire::StreamMessage parse(const std::string &bytes)
    {
        swplay::wire::StreamMessage message;
        EXPECT_TRUE(message.ParseFromString(bytes));
        return message;
    }
};

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

class ViewerTest : public testing::Test
{
protected:
    ViewerTest() { show(busyScreen(1)); }

    void show(const QImage &image) { picture.convert(image, image.rect()); }
    void watch(CastMode mode = CastMode::Full)
    {
        viewer.setLevels({clientTable()});
        viewer.setCastMode(mode);
        pump();
    }
    void pump()
    {
        viewer.pump(now, [this](QSize size) -> const YuvPicture & {
            if (size == QSize(picture.width(), picture.height())) {
                return picture;
            }
            scaled = YuvPicture(size.width(), size.height());
            scaled.scaleFrom(picture);
            return scaled;
        });
    }
    void change(FrameCause cause = FrameCause::Animation)
    {
        viewer.screenChanged(cause);
        pump();
    }
    void acknowledgeAll() { viewer.acknowledge(link->video.size(), now); }
    // Lets time pass as the device host does: to the next time that the viewer names. False when it names
    // none.
    bool passTime()
    {
        const auto next = viewer.nextPump(now);
        if (!next) {
            return false;
        }
        now = std::max(now, *next);
        pump();
        return true;
    }

    TimePoint now = Start;
    std::shared_ptr<RecordingLink> link = std::make_shared<RecordingLink>();
    std::shared_ptr<SessionCounters> counters = std::make_shared<SessionCounters>();
    Viewer viewer{"session", link, counters};
    YuvPicture picture{720, 1280};
    YuvPicture scaled{2, 2};
};

} // namespace

TEST_F(ViewerTest, SendsNothingBeforeItIsAskedTo)
{
    change(FrameCause::Press);
    EXPECT_TRUE(link->video.empty());
    EXPECT_FALSE(viewer.isWatching());
    EXPECT_FALSE(viewer.nextPump(now));
}

TEST_F(ViewerTest, ANewViewerGetsAKeyFrameAtOnce)
{
    watch();
    ASSERT_EQ(link->video.size(), 1U);
    EXPECT_TRUE(link->video[0].key_frame());
    EXPECT_EQ(link->video[0].frame_id(), 1U);
    EXPECT_EQ(link->video[0].capture_us(), toMicroseconds(now));
    EXPECT_EQ(link->video[0].width(), 720U);
    EXPECT_EQ(link->video[0].height(), 1280U);
}

TEST_F(ViewerTest, TellsTheLevelOnceAndWhenItChanges)
{
    watch();
    ASSERT_EQ(link->control.size(), 1U);
    const auto &first = link->control[0].video_level_result();
    EXPECT_TRUE(first.automatic());
    EXPECT_EQ(first.row(), 1);
    EXPECT_EQ(first.level().bit_rate(), 6144);
    acknowledgeAll();
    change();
    EXPECT_EQ(link->control.size(), 1U);
    viewer.choose(client::ChooseRow{3});
    pump();
    ASSERT_EQ(link->control.size(), 2U);
    EXPECT_EQ(link->control[1].video_level_result().row(), 3);
    EXPECT_FALSE(link->control[1].video_level_result().automatic());
    EXPECT_EQ(counters->levelRow, 3);
}

TEST_F(ViewerTest, ALevelOfAnotherSizeStartsWithAKeyFrame)
{
    watch();
    acknowledgeAll();
    viewer.choose(client::ChooseRow{4});
    now += 40ms;
    pump();
    ASSERT_EQ(link->video.size(), 2U);
    EXPECT_TRUE(link->video[1].key_frame());
    EXPECT_EQ(link->video[1].width(), 480U);
    EXPECT_EQ(link->video[1].height(), 848U);
    acknowledgeAll();
    Level custom;
    custom.width = 144;
    custom.height = 218;
    viewer.choose(client::ChooseCustom{custom});
    now += 100ms;
    pump();
    ASSERT_EQ(link->video.size(), 3U);
    EXPECT_EQ(link->video[2].width(), 144U);
}

TEST_F(ViewerTest, ALevelOfTheSameSizeGoesOn)
{
    watch();
    acknowledgeAll();
    viewer.choose(client::ChooseRow{2}); // 4096 kbit/s
    now += 40ms;
    pump();
    ASSERT_EQ(link->video.size(), 2U);
    EXPECT_FALSE(link->video[1].key_frame());
}

TEST_F(ViewerTest, AThumbnailIsTheLastRow)
{
    watch(CastMode::Thumbnail);
    ASSERT_EQ(link->video.size(), 1U);
    EXPECT_EQ(link->video[0].width(), 144U);
    EXPECT_EQ(link->video[0].height(), 218U);
    EXPECT_EQ(counters->castMode, 1);
}

TEST_F(ViewerTest, PausedSendsNothingAndResumesWithAKeyFrame)
{
    watch();
    acknowledgeAll();
    viewer.setCastMode(CastMode::Paused);
    now += 1s;
    change(FrameCause::Press);
    EXPECT_EQ(link->video.size(), 1U);
    EXPECT_FALSE(viewer.nextPump(now));
    viewer.setCastMode(CastMode::Full);
    pump();
    ASSERT_EQ(link->video.size(), 2U);
    EXPECT_TRUE(link->video[1].key_frame());
}

TEST_F(ViewerTest, KeyFrameOnRequestAtOnce)
{
    watch();
    acknowledgeAll();
    now += 1ms; // long before the next frame is due
    viewer.requestKeyFrame(now);
    pump();
    ASSERT_EQ(link->video.size(), 2U);
    EXPECT_TRUE(link->video[1].key_frame());
}

TEST_F(ViewerTest, ManyRequestsAreOneKeyFrame)
{
    watch();
    for (int i = 0; i < 100; ++i) {
        now += 1ms;
        viewer.requestKeyFrame(now); // the first key frame is still on its way
        pump();
    }
    EXPECT_EQ(link->video.size(), 1U);
    acknowledgeAll();
    viewer.requestKeyFrame(now);
    pump();
    EXPECT_EQ(link->video.size(), 2U);
}

TEST_F(ViewerTest, NothingIsSentWhileNothingChanges)
{
    watch();
    acknowledgeAll();
    for (int i = 0; i < 100 && passTime(); ++i) {
        acknowledgeAll();
    }
    const std::size_t settled = link->video.size();
    EXPECT_LE(settled, 22U); // refinements
    EXPECT_FALSE(viewer.nextPump(now)) << "a still picture must cost nothing";
    now += 10s;
    pump();
    EXPECT_EQ(link->video.size(), settled);
}

TEST_F(ViewerTest, InputShowsAtOnceAndAnimationKeepsToTheRate)
{
    watch();
    acknowledgeAll();
    now += 100ms;
    change();
    ASSERT_EQ(link->video.size(), 2U);
    acknowledgeAll();
    now += 1ms;
    change();
    EXPECT_EQ(link->video.size(), 2U); // not due
    ASSERT_TRUE(viewer.nextPump(now));
    EXPECT_LE(*viewer.nextPump(now), now + 40ms);
    change(FrameCause::Press);
    EXPECT_EQ(link->video.size(), 3U);
}

TEST_F(ViewerTest, TheLastPictureOfManyAlwaysArrives)
{
    watch();
    TestDecoder decoder;
    std::size_t decoded = 0;
    std::optional<TestDecoder::Luma> luma;
    const auto receive = [&] {
        for (; decoded < link->video.size(); ++decoded) {
            luma = decoder.decode(link->video[decoded].data());
        }
        acknowledgeAll();
    };
    for (int i = 0; i < 50; ++i) {
        now += 3ms;
        show(scrolled(busyScreen(2), i * 11));
        change();
        if (i % 10 == 0) {
            receive();
        }
    }
    for (int i = 0; i < 60; ++i) {
        receive();
        if (!passTime()) {
            break;
        }
    }
    ASSERT_TRUE(luma);
    EXPECT_GT(psnr(*luma, picture), 38) << "the still picture must be the last one, and sharp";
    EXPECT_GT(counters->framesDropped, 0U);
}

TEST_F(ViewerTest, ACoarsePictureIsSharpenedOnLowLevelsToo)
{
    viewer.choose(client::ChooseRow{4});
    watch();
    const YuvPicture &full = picture;
    YuvPicture scaled(480, 848);
    scaled.scaleFrom(full);
    TestDecoder decoder;
    auto luma = decoder.decode(link->video[0].data());
    ASSERT_TRUE(luma);
    const double before = psnr(*luma, scaled);
    std::size_t decoded = 1;
    for (int i = 0; i < 60; ++i) {
        acknowledgeAll();
        if (!passTime()) {
            break;
        }
        for (; decoded < link->video.size(); ++decoded) {
            luma = decoder.decode(link->video[decoded].data());
            ASSERT_TRUE(luma);
            EXPECT_LT(link->sizes[decoded], 40'000U) << "a refinement must not stop the path";
        }
    }
    EXPECT_GT(psnr(*luma, scaled), before + 10);
}

TEST_F(ViewerTest, WithoutAcknowledgementsItStopsAndThenSendsTheNewest)
{
    watch();
    for (int i = 0; i < 200; ++i) {
        now += 40ms;
        show(scrolled(busyScreen(2), i * 3));
        change(FrameCause::Press);
    }
    const std::size_t sent = link->video.size();
    std::size_t bytes = 0;
    for (const std::size_t size : link->sizes) {
        bytes += size;
    }
    EXPECT_LT(bytes, 200'000U);
    EXPECT_LT(sent, 20U);
    EXPECT_FALSE(viewer.isWatching() && counters->framesDropped == 0);
    acknowledgeAll();
    pump();
    ASSERT_EQ(link->video.size(), sent + 1);
    EXPECT_EQ(link->video.back().capture_us(), toMicroseconds(now));
}

TEST_F(ViewerTest, DamagesWhatItIsAskedTo)
{
    TestDecoder intact;
    watch();
    acknowledgeAll();
    ASSERT_TRUE(intact.decode(link->video[0].data()));
    counters->corruptNext = 1;
    viewer.requestKeyFrame(now);
    pump();
    ASSERT_EQ(link->video.size(), 2U);
    TestDecoder fresh;
    const auto luma = fresh.decode(link->video[1].data());
    EXPECT_LT(luma ? psnr(*luma, picture) : 0, 20);
    EXPECT_EQ(counters->corruptNext, 0);
    acknowledgeAll();
    now += 1s;
    viewer.requestKeyFrame(now);
    pump();
    EXPECT_TRUE(fresh.decode(link->video.back().data()));
}

TEST_F(ViewerTest, RubbishAcknowledgementsChangeNothing)
{
    watch();
    viewer.acknowledge(0, now);
    viewer.acknowledge(99, now);
    viewer.acknowledge(~std::uint64_t(0), now);
    change(FrameCause::Press);
    EXPECT_LE(link->video.size(), 2U);
    EXPECT_FALSE(link->ended);
}

// --- A whole path: rate, delay and stalls ---

namespace {

class PathTest : public ViewerTest
{
protected:
    struct Result
    {
        std::chrono::milliseconds worstDelay{0}; // capture to arrival
        std::size_t frames = 0;
    };

    // Shows 25 pictures a second over the path for `duration`, in steps of a millisecond.
    Result run(std::chrono::seconds duration)
    {
        Result result;
        const TimePoint end = now + duration;
        for (; now < end; now += 1ms) {
            if (now >= nextChange) {
                nextChange = now + 40ms;
                ++shown;
                show(scrolled(scenes[static_cast<std::size_t>(shown) % scenes.size()], shown * 8));
                viewer.screenChanged(FrameCause::Animation);
            }
            step(result);
        }
        return result;
    }

    void step(Result &result)
    {
        while (!acks.empty() && acks.front().second <= now) {
            viewer.acknowledge(acks.front().first, now);
            acks.pop_front();
        }
        pump();
        for (; carried < link->video.size(); ++carried) {
            const double ms = double(link->sizes[carried]) * 8 / kbitPerSec;
            linkFree = std::max(linkFree, now) + std::chrono::microseconds(int(ms * 1000));
            const TimePoint arrival = linkFree + delay;
            const auto late = std::chrono::duration_cast<std::chrono::milliseconds>(arrival - now);
            result.worstDelay = std::max(result.worstDelay, late);
            ++result.frames;
            acks.emplace_back(link->video[carried].frame_id(), arrival + delay);
        }
        link->video.back().clear_data();
    }

    void stall(std::chrono::milliseconds time) { linkFree = std::max(linkFree, now) + time; }
    int row() const { return counters->levelRow; }

    // Every picture is new to the encoder: it takes whatever rate there is.
    const std::vector<QImage> scenes{
        busyScreen(1), busyScreen(2), busyScreen(3), busyScreen(4), busyScreen(5)};
    double kbitPerSec = 100'000;
    std::chrono::milliseconds delay{5}; // each way
    TimePoint linkFree = Start;
    TimePoint nextChange = Start;
    int shown = 0;
    std::size_t carried = 0;
    std::deque<std::pair<std::uint64_t, TimePoint>> acks;
};

} // namespace

TEST_F(PathTest, AFastPathKeepsTheBestLevelAndEveryFrame)
{
    viewer.learnPathDelay(2 * delay, now);
    watch();
    const Result result = run(5s);
    EXPECT_EQ(row(), 1);
    EXPECT_GE(result.frames, 122U);
    EXPECT_LT(result.worstDelay, 60ms);
}

TEST_F(PathTest, OneMegabitWithTwoHundredMillisecondsStaysBelowASecond)
{
    kbitPerSec = 1000;
    delay = 100ms;
    viewer.learnPathDelay(2 * delay, now);
    watch();
    run(3s);
    EXPECT_GE(row(), 4);
    const Result settled = run(12s);
    EXPECT_LT(settled.worstDelay, 900ms);
    EXPECT_GE(settled.frames, 60U);
}

TEST_F(PathTest, ASlowPathIsNoticedWithinAboutASecondAndRecoveredFrom)
{
    viewer.learnPathDelay(2 * delay, now);
    watch();
    run(3s);
    ASSERT_EQ(row(), 1);
    kbitPerSec = 1000;
    const Result first = run(2s);
    EXPECT_GE(row(), 4);
    EXPECT_LT(first.worstDelay, 1000ms);
    EXPECT_LT(run(8s).worstDelay, 600ms);
    kbitPerSec = 100'000;
    for (int seconds = 0; seconds < 60 && row() != 1; ++seconds) {
        run(1s);
    }
    EXPECT_EQ(row(), 1);
}

TEST_F(PathTest, StallsOfHalfASecondLeaveNoBacklog)
{
    kbitPerSec = 20'000;
    delay = 20ms;
    viewer.learnPathDelay(2 * delay, now);
    watch();
    for (int i = 0; i < 3; ++i) {
        run(1s);
        stall(500ms);
        EXPECT_LT(run(1s).worstDelay, 800ms);
        EXPECT_LT(run(1s).worstDelay, 150ms) << "after the stall it is as fast as before";
    }
}

TEST_F(PathTest, ALongWayIsNotTakenForAQueue)
{
    kbitPerSec = 50'000;
    delay = 200ms;
    viewer.learnPathDelay(2 * delay, now);
    watch();
    run(3s);
    EXPECT_EQ(row(), 1);
    EXPECT_GE(run(3s).frames, 72U); // 25 frames per second in spite of the delay
}

TEST_F(PathTest, AFixedLevelOnASlowPathLosesFramesAndNotTime)
{
    kbitPerSec = 1000;
    viewer.learnPathDelay(2 * delay, now);
    viewer.choose(client::ChooseRow{1});
    watch();
    run(3s);
    const Result result = run(15s);
    EXPECT_EQ(row(), 1);
    EXPECT_LT(result.worstDelay, 900ms);
    EXPECT_GT(counters->framesDropped, 50U);
}
