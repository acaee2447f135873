#include "api/AdminApi.h"

#include "api/DeviceStateName.h"
#include "api/ExpiryWatch.h"
#include "api/Router.h"
#include "api/ServiceData.h"
#include "core/DeviceFleet.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <limits>

namespace orvane::cloud {

namespace {

// What the values of the bodies may be at most.
constexpr std::int64_t maxRemainingSeconds = 1'000'000'000; // 31 years
constexpr std::int64_t maxStallMs = 600'000;
constexpr std::int64_t maxFilmRate = 25; // pictures a second
constexpr std::int64_t maxKbitPerSec = 10'000'000;
constexpr std::int64_t maxCorruptedUnits = 100'000;
constexpr std::uint64_t maxPictureSide = 1280;

QString text(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

// What the fleet describes as JSON text.
QJsonObject objectOf(const std::string &json)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
}

ApiAnswer connectionCount(int count)
{
    return {{{QStringLiteral("connections"), count}}, {}};
}

} // namespace

AdminApi::AdminApi(ServiceData &data, DeviceFleet &fleet, ExpiryWatch &expiry)
    : m_data(data)
    , m_fleet(fleet)
    , m_expiry(expiry)
{ }

void AdminApi::addRoutes(Router &router)
{
    const auto add = [this, &router](Router::Verb method, std::string_view pattern, Handler handler) {
        router.add(method, pattern, Access::Tests,
            [this, handler](const ApiCall &call) { return (this->*handler)(call); });
    };
    using Verb = Router::Verb;
    add(Verb::get, "/admin/devices", &AdminApi::devices);
    add(Verb::get, "/admin/devices/{pad}/input", &AdminApi::inputs);
    add(Verb::get, "/admin/devices/{pad}/app", &AdminApi::appState);
    add(Verb::post, "/admin/devices/{pad}/app", &AdminApi::openApp);
    add(Verb::post, "/admin/devices/{pad}/film", &AdminApi::setFilmRate);
    add(Verb::get, "/admin/devices/{pad}/screen", &AdminApi::screen);
    add(Verb::post, "/admin/devices/{pad}/rotate", &AdminApi::rotate);
    add(Verb::post, "/admin/devices/{pad}/camera", &AdminApi::camera);
    add(Verb::post, "/admin/devices/{pad}/expire", &AdminApi::expire);
    add(Verb::post, "/admin/devices/{pad}/remaining", &AdminApi::setRemaining);
    add(Verb::post, "/admin/connections/cut", &AdminApi::cut);
    add(Verb::post, "/admin/connections/stall", &AdminApi::stall);
    add(Verb::post, "/admin/connections/bandwidth", &AdminApi::limitBandwidth);
    add(Verb::post, "/admin/connections/corrupt", &AdminApi::corrupt);
    add(Verb::get, "/admin/stats", &AdminApi::stats);
}

void AdminApi::demandDevice(const std::string &padCode) const
{
    if (!m_fleet.contains(padCode))
        throw ApiError(ApiCode::NotFound, "There is no device " + padCode + '.');
}

std::string AdminApi::padOfBody(const ApiCall &call) const
{
    std::string padCode = call.body.textOrEmpty("pad");
    if (!padCode.empty())
        demandDevice(padCode);
    return padCode;
}

ApiAnswer AdminApi::devices(const ApiCall &)
{
    QJsonArray devices;
    for (const Device &device : m_data.devices.all()) {
        const bool over = device.expiresAt <= m_data.clocks.wall();
        devices.append(QJsonObject{{QStringLiteral("pad_code"), text(device.padCode)},
            {QStringLiteral("service_id"), text(device.serviceId)},
            {QStringLiteral("alias_name"), text(device.aliasName)},
            {QStringLiteral("state"), deviceStateName(over, m_fleet.state(device.padCode))},
            {QStringLiteral("app"),
                objectOf(m_fleet.appStateJson(device.padCode)).value(QStringLiteral("app")).toString()}});
    }
    return {{{QStringLiteral("devices"), devices}}, {}};
}

ApiAnswer AdminApi::inputs(const ApiCall &call)
{
    demandDevice(call.pad);
    const std::uint64_t since = call.query.number("since", 0, std::numeric_limits<std::uint64_t>::max());
    QJsonArray events;
    for (const InputRecord &record : m_fleet.inputsSince(call.pad, since))
        events.append(QJsonObject{{QStringLiteral("sequence"), static_cast<qint64>(record.sequence)},
            {QStringLiteral("time_us"), static_cast<qint64>(record.timeUs)},
            {QStringLiteral("session_id"), text(record.sessionId)},
            {QStringLiteral("event"), objectOf(record.json)}});
    return {{{QStringLiteral("events"), events}}, {}};
}

ApiAnswer AdminApi::appState(const ApiCall &call)
{
    demandDevice(call.pad);
    return {objectOf(m_fleet.appStateJson(call.pad)), {}};
}

ApiAnswer AdminApi::openApp(const ApiCall &call)
{
    demandDevice(call.pad);
    const std::string app = call.body.text("app");
    if (!m_fleet.openApp(call.pad, app))
        throw ApiError(ApiCode::BadField, "There is no app " + app + '.');
    return {};
}

ApiAnswer AdminApi::setFilmRate(const ApiCall &call)
{
    demandDevice(call.pad);
    m_fleet.setFilmRate(call.pad, static_cast<int>(call.body.integer("pictures_per_second", 1, maxFilmRate)));
    return {};
}

ApiAnswer AdminApi::screen(const ApiCall &call)
{
    demandDevice(call.pad);
    const std::uint64_t maxSide = call.query.number("max_side", maxPictureSide, maxPictureSide);
    if (maxSide == 0)
        throw ApiError(ApiCode::BadField, "\"max_side\" must not be 0");
    ApiAnswer answer;
    answer.png = m_fleet.screenPng(call.pad, static_cast<int>(maxSide));
    return answer;
}

ApiAnswer AdminApi::rotate(const ApiCall &call)
{
    demandDevice(call.pad);
    m_fleet.rotate(call.pad, static_cast<int>(call.body.integer("rotation", 0, 3)));
    return {};
}

ApiAnswer AdminApi::camera(const ApiCall &call)
{
    demandDevice(call.pad);
    m_fleet.requestCamera(call.pad, call.body.boolean("on"));
    return {};
}

ApiAnswer AdminApi::expire(const ApiCall &call)
{
    demandDevice(call.pad);
    m_expiry.expireIn(call.pad, std::chrono::seconds(0));
    return {};
}

ApiAnswer AdminApi::setRemaining(const ApiCall &call)
{
    demandDevice(call.pad);
    m_expiry.expireIn(call.pad, std::chrono::seconds(call.body.integer("seconds", 0, maxRemainingSeconds)));
    return {};
}

ApiAnswer AdminApi::cut(const ApiCall &call)
{
    return connectionCount(m_fleet.cutConnections(padOfBody(call)));
}

ApiAnswer AdminApi::stall(const ApiCall &call)
{
    const std::string padCode = padOfBody(call);
    const std::chrono::milliseconds duration(call.body.integer("ms", 0, maxStallMs));
    return connectionCount(m_fleet.stallConnections(padCode, duration));
}

ApiAnswer AdminApi::limitBandwidth(const ApiCall &call)
{
    const std::string padCode = padOfBody(call);
    m_fleet.limitBandwidth(padCode, static_cast<int>(call.body.integer("kbit_per_s", 0, maxKbitPerSec)));
    return {};
}

ApiAnswer AdminApi::corrupt(const ApiCall &call)
{
    const std::string padCode = padOfBody(call);
    return connectionCount(
        m_fleet.corruptVideo(padCode, static_cast<int>(call.body.integer("count", 1, maxCorruptedUnits))));
}

ApiAnswer AdminApi::stats(const ApiCall &)
{
    QJsonArray sessions;
    for (const SessionStats &stats : m_fleet.stats())
        sessions.append(QJsonObject{{QStringLiteral("session_id"), text(stats.sessionId)},
            {QStringLiteral("pad_code"), text(stats.padCode)},
            {QStringLiteral("bytes_sent"), static_cast<qint64>(stats.bytesSent)},
            {QStringLiteral("frames_sent"), static_cast<qint64>(stats.framesSent)},
            {QStringLiteral("frames_dropped"), static_cast<qint64>(stats.framesDropped)},
            {QStringLiteral("level_row"), stats.levelRow}, {QStringLiteral("automatic"), stats.automatic},
            {QStringLiteral("cast_mode"), stats.castMode}});
    return {{{QStringLiteral("sessions"), sessions}}, {}};
}

} // namespace orvane::cloud
