#pragma once

// Translates key codes of the user's side into Linux input key codes (linux/input-event-codes.h).
class Keyboard
{
public:
    // Set in the argument of getKeyCode: the rest is a native scan code of the keyboard (on Linux the X11
    // keycode, which is the evdev code + 8; on Windows the set 1 scan code, + 0x100 for extended keys).
    // Without it the argument is a toolkit key code (values of Qt::Key; with Qt::KeypadModifier for a
    // character of the keypad).
    static constexpr int NativeScanCode = 0x40000000;
    // Set in the result: the character of the toolkit code is typed with Shift on a US keyboard, such as 'A'
    // or
    // '!'. sendKeyEvent tells the device to hold Shift for this key. The low 16 bits are the key code.
    static constexpr int WithShift = 0x10000;

    // The one instance. Any thread.
    static Keyboard *GetInstance();

    // The key code for `key`, or 0 (KEY_RESERVED) when there is none.
    int getKeyCode(int key) const;

private:
    Keyboard() = default;
};
