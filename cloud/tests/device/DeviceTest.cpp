#include "DeviceFixture.h"

#include "device/InputLog.h"

#include <QBuffer>

#include <linux/input-event-codes.h>

#include <cmath>
#include <limits>
#include <random>

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

class DeviceTest : public DeviceFixture
{
protected:
    QJsonObject lastEvent() const
    {
        const auto records = device.inputsSince(0);
        return records.empty()
            ? QJsonObject()
            : QJsonDocument::fromJson(QByteArray::fromStdString(records.back().json)).object();
    }
    static QJsonObject json(const char *text) { return QJsonDocument::fromJson(text).object(); }
};

std::string jpeg(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "JPG");
    return bytes.toStdString();
}

TEST_F(DeviceTest, logsWhatItReceives)
{
    touch(Down, {{100, 200}, {-5, 3000}});
    EXPECT_EQ(lastEvent(), json(R"({"type":"touch","action":0,"points":[[100,200],[-5,3000]]})"));
    click(30, true);
    EXPECT_EQ(lastEvent(), json(R"({"type":"key","action":3,"code":30,"shift":true})"));
    type("Grüße \"你好\"\n");
    EXPECT_EQ(lastEvent(), json("{\"type\":\"text\",\"text\":\"Grüße \\\"你好\\\"\\n\"}"));
    const std::string picture = jpeg(64, 48);
    device.picture("one", picture, now);
    EXPECT_EQ(lastEvent()["type"], "picture");
    EXPECT_EQ(lastEvent()["bytes"].toInt(), static_cast<int>(picture.size()));
    EXPECT_EQ(lastEvent()["width"], 64);
    EXPECT_EQ(lastEvent()["height"], 48);
    device.audio("two", 1, "12345", now);
    EXPECT_EQ(lastEvent()["type"], "audio");
    EXPECT_EQ(lastEvent()["bytes"], 5);

    const auto records = device.inputsSince(0);
    ASSERT_EQ(records.size(), 5U);
    for (std::size_t i = 0; i < records.size(); ++i) {
        EXPECT_EQ(records[i].sequence, i + 1);
        EXPECT_EQ(records[i].timeUs,
            std::chrono::duration_cast<std::chrono::microseconds>(now.time_since_epoch()).count());
        EXPECT_EQ(records[i].sessionId, i == 4 ? "two" : "one");
    }
    EXPECT_EQ(device.inputsSince(3).size(), 2U);
    EXPECT_EQ(device.inputsSince(3).front().sequence, 4U);
    EXPECT_TRUE(device.inputsSince(5).empty());
    EXPECT_TRUE(device.inputsSince(99).empty());
}

TEST_F(DeviceTest, brokenPicturesAreLoggedWithoutASize)
{
    const std::string whole = jpeg(320, 240);
    for (const std::string &bytes : {std::string(), std::string("no picture"), std::string(100'000, '\xff'),
             std::string("\xff\xd8\xff\xe0", 4), whole.substr(0, 30)}) {
        device.picture("one", bytes, now);
        EXPECT_EQ(lastEvent()["width"], 0);
        EXPECT_EQ(lastEvent()["bytes"].toInt(), static_cast<int>(bytes.size()));
    }
}

TEST(InputLogTest, keepsTheNewest)
{
    InputLog log;
    const std::chrono::steady_clock::time_point now{1s};
    for (int i = 0; i < 20'500; ++i) {
        log.add(now, "s", R"({"n":)" + std::to_string(i) + "}");
    }
    const auto records = log.since(0);
    ASSERT_EQ(records.size(), InputLog::MaxRecords);
    EXPECT_EQ(records.front().sequence, 501U);
    EXPECT_EQ(records.back().sequence, 20'500U);
}

TEST(InputLogTest, isBoundedInBytes)
{
    InputLog log;
    const std::chrono::steady_clock::time_point now{1s};
    const std::string large(std::size_t(1024) * 1024, 'x');
    for (int i = 0; i < 30; ++i) {
        log.add(now, "s", large);
    }
    EXPECT_GE(log.since(0).size(), 7U);
    EXPECT_LE(log.since(0).size(), 8U);
    EXPECT_EQ(log.since(0).back().sequence, 30U);
    log.add(now, "s", std::string(10 * large.size(), 'x')); // larger than the bound by itself
    ASSERT_EQ(log.since(0).size(), 1U);
    EXPECT_EQ(log.since(0).back().sequence, 31U);
}

TEST_F(DeviceTest, goneSessionLiftsItsFingersAndKeys)
{
    device.openApp("Paint");
    touch(Down, {{100, 400}, {300, 400}}, "one");
    touch(Down, {{500, 700}}, "two");
    ASSERT_EQ(number("fingers"), 3);
    device.sessionGone("one", now);
    EXPECT_EQ(number("fingers"), 1);
    device.sessionGone("one", now);
    device.sessionGone("nobody", now);
    EXPECT_EQ(number("fingers"), 1);
    touch(Move, {{520, 700}}, "two");
    EXPECT_EQ(number("points"), 4);

    device.openApp("Notes");
    device.key("one", 1, KEY_LEFTSHIFT, false, now);
    device.sessionGone("one", now);
    click(KEY_A);
    EXPECT_EQ(noteText(), "a") << "Shift is no longer held";
}

TEST_F(DeviceTest, goneSessionTriggersNothing)
{
    touch(Down, {{168, 850}}); // on an icon
    device.sessionGone("one", now);
    EXPECT_EQ(app(), "Home");
    device.openApp("Notes");
    touch(Down, {{360, 1238}}); // on the home button
    device.sessionGone("one", now);
    EXPECT_EQ(app(), "Notes");
    tap(360, 1238); // the button is free again
    EXPECT_EQ(app(), "Home");
}

TEST_F(DeviceTest, fingersOfAnAppDoNotReachTheNext)
{
    device.openApp("Paint");
    touch(Down, {{300, 600}});
    click(KEY_HOMEPAGE);
    device.openApp("Paint");
    touch(Move, {{320, 600}});
    EXPECT_EQ(number("points"), 1);
    EXPECT_EQ(number("fingers"), 0);
    touch(Up, {});
    touch(Down, {{300, 600}});
    EXPECT_EQ(number("fingers"), 1);
    device.setRotation(1);
    EXPECT_EQ(number("fingers"), 0);
}

TEST_F(DeviceTest, rebootShowsTheBootScreenAndThenTheLauncher)
{
    device.openApp("Notes");
    type("forgotten");
    touch(Down, {{300, 600}});
    device.key("one", 1, KEY_LEFTSHIFT, false, now);
    device.reboot(now);
    EXPECT_TRUE(device.isBooting());
    EXPECT_EQ(app(), "Starting");
    EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
    EXPECT_FALSE(device.openApp("Paint"));
    pass(500ms);
    const QRect moving = device.takeDirty();
    EXPECT_FALSE(moving.isEmpty());
    EXPECT_LT(moving.height(), 500);
    click(KEY_A);
    type("lost");
    tap(168, 850);
    EXPECT_TRUE(device.isBooting());
    EXPECT_GT(ticks, 5);
    pass(1400ms);
    EXPECT_TRUE(device.isBooting());
    pass(200ms);
    EXPECT_FALSE(device.isBooting());
    EXPECT_FALSE(device.nextTick());
    EXPECT_EQ(app(), "Home");
    EXPECT_EQ(device.takeDirty(), QRect(0, 0, 720, 1280));
    EXPECT_GE(device.inputsSince(0).size(), 7U) << "input is still logged";
    device.openApp("Notes");
    EXPECT_EQ(noteText(), "");
    click(KEY_A);
    EXPECT_EQ(noteText(), "a") << "no key is held";
}

TEST_F(DeviceTest, rebootThatNobodyWatchesEndsAtTheNextInput)
{
    device.reboot(now);
    now += 10s;
    tap(168, 850);
    EXPECT_FALSE(device.isBooting());
    EXPECT_EQ(app(), "Paint");
}

TEST_F(DeviceTest, rebootInLandscapeKeepsTheRotation)
{
    device.setRotation(3);
    device.reboot(now);
    pass(3s);
    EXPECT_EQ(device.rotation(), 3);
    EXPECT_EQ(number("rotation"), 3);
}

TEST_F(DeviceTest, asksForTheCamera)
{
    std::vector<std::vector<int>> asked;
    device.onSensorRequest = [&](int type, int on, int w, int h) { asked.push_back({type, on, w, h}); };
    device.requestCamera(true);
    device.requestCamera(false);
    device.requestCamera(true);
    device.reboot(now); // whoever asked is gone
    EXPECT_EQ(asked,
        (std::vector<std::vector<int>>{{212, 1, 0, 0}, {212, 0, 0, 0}, {212, 1, 0, 0}, {212, 0, 0, 0}}));
    device.onSensorRequest = nullptr;
    device.requestCamera(true);
}

TEST_F(DeviceTest, garbageInputChangesNothingForTheWorse)
{
    std::mt19937 random(42);
    const auto any = [&random] { return static_cast<int>(random()); };
    const char *apps[]
        = {"Home", "Paint", "Notes", "List", "Video", "Latency", "Camera", "Arena", "Settings"};
    const float pressures[] = {std::nanf(""), std::numeric_limits<float>::infinity(), -3, 1e30F, 0.5F};
    for (int step = 0; step < 4000; ++step) {
        const std::string session(1, static_cast<char>('a' + random() % 3));
        now += std::chrono::milliseconds(random() % 60);
        switch (random() % 12) {
        case 0:
            device.openApp(apps[random() % std::size(apps)]);
            break;
        case 1:
            device.key(session, any() % 5, any() % 2 ? any() : any() % 800, random() % 2, now);
            break;
        case 2: {
            std::string bytes(random() % 40, 0);
            for (char &byte : bytes) {
                byte = static_cast<char>(random());
            }
            device.text(session, bytes, now);
            break;
        }
        case 3:
            device.setRotation(any() % 5);
            break;
        case 4:
            device.sessionGone(session, now);
            break;
        case 5:
            if (random() % 20 == 0) {
                device.reboot(now);
            }
            break;
        case 6:
            device.takeDirty();
            break;
        case 7:
            device.tick(now);
            break;
        default: {
            std::vector<TouchPoint> points(random() % 13);
            for (TouchPoint &point : points) {
                const bool wild = random() % 8 == 0;
                point = {wild ? any() : static_cast<int>(random() % 720),
                    wild ? any() : static_cast<int>(random() % 1280), pressures[random() % 5]};
            }
            device.touch(session, any() % 4, points, now);
        }
        }
    }
    for (const char *session : {"a", "b", "c"}) {
        device.sessionGone(session, now);
    }
    device.setRotation(0);
    pass(10s);
    ASSERT_TRUE(device.openApp("Paint"));
    EXPECT_EQ(number("fingers"), 0);
    touch(Down, {{300, 600}});
    EXPECT_EQ(number("fingers"), 1);
    EXPECT_EQ(device.frame().size(), QSize(720, 1280));
}

} // namespace
} // namespace orvane::cloud
