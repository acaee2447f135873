#include "api/KeyArray.h"

#include "api/ApiError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace orvane::cloud {

namespace {

constexpr std::size_t maxBytes = std::size_t{128} * 1024;
constexpr int maxKeys = 200;
constexpr int maxKeyTextLength = 40; // UTF-16 units; "Ctrl+Shift+Backspace" and the like
constexpr int maxRemarkLength = 500; // UTF-16 units
constexpr double maxCoordinate = 100'000; // pixels, either way

[[noreturn]] void refuse(const std::string &message)
{
    throw ApiError(ApiCode::BadField, message);
}

bool isCoordinate(const QJsonValue &value)
{
    return value.isDouble() && std::abs(value.toDouble()) <= maxCoordinate;
}

// Whether the value is missing or is as `isValid` wants it.
template <typename Check>
bool isOptional(const QJsonValue &value, Check isValid)
{
    return value.isUndefined() || isValid(value);
}

bool isKey(const QJsonObject &key)
{
    const QJsonValue text = key.value(QLatin1String("key"));
    const bool walking = text.isBool() && text.toBool();
    const auto isBool = [](const QJsonValue &value) { return value.isBool(); };
    return (walking || (text.isString() && text.toString().size() <= maxKeyTextLength))
        && isCoordinate(key.value(QLatin1String("x"))) && isCoordinate(key.value(QLatin1String("y")))
        && isOptional(key.value(QLatin1String("edit")), isBool)
        && isOptional(key.value(QLatin1String("isLockKey")), isBool)
        && isOptional(key.value(QLatin1String("mouseDpi")),
            [](const QJsonValue &value) { return value.isDouble() && value.toDouble() > 0; })
        && isOptional(key.value(QLatin1String("remark")), [](const QJsonValue &value) {
               return value.isString() && value.toString().size() <= maxRemarkLength;
           });
}

} // namespace

void checkKeyArray(const std::string &json)
{
    if (json.size() > maxBytes)
        refuse("This layout is too large: its keys and notes may take up to "
            + std::to_string(maxBytes / 1024) + " KiB.");
    const QJsonDocument document
        = QJsonDocument::fromJson(QByteArray::fromRawData(json.data(), static_cast<int>(json.size())));
    if (!document.isArray())
        refuse(R"("config" must be the JSON text of a list of keys)");
    const QJsonArray keys = document.array();
    if (keys.size() > maxKeys)
        refuse("This layout has too many keys: up to " + std::to_string(maxKeys) + " are possible.");
    for (int i = 0; i < keys.size(); ++i)
        if (!isKey(keys.at(i).toObject()))
            refuse("Key " + std::to_string(i + 1) + " of the layout in \"config\" is damaged.");
}

} // namespace orvane::cloud
