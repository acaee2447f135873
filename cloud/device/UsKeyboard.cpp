#include "device/UsKeyboard.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <iterator>

namespace orvane::cloud::usKeyboard {

namespace {

struct CharacterKey
{
    int code;
    char plain;
    char shifted;
};

constexpr CharacterKey CharacterKeys[] = {
    {KEY_1, '1', '!'},
    {KEY_2, '2', '@'},
    {KEY_3, '3', '#'},
    {KEY_4, '4', '$'},
    {KEY_5, '5', '%'},
    {KEY_6, '6', '^'},
    {KEY_7, '7', '&'},
    {KEY_8, '8', '*'},
    {KEY_9, '9', '('},
    {KEY_0, '0', ')'},
    {KEY_MINUS, '-', '_'},
    {KEY_EQUAL, '=', '+'},
    {KEY_Q, 'q', 'Q'},
    {KEY_W, 'w', 'W'},
    {KEY_E, 'e', 'E'},
    {KEY_R, 'r', 'R'},
    {KEY_T, 't', 'T'},
    {KEY_Y, 'y', 'Y'},
    {KEY_U, 'u', 'U'},
    {KEY_I, 'i', 'I'},
    {KEY_O, 'o', 'O'},
    {KEY_P, 'p', 'P'},
    {KEY_LEFTBRACE, '[', '{'},
    {KEY_RIGHTBRACE, ']', '}'},
    {KEY_A, 'a', 'A'},
    {KEY_S, 's', 'S'},
    {KEY_D, 'd', 'D'},
    {KEY_F, 'f', 'F'},
    {KEY_G, 'g', 'G'},
    {KEY_H, 'h', 'H'},
    {KEY_J, 'j', 'J'},
    {KEY_K, 'k', 'K'},
    {KEY_L, 'l', 'L'},
    {KEY_SEMICOLON, ';', ':'},
    {KEY_APOSTROPHE, '\'', '"'},
    {KEY_GRAVE, '`', '~'},
    {KEY_BACKSLASH, '\\', '|'},
    {KEY_Z, 'z', 'Z'},
    {KEY_X, 'x', 'X'},
    {KEY_C, 'c', 'C'},
    {KEY_V, 'v', 'V'},
    {KEY_B, 'b', 'B'},
    {KEY_N, 'n', 'N'},
    {KEY_M, 'm', 'M'},
    {KEY_COMMA, ',', '<'},
    {KEY_DOT, '.', '>'},
    {KEY_SLASH, '/', '?'},
    {KEY_SPACE, ' ', ' '},
    {KEY_KP0, '0', '0'},
    {KEY_KP1, '1', '1'},
    {KEY_KP2, '2', '2'},
    {KEY_KP3, '3', '3'},
    {KEY_KP4, '4', '4'},
    {KEY_KP5, '5', '5'},
    {KEY_KP6, '6', '6'},
    {KEY_KP7, '7', '7'},
    {KEY_KP8, '8', '8'},
    {KEY_KP9, '9', '9'},
    {KEY_KPASTERISK, '*', '*'},
    {KEY_KPMINUS, '-', '-'},
    {KEY_KPPLUS, '+', '+'},
    {KEY_KPDOT, '.', '.'},
    {KEY_KPSLASH, '/', '/'},
    {KEY_KPEQUAL, '=', '='},
    {KEY_KPCOMMA, ',', ','},
};

struct NamedKey
{
    int code;
    const char *name;
};

constexpr NamedKey NamedKeys[] = {
    {KEY_SPACE, "Space"},
    {KEY_ENTER, "Enter"},
    {KEY_KPENTER, "Enter"},
    {KEY_BACKSPACE, "Backspace"},
    {KEY_DELETE, "Delete"},
    {KEY_INSERT, "Insert"},
    {KEY_TAB, "Tab"},
    {KEY_ESC, "Esc"},
    {KEY_LEFT, "←"},
    {KEY_RIGHT, "→"},
    {KEY_UP, "↑"},
    {KEY_DOWN, "↓"},
    {KEY_HOME, "Home"},
    {KEY_END, "End"},
    {KEY_PAGEUP, "Page up"},
    {KEY_PAGEDOWN, "Page down"},
    {KEY_LEFTSHIFT, "Shift"},
    {KEY_RIGHTSHIFT, "Shift"},
    {KEY_LEFTCTRL, "Ctrl"},
    {KEY_RIGHTCTRL, "Ctrl"},
    {KEY_LEFTALT, "Alt"},
    {KEY_RIGHTALT, "Alt"},
    {KEY_LEFTMETA, "Meta"},
    {KEY_RIGHTMETA, "Meta"},
    {KEY_CAPSLOCK, "Caps lock"},
    {KEY_F1, "F1"},
    {KEY_F2, "F2"},
    {KEY_F3, "F3"},
    {KEY_F4, "F4"},
    {KEY_F5, "F5"},
    {KEY_F6, "F6"},
    {KEY_F7, "F7"},
    {KEY_F8, "F8"},
    {KEY_F9, "F9"},
    {KEY_F10, "F10"},
    {KEY_F11, "F11"},
    {KEY_F12, "F12"},
};

} // namespace

std::optional<QChar> character(int code, bool shift)
{
    const auto key = std::find_if(std::begin(CharacterKeys), std::end(CharacterKeys),
        [code](const CharacterKey &candidate) { return candidate.code == code; });
    if (key == std::end(CharacterKeys)) {
        return std::nullopt;
    }
    return QLatin1Char(shift ? key->shifted : key->plain);
}

QString name(int code)
{
    const auto key = std::find_if(std::begin(NamedKeys), std::end(NamedKeys),
        [code](const NamedKey &candidate) { return candidate.code == code; });
    if (key != std::end(NamedKeys)) {
        return QString::fromUtf8(key->name);
    }
    if (const auto printed = character(code, false)) {
        return printed->toUpper();
    }
    return QStringLiteral("Key %1").arg(code);
}

} // namespace orvane::cloud::usKeyboard
