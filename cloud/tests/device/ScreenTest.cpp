#include "DeviceFixture.h"

#include "device/Surface.h"

#include <QPainter>

#include <linux/input-event-codes.h>

#include <cstdlib>
#include <random>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

// Bounding rectangle of the pixels in which two pictures differ.
QRect difference(const QImage &a, const QImage &b)
{
    QRect result;
    for (int y = 0; y < a.height(); ++y) {
        const auto *first = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *second = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            if (first[x] != second[x]) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

class ScreenTest : public DeviceFixture
{
protected:
    void SetUp() override
    {
        device.takeDirty();
        m_before = device.frame().copy();
    }
    // Everything that changed must lie in what the device says has changed.
    QRect checkedDirty(const char *step)
    {
        const QRect dirty = device.takeDirty();
        const QRect changed = difference(m_before, device.frame());
        EXPECT_TRUE(changed.isEmpty() || dirty.contains(changed)) << step;
        EXPECT_EQ(dirty & device.frame().rect(), dirty) << step;
        m_before = device.frame().copy();
        return dirty;
    }

private:
    QImage m_before;
};

TEST_F(ScreenTest, firstPictureIsWhole)
{
    VirtualDevice fresh("VM1", "Fresh");
    EXPECT_EQ(fresh.takeDirty(), QRect(0, 0, 720, 1280));
    EXPECT_TRUE(fresh.takeDirty().isEmpty());
    EXPECT_EQ(fresh.frame().size(), fresh.screenSize());
    EXPECT_EQ(fresh.frame().format(), QImage::Format_RGB32);
}

TEST_F(ScreenTest, nothingChangesByItself)
{
    const auto version = device.pictureVersion();
    pass(std::chrono::hours(1));
    EXPECT_EQ(ticks, 0);
    device.text("one", "nobody listens", now);
    device.key("one", 3, 0, false, now);
    EXPECT_EQ(device.pictureVersion(), version);
    EXPECT_TRUE(device.takeDirty().isEmpty());
}

TEST_F(ScreenTest, dirtyRectanglesCoverWhatChanges)
{
    for (const int rotation : {0, 1, 2, 3}) {
        device.setRotation(rotation);
        for (const char *app :
            {"Home", "Paint", "Notes", "List", "Video", "Latency", "Camera", "Arena", "Settings"}) {
            device.openApp(app);
            checkedDirty(app);
            touch(Down, {{200, 300}, {500, 900}});
            checkedDirty(app);
            touch(Move, {{240, 380}, {430, 820}});
            checkedDirty(app);
            touch(Move, {{280, 300}, {420, 780}});
            checkedDirty(app);
            touch(Up, {{420, 780}});
            checkedDirty(app);
            touch(Up, {});
            checkedDirty(app);
            for (const char *text :
                {"word ", "and a much longer run of words that wraps", "\n\n", "\b\b\b\b\b", "é"}) {
                type(text);
                checkedDirty(app);
            }
            for (const int key : {KEY_LEFT, KEY_UP, KEY_A, KEY_DELETE, KEY_ENTER, KEY_VOLUMEUP}) {
                click(key);
                checkedDirty(app);
            }
            pass(100ms);
            checkedDirty(app);
            pass(3s);
            checkedDirty(app);
            click(KEY_MENU);
            checkedDirty("recent apps");
            click(KEY_BACK);
            checkedDirty(app);
        }
    }
}

// An app that is drawn piece by piece must look like one that is drawn at once.
TEST_F(ScreenTest, piecesLookLikeTheWhole)
{
    for (const int rotation : {0, 1}) {
        device.setRotation(rotation);
        for (const char *app : {"Home", "Paint", "Notes", "List", "Latency", "Camera", "Arena", "Settings"}) {
            device.openApp(app);
            device.takeDirty();
            touch(Down, {{200, 400}});
            device.takeDirty();
            touch(Move, {{300, 500}});
            device.takeDirty();
            touch(Move, {{360, 420}});
            device.takeDirty();
            touch(Up, {});
            device.takeDirty();
            for (const char *text : {"some words ", "that go over the end of a line ", "x", "\b\b", "\n"}) {
                type(text);
                device.takeDirty();
            }
            pass(3s);
            device.takeDirty();
            const QImage pieces = device.frame().copy();
            click(KEY_MENU);
            click(KEY_BACK); // draws all
            EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
            EXPECT_EQ(difference(pieces, device.frame()), QRect()) << app << " " << rotation;
        }
    }
}

TEST_F(ScreenTest, paintRedrawsOnlyThePiece)
{
    device.openApp("Paint");
    touch(Down, {{100, 600}});
    device.takeDirty();
    for (int x = 110; x < 600; x += 10) {
        touch(Move, {{x, 600}});
        const QRect dirty = device.takeDirty();
        EXPECT_FALSE(dirty.isEmpty());
        EXPECT_LE(dirty.width() * dirty.height(), 120 * 100);
        EXPECT_TRUE(dirty.contains(x, 600));
    }
}

TEST_F(ScreenTest, typingRedrawsOnlyTheLines)
{
    device.openApp("Notes");
    type("one\ntwo\nthree\nfour");
    device.takeDirty();
    type("x");
    EXPECT_LT(device.takeDirty().height(), 160);
}

TEST_F(ScreenTest, landscapeIsTurnedIntoTheFrame)
{
    const Surface portrait(QSize(720, 1280));
    EXPECT_EQ(portrait.toContent({5, 7}), QPoint(5, 7));
    Surface surface(QSize(720, 1280));
    surface.setLandscape(true);
    ASSERT_EQ(surface.contentSize(), QSize(1280, 720));
    surface.paint([](QPainter &painter, const QRect &clip) {
        EXPECT_EQ(clip, QRect(0, 0, 1280, 720));
        painter.fillRect(clip, Qt::black);
        painter.fillRect(0, 0, 1, 1, Qt::red);
        painter.fillRect(1279, 0, 1, 1, Qt::green);
        painter.fillRect(0, 719, 1, 1, Qt::blue);
        painter.fillRect(1279, 719, 1, 1, Qt::yellow);
        painter.fillRect(300, 200, 1, 1, Qt::white);
    });
    const QImage &frame = surface.frame();
    EXPECT_EQ(frame.pixelColor(719, 0), QColor(Qt::red));
    EXPECT_EQ(frame.pixelColor(719, 1279), QColor(Qt::green));
    EXPECT_EQ(frame.pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(frame.pixelColor(0, 1279), QColor(Qt::yellow));
    EXPECT_EQ(frame.pixelColor(719 - 200, 300), QColor(Qt::white));
    EXPECT_EQ(surface.toContent({719 - 200, 300}), QPoint(300, 200));
    // A viewer turns the frame by -90 degrees and sees it upright.
    const QImage upright = frame.transformed(QTransform().rotate(-90));
    EXPECT_EQ(upright.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(upright.pixelColor(300, 200), QColor(Qt::white));

    surface.takeDirty();
    surface.invalidate(QRect(10, 20, 30, 5));
    surface.paint([](QPainter &painter, const QRect &) { painter.fillRect(0, 0, 1280, 720, Qt::cyan); });
    EXPECT_EQ(surface.takeDirty(), QRect(719 - 24, 10, 5, 30));
    EXPECT_EQ(frame.pixelColor(719 - 20, 10), QColor(Qt::cyan));
    EXPECT_EQ(frame.pixelColor(719 - 24, 39), QColor(Qt::cyan));
    EXPECT_EQ(frame.pixelColor(719 - 25, 39), QColor(Qt::black)) << "outside";
    EXPECT_EQ(frame.pixelColor(719 - 20, 40), QColor(Qt::black)) << "outside";
}

TEST_F(ScreenTest, drawingOutsideWhatIsInvalidIsClipped)
{
    Surface surface(QSize(720, 1280));
    surface.paint([](QPainter &painter, const QRect &clip) { painter.fillRect(clip, Qt::black); });
    surface.takeDirty();
    surface.invalidate(QRect(0, 0, 10, 10));
    surface.invalidate(QRect(100, 100, 10, 10));
    surface.invalidate(QRect(-50, -50, 20, 20)); // not on the screen
    surface.paint([](QPainter &painter, const QRect &clip) {
        EXPECT_EQ(clip, QRect(0, 0, 110, 110));
        painter.fillRect(0, 0, 720, 1280, Qt::white);
    });
    EXPECT_EQ(surface.takeDirty(), QRect(0, 0, 110, 110));
    EXPECT_EQ(surface.frame().pixelColor(9, 9), QColor(Qt::white));
    EXPECT_EQ(surface.frame().pixelColor(50, 50), QColor(Qt::black));
    EXPECT_EQ(surface.frame().pixelColor(100, 100), QColor(Qt::white));
}

TEST_F(ScreenTest, touchesAreTurnedWithTheScreen)
{
    device.setRotation(1);
    device.openApp("Latency");
    const int flips = number("flips");
    tap(300, 640);
    EXPECT_EQ(number("flips"), flips + 1);
    // The navigation bar is at the content's bottom: the frame's left edge. Home is in its middle.
    tap(42, 640);
    EXPECT_EQ(app(), "Home");
}

TEST_F(ScreenTest, rotationIsToldOnceAndChecked)
{
    std::vector<int> told;
    device.onRotation = [&](int rotation) { told.push_back(rotation); };
    device.setRotation(1);
    device.setRotation(1);
    device.setRotation(4);
    device.setRotation(-1);
    device.setRotation(3);
    device.setRotation(0);
    EXPECT_EQ(told, (std::vector<int>{1, 3, 0}));
    EXPECT_EQ(device.rotation(), 0);
    EXPECT_EQ(device.screenSize(), QSize(720, 1280));
    EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
}

TEST_F(ScreenTest, statusBarFollowsTheClockWhenTheDeviceIsAwake)
{
    wallTime = wallTime.addSecs(60);
    now += 60s;
    tap(360, 500); // nothing is there
    const QRect dirty = checkedDirty("clock");
    EXPECT_TRUE(dirty.contains(QRect(28, 10, 60, 20)));
    now += 10s;
    tap(360, 500);
    EXPECT_TRUE(checkedDirty("same minute").isEmpty());
}

// Mean difference of the colours, 0 to 255.
double meanDifference(const QImage &one, const QImage &other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b))
                + std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / 3 / one.width() / one.height();
}

TEST_F(ScreenTest, drawnSmallItIsTheSamePicture)
{
    for (const int rotation : {0, 1, 2}) {
        device.setRotation(rotation);
        for (const char *name : {"Home", "Notes", "List", "Video", "Settings"}) {
            device.openApp(name);
            pass(100ms);
            QImage small(144, 218, QImage::Format_RGB32);
            device.drawScaled(small);
            const QImage whole
                = device.frame().scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LT(meanDifference(small, whole), 8) << name << " turned by " << rotation;
        }
    }
}

TEST_F(ScreenTest, drawingSmallTakesNothingFromTheScreen)
{
    device.takeDirty();
    device.openApp("Notes");
    const auto version = device.pictureVersion();
    QImage small(144, 218, QImage::Format_RGB32);
    device.drawScaled(small);
    EXPECT_EQ(device.pictureVersion(), version);
    EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
}

TEST_F(ScreenTest, aReleasedFrameIsDrawnAnew)
{
    for (const int rotation : {0, 1}) {
        device.setRotation(rotation);
        device.openApp("List");
        const QImage before = device.frame().copy();
        device.takeDirty();
        const auto version = device.pictureVersion();
        device.releaseFrame();
        EXPECT_EQ(device.pictureVersion(), version);
        EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
        EXPECT_EQ(device.frame(), before);
    }
}

TEST_F(ScreenTest, otherScreensAreDrawnAndTouchedToTheirEdges)
{
    for (const QSize size : {QSize(1080, 1920), QSize(720, 1600)}) {
        VirtualDevice other(
            "VM2", "Other", [this] { return wallTime; }, size);
        EXPECT_EQ(other.screenSize(), size);
        EXPECT_EQ(other.takeDirty(), QRect({}, size));
        EXPECT_EQ(other.frame().size(), size);
        other.setRotation(1);
        other.openApp("Video");
        EXPECT_EQ(other.takeDirty(), QRect({}, size));
        other.setRotation(0);
        other.openApp("Paint");
        const int x = size.width() - 1;
        const int y = size.height() / 2;
        other.touch("one", Down, {{x, y, 1}}, now);
        const auto inputs = other.inputsSince(0);
        ASSERT_EQ(inputs.size(), 1U);
        EXPECT_NE(
            inputs[0].json.find("[[" + std::to_string(x) + "," + std::to_string(y) + "]]"), std::string::npos)
            << inputs[0].json;
        EXPECT_NE(other.appStateJson().find("\"fingers\":1"), std::string::npos);
    }
}

TEST_F(ScreenTest, unchangedVersionMeansUnchangedPicture)
{
    std::mt19937 random(1);
    for (int step = 0; step < 60; ++step) {
        const auto version = device.pictureVersion();
        const QImage before = device.frame().copy();
        switch (random() % 4) {
        case 0:
            tap(static_cast<int>(random() % 720), static_cast<int>(random() % 1280));
            break;
        case 1:
            click(KEY_HOMEPAGE);
            break;
        case 2:
            type("t");
            break;
        default:
            pass(10ms);
        }
        if (device.pictureVersion() == version) {
            EXPECT_EQ(device.frame(), before);
        }
    }
}

} // namespace
} // namespace orvane::cloud
