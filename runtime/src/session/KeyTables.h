#pragma once

namespace swplay {

// The tables behind Keyboard: Linux input key codes for the codes of the client's side. Pure functions; any
// thread.

// For a toolkit key code (a value of Qt::Key, with or without Qt::KeypadModifier); Keyboard::WithShift is set
// where the character needs Shift on a US keyboard. 0 = none.
int keyCodeOfToolkitKey(int key);

// For an X11 keycode of a Linux server, which is the input key code + 8. 0 = none.
int keyCodeOfX11(int keycode);

// For a PC scan code of set 1, + 0x100 for the keys with the prefix E0, as Windows tells it. 0 = none.
int keyCodeOfScanCodeSet1(int scanCode);

} // namespace swplay
