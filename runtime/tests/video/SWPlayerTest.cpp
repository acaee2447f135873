#include "swplay/SWPlayer.h"
#include "TestEncoder.h"
#include "TestEnds.h"
#include "TestLog.h"
#include "swplay/DataSource.h"
#include "video/DecodePool.h"

#include <gtest/gtest.h>

#include <mutex>
#include <string>
#include <thread>

using swplay::VideoSink;

// The session half is not part of these tests.
DataSource::~DataSource() = default;

namespace {

class TestDataSource : public DataSource
{
public:
    int screenCast(int) override { return 0; }
    void stop() override { ++stops; }
    void attachSink(std::shared_ptr<VideoSink> newSink) override
    {
        sink = std::move(newSink);
        calls += sink ? "attach " : "detach ";
        if (sink)
            sink->setFeedback(feedback);
    }
    int start() override
    {
        calls += "start ";
        return startResult;
    }

    std::shared_ptr<TestFeedback> feedback = std::make_shared<TestFeedback>();
    std::shared_ptr<VideoSink> sink;
    std::string calls;
    int startResult = 0;
    int stops = 0;
};

} // namespace

class SWPlayerTest : public testing::Test
{
protected:
    void SetUp() override { swplay::startDecodePool(); }
    void TearDown() override { swplay::stopDecodePool(); }

    std::shared_ptr<TestDataSource> m_source = std::make_shared<TestDataSource>();
    TestEncoder m_encoder{128, 96};
    TestDisplay m_display;
};

TEST_F(SWPlayerTest, IdsAreUniqueFromOne)
{
    SWPlayer first;
    SWPlayer second;
    EXPECT_GE(first.getId(), 1U);
    EXPECT_GT(second.getId(), first.getId());
}

TEST_F(SWPlayerTest, PlaysADataSourceOnADisplay)
{
    SWPlayer player;
    EXPECT_EQ(player.setDataSource(m_source), 0);
    EXPECT_EQ(player.getDataSource(), m_source);
    player.setDisplay(&m_display);
    EXPECT_EQ(player.start(), 0);
    EXPECT_EQ(m_source->calls, "attach start ");
    m_source->sink->accessUnit(m_encoder.next(true));
    EXPECT_TRUE(m_display.waitForArrivals(1));
    EXPECT_EQ(player.start(), 0); // is playing already
    EXPECT_EQ(m_source->calls, "attach start ");
    player.stop();
    EXPECT_EQ(m_source->calls, "attach start detach ");
    EXPECT_EQ(m_source->stops, 0); // the data source goes on
    EXPECT_EQ(player.getDataSource(), m_source);
}

TEST_F(SWPlayerTest, DoesNotStartWithoutADataSource)
{
    testlog::clear();
    SWPlayer player;
    EXPECT_EQ(player.start(), -1);
    EXPECT_EQ(testlog::count("cannot start without a data source"), 1);
}

TEST_F(SWPlayerTest, DoesNotStartBeforeTheRuntime)
{
    testlog::clear();
    swplay::stopDecodePool();
    SWPlayer player;
    player.setDataSource(m_source);
    EXPECT_EQ(player.start(), -1);
    EXPECT_EQ(testlog::count("cannot start before SWRuntime::init"), 1);
    EXPECT_EQ(m_source->calls, "");
    swplay::startDecodePool();
    EXPECT_EQ(player.start(), 0);
}

TEST_F(SWPlayerTest, GivesUpWhenTheDataSourceDoes)
{
    SWPlayer player;
    m_source->startResult = -1;
    player.setDataSource(m_source);
    EXPECT_EQ(player.start(), -1);
    EXPECT_EQ(m_source->calls, "attach start detach ");
    m_source->startResult = 0;
    EXPECT_EQ(player.start(), 0);
}

TEST_F(SWPlayerTest, StopIsHarmlessAtAnyTime)
{
    SWPlayer player;
    player.stop();
    player.detachDataSource();
    player.setDisplay(nullptr);
    player.setDataSource(m_source);
    player.stop();
    EXPECT_EQ(m_source->calls, "");
    player.start();
    player.stop();
    player.stop();
    player.detachDataSource();
    EXPECT_EQ(m_source->calls, "attach start detach ");
    EXPECT_EQ(player.getDataSource(), nullptr);
}

TEST_F(SWPlayerTest, DetachedDataSourceReachesThePlayerNoMore)
{
    SWPlayer player;
    player.setDataSource(m_source);
    player.setDisplay(&m_display);
    player.start();
    const std::shared_ptr<VideoSink> sink = m_source->sink;
    sink->accessUnit(m_encoder.next(true));
    ASSERT_TRUE(m_display.waitForArrivals(1));
    player.detachDataSource();
    EXPECT_EQ(m_source->sink, nullptr);
    sink->accessUnit(m_encoder.next(true)); // one that was on its way
    sink->screenRotation(1);
    player.stop();
    swplay::stopDecodePool();
    EXPECT_EQ(m_display.arrivals(), 1);
    EXPECT_TRUE(m_display.rotations().empty());
}

TEST_F(SWPlayerTest, ReplacedDataSourceIsLetGo)
{
    SWPlayer player;
    player.setDisplay(&m_display);
    player.setDataSource(m_source);
    player.start();
    EXPECT_EQ(player.setDataSource(m_source), 0); // the same: plays on
    EXPECT_EQ(m_source->calls, "attach start ");
    const auto other = std::make_shared<TestDataSource>();
    EXPECT_EQ(player.setDataSource(other), 0);
    EXPECT_EQ(m_source->calls, "attach start detach ");
    EXPECT_EQ(m_source.use_count(), 1);
    EXPECT_EQ(other->calls, "");
    EXPECT_EQ(player.start(), 0);
    other->sink->accessUnit(m_encoder.next(true));
    EXPECT_TRUE(m_display.waitForArrivals(1));
}

TEST_F(SWPlayerTest, MayBeDestroyedWhilePlaying)
{
    std::shared_ptr<VideoSink> sink;
    {
        SWPlayer player;
        player.setDataSource(m_source);
        player.setDisplay(&m_display);
        player.start();
        sink = m_source->sink;
        sink->accessUnit(m_encoder.next(true));
    }
    const int arrivals = m_display.arrivals();
    for (int i = 0; i < 5; ++i)
        sink->accessUnit(m_encoder.next(true));
    swplay::stopDecodePool();
    EXPECT_EQ(m_display.arrivals(), arrivals);
    EXPECT_EQ(m_source->calls, "attach start detach ");
}

TEST_F(SWPlayerTest, PlaysAgainAfterAStop)
{
    SWPlayer player;
    player.setDataSource(m_source);
    player.setDisplay(&m_display);
    player.start();
    m_source->sink->accessUnit(m_encoder.next(true));
    ASSERT_TRUE(m_display.waitForArrivals(1));
    player.stop();
    EXPECT_EQ(player.start(), 0);
    EXPECT_EQ(m_source->calls, "attach start detach attach start ");
    m_source->sink->accessUnit(m_encoder.next(false)); // the running stream goes on where it is
    EXPECT_EQ(m_source->feedback->requests(), 1);
    m_source->sink->accessUnit(m_encoder.next(true));
    EXPECT_TRUE(m_display.waitForArrivals(2));
}

TEST_F(SWPlayerTest, DisplayIsToldOfRotations)
{
    SWPlayer player;
    player.setDataSource(m_source);
    player.setDisplay(&m_display);
    player.start();
    m_source->sink->screenRotation(3);
    EXPECT_TRUE(m_display.waitForRotation());
    EXPECT_EQ(m_display.rotations(), std::vector<int>{3});
}

TEST_F(SWPlayerTest, StopDoesNotWaitForALockThatItsCallerDoesNotHold)
{
    // A window's callbacks take its lock, and so does its painting; stopping must get through all the same.
    std::mutex windowLock;
    m_display.duringRender = [&] { const std::lock_guard lock(windowLock); };
    for (int i = 0; i < 50; ++i) {
        SWPlayer player;
        player.setDataSource(m_source);
        player.setDisplay(&m_display);
        player.start();
        {
            const std::lock_guard lock(windowLock);
            m_source->sink->accessUnit(m_encoder.next(true));
        }
        if (i % 2 == 0)
            player.setDisplay(nullptr);
        player.stop();
    }
    SUCCEED();
}
