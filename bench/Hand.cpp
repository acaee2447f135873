#include "Hand.h"

#include "Waiting.h"

#include <chrono>

#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace bench {

namespace {
constexpr int firstKeyCode = 8; // of the display server, for code 0 of the kernel
constexpr quint8 relative = 1; // a move counts from where the pointer is
} // namespace

Hand::Hand()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    const xcb_query_extension_reply_t *xtest = xcb_connection_has_error(m_connection)
        ? nullptr
        : xcb_get_extension_data(m_connection, &xcb_test_id);
    if (!xtest || !xtest->present) {
        xcb_disconnect(m_connection);
        throw e2e::StepFailed(QStringLiteral("the display takes no input by XTEST"));
    }
}

Hand::~Hand()
{
    xcb_disconnect(m_connection);
}

qint64 Hand::nowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

qint64 Hand::press(int code)
{
    return send(XCB_KEY_PRESS, static_cast<quint8>(code + firstKeyCode), 0, 0);
}

qint64 Hand::release(int code)
{
    return send(XCB_KEY_RELEASE, static_cast<quint8>(code + firstKeyCode), 0, 0);
}

qint64 Hand::moveBy(int dx, int dy)
{
    return send(XCB_MOTION_NOTIFY, relative, static_cast<qint16>(dx), static_cast<qint16>(dy));
}

qint64 Hand::send(quint8 type, quint8 detail, qint16 x, qint16 y)
{
    const qint64 time = nowNs();
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, XCB_NONE, x, y, 0);
    xcb_flush(m_connection);
    return time;
}

} // namespace bench
