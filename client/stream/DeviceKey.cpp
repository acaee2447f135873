#include "stream/DeviceKey.h"

#include <swplay/Keyboard.h>

int deviceKeyCode(int toolkitKey)
{
    return Keyboard::GetInstance()->getKeyCode(toolkitKey);
}
