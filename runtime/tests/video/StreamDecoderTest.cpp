#include "video/StreamDecoder.h"
#include "TestEncoder.h"
#include "TestEnds.h"
#include "TestLog.h"

#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;
using swplay::AccessUnit;
using swplay::DecodePool;
using swplay::StreamDecoder;

// The stream is served by hand here: the pool never starts, and step() does what a worker would.
class StreamDecoderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        testlog::clear();
        m_stream = std::make_shared<StreamDecoder>("Player 1", m_pool, [this] { return m_now; });
        m_stream->setDisplay(&m_display);
        m_stream->setFeedback(m_feedback);
    }
    void TearDown() override { m_stream->close(); }

    void step()
    {
        while (m_stream->serve()) { }
    }
    // Gives the stream a unit and has it decoded.
    void feed(AccessUnit unit)
    {
        m_stream->accessUnit(std::move(unit));
        step();
    }
    int requests() { return m_feedback->requests(); }
    std::uint64_t lastShown() { return m_display.shown().empty() ? 0 : m_display.shown().back().frameId; }

    std::chrono::steady_clock::time_point m_now{1000s};
    DecodePool m_pool;
    std::shared_ptr<TestFeedback> m_feedback = std::make_shared<TestFeedback>();
    TestDisplay m_display;
    TestEncoder m_encoder{128, 96};
    std::shared_ptr<StreamDecoder> m_stream;
};

TEST_F(StreamDecoderTest, ShowsAndReportsEveryPicture)
{
    for (int i = 1; i <= 4; ++i) {
        m_now += 40ms;
        feed(m_encoder.next(i == 1));
        ASSERT_EQ(m_feedback->decoded().size(), std::size_t(i));
        EXPECT_EQ(m_feedback->decoded().back().frameId, std::uint64_t(i));
        EXPECT_EQ(m_feedback->decoded().back().captureUs, i * 40000);
        EXPECT_EQ(m_feedback->decoded().back().at, m_now);
        EXPECT_EQ(lastShown(), std::uint64_t(i));
        EXPECT_EQ(m_display.arrivals(), i);
    }
    EXPECT_EQ(requests(), 0);
}

TEST_F(StreamDecoderTest, SaysNothingArrivedWhenTheDisplayRefuses)
{
    m_display.renderResult = -1;
    feed(m_encoder.next(true));
    EXPECT_EQ(m_display.shown().size(), 1U);
    EXPECT_EQ(m_display.arrivals(), 0);
    EXPECT_EQ(m_feedback->decoded().size(), 1U); // it was decoded all the same
}

TEST_F(StreamDecoderTest, DecodesOnWithoutADisplay)
{
    m_stream->setDisplay(nullptr);
    feed(m_encoder.next(true));
    feed(m_encoder.next(false));
    EXPECT_EQ(m_feedback->decoded().size(), 2U);
    EXPECT_TRUE(m_display.shown().empty());
}

TEST_F(StreamDecoderTest, NewDisplayGetsTheLastPictureAtOnce)
{
    feed(m_encoder.next(true));
    feed(m_encoder.next(false));
    TestDisplay other;
    m_stream->setDisplay(&other);
    step();
    ASSERT_EQ(other.shown().size(), 1U);
    EXPECT_EQ(other.shown()[0].frameId, 2U);
    EXPECT_EQ(other.arrivals(), 1);
    EXPECT_EQ(m_feedback->decoded().size(), 2U); // not decoded again
    m_stream->setDisplay(&other); // the same again
    step();
    EXPECT_EQ(other.arrivals(), 1);
    feed(m_encoder.next(false));
    EXPECT_EQ(lastShown(), 2U);
    EXPECT_EQ(other.shown().back().frameId, 3U);
    m_stream->setDisplay(nullptr);
}

TEST_F(StreamDecoderTest, SkipsToTheFirstKeyFrameAndAsksForIt)
{
    m_encoder.next(true);
    feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 1);
    for (int i = 0; i < 20; ++i) {
        m_now += 40ms; // less than a second in all
        feed(m_encoder.next(false));
    }
    EXPECT_EQ(requests(), 1);
    m_now += 1s;
    feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 2); // the first did not help
    EXPECT_TRUE(m_display.shown().empty());
    feed(m_encoder.next(true));
    EXPECT_EQ(lastShown(), 24U);
    EXPECT_EQ(requests(), 2);
}

TEST_F(StreamDecoderTest, AKeyFrameThatIsNoneDoesNotCount)
{
    m_encoder.next(true);
    AccessUnit unit = m_encoder.next(false);
    unit.keyFrame = true;
    feed(std::move(unit));
    EXPECT_EQ(requests(), 1);
    EXPECT_TRUE(m_display.shown().empty());
}

TEST_F(StreamDecoderTest, MissingUnitNeedsAKeyFrame)
{
    feed(m_encoder.next(true));
    feed(m_encoder.next(false));
    m_encoder.next(false); // lost on the way
    feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(testlog::count("Player 1: units before number 4 are missing"), 1);
    feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(lastShown(), 2U);
    feed(m_encoder.next(true));
    EXPECT_EQ(lastShown(), 6U);
    feed(m_encoder.next(false));
    EXPECT_EQ(lastShown(), 7U);
}

TEST_F(StreamDecoderTest, AKeyFrameAfterAGapIsFine)
{
    feed(m_encoder.next(true));
    m_encoder.next(false);
    feed(m_encoder.next(true));
    EXPECT_EQ(requests(), 0);
    EXPECT_EQ(lastShown(), 3U);
}

// How a unit can be damaged.
class DamagedUnit : public StreamDecoderTest, public testing::WithParamInterface<void (*)(std::string &)>
{ };

TEST_P(DamagedUnit, AsksOnceAndRecoversOnTheKeyFrame)
{
    feed(m_encoder.next(true));
    AccessUnit unit = m_encoder.next(false);
    GetParam()(unit.data);
    feed(std::move(unit));
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(testlog::count("a unit is damaged"), 1);
    for (int i = 0; i < 5; ++i)
        feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(lastShown(), 1U);
    feed(m_encoder.next(true));
    feed(m_encoder.next(false));
    EXPECT_EQ(lastShown(), 9U);
    EXPECT_EQ(testlog::count("a unit is damaged"), 1);
    // A second loss is reported at once, however soon it comes.
    AccessUnit second = m_encoder.next(false);
    GetParam()(second.data);
    feed(std::move(second));
    EXPECT_EQ(requests(), 2);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedUnit,
    testing::Values(
        +[](std::string &data) { data.clear(); }, +[](std::string &data) { data.resize(6); },
        +[](std::string &data) { data.assign(300, '\0'); },
        +[](std::string &data) { data.assign(300, '\xa5'); },
        +[](std::string &data) {
            for (std::size_t i = 5; i < data.size(); ++i)
                data[i] = static_cast<char>(~data[i]);
        },
        // A slice that names picture parameter set 9, which was never sent.
        +[](std::string &data) { data.assign("\0\0\0\1\x41\xc5\x10\x3f\x55\x55", 10); }));

TEST_F(StreamDecoderTest, DamagedKeyFrameIsAskedForAgainOnlyAfterASecond)
{
    AccessUnit first = m_encoder.next(true);
    first.data.resize(first.data.size() / 2);
    feed(std::move(first));
    EXPECT_EQ(requests(), 1);
    AccessUnit second = m_encoder.next(true);
    second.data.resize(second.data.size() / 2);
    feed(std::move(second));
    EXPECT_EQ(requests(), 1); // no loop of requests with a sender that only has damaged ones
    m_now += StreamDecoder::KeyFrameRetryInterval;
    feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 2);
    feed(m_encoder.next(true));
    EXPECT_EQ(lastShown(), 4U);
}

TEST_F(StreamDecoderTest, DropsToAKeyFrameWhenDecodingFallsBehind)
{
    feed(m_encoder.next(true));
    for (std::size_t i = 0; i < StreamDecoder::MaxWaitingUnits; ++i)
        m_stream->accessUnit(m_encoder.next(false));
    EXPECT_EQ(requests(), 0);
    m_stream->accessUnit(m_encoder.next(false));
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(testlog::count("decoding has fallen behind"), 1);
    step();
    EXPECT_EQ(lastShown(), 1U); // nothing of the backlog
    feed(m_encoder.next(false));
    EXPECT_EQ(requests(), 1);
    feed(m_encoder.next(true));
    EXPECT_EQ(lastShown(), 12U);
}

TEST_F(StreamDecoderTest, BoundsTheMemoryThatWaits)
{
    feed(m_encoder.next(true));
    AccessUnit large = m_encoder.next(false);
    large.data.resize(StreamDecoder::MaxWaitingBytes / 2 + 1);
    m_stream->accessUnit(large);
    EXPECT_EQ(requests(), 0);
    large.frameId += 1;
    m_stream->accessUnit(large);
    EXPECT_EQ(requests(), 1);
}

TEST_F(StreamDecoderTest, AKeyFrameReplacesWhatWaits)
{
    feed(m_encoder.next(true));
    for (int i = 0; i < 3; ++i)
        m_stream->accessUnit(m_encoder.next(false));
    m_stream->accessUnit(m_encoder.next(true));
    m_stream->accessUnit(m_encoder.next(false));
    step();
    const std::vector<TestDisplay::Shown> shown = m_display.shown();
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[1].frameId, 5U);
    EXPECT_EQ(shown[2].frameId, 6U);
    EXPECT_EQ(requests(), 0);
}

TEST_F(StreamDecoderTest, ResetForgetsWhatWaits)
{
    feed(m_encoder.next(true));
    m_stream->accessUnit(m_encoder.next(false));
    m_stream->streamReset();
    step();
    EXPECT_EQ(lastShown(), 1U);
    TestEncoder anew(128, 96); // numbers from 1 again
    feed(anew.next(true));
    feed(anew.next(false));
    EXPECT_EQ(m_display.shown().size(), 3U);
    EXPECT_EQ(lastShown(), 2U);
    EXPECT_EQ(requests(), 0);
    // A connection that begins without a key frame is asked at once, however lately the last one was.
    m_stream->streamReset();
    feed(anew.next(false));
    m_stream->streamReset();
    feed(anew.next(false));
    EXPECT_EQ(requests(), 2);
}

TEST_F(StreamDecoderTest, DamageFoundWhenAKeyFrameIsWaitingAlreadyIsNotReported)
{
    feed(m_encoder.next(true));
    AccessUnit damaged = m_encoder.next(false);
    damaged.data.resize(6);
    const AccessUnit key = m_encoder.next(true);
    const AccessUnit after = m_encoder.next(false);
    // A worker has taken the damaged unit and tells the display the rotation first; the rest arrives
    // meanwhile.
    m_display.duringRotation = [&] {
        m_stream->accessUnit(key);
        m_stream->accessUnit(after);
    };
    m_stream->screenRotation(1);
    feed(damaged);
    EXPECT_EQ(requests(), 0);
    EXPECT_EQ(testlog::lines(), std::vector<std::string>());
    EXPECT_EQ(m_display.shown().size(), 3U);
    EXPECT_EQ(lastShown(), 4U);
}

TEST_F(StreamDecoderTest, SizeChangeGoesThrough)
{
    feed(m_encoder.next(true));
    TestEncoder larger(320, 240);
    feed(larger.next(true));
    feed(larger.next(false));
    const std::vector<TestDisplay::Shown> shown = m_display.shown();
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[0].width, 128);
    EXPECT_EQ(shown[2].width, 320);
    EXPECT_EQ(shown[2].height, 240);
    EXPECT_EQ(requests(), 0);
}

TEST_F(StreamDecoderTest, PictureThatIsTooLargeIsReportedOnce)
{
    TestEncoder huge(swplay::H264Decoder::MaxSide + 16, 32);
    for (int i = 0; i < 3; ++i)
        feed(huge.next(i == 0));
    EXPECT_TRUE(m_display.shown().empty());
    EXPECT_EQ(requests(), 0); // a key frame would not help
    EXPECT_EQ(testlog::count("Player 1: cannot show the stream: a picture of 4112 x 32"), 1);
    feed(m_encoder.next(true));
    EXPECT_EQ(m_display.arrivals(), 1);
}

TEST_F(StreamDecoderTest, TellsTheDisplayTheNewestRotation)
{
    m_stream->screenRotation(1);
    m_stream->screenRotation(2);
    m_stream->screenRotation(3);
    EXPECT_TRUE(m_display.rotations().empty()); // never on the network thread
    step();
    EXPECT_EQ(m_display.rotations(), std::vector<int>{3});
    feed(m_encoder.next(true));
    EXPECT_EQ(m_display.rotations().size(), 1U);
}

TEST_F(StreamDecoderTest, RotationWaitsForADisplay)
{
    m_stream->setDisplay(nullptr);
    m_stream->screenRotation(1);
    step();
    m_stream->setDisplay(&m_display);
    step();
    EXPECT_EQ(m_display.rotations(), std::vector<int>{1});
}

TEST_F(StreamDecoderTest, NothingHappensAfterClose)
{
    feed(m_encoder.next(true));
    m_stream->accessUnit(m_encoder.next(false));
    m_stream->screenRotation(1);
    m_stream->close();
    m_stream->accessUnit(m_encoder.next(true));
    m_stream->screenRotation(3);
    m_stream->streamReset();
    m_stream->setFeedback(m_feedback);
    m_stream->setDisplay(&m_display);
    step();
    EXPECT_EQ(m_display.shown().size(), 1U);
    EXPECT_TRUE(m_display.rotations().empty());
    EXPECT_EQ(m_feedback->decoded().size(), 1U);
    EXPECT_EQ(requests(), 0);
}

TEST_F(StreamDecoderTest, SessionThatIsGoneIsNotAsked)
{
    feed(m_encoder.next(true));
    m_feedback = nullptr;
    feed(AccessUnit{});
    feed(m_encoder.next(true));
    EXPECT_EQ(m_display.shown().size(), 2U);
    m_feedback = std::make_shared<TestFeedback>();
}

// What blocks until a worker has left, with a real thread as the worker.
class StreamDecoderBlockingTest : public StreamDecoderTest
{
protected:
    // Has a unit decoded on another thread and returns once that thread is inside render, where it stays
    // until m_release is set.
    void enterRender()
    {
        m_display.duringRender = [this] {
            m_signal.change([this] { m_inside = true; });
            EXPECT_TRUE(m_signal.wait([this] { return m_release; }));
            m_signal.change([this] { m_inside = false; });
        };
        m_stream->accessUnit(m_encoder.next(true));
        m_worker = std::thread([this] { step(); });
        ASSERT_TRUE(m_signal.wait([this] { return m_inside; }));
    }
    // Whether a call, on a thread of its own, returns only after the worker has left render.
    bool waitsForRender(const std::function<void()> &call)
    {
        bool insideAtReturn = false;
        std::thread caller([&] {
            call();
            m_signal.change([&] {
                m_returned = true;
                insideAtReturn = m_inside;
            });
        });
        const bool waited = m_signal.staysFalse([this] { return m_returned; });
        m_signal.change([this] { m_release = true; });
        caller.join();
        m_worker.join();
        return waited && !insideAtReturn;
    }

    Signal m_signal;
    bool m_inside = false;
    bool m_returned = false;
    bool m_release = false;
    std::thread m_worker;
};

TEST_F(StreamDecoderBlockingTest, CloseWaitsForTheCallback)
{
    enterRender();
    EXPECT_TRUE(waitsForRender([this] { m_stream->close(); }));
}

TEST_F(StreamDecoderBlockingTest, TakingTheDisplayWaitsForTheCallback)
{
    enterRender();
    EXPECT_TRUE(waitsForRender([this] { m_stream->setDisplay(nullptr); }));
}

TEST_F(StreamDecoderBlockingTest, ReplacingTheDisplayWaitsForTheCallback)
{
    TestDisplay other;
    enterRender();
    EXPECT_TRUE(waitsForRender([&] { m_stream->setDisplay(&other); }));
    step();
    EXPECT_EQ(other.shown().size(), 1U);
    m_stream->setDisplay(nullptr);
}

TEST_F(StreamDecoderBlockingTest, NetworkThreadIsNeverHeldUp)
{
    enterRender();
    m_stream->accessUnit(m_encoder.next(false));
    m_stream->screenRotation(1);
    m_stream->streamReset();
    m_stream->setFeedback(m_feedback);
    EXPECT_TRUE(m_signal.read([this] { return m_inside; }));
    m_signal.change([this] { m_release = true; });
    m_worker.join();
}

TEST_F(StreamDecoderTest, DisplayMayBeTakenAndStreamClosedFromACallback)
{
    m_display.duringRender = [this] {
        m_stream->setDisplay(nullptr);
        m_stream->close();
    };
    feed(m_encoder.next(true));
    feed(m_encoder.next(false));
    EXPECT_EQ(m_display.shown().size(), 1U);
}
