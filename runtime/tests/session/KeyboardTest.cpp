#include "swplay/Keyboard.h"
#include "session/KeyTables.h"

#include <gtest/gtest.h>

#ifdef __linux__
#include <linux/input-event-codes.h>
#endif

#include <string>

namespace {

int codeOf(int key)
{
    return Keyboard::GetInstance()->getKeyCode(key);
}

int shifted(int code)
{
    return code | 0x10000;
}

} // namespace

TEST(Keyboard, IsOneInstance)
{
    EXPECT_EQ(Keyboard::GetInstance(), Keyboard::GetInstance());
}

// What a US keyboard types, row by row: the keys of each row have consecutive codes.
TEST(Keyboard, AllPrintableCharacters)
{
    struct Run
    {
        int firstCode;
        std::string plain;
        std::string withShift;
    };
    const Run runs[] = {
        {2, "1234567890-=", "!@#$%^&*()_+"},
        {16, "qwertyuiop[]", "QWERTYUIOP{}"},
        {30, "asdfghjkl;'`", "ASDFGHJKL:\"~"},
        {43, "\\zxcvbnm,./", "|ZXCVBNM<>?"},
        {57, " ", ""},
    };
    int seen = 0;
    for (const Run &run : runs) {
        for (std::size_t i = 0; i < run.plain.size(); ++i, ++seen)
            EXPECT_EQ(codeOf(run.plain[i]), run.firstCode + static_cast<int>(i)) << run.plain[i];
        for (std::size_t i = 0; i < run.withShift.size(); ++i, ++seen)
            EXPECT_EQ(codeOf(run.withShift[i]), shifted(run.firstCode + static_cast<int>(i)))
                << run.withShift[i];
    }
    EXPECT_EQ(seen, 95);
}

TEST(Keyboard, EditingAndMoving)
{
    const std::pair<int, int> rows[]
        = {{0x01000000, 1}, {0x01000001, 15}, {0x01000002, shifted(15)}, {0x01000003, 14}, {0x01000004, 28},
            {0x01000005, 96}, {0x01000006, 110}, {0x01000007, 111}, {0x01000008, 119}, {0x01000009, 99},
            {0x0100000a, 99}, {0x0100000b, 355}, {0x01000010, 102}, {0x01000011, 107}, {0x01000012, 105},
            {0x01000013, 103}, {0x01000014, 106}, {0x01000015, 108}, {0x01000016, 104}, {0x01000017, 109}};
    for (const auto &[key, code] : rows)
        EXPECT_EQ(codeOf(key), code) << std::hex << key;
}

TEST(Keyboard, ModifiersAndLocks)
{
    const std::pair<int, int> rows[] = {{0x01000020, 42}, {0x01000021, 29}, {0x01000022, 125},
        {0x01000023, 56}, {0x01000024, 58}, {0x01000025, 69}, {0x01000026, 70}, {0x01000053, 125},
        {0x01000054, 126}, {0x01000055, 127}, {0x01001103, 100}};
    for (const auto &[key, code] : rows)
        EXPECT_EQ(codeOf(key), code) << std::hex << key;
}

TEST(Keyboard, FunctionKeys)
{
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(codeOf(0x01000030 + i), 59 + i); // F1 to F10
    EXPECT_EQ(codeOf(0x0100003a), 87); // F11
    EXPECT_EQ(codeOf(0x0100003b), 88); // F12
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(codeOf(0x0100003c + i), 183 + i); // F13 to F24
    EXPECT_EQ(codeOf(0x01000048), 0); // F25 has no code
}

TEST(Keyboard, MediaKeys)
{
    const std::pair<int, int> rows[]
        = {{0x01000061, 158}, {0x01000062, 159}, {0x01000063, 128}, {0x01000064, 173}, {0x01000070, 114},
            {0x01000071, 113}, {0x01000072, 115}, {0x01000080, 200}, {0x01000081, 166}, {0x01000082, 165},
            {0x01000083, 163}, {0x01000084, 167}, {0x01000085, 201}, {0x01000086, 164}, {0x01000090, 172},
            {0x01000091, 156}, {0x01000092, 217}, {0x010000a0, 155}, {0x010000b2, 225}, {0x010000b3, 224},
            {0x010000b7, 116}, {0x010000b8, 143}, {0x01000113, 248}, {0x01020004, 142}};
    for (const auto &[key, code] : rows)
        EXPECT_EQ(codeOf(key), code) << std::hex << key;
}

TEST(Keyboard, Keypad)
{
    constexpr int OnKeypad = 0x20000000;
    const int digits[] = {82, 79, 80, 81, 75, 76, 77, 71, 72, 73};
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(codeOf(OnKeypad | ('0' + i)), digits[i]);
    const std::pair<char, int> signs[]
        = {{'*', 55}, {'+', 78}, {'-', 74}, {'.', 83}, {',', 83}, {'/', 98}, {'=', 117}};
    for (const auto &[sign, code] : signs)
        EXPECT_EQ(codeOf(OnKeypad | sign), code) << sign;
    EXPECT_EQ(codeOf(OnKeypad | 0x01000005), 96); // Enter
    EXPECT_EQ(codeOf(OnKeypad | 0x01000010), 102); // Home, with Num Lock off
}

TEST(Keyboard, UnknownKeysHaveNoCode)
{
    for (const int key : {0, -1, 0x1f, 0x7f, 0xa0, 0xe9, 0x01000060, 0x0100ffff, 0x01ffffff, 0x7fffffff,
             Keyboard::NativeScanCode, Keyboard::NativeScanCode | 0x7fffffff})
        EXPECT_EQ(codeOf(key), 0) << std::hex << key;
}

#ifdef __linux__
TEST(Keyboard, NativeScanCodesOfLinux)
{
    EXPECT_EQ(codeOf(Keyboard::NativeScanCode | 38), KEY_A);
    EXPECT_EQ(codeOf(Keyboard::NativeScanCode | 9), KEY_ESC);
    EXPECT_EQ(codeOf(Keyboard::NativeScanCode | 36), KEY_ENTER);
    EXPECT_EQ(codeOf(Keyboard::NativeScanCode | 105), KEY_RIGHTCTRL);
    EXPECT_EQ(codeOf(Keyboard::NativeScanCode | 111), KEY_UP);
    EXPECT_EQ(codeOf(Keyboard::NativeScanCode | 255), 247);
    for (const int none : {0, 7, 8, 256, 1000})
        EXPECT_EQ(codeOf(Keyboard::NativeScanCode | none), 0) << none;
}
#endif

TEST(Keyboard, ScanCodesOfWindows)
{
    const std::pair<int, int> rows[]
        = {{0x01, 1}, {0x02, 2}, {0x1c, 28}, {0x1e, 30}, {0x2a, 42}, {0x36, 54}, {0x37, 55}, {0x39, 57},
            {0x3b, 59}, {0x45, 69}, {0x4c, 76}, {0x53, 83}, {0x54, 99}, {0x55, 0}, {0x56, 86}, {0x57, 87},
            {0x58, 88}, {0x64, 183}, {0x6e, 193}, {0x76, 194}, {0x59, 117}, {0x5a, 0}, {0x11c, 96},
            {0x11d, 97}, {0x120, 113}, {0x122, 164}, {0x12e, 114}, {0x130, 115}, {0x135, 98}, {0x137, 99},
            {0x138, 100}, {0x145, 69}, {0x147, 102}, {0x148, 103}, {0x149, 104}, {0x14b, 105}, {0x14d, 106},
            {0x14f, 107}, {0x150, 108}, {0x151, 109}, {0x152, 110}, {0x153, 111}, {0x15b, 125}, {0x15c, 126},
            {0x15d, 127}, {0x16a, 158}, {0x16d, 226}, {0x100, 0}, {0x11e, 0}, {0x200, 0}, {0, 0}, {-1, 0}};
    for (const auto &[scanCode, code] : rows)
        EXPECT_EQ(swplay::keyCodeOfScanCodeSet1(scanCode), code) << std::hex << scanCode;
}
