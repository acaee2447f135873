#include "swplay/Keyboard.h"

#include "session/KeyTables.h"

Keyboard *Keyboard::GetInstance()
{
    static Keyboard keyboard; // has no state
    return &keyboard;
}

int Keyboard::getKeyCode(int key) const
{
    if (key <= 0)
        return 0;
    if ((key & NativeScanCode) == 0)
        return swplay::keyCodeOfToolkitKey(key);
    const int scanCode = key & ~NativeScanCode;
#ifdef _WIN32
    return swplay::keyCodeOfScanCodeSet1(scanCode);
#else
    return swplay::keyCodeOfX11(scanCode);
#endif
}
