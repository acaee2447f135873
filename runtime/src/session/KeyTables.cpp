#include "session/KeyTables.h"

#include "swplay/Keyboard.h"

#include <algorithm>
#include <array>
#include <iterator>

// The numbers of the two sides are contracts and stand here literally: the toolkit's from Qt::Key of Qt 5
// (qnamespace.h), the devices' from linux/input-event-codes.h. Each row names both.

namespace swplay {

namespace {

constexpr int WithShift = Keyboard::WithShift;

struct Row
{
    int from;
    int code;
};

// Printable characters from U+0020 on, on a US keyboard. Toolkit codes of letters are the capital ones.
constexpr int FirstCharacter = 0x20;
constexpr std::array<int, 95> Characters = {
    // clang-format off
    57, 2 | WithShift, 40 | WithShift, 4 | WithShift, 5 | WithShift, 6 | WithShift, 8 | WithShift, 40, // space ! " # $ % & '
    10 | WithShift, 11 | WithShift, 9 | WithShift, 13 | WithShift, 51, 12, 52, 53, // ( ) * + , - . /
    11, 2, 3, 4, 5, 6, 7, 8, // 0 1 2 3 4 5 6 7
    9, 10, 39 | WithShift, 39, 51 | WithShift, 13, 52 | WithShift, 53 | WithShift, // 8 9 : ; < = > ?
    3 | WithShift, 30 | WithShift, 48 | WithShift, 46 | WithShift, 32 | WithShift, 18 | WithShift, 33 | WithShift, 34 | WithShift, // @ A B C D E F G
    35 | WithShift, 23 | WithShift, 36 | WithShift, 37 | WithShift, 38 | WithShift, 50 | WithShift, 49 | WithShift, 24 | WithShift, // H I J K L M N O
    25 | WithShift, 16 | WithShift, 19 | WithShift, 31 | WithShift, 20 | WithShift, 22 | WithShift, 47 | WithShift, 17 | WithShift, // P Q R S T U V W
    45 | WithShift, 21 | WithShift, 44 | WithShift, 26, 43, 27, 7 | WithShift, 12 | WithShift, // X Y Z [ \ ] ^ _
    41, 30, 48, 46, 32, 18, 33, 34, // ` a b c d e f g
    35, 23, 36, 37, 38, 50, 49, 24, // h i j k l m n o
    25, 16, 19, 31, 20, 22, 47, 17, // p q r s t u v w
    45, 21, 44, 26 | WithShift, 43 | WithShift, 27 | WithShift, 41 | WithShift, // x y z { | } ~
    // clang-format on
};

// Toolkit codes of keys without a character, in ascending order. "Enter" is the one of the keypad.
constexpr Row ToolkitKeys[] = {
    {0x01000000, 1}, // Escape: KEY_ESC
    {0x01000001, 15}, // Tab: KEY_TAB
    {0x01000002, 15 | WithShift}, // Backtab: KEY_TAB
    {0x01000003, 14}, // Backspace: KEY_BACKSPACE
    {0x01000004, 28}, // Return: KEY_ENTER
    {0x01000005, 96}, // Enter: KEY_KPENTER
    {0x01000006, 110}, // Insert: KEY_INSERT
    {0x01000007, 111}, // Delete: KEY_DELETE
    {0x01000008, 119}, // Pause: KEY_PAUSE
    {0x01000009, 99}, // Print: KEY_SYSRQ
    {0x0100000a, 99}, // SysReq: KEY_SYSRQ
    {0x0100000b, 355}, // Clear: KEY_CLEAR
    {0x01000010, 102}, // Home: KEY_HOME
    {0x01000011, 107}, // End: KEY_END
    {0x01000012, 105}, // Left: KEY_LEFT
    {0x01000013, 103}, // Up: KEY_UP
    {0x01000014, 106}, // Right: KEY_RIGHT
    {0x01000015, 108}, // Down: KEY_DOWN
    {0x01000016, 104}, // PageUp: KEY_PAGEUP
    {0x01000017, 109}, // PageDown: KEY_PAGEDOWN
    {0x01000020, 42}, // Shift: KEY_LEFTSHIFT
    {0x01000021, 29}, // Control: KEY_LEFTCTRL
    {0x01000022, 125}, // Meta: KEY_LEFTMETA
    {0x01000023, 56}, // Alt: KEY_LEFTALT
    {0x01000024, 58}, // CapsLock: KEY_CAPSLOCK
    {0x01000025, 69}, // NumLock: KEY_NUMLOCK
    {0x01000026, 70}, // ScrollLock: KEY_SCROLLLOCK
    {0x01000030, 59}, // F1: KEY_F1
    {0x01000031, 60}, // F2: KEY_F2
    {0x01000032, 61}, // F3: KEY_F3
    {0x01000033, 62}, // F4: KEY_F4
    {0x01000034, 63}, // F5: KEY_F5
    {0x01000035, 64}, // F6: KEY_F6
    {0x01000036, 65}, // F7: KEY_F7
    {0x01000037, 66}, // F8: KEY_F8
    {0x01000038, 67}, // F9: KEY_F9
    {0x01000039, 68}, // F10: KEY_F10
    {0x0100003a, 87}, // F11: KEY_F11
    {0x0100003b, 88}, // F12: KEY_F12
    {0x0100003c, 183}, // F13: KEY_F13
    {0x0100003d, 184}, // F14: KEY_F14
    {0x0100003e, 185}, // F15: KEY_F15
    {0x0100003f, 186}, // F16: KEY_F16
    {0x01000040, 187}, // F17: KEY_F17
    {0x01000041, 188}, // F18: KEY_F18
    {0x01000042, 189}, // F19: KEY_F19
    {0x01000043, 190}, // F20: KEY_F20
    {0x01000044, 191}, // F21: KEY_F21
    {0x01000045, 192}, // F22: KEY_F22
    {0x01000046, 193}, // F23: KEY_F23
    {0x01000047, 194}, // F24: KEY_F24
    {0x01000053, 125}, // Super_L: KEY_LEFTMETA
    {0x01000054, 126}, // Super_R: KEY_RIGHTMETA
    {0x01000055, 127}, // Menu: KEY_COMPOSE
    {0x01000058, 138}, // Help: KEY_HELP
    {0x01000061, 158}, // Back: KEY_BACK
    {0x01000062, 159}, // Forward: KEY_FORWARD
    {0x01000063, 128}, // Stop: KEY_STOP
    {0x01000064, 173}, // Refresh: KEY_REFRESH
    {0x01000070, 114}, // VolumeDown: KEY_VOLUMEDOWN
    {0x01000071, 113}, // VolumeMute: KEY_MUTE
    {0x01000072, 115}, // VolumeUp: KEY_VOLUMEUP
    {0x01000073, 209}, // BassBoost: KEY_BASSBOOST
    {0x01000080, 200}, // MediaPlay: KEY_PLAYCD
    {0x01000081, 166}, // MediaStop: KEY_STOPCD
    {0x01000082, 165}, // MediaPrevious: KEY_PREVIOUSSONG
    {0x01000083, 163}, // MediaNext: KEY_NEXTSONG
    {0x01000084, 167}, // MediaRecord: KEY_RECORD
    {0x01000085, 201}, // MediaPause: KEY_PAUSECD
    {0x01000086, 164}, // MediaTogglePlayPause: KEY_PLAYPAUSE
    {0x01000090, 172}, // HomePage: KEY_HOMEPAGE
    {0x01000091, 156}, // Favorites: KEY_BOOKMARKS
    {0x01000092, 217}, // Search: KEY_SEARCH
    {0x01000093, 142}, // Standby: KEY_SLEEP
    {0x010000a0, 155}, // LaunchMail: KEY_MAIL
    {0x010000a1, 226}, // LaunchMedia: KEY_MEDIA
    {0x010000b2, 225}, // MonBrightnessUp: KEY_BRIGHTNESSUP
    {0x010000b3, 224}, // MonBrightnessDown: KEY_BRIGHTNESSDOWN
    {0x010000b4, 228}, // KeyboardLightOnOff: KEY_KBDILLUMTOGGLE
    {0x010000b5, 230}, // KeyboardBrightnessUp: KEY_KBDILLUMUP
    {0x010000b6, 229}, // KeyboardBrightnessDown: KEY_KBDILLUMDOWN
    {0x010000b7, 116}, // PowerOff: KEY_POWER
    {0x010000b8, 143}, // WakeUp: KEY_WAKEUP
    {0x010000b9, 161}, // Eject: KEY_EJECTCD
    {0x010000ba, 152}, // ScreenSaver: KEY_COFFEE
    {0x010000bb, 150}, // WWW: KEY_WWW
    {0x010000c5, 168}, // AudioRewind: KEY_REWIND
    {0x010000cb, 140}, // Calculator: KEY_CALC
    {0x010000cf, 133}, // Copy: KEY_COPY
    {0x010000d0, 137}, // Cut: KEY_CUT
    {0x010000e2, 135}, // Paste: KEY_PASTE
    {0x010000f6, 418}, // ZoomIn: KEY_ZOOMIN
    {0x010000f7, 419}, // ZoomOut: KEY_ZOOMOUT
    {0x01000102, 208}, // AudioForward: KEY_FASTFORWARD
    {0x0100010c, 205}, // Suspend: KEY_SUSPEND
    {0x01000113, 248}, // MicMute: KEY_MICMUTE
    {0x01000121, 134}, // Open: KEY_OPEN
    {0x01000122, 136}, // Find: KEY_FIND
    {0x01000123, 131}, // Undo: KEY_UNDO
    {0x01000124, 182}, // Redo: KEY_REDO
    {0x01001103, 100}, // AltGr: KEY_RIGHTALT
    {0x01001120, 127}, // Multi_key: KEY_COMPOSE
    {0x01010000, 353}, // Select: KEY_SELECT
    {0x01020001, 223}, // Cancel: KEY_CANCEL
    {0x01020004, 142}, // Sleep: KEY_SLEEP
    {0x01100020, 212}, // Camera: KEY_CAMERA
};

// Qt::KeypadModifier: the character is on the keypad. The keypad's moving keys (Num Lock off) have the same
// codes as those of the main block, on devices as well.
constexpr int KeypadModifier = 0x20000000;
constexpr Row KeypadCharacters[] = {
    {0x2a, 55}, // *: KEY_KPASTERISK
    {0x2b, 78}, // +: KEY_KPPLUS
    {0x2c, 83}, // , (the separator of some layouts): KEY_KPDOT
    {0x2d, 74}, // -: KEY_KPMINUS
    {0x2e, 83}, // .: KEY_KPDOT
    {0x2f, 98}, // /: KEY_KPSLASH
    {0x30, 82}, // 0: KEY_KP0
    {0x31, 79}, // 1: KEY_KP1
    {0x32, 80}, // 2: KEY_KP2
    {0x33, 81}, // 3: KEY_KP3
    {0x34, 75}, // 4: KEY_KP4
    {0x35, 76}, // 5: KEY_KP5
    {0x36, 77}, // 6: KEY_KP6
    {0x37, 71}, // 7: KEY_KP7
    {0x38, 72}, // 8: KEY_KP8
    {0x39, 73}, // 9: KEY_KP9
    {0x3d, 117}, // =: KEY_KPEQUAL
};

// Scan codes of set 1 up to this one are the input key codes, which were made from them; 0x54 is Alt + Print.
constexpr int LastSameScanCode = 0x58;
constexpr Row ScanCodesBeyond[] = {
    {0x54, 99}, // KEY_SYSRQ
    {0x59, 117}, // KEY_KPEQUAL
    {0x64, 183}, // KEY_F13
    {0x65, 184}, // KEY_F14
    {0x66, 185}, // KEY_F15
    {0x67, 186}, // KEY_F16
    {0x68, 187}, // KEY_F17
    {0x69, 188}, // KEY_F18
    {0x6a, 189}, // KEY_F19
    {0x6b, 190}, // KEY_F20
    {0x6c, 191}, // KEY_F21
    {0x6d, 192}, // KEY_F22
    {0x6e, 193}, // KEY_F23
    {0x70, 93}, // KEY_KATAKANAHIRAGANA
    {0x73, 89}, // KEY_RO
    {0x76, 194}, // KEY_F24
    {0x79, 92}, // KEY_HENKAN
    {0x7b, 94}, // KEY_MUHENKAN
    {0x7d, 124}, // KEY_YEN
    {0x7e, 121}, // KEY_KPCOMMA
    // With the prefix E0.
    {0x110, 165}, // KEY_PREVIOUSSONG
    {0x119, 163}, // KEY_NEXTSONG
    {0x11c, 96}, // KEY_KPENTER
    {0x11d, 97}, // KEY_RIGHTCTRL
    {0x120, 113}, // KEY_MUTE
    {0x121, 140}, // KEY_CALC
    {0x122, 164}, // KEY_PLAYPAUSE
    {0x124, 166}, // KEY_STOPCD
    {0x12e, 114}, // KEY_VOLUMEDOWN
    {0x130, 115}, // KEY_VOLUMEUP
    {0x132, 172}, // KEY_HOMEPAGE
    {0x135, 98}, // KEY_KPSLASH
    {0x136, 54}, // KEY_RIGHTSHIFT
    {0x137, 99}, // KEY_SYSRQ
    {0x138, 100}, // KEY_RIGHTALT
    {0x145, 69}, // KEY_NUMLOCK
    {0x146, 119}, // KEY_PAUSE
    {0x147, 102}, // KEY_HOME
    {0x148, 103}, // KEY_UP
    {0x149, 104}, // KEY_PAGEUP
    {0x14b, 105}, // KEY_LEFT
    {0x14d, 106}, // KEY_RIGHT
    {0x14f, 107}, // KEY_END
    {0x150, 108}, // KEY_DOWN
    {0x151, 109}, // KEY_PAGEDOWN
    {0x152, 110}, // KEY_INSERT
    {0x153, 111}, // KEY_DELETE
    {0x15b, 125}, // KEY_LEFTMETA
    {0x15c, 126}, // KEY_RIGHTMETA
    {0x15d, 127}, // KEY_COMPOSE
    {0x15e, 116}, // KEY_POWER
    {0x15f, 142}, // KEY_SLEEP
    {0x163, 143}, // KEY_WAKEUP
    {0x165, 217}, // KEY_SEARCH
    {0x166, 156}, // KEY_BOOKMARKS
    {0x167, 173}, // KEY_REFRESH
    {0x168, 128}, // KEY_STOP
    {0x169, 159}, // KEY_FORWARD
    {0x16a, 158}, // KEY_BACK
    {0x16b, 157}, // KEY_COMPUTER
    {0x16c, 155}, // KEY_MAIL
    {0x16d, 226}, // KEY_MEDIA
};

// Input key codes that an X server's keycodes can stand for: it has 8 to 255.
constexpr int X11Offset = 8;
constexpr int LastX11Keycode = 255;

template <std::size_t Size>
int lookUp(const Row (&rows)[Size], int from)
{
    const auto row = std::lower_bound(
        std::begin(rows), std::end(rows), from, [](const Row &r, int wanted) { return r.from < wanted; });
    return row != std::end(rows) && row->from == from ? row->code : 0;
}

} // namespace

int keyCodeOfToolkitKey(int key)
{
    const bool onKeypad = (key & KeypadModifier) != 0;
    key &= ~KeypadModifier;
    if (onKeypad) {
        if (const int code = lookUp(KeypadCharacters, key))
            return code;
    }
    if (key >= FirstCharacter && key < FirstCharacter + static_cast<int>(Characters.size()))
        return Characters[static_cast<std::size_t>(key - FirstCharacter)];
    return lookUp(ToolkitKeys, key);
}

int keyCodeOfX11(int keycode)
{
    return keycode > X11Offset && keycode <= LastX11Keycode ? keycode - X11Offset : 0;
}

int keyCodeOfScanCodeSet1(int scanCode)
{
    if (scanCode > 0 && scanCode <= LastSameScanCode && (scanCode < 0x54 || scanCode > 0x55))
        return scanCode;
    return lookUp(ScanCodesBeyond, scanCode);
}

} // namespace swplay
