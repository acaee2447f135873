#include "api/DemoSchemes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointF>
#include <QSize>

namespace orvane::cloud {

namespace {

// What clients count positions in: the size of the picture in portrait while the editor is open.
constexpr QSize editorView(340, 600);
constexpr QSize deviceScreen(720, 1280);

constexpr int keySize = 30; // on the editor's slider
constexpr int keySide = keySize + 10; // pixels of the editor's picture that a key of this size takes
constexpr int joystickSide = 80; // a walking key's, whatever the size of the others
constexpr double mouseSensitivity = 1.9; // what new crosshair keys have

enum class KeyKind {
    Click,
    Walking,
    Crosshair,
};

// A key over one of the game's controls.
struct DemoKey
{
    KeyKind kind;
    const char *text; // as clients name the keyboard's keys
    QPointF centre; // pixels of the device's screen as it is held
    const char *remark;
};

// In the order in which clients write keys: click keys, walking, crosshair. The centres are those of the
// game's controls, as GET /admin/devices/{pad}/app gives them.
const std::vector<DemoKey> portraitKeys{
    {KeyKind::Click, "F", {560, 930}, "Fire"},
    {KeyKind::Click, "Space", {440, 1080}, "Jump"},
    {KeyKind::Click, "R", {610, 1105}, "Reload"},
    {KeyKind::Walking, "", {190, 990}, "Walk"},
    {KeyKind::Crosshair, "Q", {360, 460}, "Look around"},
};
const std::vector<DemoKey> landscapeKeys{
    {KeyKind::Click, "F", {1120, 400}, "Fire"},
    {KeyKind::Click, "Space", {960, 520}, "Jump"},
    {KeyKind::Click, "R", {1150, 560}, "Reload"},
    {KeyKind::Walking, "", {200, 450}, "Walk"},
    {KeyKind::Crosshair, "Q", {800, 290}, "Look around"},
};

QJsonObject describe(const DemoKey &key, bool landscape)
{
    const QSize view = landscape ? editorView.transposed() : editorView;
    const QSize screen = landscape ? deviceScreen.transposed() : deviceScreen;
    const bool walking = key.kind == KeyKind::Walking;
    const int half = (walking ? joystickSide : keySide) / 2;
    QJsonObject json{
        {QStringLiteral("key"), walking ? QJsonValue(true) : QJsonValue(QLatin1String(key.text))},
        {QStringLiteral("x"), qRound(key.centre.x() * view.width() / screen.width()) - half},
        {QStringLiteral("y"), qRound(key.centre.y() * view.height() / screen.height()) - half},
        {QStringLiteral("edit"), !walking}, {QStringLiteral("remark"), QLatin1String(key.remark)},
        {QStringLiteral("editShow"), QString()}};
    if (key.kind == KeyKind::Crosshair) {
        json.insert(QStringLiteral("isLockKey"), true);
        json.insert(QStringLiteral("mouseDpi"), mouseSensitivity);
    }
    return json;
}

KeyMapScheme scheme(const char *name, const std::vector<DemoKey> &keys, bool landscape)
{
    QJsonArray array;
    for (const DemoKey &key : keys)
        array.append(describe(key, landscape));
    KeyMapScheme result;
    result.name = name;
    result.keys = QJsonDocument(array).toJson().toStdString();
    result.landscape = landscape;
    result.keySize = keySize;
    return result;
}

} // namespace

std::vector<KeyMapScheme> demoSchemes()
{
    return {scheme("Arena", portraitKeys, false), scheme("Arena, landscape", landscapeKeys, true)};
}

} // namespace orvane::cloud
