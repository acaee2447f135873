#include "DeviceFixture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTransform>

#include <linux/input-event-codes.h>

#include <cmath>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

// Draws every screen as a user meets it and keeps the pictures beside the test program for people to look at.
class PicturesTest : public DeviceFixture
{
protected:
    void expectPicture(const QString &name)
    {
        device.takeDirty();
        const QImage &frame = device.frame();
        ASSERT_EQ(frame.size(), QSize(720, 1280));
        ASSERT_EQ(frame.format(), QImage::Format_RGB32);
        const QRgb first = frame.pixel(0, 0);
        bool varied = false;
        for (int y = 0; y < frame.height() && !varied; ++y) {
            for (int x = 0; x < frame.width() && !varied; ++x) {
                varied = frame.pixel(x, y) != first;
            }
        }
        EXPECT_TRUE(varied) << "nothing is drawn";
        QDir().mkpath(QStringLiteral(DEVICE_PICTURES));
        const QImage upright
            = device.rotation() % 2 == 0 ? frame : frame.transformed(QTransform().rotate(-90));
        EXPECT_TRUE(upright.save(QDir(QStringLiteral(DEVICE_PICTURES)).filePath(name + ".png")));
    }

    void playArena(const QString &suffix)
    {
        device.openApp("Arena");
        pass(100ms);
        expectPicture("arena" + suffix);
        const QJsonObject controls = state()["controls"].toObject();
        const auto place = [&](const char *name, int x = 0, int y = 0) {
            const QJsonObject control = controls[QLatin1String(name)].toObject();
            return onFrame(control["x"].toInt() + x, control["y"].toInt() + y);
        };
        touch(Down, {place("look"), place("joystick")});
        touch(Move, {place("look", 110, -10), place("joystick", 40, -90)});
        pass(1500ms);
        touch(Down, {place("fire"), place("look", 110, -10), place("joystick", 40, -90)});
        pass(130ms);
        expectPicture("arena-playing" + suffix);
        touch(Up, {});
        touch(Down, {place("jump")});
        pass(300ms);
        expectPicture("arena-jumping" + suffix);
        touch(Up, {});
        pass(2s);
    }

    void drawScribbles()
    {
        device.openApp("Paint");
        for (int i = 0; i < 20; ++i) {
            const int x = 60 + 30 * i;
            touch(i == 0 ? Down : Move,
                {{x, 420 + (i % 4) * 40}, {x, 700 - i * 8},
                    {360 + static_cast<int>(200 * std::sin(i / 3.0)),
                        900 + static_cast<int>(150 * std::cos(i / 3.0))}});
            now += 50ms;
        }
    }
};

TEST_F(PicturesTest, everyAppInPortraitAndLandscape)
{
    for (const int rotation : {0, 1}) {
        device.setRotation(rotation);
        const QString suffix = rotation == 0 ? QStringLiteral("") : QStringLiteral("-landscape");
        device.openApp("Home");
        expectPicture("home" + suffix);
        drawScribbles();
        expectPicture("paint" + suffix);
        touch(Up, {});
        device.openApp("Notes");
        type("Shopping list\n\tbread, 2 × coffee ☕\n");
        type("你好，世界。 مرحبا بالعالم สวัสดีชาวโลก "
             "👩‍👩‍👧 "
             "🇩🇪 "
             "naïve "
             "café\n");
        type("The quick brown fox jumps over the lazy dog, and then it sleeps until the evening comes.");
        click(KEY_A, true);
        click(KEY_1, true);
        click(KEY_SPACE);
        expectPicture("notes" + suffix);
        device.openApp("List");
        touch(Down, {{360, 900}});
        touch(Move, {{360, 643}});
        expectPicture("list" + suffix);
        touch(Up, {});
        pass(5s);
        device.openApp("Video");
        pass(4s);
        expectPicture("video" + suffix);
        device.openApp("Camera");
        expectPicture("camera-waiting" + suffix);
        QFile photo(QStringLiteral(DEVICE_PICTURES) + "/home.png");
        ASSERT_TRUE(photo.open(QIODevice::ReadOnly));
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        ASSERT_TRUE(QImage::fromData(photo.readAll()).scaled(640, 480).save(&buffer, "JPG"));
        device.picture("one", jpeg.toStdString(), now);
        expectPicture("camera" + suffix);
        playArena(suffix);
        device.openApp("Settings");
        expectPicture("settings" + suffix);
        device.openApp("Latency");
        expectPicture("latency" + suffix);
        tap(300, 600);
        click(KEY_VOLUMEUP);
        expectPicture("latency-volume" + suffix);
        click(KEY_MENU);
        expectPicture("recents" + suffix);
    }
}

TEST_F(PicturesTest, bootAndPressedStates)
{
    device.reboot(now);
    pass(700ms);
    expectPicture("boot");
    pass(3s);
    touch(Down, {{170, 870}, {360, 1238}});
    expectPicture("home-pressed");
}

} // namespace
} // namespace orvane::cloud
