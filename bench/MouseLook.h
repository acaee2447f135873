#pragma once

#include <QJsonObject>

class VideoView;

namespace bench {

class DeviceSession;

// Mouse-look with a mouse of a thousand reports a second, in slices of ten seconds: what it costs the client,
// how long after the mouse the device knows, and whether nothing of the way is lost.
struct MouseLook
{
    int seconds = 60; // a multiple of ten

    // Looks around with the crosshair that stands in the middle of the view and is bound to Q, and gives the
    // figures by name. The window is active. Throws e2e::StepFailed also when the finger does not end where
    // the mouse's way leads. GUI thread.
    QJsonObject measure(DeviceSession &session, VideoView &view, double sensitivity) const;
};

} // namespace bench
