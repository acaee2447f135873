#include "gateway/DeviceMutex.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

using namespace orvane::cloud;

namespace {

client::Key key(int code)
{
    client::Key key;
    key.code = code;
    return key;
}

class DeviceMutexTest : public testing::Test
{
protected:
    void give(std::uint64_t connection, int code)
    {
        mutex.give({connection, key(code), [this] { ++done; }});
    }

    // What was carried out, and by whom. Guarded by the mutex that is tested.
    std::vector<int> codes;
    std::vector<std::thread::id> threads;
    std::atomic<int> done{0};
    DeviceMutex mutex{[this](const DeviceMutex::Input &input) {
        codes.push_back(std::get<client::Key>(input.message).code);
        threads.push_back(std::this_thread::get_id());
    }};
};

} // namespace

TEST_F(DeviceMutexTest, AFreeDeviceTakesInputAtOnce)
{
    give(1, 30);
    EXPECT_EQ(done, 1);
    EXPECT_EQ(codes, std::vector<int>{30});
}

TEST_F(DeviceMutexTest, WhoeverUsesTheDeviceTakesWhatCameMeanwhile)
{
    mutex.lock();
    std::thread giver([this] {
        give(1, 30);
        give(2, 31);
    });
    giver.join(); // it has not waited
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(codes.empty());
    mutex.unlock();
    EXPECT_EQ(done, 2);
    EXPECT_EQ(codes, (std::vector<int>{30, 31}));
    EXPECT_EQ(threads, std::vector<std::thread::id>(2, std::this_thread::get_id()));
}

TEST_F(DeviceMutexTest, EverythingGivenBeforeIsDoneWhenItIsLocked)
{
    mutex.lock();
    give(1, 30); // by its holder, only here: nobody else is there to come in between
    std::thread next([this] {
        mutex.lock();
        EXPECT_EQ(codes, std::vector<int>{30});
        mutex.unlock();
    });
    mutex.unlock();
    next.join();
}

TEST_F(DeviceMutexTest, NothingIsLostDoubledOrOutOfOrder)
{
    constexpr int givers = 3;
    constexpr int inputs = 20000;
    std::atomic<int> giving{givers};
    std::array<int, givers> last{};
    std::array<int, givers> count{};
    bool ordered = true;
    int uses = 0;
    DeviceMutex shared([&](const DeviceMutex::Input &input) {
        const auto giver = static_cast<std::size_t>(input.connection);
        const int code = std::get<client::Key>(input.message).code;
        ordered = ordered && code == last.at(giver) + 1;
        last.at(giver) = code;
        ++count.at(giver);
    });
    std::vector<std::thread> threads;
    for (std::uint64_t giver = 0; giver < givers; ++giver) {
        threads.emplace_back([&, giver] {
            for (int code = 1; code <= inputs; ++code) {
                shared.give({giver, key(code), [] {}});
            }
            --giving;
        });
    }
    for (int i = 0; i < 2; ++i) {
        threads.emplace_back([&] {
            while (giving > 0) {
                const std::lock_guard lock(shared);
                ++uses;
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_TRUE(ordered);
    for (const int carriedOut : count) {
        EXPECT_EQ(carriedOut, inputs);
    }
    EXPECT_GT(uses, 0);
}
