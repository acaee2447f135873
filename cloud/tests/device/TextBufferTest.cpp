#include "device/TextBuffer.h"

#include <gtest/gtest.h>

namespace orvane::cloud {
namespace {

TEST(TextBufferTest, backspaceTakesOneCharacterAsPeopleSeeIt)
{
    const char *characters[] = {
        "a", "ä", "a\u0308", // letter and combining mark
        "你", "😀", "👍🏽", // with skin tone
        "👩‍👩‍👧", "🏳️‍🌈", "❤️", "🇩🇪", "1️⃣",
        "ก็", // Thai with vowel sign
        "한", "\u1112\u1161\u11ab", // Hangul, whole and in parts
        "🏴\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F", // flag made of tags
    };
    for (const char *character : characters) {
        TextBuffer buffer(1000);
        ASSERT_TRUE(buffer.insert(QStringLiteral("x") + QString::fromUtf8(character)));
        EXPECT_TRUE(buffer.removeBefore());
        EXPECT_EQ(buffer.text(), QStringLiteral("x")) << character;
        EXPECT_EQ(buffer.cursor(), 1);

        buffer.insert(QString::fromUtf8(character) + "y");
        buffer.setCursor(1);
        EXPECT_TRUE(buffer.removeAfter());
        EXPECT_EQ(buffer.text(), QStringLiteral("xy")) << character;

        buffer.clear();
        buffer.insert(QString::fromUtf8(character));
        buffer.moveBack();
        EXPECT_EQ(buffer.cursor(), 0) << character;
        buffer.moveForward();
        EXPECT_EQ(buffer.cursor(), buffer.text().size()) << character;
    }
}

TEST(TextBufferTest, flagsInARowAreTakenOneByOne)
{
    TextBuffer buffer(1000);
    const QString flag = QString::fromUtf8("🇩🇪");
    buffer.insert(QStringLiteral("a") + flag.repeated(40));
    for (int left = 39; left >= 0; --left) {
        buffer.removeBefore();
        ASSERT_EQ(buffer.text(), QStringLiteral("a") + flag.repeated(left));
    }
}

TEST(TextBufferTest, nothingToRemoveAtTheEnds)
{
    TextBuffer buffer(10);
    EXPECT_FALSE(buffer.removeBefore());
    EXPECT_FALSE(buffer.removeAfter());
    buffer.insert(QStringLiteral("ab"));
    EXPECT_FALSE(buffer.removeAfter());
    buffer.moveForward();
    EXPECT_EQ(buffer.cursor(), 2);
    buffer.setCursor(-5);
    EXPECT_FALSE(buffer.removeBefore());
    buffer.moveBack();
    EXPECT_EQ(buffer.cursor(), 0);
    buffer.setCursor(99);
    EXPECT_EQ(buffer.cursor(), 2);
}

TEST(TextBufferTest, insertsAtTheCursorAndCutsAtACharacter)
{
    TextBuffer buffer(6);
    EXPECT_TRUE(buffer.insert(QStringLiteral("ad")));
    buffer.setCursor(1);
    EXPECT_FALSE(
        buffer.insert(QString::fromUtf8("b😀😀"))); // room for four units: b, one emoji and half of one
    EXPECT_EQ(buffer.text(), QString::fromUtf8("ab😀d"));
    EXPECT_EQ(buffer.cursor(), 4);
    EXPECT_TRUE(buffer.insert(QStringLiteral("c")));
    EXPECT_FALSE(buffer.insert(QStringLiteral("e")));
    EXPECT_EQ(buffer.text(), QString::fromUtf8("ab😀cd"));
}

TEST(TextBufferTest, cursorIsNeverInsideACharacter)
{
    TextBuffer buffer(100);
    const QString family = QString::fromUtf8("👩‍👩‍👧");
    buffer.insert(QStringLiteral("a") + family + "b");
    for (int position = 1; position < 1 + family.size(); ++position) {
        buffer.setCursor(position);
        EXPECT_EQ(buffer.cursor(), 1) << position;
    }
}

} // namespace
} // namespace orvane::cloud
