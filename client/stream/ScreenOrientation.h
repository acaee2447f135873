#pragma once

#include <QMetaType>

// How a device's screen stands. The values are part of the contract with the key-mapping schemes: the other
// orientation is the value XOR 3.
enum class ScreenOrientation : int {
    Landscape = 1, // the portrait frame is shown turned by -90 degrees
    Portrait = 2, // the frame is shown as delivered
};

Q_DECLARE_METATYPE(ScreenOrientation)
