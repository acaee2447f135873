#include "DeviceFixture.h"

#include "device/NotesApp.h"

#include <QJsonArray>

#include <thread>

#include <linux/input-event-codes.h>

namespace orvane::cloud {
namespace {

class NotesTest : public DeviceFixture
{
protected:
    void SetUp() override { ASSERT_TRUE(device.openApp("Notes")); }
    int cursor() const { return number("cursor"); }
};

// Plain and shifted character of every printable key of a US keyboard, by code.
struct PrintableKey
{
    int code;
    char plain;
    char shifted;
};

std::vector<PrintableKey> printableKeys()
{
    std::vector<PrintableKey> keys;
    const auto row = [&keys](int firstCode, const char *plain, const char *shifted) {
        for (int i = 0; plain[i] != 0; ++i) {
            keys.push_back({firstCode + i, plain[i], shifted[i]});
        }
    };
    row(2, "1234567890-=", "!@#$%^&*()_+");
    row(16, "qwertyuiop[]", "QWERTYUIOP{}");
    row(30, "asdfghjkl;'`", "ASDFGHJKL:\"~");
    row(43, "\\zxcvbnm,./", "|ZXCVBNM<>?");
    row(57, " ", " ");
    return keys;
}

TEST_F(NotesTest, everyPrintableCharacterByKey)
{
    std::string expected;
    for (const PrintableKey &key : printableKeys()) {
        click(key.code);
        click(key.code, true);
        expected += key.plain;
        expected += key.shifted;
    }
    EXPECT_EQ(noteText().toStdString(), expected);
    std::string sorted = expected;
    for (char c = ' '; c < 0x7F; ++c) {
        EXPECT_NE(expected.find(c), std::string::npos) << "'" << c << "' cannot be typed";
    }
}

TEST_F(NotesTest, capitalByShiftFlagAndByHeldShiftKey)
{
    click(30, true);
    device.key("one", 1, KEY_LEFTSHIFT, false, now);
    click(30);
    device.key("two", 3, 30, false, now); // another session's Shift does not count
    device.key("one", 2, KEY_LEFTSHIFT, false, now);
    click(30);
    EXPECT_EQ(noteText(), "AAaa");
}

TEST_F(NotesTest, downTypesAndUpDoesNot)
{
    device.key("one", 1, KEY_B, false, now);
    EXPECT_EQ(noteText(), "b");
    device.key("one", 1, KEY_B, false, now); // a repeat of the client's keyboard
    device.key("one", 2, KEY_B, false, now);
    EXPECT_EQ(noteText(), "bb");
}

TEST_F(NotesTest, editingKeys)
{
    type("hello\nhello");
    click(KEY_BACKSPACE);
    EXPECT_EQ(noteText(), "hello\nhell");
    click(KEY_LEFT);
    click(KEY_DELETE);
    EXPECT_EQ(noteText(), "hello\nhel");
    click(KEY_UP);
    EXPECT_EQ(cursor(), 3);
    click(KEY_ENTER);
    click(KEY_TAB);
    EXPECT_EQ(noteText(), "hel\n\tlo\nhel");
    click(KEY_HOME);
    EXPECT_EQ(cursor(), 4);
    click(KEY_END);
    EXPECT_EQ(cursor(), 7);
    click(KEY_DOWN);
    click(KEY_END);
    EXPECT_EQ(cursor(), noteText().size());
    click(KEY_RIGHT);
    EXPECT_EQ(cursor(), noteText().size());
}

TEST_F(NotesTest, textWithControlCharacters)
{
    type("one\rtwo\nthree\r\nfour");
    EXPECT_EQ(noteText(), "one\ntwo\nthree\nfour");
    type("\b\b\b\bdone\tx");
    EXPECT_EQ(noteText(), "one\ntwo\nthree\ndone\tx");
    click(KEY_LEFT);
    type("\x7f");
    EXPECT_EQ(noteText(), "one\ntwo\nthree\ndone\t");
    type(std::string("\0\x01\x1b\x1f", 4) + "\u0085");
    EXPECT_EQ(noteText(), "one\ntwo\nthree\ndone\t");
}

TEST_F(NotesTest, backspaceOverCombiningAndEmoji)
{
    type("x\u00e9e\u0301👩‍👩‍👧🇩🇪");
    for (const char *expected :
        {"x\u00e9e\u0301👩‍👩‍👧", "x\u00e9e\u0301", "x\u00e9", "x", "", ""}) {
        click(KEY_BACKSPACE);
        EXPECT_EQ(noteText(), QString::fromUtf8(expected));
    }
}

TEST_F(NotesTest, showsTheLastKeys)
{
    click(KEY_A);
    click(KEY_A, true);
    click(KEY_SPACE);
    click(KEY_F5);
    click(700);
    EXPECT_EQ(state()["keys"].toArray(), (QJsonArray{"a", "A", "Space", "F5", "Key 700"}));
    for (int i = 0; i < 50; ++i) {
        click(KEY_B);
    }
    EXPECT_EQ(state()["keys"].toArray().size(), 8);
    click(0); // activity only
    EXPECT_EQ(state()["keys"].toArray().last(), "b");
}

TEST_F(NotesTest, copiesByButtonAndByKey)
{
    std::vector<std::string> copied;
    device.onClipboard = [&](const std::string &text) { copied.push_back(text); };
    type("grüße");
    tap(476, 96);
    EXPECT_EQ(copied, std::vector<std::string>{"grüße"});
    device.key("one", 1, KEY_LEFTCTRL, false, now);
    click(KEY_C);
    device.key("one", 2, KEY_LEFTCTRL, false, now);
    EXPECT_EQ(copied.size(), 2U);
    EXPECT_EQ(noteText(), QString::fromUtf8("grüße"));
    tap(622, 96);
    EXPECT_EQ(noteText(), "");
}

TEST_F(NotesTest, touchPlacesTheCursor)
{
    type("first line\nsecond line");
    tap(700 - 40, 190);
    EXPECT_EQ(cursor(), 10);
    tap(50, 600); // below the text: the last line
    EXPECT_EQ(cursor(), 11);
}

TEST_F(NotesTest, longTextScrollsToTheCursorAndByFinger)
{
    device.takeDirty();
    for (int line = 0; line < 60; ++line) {
        type("line " + std::to_string(line) + "\n");
    }
    device.takeDirty();
    const QImage atEnd = device.frame().copy();
    touch(Down, {{360, 400}});
    touch(Move, {{360, 900}});
    touch(Up, {});
    EXPECT_EQ(cursor(), noteText().size()) << "a drag does not place the cursor";
    EXPECT_FALSE(device.takeDirty().isEmpty());
    EXPECT_NE(device.frame(), atEnd);
    click(KEY_SPACE); // shows the cursor again
    click(KEY_BACKSPACE);
    device.takeDirty();
    EXPECT_EQ(device.frame().copy(0, 150, 720, 900), atEnd.copy(0, 150, 720, 900));
}

TEST_F(NotesTest, keepsTheTextWhileTheScreenTurnsAndOtherAppsAreInFront)
{
    type("still here");
    device.setRotation(1);
    EXPECT_EQ(noteText(), "still here");
    device.openApp("Paint");
    device.openApp("Notes");
    EXPECT_EQ(noteText(), "still here");
}

TEST_F(NotesTest, hugeTextIsCutAtTheLimit)
{
    constexpr std::size_t LongText = std::size_t{1024} * 1024;
    type(std::string(LongText, 'x'));
    EXPECT_EQ(noteText().size(), NotesApp::MaxLength);
    device.takeDirty();
    type(std::string(LongText, '\b'));
    EXPECT_EQ(noteText(), "");
    type("after");
    EXPECT_EQ(noteText(), "after");
}

TEST_F(NotesTest, brokenUtf8IsShownAsReplacement)
{
    type("a\xff\xc3(b");
    EXPECT_TRUE(noteText().startsWith("a"));
    EXPECT_TRUE(noteText().contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(noteText().endsWith("(b"));
}

TEST_F(NotesTest, otherScriptsAreDrawn)
{
    for (const char *sample : {"你好", "مرحبا", "สวัสดี", "😀"}) {
        type("\n");
        device.takeDirty();
        const QImage before = device.frame().copy();
        type(sample);
        type("");
        EXPECT_FALSE(device.takeDirty().isEmpty());
        EXPECT_NE(device.frame(), before) << sample;
    }
}

// As a gateway does: keys come in one thread and pictures are drawn in others.
TEST_F(NotesTest, looksTheSameWhoeverDrawsIt)
{
    const std::string text = "Hello 你好 مرحبا สวัสดี 😀 ";
    VirtualDevice other("VM100001", "Aurora", [this] { return wallTime; });
    other.openApp("Notes");
    for (int i = 0; i < 20; ++i) {
        type(text);
        other.text("one", text, now);
        QImage elsewhere;
        std::thread([&] { elsewhere = other.frame().copy(); }).join();
        ASSERT_EQ(elsewhere, device.frame()) << i;
    }
}

} // namespace
} // namespace orvane::cloud
