#pragma once

#include <QtGlobal>

struct xcb_connection_t;

namespace bench {

// A person's hand on keyboard and mouse: the display server takes what it does as the devices' own input
// (XTEST), so that it reaches the client the whole way. It has a connection of its own to the display of this
// process, and is used by one thread at a time.
//
// Times are nanoseconds of the machine's steady clock, as std::chrono::steady_clock counts them in every
// process, taken just before the input goes out.
class Hand
{
public:
    // Throws e2e::StepFailed without a display or its XTEST extension.
    Hand();
    ~Hand();
    Hand(const Hand &) = delete;
    Hand &operator=(const Hand &) = delete;

    // `code`: of linux/input-event-codes.h. Returns the time.
    qint64 press(int code);
    qint64 release(int code);
    // Moves the mouse by so many pixels, from wherever the pointer is. Returns the time.
    qint64 moveBy(int dx, int dy);

    // Now, on the clock of the times above.
    static qint64 nowNs();

private:
    qint64 send(quint8 type, quint8 detail, qint16 x, qint16 y);

    xcb_connection_t *m_connection; // owned
};

} // namespace bench
