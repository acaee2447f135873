#pragma once

#include "device/VirtualDevice.h"

#include <QPoint>

#include <map>
#include <string>
#include <vector>

namespace orvane::cloud {

// What one finger did.
struct FingerEvent
{
    enum class Phase {
        Down,
        Move,
        Up,
    };
    Phase phase = Phase::Down;
    int id = 0; // unique within the device for as long as it runs, from 1
    QPoint position; // portrait screen, pixels; for Up where it was last
    float pressure = 1; // 0 to 1, above 0
};

// Turns touch frames into what each finger did. A frame holds every finger of its session that is on the
// screen, without names, and a finger's place in the list may change: keys of a key mapping come and go in
// front of the mouse. Frames with as many fingers as before are matched by place, all others by distance.
//
// An up frame always lifts something: clients end a wheel gesture with an up frame that still lists the
// gesture's fingers, which are the first of the list and came down together. It never brings one down.
//
// Thread-compatible, owned by the device.
class FingerTracker
{
public:
    // More fingers of one session than this are ignored.
    static constexpr std::size_t MaxFingers = 10;

    explicit FingerTracker(QSize screen);

    // Events of one frame: moves, then ups, then downs. `action`: 0 down, 1 up, 2 move.
    std::vector<FingerEvent> frame(
        const std::string &session, int action, const std::vector<TouchPoint> &points);
    // Lifts every finger of the session.
    std::vector<FingerEvent> lift(const std::string &session);
    // Forgets every finger without events.
    void clear();
    // Fingers of all sessions.
    int count() const;

private:
    struct Finger
    {
        int id = 0;
        int birth = 0; // number of the frame that it came down in
        QPoint position;
    };
    struct Target
    {
        QPoint position;
        float pressure = 1;
    };

    std::vector<Target> targets(const std::vector<TouchPoint> &points) const;

    const QSize m_screen;
    std::map<std::string, std::vector<Finger>> m_sessions; // only sessions with fingers
    int m_lastId = 0;
    int m_frames = 0;
};

} // namespace orvane::cloud
