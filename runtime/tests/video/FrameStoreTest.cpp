#include "video/FrameStore.h"
#include "Pixels.h"
#include "TestPicture.h"
#include "video/I420.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

using swplay::FrameStore;
using swplay::SharedFrame;

namespace {

constexpr int Width = 64;
constexpr int Height = 32;

SharedFrame grey(std::uint8_t luma)
{
    swplay::FramePtr frame = swplay::makeI420(Width, Height);
    std::fill_n(frame->data[0], frame->linesize[0] * Height, luma);
    std::fill_n(frame->data[1], frame->linesize[1] * Height / 2, std::uint8_t(128));
    std::fill_n(frame->data[2], frame->linesize[2] * Height / 2, std::uint8_t(128));
    return frame;
}

// Locks, reads the grey of the whole buffer and unlocks; -1 if there is no picture.
int fetchedGrey(FrameStore &store)
{
    const FrameBuffer *buffer = store.lock();
    if (!buffer)
        return -1;
    const int result = onlyGrey(*buffer);
    store.unlock();
    return result;
}

std::vector<std::uint8_t> bytesOf(const FrameBuffer &buffer)
{
    return {buffer.data, buffer.data + std::ptrdiff_t(buffer.stride) * buffer.height};
}

} // namespace

class FrameStoreTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_store.setSize(Width, Height)); }
    FrameStore m_store;
};

TEST(FrameStore, KeepsNothingWithoutASize)
{
    FrameStore store;
    EXPECT_FALSE(store.put(grey(100)));
    EXPECT_EQ(store.lock(), nullptr);
    EXPECT_TRUE(store.setSize(Width, Height));
    EXPECT_EQ(store.lock(), nullptr);
    EXPECT_EQ(store.conversions(), 0U);
}

TEST(FrameStore, RefusesSizesOutOfRange)
{
    FrameStore store;
    EXPECT_FALSE(store.setSize(0, 1));
    EXPECT_FALSE(store.setSize(1, 0));
    EXPECT_FALSE(store.setSize(8193, 1));
    EXPECT_FALSE(store.setSize(1, 8193));
    EXPECT_TRUE(store.setSize(8192, 1));
    EXPECT_TRUE(store.setSize(1, 8192));
}

TEST_F(FrameStoreTest, NewestPictureWins)
{
    for (int luma = 40; luma <= 200; luma += 20)
        EXPECT_TRUE(m_store.put(grey(std::uint8_t(luma))));
    EXPECT_NEAR(fetchedGrey(m_store), TestPicture::greyOf(200), 2);
}

TEST_F(FrameStoreTest, PicturesNobodyFetchesAreNotConverted)
{
    for (int i = 0; i < 100; ++i)
        m_store.put(grey(60));
    EXPECT_EQ(m_store.conversions(), 0U);
    fetchedGrey(m_store); // converts the newest
    EXPECT_EQ(m_store.conversions(), 1U);
    fetchedGrey(m_store); // the same picture again
    EXPECT_EQ(m_store.conversions(), 1U);
    for (int i = 0; i < 100; ++i)
        m_store.put(grey(70)); // the first, since the one before was fetched
    EXPECT_EQ(m_store.conversions(), 2U);
}

TEST_F(FrameStoreTest, ConvertsOnArrivalWhileTheWindowKeepsUp)
{
    m_store.put(grey(50));
    fetchedGrey(m_store);
    for (int i = 0; i < 10; ++i) {
        const auto luma = std::uint8_t(60 + i * 10);
        m_store.put(grey(luma));
        const std::uint64_t onArrival = m_store.conversions();
        EXPECT_EQ(onArrival, std::uint64_t(i) + 2);
        EXPECT_NEAR(fetchedGrey(m_store), TestPicture::greyOf(luma), 2);
        EXPECT_EQ(m_store.conversions(), onArrival); // fetching had nothing left to do
    }
}

TEST_F(FrameStoreTest, LockedBufferIsNotWritten)
{
    m_store.put(grey(50));
    const FrameBuffer *locked = m_store.lock();
    ASSERT_NE(locked, nullptr);
    const FrameBuffer view = *locked;
    const std::vector<std::uint8_t> before = bytesOf(view);
    for (int i = 0; i < 20; ++i)
        m_store.put(grey(std::uint8_t(100 + i)));
    EXPECT_EQ(locked->data, view.data);
    EXPECT_EQ(bytesOf(view), before);
    m_store.unlock();
    EXPECT_NEAR(fetchedGrey(m_store), TestPicture::greyOf(119), 2);
}

TEST_F(FrameStoreTest, PictureConvertedDuringALockIsShownAfterIt)
{
    m_store.put(grey(50));
    ASSERT_NE(m_store.lock(), nullptr);
    m_store.put(grey(150)); // into the back buffer
    EXPECT_EQ(m_store.conversions(), 2U);
    m_store.unlock();
    EXPECT_NEAR(fetchedGrey(m_store), TestPicture::greyOf(150), 2);
    EXPECT_EQ(m_store.conversions(), 2U);
}

TEST_F(FrameStoreTest, UsesTwoAlignedBuffersOnly)
{
    std::vector<const std::uint8_t *> seen;
    for (int i = 0; i < 10; ++i) {
        m_store.put(grey(60));
        const FrameBuffer *buffer = m_store.lock();
        ASSERT_NE(buffer, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(buffer->data) % 64, 0U);
        EXPECT_EQ(buffer->stride % 64, 0);
        if (std::find(seen.begin(), seen.end(), buffer->data) == seen.end())
            seen.push_back(buffer->data);
        m_store.unlock();
    }
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(FrameStoreTest, LocksNest)
{
    m_store.put(grey(50));
    const FrameBuffer *outer = m_store.lock();
    m_store.put(grey(150));
    EXPECT_EQ(m_store.lock(), outer);
    m_store.unlock();
    m_store.put(grey(160));
    m_store.put(grey(170));
    EXPECT_NEAR(onlyGrey(*outer), TestPicture::greyOf(50), 2); // still locked once
    m_store.unlock();
    m_store.unlock(); // one too many does nothing
    EXPECT_NEAR(fetchedGrey(m_store), TestPicture::greyOf(170), 2);
}

TEST_F(FrameStoreTest, NewSizeConvertsTheNewestPictureAnew)
{
    m_store.put(grey(90));
    const FrameBuffer *buffer = m_store.lock();
    ASSERT_NE(buffer, nullptr);
    EXPECT_EQ(buffer->width, Width);
    EXPECT_TRUE(m_store.setSize(100, 50)); // while the old buffer is locked
    EXPECT_NEAR(onlyGrey(*buffer), TestPicture::greyOf(90), 2);
    EXPECT_EQ(buffer->width, Width);
    m_store.unlock();
    buffer = m_store.lock();
    ASSERT_NE(buffer, nullptr);
    EXPECT_EQ(buffer->width, 100);
    EXPECT_EQ(buffer->height, 50);
    EXPECT_EQ(buffer->stride, 448); // 400 bytes, rounded up to 64
    EXPECT_NEAR(onlyGrey(*buffer), TestPicture::greyOf(90), 2);
    m_store.unlock();
    EXPECT_FALSE(m_store.setSize(0, 0)); // changes nothing
    EXPECT_NEAR(fetchedGrey(m_store), TestPicture::greyOf(90), 2);
    EXPECT_EQ(m_store.conversions(), 2U);
}

TEST_F(FrameStoreTest, ReleasesThePictureThatIsReplaced)
{
    SharedFrame first = grey(50);
    const std::weak_ptr<const AVFrame> watch = first;
    m_store.put(std::move(first));
    EXPECT_FALSE(watch.expired());
    m_store.put(grey(60));
    EXPECT_TRUE(watch.expired());
}
