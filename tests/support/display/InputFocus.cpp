#include "InputFocus.h"

#include <QCoreApplication>
#include <QTest>
#include <QWidget>

#ifdef ORVANE_X11
#include <QX11Info>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>
#endif

namespace {

// What the display told before its answer is in Qt's queue.
bool displayFocuses(const QWidget &window)
{
#ifdef ORVANE_X11
    if (QX11Info::isPlatformX11()) {
        struct Free
        {
            void operator()(void *memory) const { std::free(memory); }
        };
        xcb_connection_t *display = QX11Info::connection();
        const std::unique_ptr<xcb_get_input_focus_reply_t, Free> reply(
            xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
        return reply && reply->focus == window.winId();
    }
#endif
    return window.isActiveWindow();
}

} // namespace

bool waitForInputFocus(QWidget &window)
{
    if (!QTest::qWaitForWindowActive(&window)
        || !QTest::qWaitFor([&window] { return displayFocuses(window); }))
        return false;
    QCoreApplication::processEvents();
    return QTest::qWaitForWindowActive(&window);
}
