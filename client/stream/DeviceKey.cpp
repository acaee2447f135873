#include "stream/DeviceKey.h"

#include <swplay/Keyboard.h>

int deviceKeyCode(int toolkitKey)
{
    return Keyboard::GetInstance()->getKeyCode(toolkitKey);
}

int deviceKeyCodeOfScanCode(quint32 scanCode)
{
    return Keyboard::GetInstance()->getKeyCode(Keyboard::NativeScanCode | static_cast<int>(scanCode));
}
