#include "session/InputQueue.h"

#include "session/WireMessage.h"

#include <gtest/gtest.h>

using namespace swplay;

namespace {

wire::StreamMessage touch(int action, int x, int count = 1)
{
    const std::vector<int> xs(static_cast<std::size_t>(count), x);
    return touchMessage(action, count, xs.data(), xs.data(), nullptr);
}

// What waits, in order: "down 1", "move 5", "key 30", "text a".
std::vector<std::string> drain(InputQueue &queue)
{
    static const char *const actions[] = {"down ", "up ", "move "};
    std::vector<std::string> events;
    while (const auto message = queue.takeEvent()) {
        if (message->has_touch())
            events.push_back(actions[message->touch().action()] + std::to_string(message->touch().x(0)));
        else if (message->has_key())
            events.push_back("key " + std::to_string(message->key().code()));
        else
            events.push_back("text " + message->text().text());
    }
    return events;
}

using Events = std::vector<std::string>;

} // namespace

TEST(InputQueue, MovesMergeAndNothingElseDoes)
{
    InputQueue queue;
    for (auto message : {touch(0, 1), touch(2, 2), touch(2, 3), touch(2, 4), touch(1, 4), touch(0, 5),
             touch(0, 5), touch(2, 6), touch(2, 7), touch(1, 7), touch(1, 7)})
        EXPECT_TRUE(queue.pushEvent(message));
    EXPECT_EQ(
        drain(queue), (Events{"down 1", "move 4", "up 4", "down 5", "down 5", "move 7", "up 7", "up 7"}));
}

TEST(InputQueue, KeysAndTextKeepTheirPlaceAmongMoves)
{
    InputQueue queue;
    for (auto message :
        {touch(2, 1), keyMessage(1, 30, false), touch(2, 2), textMessage("a"), touch(2, 3), textMessage("b")})
        queue.pushEvent(message);
    EXPECT_EQ(drain(queue), (Events{"move 1", "key 30", "move 2", "text a", "move 3", "text b"}));
}

TEST(InputQueue, MovesOfOtherFingersOrScreensStay)
{
    InputQueue queue;
    auto turned = touch(2, 4, 2);
    turned.mutable_touch()->set_reference_width(1280);
    for (auto message : {touch(2, 1), touch(2, 2, 2), touch(2, 3, 2), turned})
        queue.pushEvent(message);
    EXPECT_EQ(drain(queue), (Events{"move 1", "move 3", "move 4"}));
}

TEST(InputQueue, TellsWhenItIsFullInsteadOfDropping)
{
    InputQueue queue;
    for (std::size_t i = 0; i < InputQueue::MaxEvents; ++i)
        ASSERT_TRUE(queue.pushEvent(keyMessage(1, 30, false)));
    EXPECT_FALSE(queue.isOverfull());
    EXPECT_FALSE(queue.pushEvent(keyMessage(2, 30, false)));
    EXPECT_TRUE(queue.isOverfull());
    EXPECT_EQ(queue.eventCount(), InputQueue::MaxEvents);
    queue.clear();
    EXPECT_FALSE(queue.isOverfull());
    EXPECT_TRUE(queue.pushEvent(keyMessage(2, 30, false)));
}

TEST(InputQueue, CountsBytesOfWhatWaits)
{
    InputQueue queue;
    const std::string text(WireLimits::TextBytes, 'x');
    // Many times more than the limit, but not at once.
    for (int round = 0; round < 40; ++round) {
        ASSERT_TRUE(queue.pushEvent(textMessage(text)));
        queue.pushEvent(touch(2, 1));
        queue.pushEvent(touch(2, 2, 1));
        ASSERT_TRUE(queue.takeEvent());
        ASSERT_TRUE(queue.takeEvent());
    }
    int taken = 0;
    while (queue.pushEvent(textMessage(text)))
        ++taken;
    EXPECT_EQ(taken, 15);
}

TEST(InputQueue, NewestPictureWins)
{
    InputQueue queue;
    queue.pushPicture(pictureMessage("1"));
    queue.pushPicture(pictureMessage("2"));
    EXPECT_EQ(queue.takeAudioOrPicture()->picture().jpeg(), "2");
    EXPECT_FALSE(queue.takeAudioOrPicture());
}

TEST(InputQueue, OldestAudioGoesAndComesBeforePictures)
{
    InputQueue queue;
    queue.pushPicture(pictureMessage("p"));
    for (std::size_t i = 0; i < InputQueue::MaxAudioChunks + 2; ++i)
        queue.pushAudio(audioMessage(1, std::to_string(i)));
    for (std::size_t i = 2; i < InputQueue::MaxAudioChunks + 2; ++i)
        EXPECT_EQ(queue.takeAudioOrPicture()->audio().data(), std::to_string(i));
    EXPECT_TRUE(queue.takeAudioOrPicture()->has_picture());
    EXPECT_FALSE(queue.takeAudioOrPicture());
}
