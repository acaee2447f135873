#pragma once

#include "device/HeldKeys.h"

#include <memory>

class QKeyEvent;
class StreamController;

// The keyboard's way to the device: what is a key there goes as a key, all else as text, and every key that
// is down on the device comes up again. GUI thread; part of its window.
class DeviceKeyboard
{
public:
    explicit DeviceKeyboard(std::shared_ptr<StreamController> stream);
    ~DeviceKeyboard();

    void press(const QKeyEvent &event);
    // Also after a press that went as text: the device ignores keys that are not down.
    void release(const QKeyEvent &event);
    // When the releases of what is held may go elsewhere.
    void releaseAll();

private:
    std::shared_ptr<StreamController> m_stream;
    HeldKeys m_heldKeys;
};
