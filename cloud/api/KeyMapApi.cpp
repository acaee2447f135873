#include "api/KeyMapApi.h"

#include "api/KeyArray.h"
#include "api/KeyMapGuide.h"
#include "api/Router.h"
#include "api/ServiceData.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

constexpr int maxNameCharacters = 50;
constexpr std::size_t maxConfigBytes
    = std::size_t{1024} * 1024; // what a request's body may have; checkKeyArray wants less
constexpr int lowestKeySize = 20;
constexpr int highestKeySize = 40;
constexpr int landscapeOrientation = 1;
constexpr int portraitOrientation = 2;
const QString copySuffix = QStringLiteral(" copy");

// The texts reach the user as they are.
constexpr const char *noSuchScheme = "You have no such scheme.";
constexpr const char *noSchemeChosen = "Please choose a scheme first.";
constexpr const char *noCode = "Please enter a sharing code.";
constexpr const char *unknownCode = "There is no scheme with this sharing code.";

// Numbers for flags, and the keys as Base64 of their JSON text: that is how clients read schemes, although
// they send booleans and plain text.
QJsonObject describe(const KeyMapScheme &scheme)
{
    const QByteArray keys = QByteArray::fromStdString(scheme.keys);
    return {{QStringLiteral("map_id"), QString::fromStdString(scheme.mapId)},
        {QStringLiteral("map_name"), QString::fromStdString(scheme.name)},
        {QStringLiteral("config"), QString::fromLatin1(keys.toBase64())},
        {QStringLiteral("screen_orientation"), scheme.landscape ? landscapeOrientation : portraitOrientation},
        {QStringLiteral("show_key"), scheme.showKeys ? 1 : 0},
        {QStringLiteral("show_key_desc"), scheme.showNotes ? 1 : 0},
        {QStringLiteral("key_transparency"), scheme.opacityPercent},
        {QStringLiteral("key_size"), scheme.keySize}};
}

std::string nameOf(const Fields &body)
{
    try {
        return body.title("map_name", maxNameCharacters);
    } catch (const ApiError &) {
        throw ApiError(ApiCode::BadField,
            "The name must have 1 to " + std::to_string(maxNameCharacters)
                + " characters, without line breaks (\"map_name\").");
    }
}

std::string keysOf(const Fields &body)
{
    std::string keys = body.lines("config", maxConfigBytes);
    checkKeyArray(keys);
    return keys;
}

KeyMapChanges changesOf(const Fields &body)
{
    const auto flag = [&body](const char *name) {
        return body.contains(name) ? std::optional(body.boolean(name)) : std::nullopt;
    };
    const auto number = [&body](const char *name, int lowest, int highest) {
        return body.contains(name) ? std::optional(static_cast<int>(body.integer(name, lowest, highest)))
                                   : std::nullopt;
    };
    KeyMapChanges changes;
    if (body.contains("map_name"))
        changes.name = nameOf(body);
    if (body.contains("config"))
        changes.keys = keysOf(body);
    changes.landscape = flag("screen_orientation");
    changes.showKeys = flag("show_key");
    changes.showNotes = flag("show_key_desc");
    changes.opacityPercent = number("key_transparency", 0, 100);
    changes.keySize = number("key_size", lowestKeySize, highestKeySize);
    return changes;
}

// As typed by a user: blanks around it and small letters do not matter.
std::string mapIdOf(const ApiCall &call, const char *messageWhenEmpty)
{
    const QString text = QString::fromStdString(call.body.emptyOrText("map_id")).trimmed();
    if (text.isEmpty())
        throw ApiError(ApiCode::BadField, messageWhenEmpty);
    return text.toUpper().toStdString();
}

// Whole code points, so that the name and what is added to it fit.
std::string copyName(const std::string &name)
{
    const QVector<uint> characters = QString::fromStdString(name).toUcs4();
    const int kept = std::min(characters.size(), maxNameCharacters - copySuffix.size());
    return (QString::fromUcs4(characters.constData(), kept).trimmed() + copySuffix).toStdString();
}

} // namespace

KeyMapApi::KeyMapApi(ServiceData &data)
    : m_data(data)
    , m_guide(keyMapGuide())
{ }

void KeyMapApi::addRoutes(Router &router)
{
    using Verb = Router::Verb;
    router.add(Verb::get, "/apiv1/keyboard_map/mapConfigList", Access::SignedIn,
        [this](const ApiCall &call) { return list(call); });
    router.add(Verb::post, "/apiv1/keyboard_map/createMapConfig", Access::SignedIn,
        [this](const ApiCall &call) { return create(call); });
    router.add(Verb::post, "/apiv1/keyboard_map/actionMapConfig", Access::SignedIn,
        [this](const ApiCall &call) { return act(call); });
    router.add(Verb::post, "/apiv1/keyboard_map/shareMapConfig", Access::SignedIn,
        [this](const ApiCall &call) { return share(call); });
    router.add(Verb::get, "/apiv1/keyboard_map/guide", Access::SignedIn, [this](const ApiCall &) {
        return ApiAnswer{m_guide, {}};
    });
}

ApiAnswer KeyMapApi::list(const ApiCall &call) const
{
    ApiAnswer answer;
    answer.list.emplace();
    for (const KeyMapScheme &scheme : m_data.keyMaps.ofUser(call.signIn.userId))
        answer.list->append(describe(scheme));
    return answer;
}

ApiAnswer KeyMapApi::create(const ApiCall &call)
{
    KeyMapScheme scheme;
    changesOf(call.body).applyTo(scheme);
    if (scheme.name.empty())
        scheme.name = freshName(call.signIn.userId);
    return save(call.signIn.userId, scheme);
}

ApiAnswer KeyMapApi::act(const ApiCall &call)
{
    const std::string action = call.body.text("action_type");
    if (action == "update")
        return update(call);
    if (action == "copy")
        return copy(call);
    if (action == "delete")
        return remove(call);
    throw ApiError(ApiCode::BadField, R"("action_type" must be "update", "copy" or "delete")");
}

ApiAnswer KeyMapApi::update(const ApiCall &call)
{
    const std::string mapId = mapIdOf(call, noSchemeChosen);
    if (!m_data.keyMaps.update(call.signIn.userId, mapId, changesOf(call.body)))
        throw ApiError(ApiCode::NotFound, noSuchScheme);
    return {};
}

ApiAnswer KeyMapApi::copy(const ApiCall &call)
{
    std::optional<KeyMapScheme> scheme = m_data.keyMaps.find(mapIdOf(call, noSchemeChosen));
    if (!scheme || scheme->userId != call.signIn.userId)
        throw ApiError(ApiCode::NotFound, noSuchScheme);
    scheme->name = copyName(scheme->name);
    return save(call.signIn.userId, *scheme);
}

ApiAnswer KeyMapApi::remove(const ApiCall &call)
{
    if (!m_data.keyMaps.remove(call.signIn.userId, mapIdOf(call, noSchemeChosen)))
        throw ApiError(ApiCode::NotFound, noSuchScheme);
    return {};
}

ApiAnswer KeyMapApi::share(const ApiCall &call)
{
    const std::optional<KeyMapScheme> scheme = m_data.keyMaps.find(mapIdOf(call, noCode));
    if (!scheme)
        throw ApiError(ApiCode::NotFound, unknownCode);
    // Who shares a scheme of their own has it already.
    if (scheme->userId == call.signIn.userId)
        return {{{QStringLiteral("map_id"), QString::fromStdString(scheme->mapId)}}, {}};
    return save(call.signIn.userId, *scheme);
}

ApiAnswer KeyMapApi::save(std::int32_t userId, const KeyMapScheme &scheme)
{
    const std::optional<std::string> mapId = m_data.keyMaps.create(userId, scheme);
    if (!mapId)
        throw ApiError(ApiCode::NotNow,
            "You have " + std::to_string(KeyMapStore::maxSchemesPerUser)
                + " schemes already. Please delete one first.");
    return {{{QStringLiteral("map_id"), QString::fromStdString(*mapId)}}, {}};
}

// "Scheme" and the first number that the user has not got.
std::string KeyMapApi::freshName(std::int32_t userId) const
{
    const std::vector<KeyMapScheme> schemes = m_data.keyMaps.ofUser(userId);
    for (int number = 1;; ++number) {
        std::string name = "Scheme " + std::to_string(number);
        const bool taken = std::any_of(schemes.begin(), schemes.end(),
            [&name](const KeyMapScheme &scheme) { return scheme.name == name; });
        if (!taken)
            return name;
    }
}

} // namespace orvane::cloud
