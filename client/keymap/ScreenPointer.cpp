#include "keymap/ScreenPointer.h"

#include <QCursor>
#include <QWidget>

#ifdef ORVANE_X11
#include <QX11Info>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>
#endif

namespace {

bool isX11()
{
#ifdef ORVANE_X11
    return QX11Info::isPlatformX11();
#else
    return false;
#endif
}

} // namespace

QPoint ScreenPointer::position()
{
#ifdef ORVANE_X11
    if (isX11()) {
        struct Free
        {
            void operator()(void *memory) const { std::free(memory); }
        };
        xcb_connection_t *display = QX11Info::connection();
        const auto root = static_cast<xcb_window_t>(QX11Info::appRootWindow());
        const std::unique_ptr<xcb_query_pointer_reply_t, Free> reply(
            xcb_query_pointer_reply(display, xcb_query_pointer(display, root), nullptr));
        return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
    }
#endif
    return QCursor::pos();
}

void ScreenPointer::moveBy(const QPoint &way)
{
#ifdef ORVANE_X11
    if (isX11()) {
        xcb_connection_t *display = QX11Info::connection();
        xcb_warp_pointer(display, XCB_NONE, XCB_NONE, 0, 0, 0, 0, static_cast<int16_t>(way.x()),
            static_cast<int16_t>(way.y()));
        xcb_flush(display);
        return;
    }
#endif
    QCursor::setPos(QCursor::pos() + way);
}

qreal ScreenPointer::pixelRatio(const QWidget &widget)
{
    return isX11() ? widget.devicePixelRatioF() : 1;
}
