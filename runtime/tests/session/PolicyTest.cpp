// The small deciders of a session, each with times and chance from the test.

#include "session/ClockOffset.h"
#include "session/Endpoint.h"
#include "session/PeerWatch.h"
#include "session/ReconnectPolicy.h"
#include "session/StreamInfo.h"
#include "session/VideoSettings.h"

#include <gtest/gtest.h>

using namespace swplay;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::steady_clock::time_point Start{1h};

std::vector<std::int64_t> delays(ReconnectPolicy &policy, int count)
{
    std::vector<std::int64_t> result;
    for (int i = 0; i < count; ++i)
        result.push_back(policy.nextDelay().count());
    return result;
}

using Delays = std::vector<std::int64_t>;

} // namespace

TEST(ReconnectPolicy, FirstTryAtOnceThenBackingOffTo8SecondsForEver)
{
    ReconnectPolicy longest([] { return 1.0; });
    EXPECT_EQ(delays(longest, 10), (Delays{0, 250, 500, 1000, 2000, 4000, 8000, 8000, 8000, 8000}));
    for (int i = 0; i < 100'000; ++i)
        longest.nextDelay();
    EXPECT_EQ(longest.nextDelay(), 8000ms);
    ReconnectPolicy shortest([] { return 0.0; });
    EXPECT_EQ(delays(shortest, 8), (Delays{0, 125, 250, 500, 1000, 2000, 4000, 4000}));
}

TEST(ReconnectPolicy, GoodConnectionEarnsATryAtOnce)
{
    ReconnectPolicy policy([] { return 1.0; });
    delays(policy, 5);
    policy.signedIn(Start);
    policy.lost(Start + ReconnectPolicy::StableAfter);
    EXPECT_EQ(delays(policy, 3), (Delays{0, 250, 500}));
}

TEST(ReconnectPolicy, ConnectionThatBreaksSoonDoesNot)
{
    ReconnectPolicy policy([] { return 1.0; });
    delays(policy, 3);
    policy.signedIn(Start);
    policy.lost(Start + ReconnectPolicy::StableAfter - 1ms);
    EXPECT_EQ(delays(policy, 2), (Delays{1000, 2000}));
}

TEST(ReconnectPolicy, BusyGatewayIsGivenTime)
{
    ReconnectPolicy policy([] { return 1.0; });
    EXPECT_EQ(policy.nextDelay(false), 250ms);
    EXPECT_EQ(policy.nextDelay(false), 500ms);
}

TEST(ClockOffset, ShortestRoundTripCounts)
{
    ClockOffset clock;
    EXPECT_FALSE(clock.offset());
    clock.add(1000, 501'500, 2000); // 1 ms round trip, in the middle at 1500
    EXPECT_EQ(clock.offset(), 500'000us);
    clock.add(10'000, 600'000, 30'000); // slower: does not count
    EXPECT_EQ(clock.offset(), 500'000us);
    clock.add(40'000, 540'200, 40'200); // faster
    EXPECT_EQ(clock.offset(), 500'100us);
    EXPECT_EQ(clock.roundTrip(), 200us);
}

TEST(ClockOffset, OldSamplesGo)
{
    ClockOffset clock;
    clock.add(0, 1000, 2);
    for (std::size_t i = 0; i < ClockOffset::KeptSamples; ++i)
        clock.add(100, 100 + 50 + 7000, 200);
    EXPECT_EQ(clock.offset(), 7000us);
    clock.reset();
    EXPECT_FALSE(clock.offset());
    EXPECT_FALSE(clock.roundTrip());
}

TEST(ClockOffset, NonsenseIsIgnored)
{
    ClockOffset clock;
    clock.add(2000, 0, 1000); // answered before it was asked
    clock.add(std::numeric_limits<std::int64_t>::min(), 0, 1000);
    clock.add(0, std::numeric_limits<std::int64_t>::max(), 1000);
    EXPECT_FALSE(clock.offset());
}

TEST(PeerWatch, SilenceAndStuckWrites)
{
    PeerWatch watch(4s, 30s);
    watch.reset(Start);
    EXPECT_EQ(watch.verdict(Start + 3999ms), nullptr);
    EXPECT_STREQ(watch.verdict(Start + 4s), "the gateway is silent");
    watch.heard(Start + 3s);
    EXPECT_EQ(watch.verdict(Start + 6999ms), nullptr);
    watch.writeStarted(Start + 1s);
    watch.heard(Start + 31s);
    EXPECT_STREQ(watch.verdict(Start + 31s), "the gateway does not read");
    watch.writeDone();
    EXPECT_EQ(watch.verdict(Start + 31s), nullptr);
    watch.writeStarted(Start + 32s);
    watch.reset(Start + 33s);
    watch.heard(Start + 70s);
    EXPECT_EQ(watch.verdict(Start + 70s), nullptr);
}

TEST(StreamInfo, FiguresOfASecond)
{
    StreamInfo info;
    info.reset(Start);
    // Our clock is at 3600 s, the gateway's 1000 s ahead. Captured 20 and 40 ms before it was decoded.
    const std::int64_t gatewayUs = 4'600'000'000;
    info.received(64'000, 720, 1280);
    info.received(64'000, 720, 1280);
    info.decoded(gatewayUs + 500'000 - 20'000, Start + 500ms);
    info.decoded(gatewayUs + 600'000 - 40'000, Start + 600ms);
    EXPECT_EQ(info.report(Start + 1s, 1'000'000'000us, 3),
        R"({"delayTime":30,"width":720,"height":1280,"frameRate":2,"bitRate":1024,"level":3})");
    // A still screen: the rates are zero, the delay is the last one.
    EXPECT_EQ(info.report(Start + 2s, 1'000'000'000us, -1),
        R"({"delayTime":30,"width":720,"height":1280,"frameRate":0,"bitRate":0,"level":-1})");
}

TEST(StreamInfo, NothingBeforeItIsKnown)
{
    StreamInfo info;
    info.reset(Start);
    EXPECT_FALSE(info.report(Start + 1s, 0us, 0)); // no picture
    info.decoded(0, Start + 1s);
    EXPECT_FALSE(info.report(Start + 2s, std::nullopt, 0)); // no pong
    EXPECT_TRUE(info.report(Start + 3s, 0us, 0)); // the picture is not forgotten
    info.reset(Start + 4s);
    EXPECT_FALSE(info.report(Start + 5s, 0us, 0)); // another connection
}

TEST(StreamInfo, NonsensicalCaptureTimes)
{
    StreamInfo info;
    info.reset(Start);
    info.decoded(std::numeric_limits<std::int64_t>::min(), Start);
    EXPECT_EQ(info.report(Start + 1s, 0us, 0)->substr(0, 19), R"({"delayTime":999999)");
    info.decoded(std::numeric_limits<std::int64_t>::max(), Start);
    EXPECT_EQ(info.report(Start + 2s, 0us, 0)->substr(0, 15), R"({"delayTime":0,)");
}

TEST(VideoSettings, TellsEachChangeOnceAndAllAnew)
{
    VideoSettings settings;
    settings.tellAll();
    EXPECT_FALSE(settings.takeUntold()); // what was never set is left to the gateway
    settings.setScreenCast(3);
    settings.chooseRow(2);
    settings.setLevels(std::vector<VideoLevel>(4));
    EXPECT_EQ(settings.takeUntold()->video_levels().levels_size(), 4);
    settings.chooseRow(1);
    EXPECT_EQ(settings.takeUntold()->video_level_choice().index(), 1);
    EXPECT_EQ(settings.takeUntold()->screen_cast().mode(), wire::ScreenCast::FULL);
    EXPECT_FALSE(settings.takeUntold());
    VideoLevel custom;
    custom.width = 144;
    settings.chooseCustom(custom);
    EXPECT_EQ(settings.takeUntold()->video_level_choice().custom().width(), 144);
    EXPECT_EQ(settings.chosen().width, 144);
    settings.tellAll();
    EXPECT_TRUE(settings.takeUntold()->has_video_levels());
    EXPECT_TRUE(settings.takeUntold()->video_level_choice().has_custom());
    EXPECT_TRUE(settings.takeUntold()->has_screen_cast());
    EXPECT_FALSE(settings.takeUntold());
}

TEST(Endpoint, Addresses)
{
    const auto check = [](const char *address, const char *authority, bool tls) {
        const auto endpoint = parseEndpoint(address, 8181);
        ASSERT_TRUE(endpoint) << address;
        EXPECT_EQ(endpoint->authority(), authority);
        EXPECT_EQ(endpoint->tls, tls);
    };
    check("127.0.0.1", "127.0.0.1:8181", false);
    check("gw-1.example.org", "gw-1.example.org:8181", false);
    check("ws://gw.example.org", "gw.example.org:8181", false);
    check("wss://gw.example.org/", "gw.example.org:8181", true);
    check("WSS://10.0.0.1", "10.0.0.1:8181", true);
    check("::1", "[::1]:8181", false);
    check("wss://[2001:db8::5]", "[2001:db8::5]:8181", true);
    for (const char *bad : {"", "ws://", "http://gw", "gw/path", "gw:80", "a b", "[gw]", "[]", "gw\r\nX: y",
             "-gw", ".gw", "user@gw", "ws:///"})
        EXPECT_FALSE(parseEndpoint(bad, 8181)) << bad;
    EXPECT_FALSE(parseEndpoint("gw", 0));
    EXPECT_FALSE(parseEndpoint(std::string(254, 'a'), 1));
}
