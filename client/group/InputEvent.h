#pragma once

#include <QString>

namespace group {

// One input of the master device, on its way to the group's other devices. Plain value.
struct InputEvent
{
    // What `type` may be; events of any other type are ignored.
    enum Type : int { Touch = 0, Key = 1, Text = 2 };
    // What `keyState` may be for a key; any other is ignored.
    enum KeyState : int { FunctionButton = 0, KeyPress = 1, KeyRelease = 2 };

    static InputEvent touch(int action, float percentX, float percentY)
    {
        return {Touch, action, 0, percentX, percentY, {}};
    }
    static InputEvent key(int code, KeyState state) { return {Key, code, state, -1.0F, -1.0F, {}}; }
    static InputEvent typed(const QString &text) { return {Text, -1, 0, -1.0F, -1.0F, text}; }

    int type = Touch;
    int code = -1; // a touch's action (0 down, 1 up, 2 move); a key's code: the SDK's, a button's Linux one
    int keyState = FunctionButton;
    float percentX = -1.0F; // of a touch, as fractions of the remote portrait screen
    float percentY = -1.0F;
    QString text;
};

} // namespace group
