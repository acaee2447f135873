#include "keymap/KeyMapScheme.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

namespace {

QJsonObject withKeys(const QByteArray &keys)
{
    return {{"config", QString::fromLatin1(keys.toBase64())}, {"key_transparency", 60}, {"key_size", 33},
        {"show_key", 1}};
}

} // namespace

// How a key-mapping scheme is read, whatever it holds.
class TestKeyMapScheme : public QObject
{
    Q_OBJECT

private slots:
    void keys();
    void brokenKeys_data();
    void brokenKeys();
    void oddKeys_data();
    void oddKeys();
    void numbers_data();
    void numbers();
    void switches_data();
    void switches();
    void base64OnlyInTheList();
    void placed_data();
    void placed();
    void longListIsCut();
};

void TestKeyMapScheme::keys()
{
    const KeyMapScheme scheme = KeyMapScheme::fromList(withKeys(R"([
        {"key": "Space", "x": 12, "y": 34, "edit": true, "remark": "Sprung ü", "editShow": ""},
        {"key": true, "x": 50, "y": 424, "edit": false, "remark": "Walk", "editShow": ""},
        {"key": "Q", "x": 150, "y": 196, "edit": true, "remark": "", "isLockKey": true, "mouseDpi": 2.5}])"));
    QCOMPARE(scheme.keys.size(), 3);
    QCOMPARE(scheme.keys[0].type, keymap::ClickKey);
    QCOMPARE(scheme.keys[0].text, QStringLiteral("Space"));
    QCOMPARE(scheme.keys[0].position, QPoint(12, 34));
    QCOMPARE(scheme.keys[0].note, QStringLiteral("Sprung ü"));
    QVERIFY(!scheme.keys[0].sensitivity);
    QCOMPARE(scheme.keys[1].type, keymap::WalkingKey);
    QCOMPARE(scheme.keys[1].text, QString());
    QCOMPARE(scheme.keys[2].type, keymap::CrosshairKey);
    QCOMPARE(scheme.keys[2].text, QStringLiteral("Q"));
    QCOMPARE(scheme.keys[2].sensitivity.value_or(0), 2.5);
}

void TestKeyMapScheme::brokenKeys_data()
{
    QTest::addColumn<QJsonValue>("config");
    const auto base64
        = [](const QByteArray &text) { return QJsonValue(QString::fromLatin1(text.toBase64())); };
    QTest::newRow("no-base64") << QJsonValue("[{\"key\": \"Q\"}]");
    QTest::newRow("cut-base64") << QJsonValue("W3sia2V5I!joiUSJ9XQ==");
    QTest::newRow("no-json") << base64("nonsense");
    QTest::newRow("object") << base64("{\"key\": \"Q\"}");
    QTest::newRow("number") << base64("17");
    QTest::newRow("cut-json") << base64("[{\"key\": \"Q\"");
    QTest::newRow("empty") << QJsonValue("");
    QTest::newRow("no-text") << QJsonValue(17);
    QTest::newRow("array") << QJsonValue(QJsonArray{QJsonObject{{"key", "Q"}}});
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("deep") << base64(QByteArray(5000, '['));
    QTest::newRow("bytes") << base64(QByteArray("\xFF\xFE\x00[", 4));
}

// A scheme without keys, whose look is read all the same.
void TestKeyMapScheme::brokenKeys()
{
    QFETCH(QJsonValue, config);
    QJsonObject source = withKeys("[]");
    source["config"] = config;
    const KeyMapScheme scheme = KeyMapScheme::fromList(source);
    QVERIFY(scheme.keys.isEmpty());
    QCOMPARE(scheme.opacity, 60);
    QCOMPARE(scheme.size, 33);
    QVERIFY(scheme.showKeys);
    QVERIFY(!scheme.showKeyNotes);
    const KeyMapScheme local = KeyMapScheme::fromLocalCopy({{"config", 17}, {"key_size", 33}});
    QVERIFY(local.keys.isEmpty());
    QCOMPARE(local.size, 33);
}

void TestKeyMapScheme::oddKeys_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("type"); // of the last
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPoint>("position");
    const auto row = [](const char *name, const QByteArray &json, int count, int type = 0,
                         const QString &text = {}, const QPoint &position = {}) {
        QTest::newRow(name) << json << count << type << text << position;
    };
    row("not-objects", R"([17, "Q", null, [], true, {"key": "E"}])", 1, 0, "E");
    row("empty-object", "[{}]", 1);
    row("key-false", R"([{"key": false}])", 1);
    row("key-number", R"([{"key": 1}])", 1);
    row("key-text-true", R"([{"key": "true"}])", 1, 0, "true");
    row("lock-false", R"([{"key": "Q", "isLockKey": false}])", 1, 0, "Q");
    row("lock-number", R"([{"key": "Q", "isLockKey": 1}])", 1, 0, "Q");
    row("lock-and-true", R"([{"key": true, "isLockKey": true}])", 1, 2);
    row("two-walking", R"([{"key": true, "x": 1}, {"key": true, "x": 2}])", 1, 1, {}, {1, 0});
    row("two-crosshairs", R"([{"key": "Q", "isLockKey": true}, {"key": "R", "isLockKey": true}])", 1, 2, "Q");
    row("place-text", R"([{"key": "Q", "x": "12", "y": null}])", 1, 0, "Q");
    row("place-fraction", R"([{"key": "Q", "x": 12.5, "y": 7}])", 1, 0, "Q", {0, 7});
    row("place-huge", R"([{"key": "Q", "x": 1e300, "y": -1e300}])", 1, 0, "Q", {100'000, -100'000});
    row("place-negative", R"([{"key": "Q", "x": -5, "y": 7}])", 1, 0, "Q", {-5, 7});
}

void TestKeyMapScheme::oddKeys()
{
    QFETCH(QByteArray, json);
    QFETCH(int, count);
    QFETCH(int, type);
    QFETCH(QString, text);
    QFETCH(QPoint, position);
    const KeyMapScheme scheme = KeyMapScheme::fromList(withKeys(json));
    QCOMPARE(scheme.keys.size(), count);
    QCOMPARE(static_cast<int>(scheme.keys.last().type), type);
    QCOMPARE(scheme.keys.last().text, text);
    QCOMPARE(scheme.keys.last().position, position);
}

void TestKeyMapScheme::numbers_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("opacity");
    QTest::addColumn<int>("size");
    QTest::newRow("usual") << QJsonValue(30) << 30 << 30;
    QTest::newRow("fraction") << QJsonValue(39.9) << 39 << 20; // truncated; no integer
    QTest::newRow("below") << QJsonValue(-3) << 0 << 20;
    QTest::newRow("above") << QJsonValue(140) << 100 << 40;
    QTest::newRow("huge") << QJsonValue(1e300) << 100 << 40;
    QTest::newRow("text") << QJsonValue("30") << 0 << 20;
    QTest::newRow("null") << QJsonValue() << 0 << 20;
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << 0 << 20;
}

void TestKeyMapScheme::numbers()
{
    QFETCH(QJsonValue, value);
    const QJsonObject source{{"key_transparency", value}, {"key_size", value}};
    QTEST(KeyMapScheme::fromList(source).opacity, "opacity");
    QTEST(KeyMapScheme::fromList(source).size, "size");
    QTEST(KeyMapScheme::fromLocalCopy(source).opacity, "opacity");
    QTEST(KeyMapScheme::fromLocalCopy(source).size, "size");
}

void TestKeyMapScheme::switches_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<bool>("inList");
    QTest::addColumn<bool>("inLocalCopy");
    QTest::newRow("1") << QJsonValue(1) << true << true;
    QTest::newRow("1.0") << QJsonValue(1.0) << true << true;
    QTest::newRow("0") << QJsonValue(0) << false << false;
    QTest::newRow("2") << QJsonValue(2) << false << false;
    QTest::newRow("true") << QJsonValue(true) << false << true; // as it was sent
    QTest::newRow("false") << QJsonValue(false) << false << false;
    QTest::newRow("text") << QJsonValue("1") << false << false;
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << false << false;
}

void TestKeyMapScheme::switches()
{
    QFETCH(QJsonValue, value);
    QFETCH(bool, inList);
    QFETCH(bool, inLocalCopy);
    const QJsonObject source{{"show_key", value}, {"show_key_desc", value}, {"screen_orientation", value}};
    const KeyMapScheme list = KeyMapScheme::fromList(source);
    QCOMPARE(list.showKeys, inList);
    QCOMPARE(list.showKeyNotes, inList);
    QCOMPARE(list.orientation, inList ? ScreenOrientation::Landscape : ScreenOrientation::Portrait);
    const KeyMapScheme local = KeyMapScheme::fromLocalCopy(source);
    QCOMPARE(local.showKeys, inLocalCopy);
    QCOMPARE(local.showKeyNotes, inLocalCopy);
    QCOMPARE(local.orientation, inLocalCopy ? ScreenOrientation::Landscape : ScreenOrientation::Portrait);
}

void TestKeyMapScheme::base64OnlyInTheList()
{
    const QString plain = QStringLiteral(R"([{"key": "Q", "x": 1, "y": 2}])");
    const QString encoded = QString::fromLatin1(plain.toUtf8().toBase64());
    QCOMPARE(KeyMapScheme::fromList({{"config", encoded}}).keys.size(), 1);
    QCOMPARE(KeyMapScheme::fromList({{"config", plain}}).keys.size(), 0);
    QCOMPARE(KeyMapScheme::fromLocalCopy({{"config", plain}}).keys.size(), 1);
    QCOMPARE(KeyMapScheme::fromLocalCopy({{"config", encoded}}).keys.size(), 0);
}

void TestKeyMapScheme::placed_data()
{
    QTest::addColumn<ScreenOrientation>("scheme");
    QTest::addColumn<ScreenOrientation>("view");
    QTest::addColumn<QPoint>("place");
    const auto portrait = ScreenOrientation::Portrait;
    const auto landscape = ScreenOrientation::Landscape;
    QTest::newRow("portrait") << portrait << portrait << QPoint(100, 400);
    QTest::newRow("landscape") << landscape << landscape << QPoint(100, 400);
    QTest::newRow("portrait-in-landscape") << portrait << landscape << QPoint(400, 340 - 100 - 44);
    QTest::newRow("landscape-in-portrait") << landscape << portrait << QPoint(340 - 400 - 40, 100);
}

void TestKeyMapScheme::placed()
{
    QFETCH(ScreenOrientation, scheme);
    QFETCH(ScreenOrientation, view);
    KeyMapScheme source;
    source.orientation = scheme;
    QTEST(source.placed(QPoint(100, 400), view, QSize(40, 44), 340), "place");
    // There and back again, for a square.
    KeyMapScheme turned;
    turned.orientation = view;
    const QPoint there = source.placed(QPoint(17, 23), view, QSize(40, 40), 340);
    QCOMPARE(turned.placed(there, scheme, QSize(40, 40), 340), QPoint(17, 23));
}

void TestKeyMapScheme::longListIsCut()
{
    QByteArray keys = "[{}";
    for (int i = 0; i < 20'000; ++i)
        keys += ",{}";
    QCOMPARE(KeyMapScheme::fromList(withKeys(keys + "]")).keys.size(), 500);
}

QTEST_GUILESS_MAIN(TestKeyMapScheme)
#include "tst_keymapscheme.moc"
