#include "DeviceFixture.h"

#include "device/CameraPicture.h"
#include "device/DeviceLog.h"

#include <QBuffer>
#include <QImage>

#include <linux/input-event-codes.h>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;
using Requests = std::vector<std::vector<int>>;

QStringList warnings;

void keepWarning(QtMsgType, const QMessageLogContext &, const QString &text)
{
    warnings.append(text);
}

class CameraTest : public DeviceFixture
{
protected:
    CameraTest()
        : m_handler(qInstallMessageHandler(keepWarning))
    {
        warnings.clear();
        device.onSensorRequest = [this](int inputType, int state, int width, int height) {
            asked.push_back({inputType, state, width, height});
        };
    }
    ~CameraTest() override { qInstallMessageHandler(m_handler); }

    static std::string jpeg(QSize size, const QColor &colour = Qt::red)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "JPG");
        return bytes.toStdString();
    }
    // A JPEG's head alone, which says what size the picture has.
    static std::string jpegHead(int width, int height)
    {
        const auto byte = [](int value) { return static_cast<char>(value & 0xff); };
        std::string head = jpeg({16, 16});
        const std::size_t frame = head.find("\xff\xc0"); // start of frame: length, precision, height, width
        head[frame + 5] = byte(height >> 8);
        head[frame + 6] = byte(height);
        head[frame + 7] = byte(width >> 8);
        head[frame + 8] = byte(width);
        return head;
    }
    void send(const std::string &bytes) { device.picture("one", bytes, now); }
    Requests takeAsked() { return std::exchange(asked, {}); }
    static bool isRed(QRgb pixel) { return qRed(pixel) > 240 && qGreen(pixel) < 15 && qBlue(pixel) < 15; }
    // The red part of the screen, without the pill that lies over it: by its lower right and lower left.
    QRect red()
    {
        const QImage &frame = device.frame();
        QRect area;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                if (isRed(frame.pixel(x, y))) {
                    area |= QRect(x, y, 1, 1);
                }
            }
        }
        return area;
    }

    Requests asked;

private:
    const QtMessageHandler m_handler;
};

TEST_F(CameraTest, asksWhenOpenedAndStopsWhenLeft)
{
    EXPECT_TRUE(asked.empty());
    device.openApp("Camera");
    EXPECT_EQ(takeAsked(), (Requests{{212, 1, 720, 1280}}));
    EXPECT_EQ(device.wantedCamera(), QSize(720, 1280));
    device.openApp("Camera");
    touch(Down, {{300, 300}});
    touch(Up, {});
    pass(1min);
    EXPECT_EQ(takeAsked(), Requests{}) << "once";
    click(KEY_BACK);
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}}));
    EXPECT_FALSE(device.wantedCamera());
    tapIcon("Camera");
    EXPECT_EQ(app(), "Camera");
    EXPECT_EQ(takeAsked(), (Requests{{212, 1, 720, 1280}}));
    tap(360, 1238); // home
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}}));
    device.openApp("Camera");
    device.openApp("Notes");
    EXPECT_EQ(takeAsked(), (Requests{{212, 1, 720, 1280}, {212, 0, 0, 0}}));
}

TEST_F(CameraTest, givesItBackUnderTheOverviewOfApps)
{
    device.openApp("Camera");
    takeAsked();
    click(KEY_MENU);
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}}));
    click(KEY_MENU);
    EXPECT_EQ(takeAsked(), (Requests{{212, 1, 720, 1280}}));
    click(KEY_MENU);
    tap(360, 1135); // close all
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}}));
}

TEST_F(CameraTest, asksAnewWhenTheScreenIsTurned)
{
    device.openApp("Camera");
    takeAsked();
    device.setRotation(1);
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}, {212, 1, 1280, 720}}));
    device.setRotation(3);
    EXPECT_EQ(takeAsked(), Requests{}) << "the same shape";
    device.setRotation(0);
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}, {212, 1, 720, 1280}}));
    device.openApp("Home");
    takeAsked();
    device.setRotation(1);
    EXPECT_EQ(takeAsked(), Requests{});
}

TEST_F(CameraTest, aRestartStopsIt)
{
    device.openApp("Camera");
    takeAsked();
    device.reboot(now);
    EXPECT_EQ(takeAsked(), (Requests{{212, 0, 0, 0}}));
    pass(10s);
    EXPECT_EQ(takeAsked(), Requests{});
    EXPECT_FALSE(device.wantedCamera());
}

TEST_F(CameraTest, waitsThenShowsAndCounts)
{
    device.openApp("Camera");
    EXPECT_EQ(number("pictures"), 0);
    const QImage waiting = device.frame().copy();
    device.takeDirty();
    send(jpeg({640, 480}));
    EXPECT_FALSE(device.takeDirty().isEmpty());
    EXPECT_NE(device.frame(), waiting);
    EXPECT_EQ(number("pictures"), 1);
    EXPECT_EQ(number("pictureWidth"), 640);
    EXPECT_EQ(number("pictureHeight"), 480);
    const QImage first = device.frame().copy();
    send(jpeg({320, 240}));
    EXPECT_EQ(number("pictures"), 2);
    EXPECT_EQ(number("pictureWidth"), 320);
    EXPECT_NE(device.frame(), first) << "the count and size are shown";
    EXPECT_FALSE(device.nextTick()) << "nothing moves by itself";
    // Whoever comes back to the app finds it waiting, not what was seen before.
    click(KEY_MENU);
    click(KEY_MENU);
    EXPECT_EQ(number("pictures"), 0);
    EXPECT_EQ(device.frame(), waiting);
}

TEST_F(CameraTest, keepsTheShapeInBothRotations)
{
    struct Case
    {
        int rotation;
        QSize picture;
        QRect content; // where it is shown: between the bars of 48 and 84 pixels, as large as it fits
    };
    for (const Case &c : {
             Case{0, {640, 480}, {0, 352, 720, 540}},
             Case{0, {480, 640}, {0, 142, 720, 960}},
             Case{0, {64, 640}, {302, 48, 115, 1148}}, // enlarged
             Case{1, {640, 480}, {248, 48, 784, 588}},
             Case{1, {1920, 1080}, {117, 48, 1045, 588}},
             Case{1, {2000, 200}, {0, 278, 1280, 128}},
         }) {
        device.openApp("Home");
        device.setRotation(c.rotation);
        device.openApp("Camera");
        send(jpeg(c.picture));
        QRect seen = red();
        if (c.rotation == 1) { // content (x, y) is at frame (719 - y, x)
            seen = QRect(seen.top(), 719 - seen.right(), seen.height(), seen.width());
        }
        const QByteArray name
            = QByteArray::number(c.picture.width()) + " in " + QByteArray::number(c.rotation);
        EXPECT_NEAR(seen.left(), c.content.left(), 2) << name.constData();
        EXPECT_NEAR(seen.right(), c.content.right(), 2) << name.constData();
        EXPECT_NEAR(seen.bottom(), c.content.bottom(), 2) << name.constData();
        if (!c.content.intersects(QRect(0, 0, 500, 130))) { // where the count lies over it
            EXPECT_NEAR(seen.top(), c.content.top(), 2) << name.constData();
        }
    }
}

TEST_F(CameraTest, shownUprightInLandscape)
{
    device.setRotation(1);
    device.openApp("Camera");
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < 480; ++y) {
        for (int x = 320; x < 640; ++x) {
            image.setPixel(x, y, qRgb(255, 0, 0)); // the right half
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "JPG");
    send(bytes.toStdString());
    const auto content = [this](int x, int y) { return device.frame().pixel(719 - y, x); };
    EXPECT_TRUE(isRed(content(900, 400)));
    EXPECT_FALSE(isRed(content(400, 400)));
}

TEST_F(CameraTest, badPicturesAreIgnoredWithALine)
{
    device.openApp("Camera");
    send(jpeg({640, 480}));
    const QImage shown = device.frame().copy();
    ASSERT_EQ(warnings, QStringList());
    struct Case
    {
        const char *what;
        std::string bytes;
        const char *line;
    };
    const std::string good = jpeg({640, 480});
    std::string damaged = good;
    damaged[good.find("\xff\xda") + 6] = 0x33; // the first component's code tables: there are no such ones
    for (const Case &c : {
             Case{"nothing", {}, "is no JPEG"},
             Case{"text", "no picture", "is no JPEG"},
             Case{"noise", std::string(100'000, '\xff'), "is no JPEG"},
             Case{"no pixels", good.substr(0, good.find("\xff\xda")), "is no JPEG"},
             Case{"code tables that are not there", damaged, "is damaged"},
             Case{"too wide and high", jpegHead(4097, 4096), "4097 x 4096 pixels is too large"},
             Case{"as large as a JPEG can be", jpegHead(65500, 65500), "65500 x 65500 pixels is too large"},
         }) {
        warnings.clear();
        send(c.bytes);
        const QStringList ours = warnings.filter("VM100001"); // libjpeg may say something as well
        EXPECT_EQ(ours.size(), 1) << c.what;
        EXPECT_TRUE(ours.join(' ').contains(c.line)) << c.what << ": " << ours.join(' ').toStdString();
        EXPECT_EQ(number("pictures"), 1) << c.what;
        EXPECT_EQ(device.frame(), shown) << c.what;
    }
    send(good);
    EXPECT_EQ(number("pictures"), 2);
}

TEST_F(CameraTest, largestPictureIsShownSmaller)
{
    device.openApp("Camera");
    const std::string large = jpeg({4096, 4096});
    EXPECT_EQ(CameraPicture(large).decoded({720, 1280}).size(), QSize(720, 720));
    send(large);
    EXPECT_EQ(number("pictures"), 1);
    EXPECT_EQ(number("pictureWidth"), 4096);
    EXPECT_EQ(warnings, QStringList());
    const std::string line = jpeg({4096, 1});
    EXPECT_EQ(CameraPicture(line).decoded({720, 1280}).size(), QSize(720, 1));
}

// They are logged as input all the same, so that tests of clients see them.
TEST_F(CameraTest, picturesForNobodyAreOnlyLogged)
{
    device.openApp("Notes");
    const auto version = device.pictureVersion();
    const auto before = device.inputsSince(0).size();
    send(jpeg({640, 480}));
    EXPECT_EQ(device.pictureVersion(), version);
    const auto records = device.inputsSince(0);
    ASSERT_EQ(records.size(), before + 1);
    const QJsonObject event
        = QJsonDocument::fromJson(QByteArray::fromStdString(records.back().json)).object();
    EXPECT_EQ(event["type"], "picture");
    EXPECT_EQ(event["width"], 640);
    EXPECT_EQ(event["height"], 480);
    device.openApp("Camera");
    click(KEY_MENU);
    send(jpeg({640, 480}));
    click(KEY_MENU);
    EXPECT_EQ(number("pictures"), 0);
}

// The admin API's request and the app's end in one state: what was asked for last counts.
TEST_F(CameraTest, aRequestFromOutsideAndTheApp)
{
    device.requestCamera(true);
    EXPECT_EQ(device.wantedCamera(), QSize(0, 0));
    device.openApp("Camera");
    EXPECT_EQ(device.wantedCamera(), QSize(720, 1280));
    device.openApp("Home");
    EXPECT_FALSE(device.wantedCamera());
    EXPECT_EQ(asked, (Requests{{212, 1, 0, 0}, {212, 1, 720, 1280}, {212, 0, 0, 0}}));
}

} // namespace
} // namespace orvane::cloud
