#include "keymap/KeyMapScheme.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {

// Members of a scheme and of its keys.
namespace Member {
const QLatin1String config("config");
const QLatin1String opacity("key_transparency");
const QLatin1String size("key_size");
const QLatin1String orientation("screen_orientation");
const QLatin1String showKeys("show_key");
const QLatin1String showKeyNotes("show_key_desc");
const QLatin1String key("key");
const QLatin1String x("x");
const QLatin1String y("y");
const QLatin1String note("remark");
const QLatin1String isCrosshair("isLockKey");
const QLatin1String sensitivity("mouseDpi");
} // namespace Member

constexpr int MostKeys = 500; // more than a keyboard has
constexpr int LargestCoordinate = 100'000; // pixels

// Without its fraction; what is no number is 0.
int truncated(const QJsonValue &value, int least, int most)
{
    return static_cast<int>(qBound<double>(least, std::trunc(value.toDouble()), most));
}

// An integer; what is none is 0.
int whole(const QJsonValue &value, int least, int most)
{
    const double number = value.toDouble();
    return number == std::trunc(number) ? truncated(value, least, most) : qBound(least, 0, most);
}

bool isOne(const QJsonValue &value)
{
    return value.isDouble() && value.toDouble() == 1.0;
}

bool isOneOrTrue(const QJsonValue &value)
{
    return isOne(value) || value.toBool();
}

KeyMapScheme::Key keyOf(const QJsonObject &object)
{
    KeyMapScheme::Key key;
    if (object.value(Member::isCrosshair).toBool())
        key.type = keymap::CrosshairKey;
    else if (object.value(Member::key).toBool())
        key.type = keymap::WalkingKey;
    if (key.type != keymap::WalkingKey)
        key.text = object.value(Member::key).toString();
    key.position = {whole(object.value(Member::x), -LargestCoordinate, LargestCoordinate),
        whole(object.value(Member::y), -LargestCoordinate, LargestCoordinate)};
    key.note = object.value(Member::note).toString();
    if (key.type == keymap::CrosshairKey && object.value(Member::sensitivity).isDouble())
        key.sensitivity = object.value(Member::sensitivity).toDouble();
    return key;
}

bool holds(const QVector<KeyMapScheme::Key> &keys, keymap::KeyType type)
{
    for (const KeyMapScheme::Key &key : keys) {
        if (key.type == type)
            return true;
    }
    return false;
}

// There is at most one walking key and one crosshair.
QVector<KeyMapScheme::Key> keysOf(const QByteArray &json)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isArray()) {
        qWarning().noquote() << "the keys of a key-mapping scheme are no JSON array:" << error.errorString();
        return {};
    }
    QVector<KeyMapScheme::Key> keys;
    const QJsonArray entries = document.array();
    for (const QJsonValue &entry : entries) {
        if (keys.size() >= MostKeys) {
            qWarning() << "a key-mapping scheme has more than" << MostKeys << "keys, the others are left out";
            break;
        }
        const KeyMapScheme::Key key = keyOf(entry.toObject());
        if (!entry.isObject())
            qWarning() << "a key of a key-mapping scheme is no JSON object and is left out";
        else if (key.type != keymap::ClickKey && holds(keys, key.type))
            qWarning() << "a key-mapping scheme has a second walking key or crosshair, which is left out";
        else
            keys.append(key);
    }
    return keys;
}

KeyMapScheme read(
    const QJsonObject &scheme, bool (*isOn)(const QJsonValue &), const std::optional<QByteArray> &keys)
{
    KeyMapScheme read;
    read.opacity = truncated(
        scheme.value(Member::opacity), KeyMapScheme::minimumOpacity, KeyMapScheme::maximumOpacity);
    read.size = whole(scheme.value(Member::size), KeyMapScheme::minimumSize, KeyMapScheme::maximumSize);
    read.orientation = isOn(scheme.value(Member::orientation)) ? ScreenOrientation::Landscape
                                                               : ScreenOrientation::Portrait;
    read.showKeys = isOn(scheme.value(Member::showKeys));
    read.showKeyNotes = isOn(scheme.value(Member::showKeyNotes));
    if (keys)
        read.keys = keysOf(*keys);
    return read;
}

} // namespace

KeyMapScheme KeyMapScheme::fromList(const QJsonObject &scheme)
{
    if (!scheme.contains(Member::config))
        return read(scheme, isOne, std::nullopt);
    const auto decoded = QByteArray::fromBase64Encoding(
        scheme.value(Member::config).toString().toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        qWarning() << "the keys of a key-mapping scheme are not valid Base64";
    return read(scheme, isOne, decoded ? std::optional(decoded.decoded) : std::nullopt);
}

KeyMapScheme KeyMapScheme::fromLocalCopy(const QJsonObject &scheme)
{
    return read(scheme, isOneOrTrue, scheme.value(Member::config).toString().toUtf8());
}

QPoint KeyMapScheme::placed(
    const QPoint &position, ScreenOrientation viewOrientation, const QSize &keySize, int shortSide) const
{
    if (viewOrientation == orientation)
        return position;
    if (viewOrientation == ScreenOrientation::Landscape)
        return {position.y(), shortSide - position.x() - keySize.height()};
    return {shortSide - position.y() - keySize.width(), position.x()};
}
