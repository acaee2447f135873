#include "Pixels.h"
#include "TestEncoder.h"
#include "TestEnds.h"
#include "swplay/VideoDisplayWinBase.h"
#include "video/DecodePool.h"
#include "video/StreamDecoder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using swplay::DecodePool;
using swplay::StreamDecoder;

namespace {

// A window that lives through everything its threads can do to it.
class Window : public VideoDisplayWinBase
{
public:
    void onFrameArrival() override
    {
        m_signal.change([this] { ++m_arrivals; });
    }
    void onScreenRotation(int) override { }
    bool waitForArrivals(int count)
    {
        return m_signal.wait([&] { return m_arrivals >= count; });
    }

private:
    Signal m_signal;
    int m_arrivals = 0;
};

constexpr int Side = 64;
constexpr int Pictures = 600;

// Sends pictures of one grey each, as the network thread would. Waits for a few, so that the stream does not
// only ever fall behind.
void send(StreamDecoder &stream, TestFeedback &feedback)
{
    TestEncoder encoder(Side, Side);
    for (int i = 1; i <= Pictures; ++i) {
        const auto luma = std::uint8_t(40 + i % 160);
        const bool keyFrame = i % 10 == 1;
        stream.accessUnit(encoder.encode(TestPicture::flat(Side, Side, luma), keyFrame));
        if (i % 50 == 0)
            stream.streamReset();
        else if (keyFrame && !feedback.waitForDecoded(std::uint64_t(i)))
            ADD_FAILURE() << "unit " << i << " was not decoded";
        if (i % 7 == 0)
            stream.screenRotation(i % 4);
    }
}

// Paints until `done`: whatever is locked is one picture, not a mix of two, and stays it.
int paint(Window &window, const std::atomic<bool> &done)
{
    int painted = 0;
    while (!done) {
        const FrameBuffer *buffer = window.lockFrameBuffer();
        if (!buffer) {
            std::this_thread::yield();
            continue;
        }
        const int first = onlyGrey(*buffer);
        std::this_thread::yield();
        const int second = onlyGrey(*buffer);
        window.unlockFrameBuffer();
        EXPECT_NE(first, -1);
        EXPECT_EQ(first, second);
        ++painted;
    }
    return painted;
}

} // namespace

TEST(VideoThreads, WindowAndStreamsUnderEverythingAtOnce)
{
    DecodePool pool;
    pool.start();
    Window window;
    Window spare;
    ASSERT_EQ(window.setDstFormat(-1, Side, Side, 0), 0);
    ASSERT_EQ(spare.setDstFormat(-1, Side, Side, 0), 0);
    const auto feedback = std::make_shared<TestFeedback>();
    const auto stream = std::make_shared<StreamDecoder>("hammered", pool);
    stream->setFeedback(feedback);
    stream->setDisplay(&window);

    std::atomic<bool> done{false};
    std::thread painter([&] { paint(window, done); });
    std::thread resizer([&] {
        for (int i = 0; !done; ++i) {
            window.setDstFormat(-1, i % 2 ? Side : Side / 2, Side, 0);
            std::this_thread::yield();
        }
    });
    std::thread network([&] {
        send(*stream, *feedback);
        done = true;
    });
    for (int i = 0; !done; ++i) {
        VideoDisplay *const targets[] = {&window, nullptr, &spare};
        stream->setDisplay(targets[i % 3]);
        std::this_thread::yield();
    }
    network.join();
    painter.join();
    resizer.join();
    stream->close();
    pool.stop();
    EXPECT_FALSE(feedback->decoded().empty());
}

TEST(VideoThreads, EveryPictureReachesAWindowThatKeepsUp)
{
    DecodePool pool;
    pool.start();
    Window window;
    ASSERT_EQ(window.setDstFormat(-1, Side, Side, 0), 0);
    const auto feedback = std::make_shared<TestFeedback>();
    const auto stream = std::make_shared<StreamDecoder>("steady", pool);
    stream->setFeedback(feedback);
    stream->setDisplay(&window);
    TestEncoder encoder(Side, Side);
    for (int i = 1; i <= 100; ++i) {
        const auto luma = std::uint8_t(40 + i);
        stream->accessUnit(encoder.encode(TestPicture::flat(Side, Side, luma), i == 1));
        ASSERT_TRUE(window.waitForArrivals(i));
        const FrameBuffer *buffer = window.lockFrameBuffer();
        ASSERT_NE(buffer, nullptr);
        EXPECT_NEAR(onlyGrey(*buffer), TestPicture::greyOf(luma), 3);
        window.unlockFrameBuffer();
    }
    stream->close();
    pool.stop();
}

TEST(VideoThreads, StreamsCloseWhileUnitsArrive)
{
    DecodePool pool;
    pool.start();
    TestEncoder encoder(Side, Side);
    const swplay::AccessUnit key = encoder.next(true);
    for (int round = 0; round < 100; ++round) {
        Window window;
        window.setDstFormat(-1, Side, Side, 0);
        auto stream = std::make_shared<StreamDecoder>("short", pool);
        stream->setDisplay(&window);
        std::atomic<bool> done{false};
        std::thread network([&, sink = stream] {
            while (!done)
                sink->accessUnit(key);
        });
        EXPECT_TRUE(window.waitForArrivals(round % 3));
        stream->close();
        stream.reset();
        done = true;
        network.join();
    }
    pool.stop();
}
