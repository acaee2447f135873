#pragma once

#include <QVector>

// The keys that are down on the device because of this window, so that every one of them comes up again: also
// when the release goes to another window, or comes as another key because Shift was let go first. Plain
// value; GUI thread.
class HeldKeys
{
public:
    // A key went down. `scanCode`: the keyboard's own code of it, 0 if unknown; `deviceCode`: what the device
    // was sent.
    void press(quint32 scanCode, int deviceCode);
    // A key came up and the device is told so with `deviceCode`. Returns the codes that must come up besides.
    QVector<int> release(quint32 scanCode, int deviceCode);
    // Forgets all keys and returns their codes.
    QVector<int> releaseAll();

private:
    struct Key
    {
        quint32 scanCode;
        int deviceCode;
    };
    QVector<Key> m_keys; // in the order of their presses
};
