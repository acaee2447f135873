#include "api/Fields.h"

#include "api/ApiError.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace orvane::cloud {

namespace {

[[noreturn]] void refuse(const char *name, const std::string &demand)
{
    throw ApiError(ApiCode::BadField, '"' + std::string(name) + "\" must be " + demand);
}

std::string textDemand(std::size_t maxBytes)
{
    return "a text of 1 to " + std::to_string(maxBytes) + " bytes";
}

bool hasControlCharacter(const std::string &text)
{
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7f;
    });
}

std::string checkedText(const char *name, const QJsonValue &value, std::size_t maxBytes)
{
    std::string text = value.toString().toStdString();
    if (!value.isString() || text.empty() || text.size() > maxBytes)
        refuse(name, textDemand(maxBytes));
    return text;
}

} // namespace

Fields::Fields(QJsonObject values)
    : m_values(std::move(values))
{ }

bool Fields::contains(const char *name) const
{
    return m_values.contains(QLatin1String(name));
}

QJsonValue Fields::required(const char *name) const
{
    QJsonValue value = m_values.value(QLatin1String(name));
    if (value.isUndefined())
        throw ApiError(ApiCode::BadField, '"' + std::string(name) + "\" is missing");
    return value;
}

std::string Fields::text(const char *name, std::size_t maxBytes) const
{
    std::string text = checkedText(name, required(name), maxBytes);
    if (hasControlCharacter(text))
        refuse(name, "without control characters");
    return text;
}

std::string Fields::textOrEmpty(const char *name, std::size_t maxBytes) const
{
    const QJsonValue value = m_values.value(QLatin1String(name));
    if (value.isUndefined() || (value.isString() && value.toString().isEmpty()))
        return {};
    return text(name, maxBytes);
}

std::string Fields::emptyOrText(const char *name, std::size_t maxBytes) const
{
    const QJsonValue value = required(name);
    return value.isString() && value.toString().isEmpty() ? std::string() : text(name, maxBytes);
}

std::string Fields::lines(const char *name, std::size_t maxBytes) const
{
    const QJsonValue value = m_values.value(QLatin1String(name));
    if (value.isUndefined())
        return {};
    std::string text = value.toString().toStdString();
    if (!value.isString() || text.size() > maxBytes)
        refuse(name, "a text of up to " + std::to_string(maxBytes) + " bytes");
    std::string visible = text;
    visible.erase(std::remove_if(visible.begin(), visible.end(),
                      [](char c) { return c == '\n' || c == '\r' || c == '\t'; }),
        visible.end());
    if (hasControlCharacter(visible))
        refuse(name, "without control characters");
    return text;
}

std::string Fields::title(const char *name, int maxCharacters) const
{
    const QJsonValue value = required(name);
    const QString title = value.toString().trimmed();
    if (!value.isString() || title.isEmpty() || title.toUcs4().size() > maxCharacters)
        refuse(name, "a text of 1 to " + std::to_string(maxCharacters) + " characters");
    std::string utf8 = title.toStdString();
    if (hasControlCharacter(utf8))
        refuse(name, "without control characters");
    return utf8;
}

std::string Fields::secret(const char *name, std::size_t maxBytes) const
{
    return checkedText(name, required(name), maxBytes);
}

std::int64_t Fields::integer(const char *name, std::int64_t lowest, std::int64_t highest) const
{
    const QJsonValue value = required(name);
    const double number = value.toDouble(std::nan(""));
    if (!(number >= static_cast<double>(lowest) && number <= static_cast<double>(highest))
        || number != std::floor(number))
        refuse(name, "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    return static_cast<std::int64_t>(number);
}

bool Fields::boolean(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isBool())
        refuse(name, "true or false");
    return value.toBool();
}

std::vector<std::string> Fields::texts(const char *name, std::size_t maxCount, std::size_t maxBytes) const
{
    const QJsonValue value = required(name);
    const QJsonArray array = value.toArray();
    if (array.isEmpty() || static_cast<std::size_t>(array.size()) > maxCount)
        refuse(name, "a list of 1 to " + std::to_string(maxCount) + " texts");
    std::vector<std::string> result;
    result.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue element : array)
        result.push_back(checkedText(name, element, maxBytes));
    return result;
}

std::vector<Fields> Fields::objects(const char *name, std::size_t maxCount) const
{
    const QJsonArray array = required(name).toArray();
    const bool allObjects = std::all_of(
        array.begin(), array.end(), [](const QJsonValue &element) { return element.isObject(); });
    if (array.isEmpty() || static_cast<std::size_t>(array.size()) > maxCount || !allObjects)
        refuse(name, "a list of 1 to " + std::to_string(maxCount) + " objects");
    std::vector<Fields> result;
    result.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue element : array)
        result.emplace_back(element.toObject());
    return result;
}

std::uint64_t Fields::number(const char *name, std::uint64_t missing, std::uint64_t highest) const
{
    const QJsonValue value = m_values.value(QLatin1String(name));
    if (value.isUndefined())
        return missing;
    bool valid = false;
    const std::uint64_t number = value.toString().toULongLong(&valid, 10);
    if (!valid || number > highest)
        refuse(name, "a number from 0 to " + std::to_string(highest));
    return number;
}

} // namespace orvane::cloud
