#include "ArenaFixture.h"

#include "api/DemoSchemes.h"

namespace orvane::cloud {
namespace {

using namespace std::chrono_literals;

// The demo account's schemes, used the way a client uses them, work the game's controls.
class DemoSchemesTest : public ArenaFixture
{
protected:
    struct Key
    {
        QString name; // "W" stands for the walking key
        double fx; // middle, as fractions of the device's portrait screen
        double fy;
        bool locks;
    };

    // As a client places keys in its picture of 340 x 600 (or 600 x 340) pixels.
    static std::map<QString, Key> keysOf(const KeyMapScheme &scheme)
    {
        const QSize view = scheme.landscape ? QSize(600, 340) : QSize(340, 600);
        std::map<QString, Key> keys;
        for (const QJsonValue entry :
            QJsonDocument::fromJson(QByteArray::fromStdString(scheme.keys)).array()) {
            const QJsonObject json = entry.toObject();
            const bool walking = json["key"].toBool();
            const int half = (walking ? 80 : scheme.keySize + 10) / 2;
            const double x = json["x"].toInt() + half;
            const double y = json["y"].toInt() + half;
            Key key{walking ? "W" : json["key"].toString(), x / view.width(), y / view.height(),
                json["isLockKey"].toBool()};
            if (scheme.landscape) {
                key.fx = 1 - y / view.height();
                key.fy = x / view.width();
            }
            EXPECT_FALSE(json["remark"].toString().isEmpty());
            keys[key.name] = key;
        }
        return keys;
    }
    static Point place(const Key &key, int x = 0, int y = 0)
    {
        return {static_cast<int>(720 * key.fx) + x, static_cast<int>(1280 * key.fy) + y};
    }
};

TEST_F(DemoSchemesTest, everyKeyIsInTheMiddleOfItsControl)
{
    for (const KeyMapScheme &scheme : demoSchemes()) {
        enter(scheme.landscape ? 1 : 0);
        const std::map<QString, Key> keys = keysOf(scheme);
        ASSERT_EQ(keys.size(), 5u);
        const std::pair<const char *, const char *> pairs[]{
            {"F", "fire"}, {"Space", "jump"}, {"R", "reload"}, {"W", "joystick"}};
        for (const auto &[name, control] : pairs) {
            const auto [x, y] = place(keys.at(name));
            const auto [wantedX, wantedY] = at(control);
            EXPECT_NEAR(x, wantedX, 3) << scheme.name << name;
            EXPECT_NEAR(y, wantedY, 3) << scheme.name << name;
        }
        EXPECT_TRUE(keys.at("Q").locks);
    }
}

TEST_F(DemoSchemesTest, everyKeyDoesWhatItsNoteSays)
{
    for (const KeyMapScheme &scheme : demoSchemes()) {
        enter(scheme.landscape ? 1 : 0);
        const std::map<QString, Key> keys = keysOf(scheme);
        const double shots = value("shots");
        const double jumps = value("jumps");
        const double reloads = value("reloads");
        for (const char *name : {"F", "Space", "R"}) {
            touch(Down, {place(keys.at(name))});
            touch(Up, {{-1, -1}});
        }
        EXPECT_EQ(value("shots"), shots + 1) << scheme.name;
        EXPECT_EQ(value("jumps"), jumps + 1) << scheme.name;
        EXPECT_EQ(value("reloads"), reloads + 1) << scheme.name;
        pass(2s);

        // W moves the finger up by 100 pixels of the screen as it is held, 5 every 10 ms.
        const double before = north();
        touch(Down, {place(keys.at("W"))});
        EXPECT_FALSE(state()["walking"].toBool());
        for (int way = 5; way <= 100; way += 5) {
            pass(10ms);
            touch(Move, {scheme.landscape ? place(keys.at("W"), way, 0) : place(keys.at("W"), 0, -way)});
        }
        pass(500ms);
        EXPECT_GT(north(), before + 3) << scheme.name;
        EXPECT_NEAR(east(), 0, 0.3) << scheme.name;
        touch(Up, {{-1, -1}});

        const double heading = value("heading");
        touch(Down, {place(keys.at("Q"))});
        touch(Move, {scheme.landscape ? place(keys.at("Q"), 0, 100) : place(keys.at("Q"), 100, 0)});
        EXPECT_NEAR(value("heading"), heading + 20, 0.01) << scheme.name;
        touch(Move, {place(keys.at("Q"))});
        touch(Up, {{-1, -1}});
    }
}

} // namespace
} // namespace orvane::cloud
