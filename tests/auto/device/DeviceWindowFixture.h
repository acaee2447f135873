#pragma once

#include "ApplyServer.h"

#include "device/SingleController.h"
#include "stream/VideoView.h"
#include "widgets/OvTitleBarBase.h"

#include <InputFocus.h>
#include <Recorder.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTest>

#include <memory>

// What the tests of the device window share.
namespace devicetest {

const QByteArray GrantedAnswer = R"({"code": 200, "msg": "success", "data": {"padCode": "VM100001",
    "resultInfo": {"userId": 17, "sessionId": "s-42",
        "controlList": [{"controlInfoList": [{"controlIp": "10.1.2.3", "controlPort": 8181}]}]}}})";

// The recording SDK's keyboard gives the key with this on top.
constexpr int Translated = 10'000;

// What the SDK was asked to do; not what it was only asked for.
inline QStringList takeCalls()
{
    QStringList list;
    for (const std::string &call : Recorder::instance().takeCalls()) {
        if (call.find("getVideoLevelResult") == std::string::npos)
            list.append(QString::fromStdString(call));
    }
    return list;
}

inline QString keyCall(int action, int key)
{
    return QStringLiteral("SWDataSource::sendKeyEvent(%1, %2)").arg(action).arg(key + Translated);
}

inline QString textCall(const QString &text)
{
    return QStringLiteral("SWDataSource::sendInputString(\"%1\", %2)").arg(text).arg(text.length() + 1);
}

// No finger on the device.
inline QString liftCall()
{
    return QStringLiteral("SWDataSource::sendTouchEvent(1, 1, [-1], [-1], [0])");
}

// A mouse event as it comes from the display, at a position in the widget.
inline void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &position)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// Leaves a picture in the view as the SDK does: something like a home screen, with an edge in each corner.
inline void showDevicePicture(VideoView &view)
{
    QImage image(720, 1280, QImage::Format_ARGB32);
    image.fill(QColor(0xE8, 0xF1, 0xFF));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 16; ++i) {
        painter.setBrush(QColor::fromHsv(i * 22, 170, 235));
        painter.drawRoundedRect(60 + i % 4 * 160, 200 + i / 4 * 220, 120, 120, 28, 28);
    }
    painter.fillRect(0, 0, 40, 40, Qt::red);
    painter.fillRect(680, 0, 40, 40, Qt::green);
    painter.fillRect(0, 1240, 40, 40, Qt::blue);
    painter.fillRect(680, 1240, 40, 40, Qt::yellow);
    painter.end();
    showPicture(view, reinterpret_cast<const std::uint32_t *>(image.constBits()), 720, 1280);
}

// A device window at a service that grants every device.
class Fixture
{
public:
    // Once per program: the client takes the service's address once.
    Fixture() { qputenv("ORVANE_API_BASE_URL", server.url().toUtf8()); }

    void makeWindow()
    {
        server.requestLines.clear();
        server.bodies.clear();
        server.setAnswer(GrantedAnswer);
        server.setDropping(false);
        window = std::make_unique<SingleController>(QStringLiteral("100001"), QStringLiteral("Aurora"));
        Recorder::instance().reset();
        Recorder::instance().setRemoteSize(720, 1280);
    }

    // Shows the window and waits for its video; forgets the calls that took.
    bool open() const
    {
        window->show();
        QApplication::setActiveWindow(window.get());
        if (!waitForInputFocus(*window))
            return false;
        window->applyDevice();
        if (!QTest::qWaitFor([this] { return video()->isVisible(); }) || !video()->hasFocus())
            return false;
        takeCalls();
        return true;
    }

    VideoView *video() const { return window->findChild<VideoView *>(); }
    template <typename Widget>
    Widget *child(const char *name = nullptr) const
    {
        return window->findChild<Widget *>(QString::fromLatin1(name));
    }

    ApplyServer server;
    std::unique_ptr<SingleController> window;
};

} // namespace devicetest
