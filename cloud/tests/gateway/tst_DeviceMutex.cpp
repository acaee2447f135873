#include "gateway/DeviceMutex.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <utility>
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
    void give(int code, bool isSlow = false)
    {
        mutex.give({1, key(code), [this] { ++done; }, isSlow});
    }
    // By another thread; returns when it has given them.
    void giveElsewhere(const std::vector<int> &given, bool areSlow = false)
    {
        std::thread giver([&] {
            for (const int code : given) {
                give(code, areSlow);
            }
        });
        giver.join();
    }

    // What was carried out, and by whom. Guarded by the mutex that is tested.
    std::vector<int> codes;
    std::vector<std::thread::id> threads;
    std::atomic<int> done{0};
    std::atomic<int> helpCalls{0};
    std::function<void()> whileCarryingOut; // called once
    std::atomic<bool> takesLong{false};
    DeviceMutex mutex{[this](const DeviceMutex::Input &input) {
                          codes.push_back(std::get<client::Key>(input.message).code);
                          threads.push_back(std::this_thread::get_id());
                          if (const auto call = std::exchange(whileCarryingOut, nullptr)) {
                              call();
                          }
                          return takesLong.load();
                      },
        [this] { ++helpCalls; }};
};

} // namespace

TEST_F(DeviceMutexTest, AFreeDeviceTakesInputAtOnce)
{
    give(30);
    EXPECT_EQ(done, 1);
    EXPECT_EQ(codes, std::vector<int>{30});
    EXPECT_EQ(helpCalls, 0);
}

TEST_F(DeviceMutexTest, WhoeverUsesTheDeviceTakesWhatCameMeanwhile)
{
    mutex.lock();
    giveElsewhere({30, 31}); // has not waited
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(codes.empty());
    mutex.unlock();
    EXPECT_EQ(done, 2);
    EXPECT_EQ(codes, (std::vector<int>{30, 31}));
    EXPECT_EQ(threads, std::vector<std::thread::id>(2, std::this_thread::get_id()));
    EXPECT_EQ(helpCalls, 0);
}

TEST_F(DeviceMutexTest, EverythingGivenBeforeIsDoneWhenItIsLocked)
{
    giveElsewhere({30}, true);
    EXPECT_EQ(done, 0);
    mutex.lock();
    EXPECT_EQ(codes, std::vector<int>{30});
    EXPECT_EQ(done, 1);
    mutex.unlock();
}

TEST_F(DeviceMutexTest, SlowInputIsLeftToTheHelperInItsPlace)
{
    give(30);
    give(31, true);
    EXPECT_EQ(helpCalls, 1);
    give(32); // keeps its place behind the slow one
    give(33, true);
    EXPECT_EQ(helpCalls, 1) << "help is on its way";
    EXPECT_EQ(codes, std::vector<int>{30});
    mutex.lock();
    mutex.unlock();
    EXPECT_EQ(codes, (std::vector<int>{30, 31, 32, 33}));
    give(34);
    EXPECT_EQ(done, 5);
    give(35, true);
    EXPECT_EQ(helpCalls, 2);
}

// It was given as quick, and only carrying it out shows that it is not.
TEST_F(DeviceMutexTest, WhatWaitsBehindOneThatTookLongIsLeftToTheHelper)
{
    takesLong = true;
    std::thread::id giver;
    std::thread second;
    whileCarryingOut = [this, &giver, &second] { // others come while the giver carries the first one out
        giver = std::this_thread::get_id();
        second = std::thread([this] {
            give(31);
            give(32);
        });
        second.join();
    };
    give(30);
    EXPECT_EQ(codes, std::vector<int>{30});
    EXPECT_EQ(giver, std::this_thread::get_id());
    EXPECT_EQ(helpCalls, 1);
    mutex.lock(); // the helper
    EXPECT_EQ(codes, (std::vector<int>{30, 31, 32}));
    mutex.unlock();
    EXPECT_EQ(done, 3);
}

TEST_F(DeviceMutexTest, WhatAnInputOwnsMayGiveInputWhenItGoes)
{
    struct Owned
    {
        ~Owned() { goes(); }
        std::function<void()> goes;
    };
    auto owned = std::make_shared<Owned>();
    owned->goes = [this] { std::thread([this] { give(32); }).join(); };
    mutex.lock();
    std::thread([&] {
        mutex.give({1, key(30), [this, owned = std::exchange(owned, nullptr)] { ++done; }});
        give(31);
    }).join();
    mutex.unlock();
    mutex.lock();
    EXPECT_EQ(codes, (std::vector<int>{30, 31, 32}));
    mutex.unlock();
    EXPECT_EQ(done, 3);
}

// Otherwise a client that sends faster than its device works would have the thread for itself.
TEST_F(DeviceMutexTest, AFloodDoesNotKeepWhoUsesTheDevice)
{
    giveElsewhere({30}, true);
    whileCarryingOut = [this] { giveElsewhere({31, 32}); };
    mutex.lock();
    EXPECT_EQ(codes, std::vector<int>{30});
    whileCarryingOut = [this] { giveElsewhere({33}); };
    helpCalls = 0;
    mutex.unlock();
    EXPECT_EQ(codes, (std::vector<int>{30, 31, 32}));
    EXPECT_EQ(helpCalls, 1);
    mutex.lock(); // the helper
    mutex.unlock();
    EXPECT_EQ(codes, (std::vector<int>{30, 31, 32, 33}));
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
    std::atomic<bool> helpIsWanted{false};
    DeviceMutex shared(
        [&](const DeviceMutex::Input &input) {
            const auto giver = static_cast<std::size_t>(input.connection);
            const int code = std::get<client::Key>(input.message).code;
            ordered = ordered && code == last.at(giver) + 1;
            last.at(giver) = code;
            ++count.at(giver);
            return code % 64 == 0;
        },
        [&] { helpIsWanted = true; });
    std::vector<std::thread> threads;
    for (std::uint64_t giver = 0; giver < givers; ++giver) {
        threads.emplace_back([&, giver] {
            for (int code = 1; code <= inputs; ++code) {
                shared.give({giver, key(code), [] {}, code % 100 == 0});
            }
            --giving;
        });
    }
    for (int i = 0; i < 2; ++i) {
        threads.emplace_back([&] {
            while (giving > 0 || helpIsWanted) {
                helpIsWanted = false;
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
