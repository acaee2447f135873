#include "DeviceFixture.h"

#include "device/Fling.h"
#include "device/RecentApps.h"

#include <QJsonArray>
#include <QPainter>

#include <linux/input-event-codes.h>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

class AppsTest : public DeviceFixture
{
protected:
    double zoom() const { return state()["zoom"].toDouble(); }
    // One finger from (x, y) by `way` pixels down, `step` at a time every 50 ms, held still at the end.
    void drag(int x, int y, int way, int step)
    {
        touch(Down, {{x, y}});
        for (int moved = step; std::abs(moved) <= std::abs(way); moved += step) {
            now += 50ms;
            touch(Move, {{x, y + moved}});
        }
    }
};

TEST_F(AppsTest, launcherOpensAppsByTouch)
{
    EXPECT_EQ(app(), "Home");
    EXPECT_EQ(state()["apps"].toArray(),
        (QJsonArray{"Paint", "Notes", "List", "Video", "Latency", "Camera", "Arena", "Settings"}));
    for (const int rotation : {0, 1}) {
        device.setRotation(rotation);
        for (const QJsonValue name : state()["apps"].toArray()) {
            tapIcon(name.toString().toLatin1().constData());
            EXPECT_EQ(app(), name.toString());
            click(KEY_HOMEPAGE);
        }
    }
    device.setRotation(0);
    const QJsonArray paint = state()["icons"].toObject()["Paint"].toArray();
    touch(Down, {{paint[0].toInt(), paint[1].toInt()}});
    touch(Move, {{paint[0].toInt(), 300}}); // slides off
    touch(Up, {});
    EXPECT_EQ(app(), "Home");
}

TEST_F(AppsTest, openAppByName)
{
    for (const char *name :
        {"Paint", "Notes", "List", "Video", "Latency", "Camera", "Arena", "Settings", "Home"}) {
        EXPECT_TRUE(device.openApp(name));
        EXPECT_EQ(app(), name);
    }
    for (const char *name : {"", "paint", "camera", "arena", "Nothing"}) {
        EXPECT_FALSE(device.openApp(name)) << name;
    }
}

TEST_F(AppsTest, navigationBarAndKeys)
{
    device.openApp("Notes");
    tap(160, 1238);
    EXPECT_EQ(app(), "Home") << "back";
    device.openApp("List");
    tap(560, 1238);
    EXPECT_EQ(app(), "Recents");
    click(KEY_MENU);
    EXPECT_EQ(app(), "List");
    click(KEY_MENU);
    click(KEY_BACK);
    EXPECT_EQ(app(), "List");
    click(KEY_MENU);
    tap(360, 1238);
    EXPECT_EQ(app(), "Home");
    click(KEY_MENU);
    tap(265, 500); // two cards side by side: the first is the one last used
    EXPECT_EQ(app(), "List");
}

// Each of up to eight cards can be touched, none reaches under the bars.
TEST(RecentAppsTest, everyCardIsOnTheScreen)
{
    for (const QSize screen : {QSize(720, 1280), QSize(1280, 720)}) {
        for (std::size_t count = 1; count <= 8; ++count) {
            RecentApps recents;
            std::vector<AppKind> cards;
            for (std::size_t i = 0; i < count; ++i) {
                cards.push_back(static_cast<AppKind>(i)); // the number of the card instead of an app
            }
            const QSize picture = RecentApps::pictureSize(screen, count);
            recents.show(cards, screen);
            std::vector<int> hits(count);
            int outside = 0;
            for (int y = 1; y < screen.height(); y += 2) {
                for (int x = 1; x < screen.width(); x += 2) {
                    const Pointer pointer{1, {x, y}, 1, {}};
                    recents.touchDown(pointer);
                    if (recents.touchUp(pointer) == RecentApps::Choice::Open) {
                        ++hits[static_cast<std::size_t>(recents.chosen())];
                        outside += y < 48 || y > screen.height() - 84 ? 1 : 0;
                    }
                }
            }
            EXPECT_EQ(outside, 0) << count;
            for (const int hit : hits) {
                EXPECT_GT(hit, picture.width() * picture.height() / 4) << count << " " << screen.width();
            }
        }
    }
}

TEST(RecentAppsTest, picturesAreMadeWhenTheyAreFirstDrawn)
{
    const QSize screen(720, 1280);
    std::vector<AppKind> made;
    const auto source = [&made](AppKind kind, QSize size) {
        made.push_back(kind);
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    };
    RecentApps recents;
    recents.show({AppKind::Notes, AppKind::Paint}, screen);
    EXPECT_TRUE(made.empty());
    QImage image(screen, QImage::Format_RGB32);
    QPainter painter(&image);
    recents.draw(painter, screen, QRect({}, screen), source);
    recents.draw(painter, screen, QRect({}, screen), source);
    EXPECT_EQ(made, (std::vector<AppKind>{AppKind::Notes, AppKind::Paint}));
    EXPECT_EQ(image.pixelColor(265, 500), QColor(Qt::red));
    recents.show({AppKind::Notes}, screen);
    recents.draw(painter, screen, QRect({}, screen), source);
    EXPECT_EQ(made.size(), 3U);
}

TEST_F(AppsTest, closeAllForgetsTheApps)
{
    device.openApp("Notes");
    type("gone");
    click(KEY_MENU);
    tap(360, 1135);
    EXPECT_EQ(app(), "Home");
    device.openApp("Notes");
    EXPECT_EQ(noteText(), "");
}

TEST_F(AppsTest, volumeKeysShowTheLevelForAMoment)
{
    const int before = number("volume");
    EXPECT_FALSE(device.nextTick());
    click(KEY_VOLUMEUP);
    EXPECT_EQ(number("volume"), before + 1);
    EXPECT_TRUE(device.nextTick());
    EXPECT_FALSE(device.takeDirty().isEmpty());
    pass(5s);
    EXPECT_EQ(ticks, 1);
    EXPECT_FALSE(device.nextTick());
    EXPECT_FALSE(device.takeDirty().isEmpty()) << "the panel goes";
    for (int i = 0; i < 40; ++i) {
        click(KEY_VOLUMEDOWN);
    }
    EXPECT_EQ(number("volume"), 0);
    for (int i = 0; i < 40; ++i) {
        device.key("one", 1, KEY_VOLUMEUP, false, now);
    }
    EXPECT_EQ(number("volume"), 15);
}

TEST_F(AppsTest, paintCountsFingersStrokesAndPoints)
{
    device.openApp("Paint");
    touch(Down, {{100, 400}, {300, 400}});
    EXPECT_EQ(number("fingers"), 2);
    touch(Down, {{500, 900}}, "two");
    EXPECT_EQ(number("fingers"), 3);
    touch(Move, {{120, 420}, {300, 400}});
    EXPECT_EQ(number("points"), 4);
    touch(Up, {{300, 400}});
    EXPECT_EQ(number("fingers"), 2);
    touch(Up, {});
    touch(Up, {}, "two");
    EXPECT_EQ(number("fingers"), 0);
    EXPECT_EQ(number("strokes"), 3);
    tap(623, 96); // Clear
    EXPECT_EQ(number("strokes"), 0);
    EXPECT_EQ(number("points"), 0);
}

TEST_F(AppsTest, paintDrawsWhereTheFingerIs)
{
    device.openApp("Paint");
    const QRgb paper = device.frame().pixel(200, 700);
    touch(Down, {{200, 700}});
    EXPECT_NE(device.frame().pixel(200, 700), paper);
    touch(Move, {{400, 700}});
    touch(Up, {});
    for (int x = 200; x <= 400; x += 10) {
        EXPECT_NE(device.frame().pixel(x, 700), paper) << x;
    }
    EXPECT_EQ(device.frame().pixel(400, 660), paper);
    device.setRotation(1);
    device.setRotation(0);
    EXPECT_NE(device.frame().pixel(300, 700), paper) << "drawn anew after a turn";
    const QImage drawn = device.frame().copy();
    device.setRotation(1);
    device.setRotation(0);
    touch(Down, {{200, 900}}); // nobody has looked since the turn
    touch(Move, {{400, 900}});
    EXPECT_NE(device.frame().pixel(250, 900), paper);
    touch(Up, {});
    for (int x = 200; x <= 400; x += 10) {
        EXPECT_NE(device.frame().pixel(x, 900), paper) << x;
        EXPECT_EQ(device.frame().pixel(x, 700), drawn.pixel(x, 700)) << x;
    }
}

TEST_F(AppsTest, listFollowsTheFinger)
{
    device.openApp("List");
    EXPECT_EQ(number("offset"), 0);
    drag(360, 900, -200, -50);
    EXPECT_EQ(number("offset"), 200);
    drag(360, 900, -150, -50);
    now += 1s;
    touch(Up, {}); // held still: no inertia
    EXPECT_FALSE(device.nextTick());
    const int offset = number("offset");
    pass(5s);
    EXPECT_EQ(number("offset"), offset);
}

TEST_F(AppsTest, listGoesOnAfterAQuickDragAndStops)
{
    device.openApp("List");
    drag(360, 1000, -400, -100);
    touch(Up, {});
    const int atRelease = number("offset");
    ASSERT_TRUE(device.nextTick());
    pass(200ms);
    EXPECT_GT(number("offset"), atRelease + 50);
    pass(20s);
    EXPECT_FALSE(device.nextTick());
    EXPECT_GT(number("offset"), atRelease + 200);
    EXPECT_LT(number("offset"), atRelease + 2500);
    // A touch stops the movement.
    drag(360, 1000, -400, -100);
    touch(Up, {});
    pass(100ms);
    touch(Down, {{360, 700}});
    EXPECT_FALSE(device.nextTick());
}

TEST_F(AppsTest, listStopsAtItsEnds)
{
    device.openApp("List");
    drag(360, 300, 600, 100);
    touch(Up, {});
    pass(5s);
    EXPECT_EQ(number("offset"), 0);
    for (int i = 0; i < 400; ++i) {
        drag(360, 1100, -900, -300);
        now += 1s;
        touch(Up, {});
    }
    const int end = number("offset");
    drag(360, 1100, -900, -300);
    touch(Up, {});
    pass(5s);
    EXPECT_EQ(number("offset"), end);
    EXPECT_GT(end, 100'000);
}

TEST_F(AppsTest, pinchZoomsTheList)
{
    device.openApp("List");
    drag(360, 1000, -600, -100);
    now += 1s;
    touch(Up, {});
    const int row = number("firstRow");
    touch(Down, {{360, 600}, {360, 700}});
    EXPECT_EQ(zoom(), 1);
    now += 50ms;
    touch(Move, {{360, 550}, {360, 750}});
    EXPECT_DOUBLE_EQ(zoom(), 2);
    EXPECT_GE(number("firstRow"), row) << "zooms about the fingers, not about the top";
    touch(Up, {});
    EXPECT_DOUBLE_EQ(zoom(), 2);
    touch(Down, {{360, 500}, {360, 900}});
    touch(Move, {{360, 695}, {360, 705}}); // closer than anything
    EXPECT_DOUBLE_EQ(zoom(), 0.5);
    touch(Up, {});
}

// As clients send a wheel with Ctrl: both fingers in one frame, and an up frame that still lists them.
TEST_F(AppsTest, pinchAsTheWheelMakesIt)
{
    device.openApp("List");
    for (int notch = 0; notch < 2; ++notch) {
        const double before = zoom();
        touch(Down, {{360, 576}, {360, 704}});
        for (int y = 720; y <= 768; y += 16) {
            now += 50ms;
            touch(Move, {{360, 1280 - y}, {360, y}});
        }
        touch(Up, {{360, 512}, {360, 768}});
        EXPECT_NEAR(zoom(), std::min(before * 2, 3.0), 0.01);
    }
    drag(360, 900, -100, -50); // one finger scrolls again
    EXPECT_GT(number("offset"), 0);
}

TEST_F(AppsTest, wheelGesturesScrollOneAfterTheOther)
{
    device.openApp("List");
    int offset = 0;
    for (int notch = 0; notch < 5; ++notch) {
        touch(Down, {{360, 768}});
        for (int y = 736; y >= 512; y -= 32) {
            now += 50ms;
            touch(Move, {{360, y}});
        }
        now += 50ms;
        touch(Up, {{360, 512}});
        EXPECT_GE(number("offset"), offset + 256) << notch;
        offset = number("offset");
    }
}

TEST_F(AppsTest, theFilmKeepsItsSpeedWhateverItsRate)
{
    const std::pair<int, int> ratesAndTicks[] = {{5, 10}, {25, 50}, {1, 2}, {12, 25}};
    for (const auto &[rate, expectedTicks] : ratesAndTicks) {
        device.setFilmRate(rate); // before it is opened, and while it plays
        device.openApp("Video");
        pass(0ms);
        ticks = 0;
        const int first = number("frame");
        pass(2s);
        EXPECT_EQ(number("frame"), first + 50) << rate;
        EXPECT_EQ(ticks, expectedTicks) << rate;
    }
}

TEST_F(AppsTest, videoPlaysAt25FramesPerSecondWhileInFront)
{
    EXPECT_FALSE(device.nextTick());
    device.openApp("Video");
    pass(0ms); // learns the time
    ticks = 0;
    const int first = number("frame");
    pass(2s);
    EXPECT_EQ(number("frame"), first + 50);
    EXPECT_EQ(ticks, 50);
    EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
    click(KEY_MENU);
    EXPECT_FALSE(device.nextTick());
    click(KEY_MENU);
    EXPECT_TRUE(device.nextTick());
    click(KEY_HOMEPAGE);
    EXPECT_FALSE(device.nextTick());
    now += 1h;
    device.openApp("Video");
    device.tick(now);
    EXPECT_LE(number("frame"), first + 51) << "stands still while it is not in front";
    const int frame = number("frame");
    device.tick(now + 400ms); // late: frames are left out
    EXPECT_EQ(number("frame"), frame + 10);
    device.tick(now + 401ms);
    EXPECT_EQ(number("frame"), frame + 10) << "early ticks change nothing";
}

TEST_F(AppsTest, latencyFlipsTheWholeScreenAtTouchDown)
{
    device.openApp("Latency");
    const QRgb even = device.frame().pixel(360, 640);
    device.takeDirty();
    touch(Down, {{360, 640}});
    EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
    const QRgb odd = device.frame().pixel(360, 640);
    EXPECT_GT(std::abs(qGray(odd) - qGray(even)), 100);
    touch(Move, {{370, 640}});
    touch(Up, {});
    EXPECT_TRUE(device.takeDirty().isEmpty());
    touch(Down, {{360, 640}});
    EXPECT_EQ(device.frame().pixel(360, 640), even);
    EXPECT_EQ(number("flips"), 2);
}

TEST(FlingTest, movesAsFarHoweverOftenItIsAskedTo)
{
    const TimePoint start{std::chrono::hours(1)};
    const auto travel = [&](std::chrono::milliseconds step) {
        Fling fling;
        for (int i = 0; i <= 5; ++i) {
            fling.drag(i * 20, start + i * 20ms);
        }
        fling.release(start + 110ms);
        qreal way = 0;
        TimePoint now = start + 110ms;
        while (fling.isMoving()) {
            now += step;
            way += fling.advance(now);
        }
        return way;
    };
    EXPECT_NEAR(travel(16ms), travel(80ms), 12);
    EXPECT_GT(travel(33ms), 200);
}

} // namespace
} // namespace orvane::cloud
