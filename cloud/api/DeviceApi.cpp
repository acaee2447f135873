#include "api/DeviceApi.h"

#include "api/DeviceStateName.h"
#include "api/LocalTimeText.h"
#include "api/Router.h"
#include "api/ServiceData.h"
#include "core/DeviceFleet.h"

#include <QJsonArray>
#include <QUuid>

#include <algorithm>
#include <limits>
#include <set>

namespace orvane::cloud {

namespace {

constexpr std::size_t maxServiceIds = 500;
constexpr int listPictureMaxSide = 480; // pixels

// Of this service's devices among all UUIDs that are made of names.
constexpr QUuid deviceNamespace(0x5f0c3a52, 0x7d5e, 0x4b0e, 0x9d, 0x0f, 0x6a, 0x3e, 0x0b, 0x7c, 0x1d, 0x24);

QString text(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

std::vector<std::string> padCodesOf(const std::vector<Device> &devices)
{
    std::vector<std::string> padCodes;
    padCodes.reserve(devices.size());
    for (const Device &device : devices)
        padCodes.push_back(device.padCode);
    return padCodes;
}

// Made of the pad code (RFC 4122, version 5), so a device has the same one for good.
QString uuidOf(const Device &device)
{
    return QUuid::createUuidV5(deviceNamespace, text(device.padCode)).toString(QUuid::WithoutBraces);
}

} // namespace

DeviceApi::DeviceApi(ServiceData &data, DeviceFleet &fleet)
    : m_data(data)
    , m_fleet(fleet)
{ }

void DeviceApi::addRoutes(Router &router)
{
    using Verb = Router::Verb;
    router.add(Verb::get, "/apiv1/device/list", Access::SignedIn,
        [this](const ApiCall &call) { return list(call); });
    router.add(Verb::get, "/apiv1/device/picture", Access::Everybody,
        [this](const ApiCall &call) { return picture(call); });
    router.add(Verb::post, "/apiv1/device/actionDevice", Access::SignedIn,
        [this](const ApiCall &call) { return actOnOne(call); });
    router.add(Verb::post, "/apiv1/device/batchActionDevice", Access::SignedIn,
        [this](const ApiCall &call) { return actOnMany(call); });
}

bool DeviceApi::isOver(const Device &device) const
{
    return device.expiresAt <= m_data.clocks.wall();
}

ApiAnswer DeviceApi::list(const ApiCall &call) const
{
    QJsonArray devices;
    for (const Device &device : m_data.devices.ofUser(call.signIn.userId))
        devices.append(describe(device, call.signIn));
    return {{{QStringLiteral("devices"), devices}}, {}};
}

QJsonObject DeviceApi::describe(const Device &device, const SignIn &signIn) const
{
    const WallTime now = m_data.clocks.wall();
    const bool over = isOver(device);
    const auto remaining = std::chrono::duration_cast<std::chrono::seconds>(device.expiresAt - now);
    std::string picture;
    if (!over && m_fleet.contains(device.padCode))
        picture = m_pictureLinks.link({device.padCode, m_fleet.screenVersion(device.padCode), signIn.id});
    return {{QStringLiteral("service_id"), text(device.serviceId)},
        {QStringLiteral("device_id"), text(device.padCode)},
        {QStringLiteral("device_name"), text(device.padCode)},
        {QStringLiteral("alias_name"), text(device.aliasName)},
        {QStringLiteral("node_type"), QStringLiteral("vm")}, {QStringLiteral("uuid"), uuidOf(device)},
        {QStringLiteral("state"), deviceStateName(over, m_fleet.state(device.padCode))},
        {QStringLiteral("pay_mode"), text(device.payMode)},
        {QStringLiteral("expire_time"), localTimeText(device.expiresAt)},
        {QStringLiteral("network_time"), localTimeText(now)},
        {QStringLiteral("remaining_seconds"), std::max<qint64>(0, remaining.count())},
        {QStringLiteral("picture"), text(picture)}};
}

ApiAnswer DeviceApi::picture(const ApiCall &call) const
{
    const PictureTarget target{call.query.text("pad"),
        call.query.number("v", 0, std::numeric_limits<std::uint64_t>::max()),
        static_cast<std::int64_t>(call.query.number("s", 0, std::numeric_limits<std::int64_t>::max()))};
    const bool genuine = m_pictureLinks.isGenuine(target, call.query.text("t"));
    const std::optional<Device> device
        = genuine ? m_data.devices.findByPadCode(target.padCode) : std::nullopt;
    const std::optional<SignIn> signIn = genuine ? m_data.signIns.find(target.signInId) : std::nullopt;
    if (!device || !signIn || device->userId != signIn->userId || isOver(*device))
        throw ApiError(ApiCode::NotFound, "There is no such picture.");
    ApiAnswer answer;
    answer.png = m_fleet.screenPng(target.padCode, listPictureMaxSide);
    if (answer.png.empty())
        throw ApiError(ApiCode::NotFound, "There is no such picture.");
    return answer;
}

DeviceApi::Action DeviceApi::actionOf(const ApiCall &call)
{
    const std::string name = call.body.text("action_type");
    if (name == "device_apply")
        return Action::Apply;
    if (name == "device_unbind")
        return Action::Unbind;
    if (name == "reboot")
        return Action::Reboot;
    throw ApiError(
        ApiCode::BadField, "\"action_type\" must be \"device_apply\", \"device_unbind\" or \"reboot\"");
}

ApiAnswer DeviceApi::actOnOne(const ApiCall &call)
{
    const Action action = actionOf(call);
    const std::optional<Device> device = m_data.devices.findByServiceId(call.body.text("service_id"));
    if (!device || device->userId != call.signIn.userId)
        throw ApiError(ApiCode::NotFound, "You have no such device.");
    demandThatItCanAct(*device, action);
    switch (action) {
    case Action::Unbind:
        unbind(call.signIn, {*device});
        return {};
    case Action::Reboot:
        m_fleet.reboot(device->padCode);
        return {};
    case Action::Apply:
        break;
    }
    const StreamSession session = grant(call.signIn, {*device}).front();
    return {{{QStringLiteral("padCode"), text(session.padCode)},
                {QStringLiteral("resultInfo"), connectionOf(session)}},
        {}};
}

ApiAnswer DeviceApi::actOnMany(const ApiCall &call)
{
    const Action action = actionOf(call);
    const std::vector<Device> devices = devicesOf(call, action);
    QJsonObject data;
    switch (action) {
    case Action::Unbind:
        unbind(call.signIn, devices);
        break;
    case Action::Reboot:
        for (const Device &device : devices)
            m_fleet.reboot(device.padCode);
        break;
    case Action::Apply:
        const std::vector<StreamSession> sessions = grant(call.signIn, devices);
        for (std::size_t i = 0; i < sessions.size(); ++i) {
            QJsonObject connection = connectionOf(sessions[i]);
            connection.insert(QStringLiteral("instanceCode"), text(sessions[i].padCode));
            data.insert(text(devices[i].serviceId), connection);
        }
        break;
    }
    return {data, {}};
}

// The request's devices that the action is possible with, each once.
std::vector<Device> DeviceApi::devicesOf(const ApiCall &call, Action action) const
{
    std::vector<Device> devices;
    std::set<std::string> seen;
    for (const std::string &serviceId : call.body.texts("service_ids", maxServiceIds)) {
        if (!seen.insert(serviceId).second)
            continue;
        std::optional<Device> device = m_data.devices.findByServiceId(serviceId);
        if (device && device->userId == call.signIn.userId && canAct(*device, action))
            devices.push_back(std::move(*device));
    }
    if (devices.empty())
        throw ApiError(ApiCode::NotFound, "You have none of these devices.");
    return devices;
}

bool DeviceApi::canAct(const Device &device, Action action) const
{
    return action == Action::Unbind || (!isOver(device) && m_fleet.contains(device.padCode));
}

void DeviceApi::demandThatItCanAct(const Device &device, Action action) const
{
    if (canAct(device, action))
        return;
    if (isOver(device))
        throw ApiError(ApiCode::TimeOver, "The device's time is over.");
    throw ApiError(ApiCode::NotNow, "The device is not running.");
}

std::vector<StreamSession> DeviceApi::grant(const SignIn &signIn, const std::vector<Device> &devices)
{
    std::vector<StreamSession> sessions;
    sessions.reserve(devices.size());
    for (StreamSessionStore::Granted &granted : m_data.sessions.grant(signIn, padCodesOf(devices))) {
        for (const std::string &replaced : granted.replaced)
            m_fleet.endSession(replaced, false);
        sessions.push_back(std::move(granted.session));
    }
    return sessions;
}

void DeviceApi::unbind(const SignIn &signIn, const std::vector<Device> &devices)
{
    for (const std::string &sessionId : m_data.sessions.giveBack(signIn.userId, padCodesOf(devices)))
        m_fleet.endSession(sessionId, false);
}

// Where and as whom the client connects. The lists leave room for several gateways; there is one.
QJsonObject DeviceApi::connectionOf(const StreamSession &session) const
{
    const QJsonObject gateway{{QStringLiteral("controlIp"), text(m_fleet.controlIp())},
        {QStringLiteral("controlPort"), int(m_fleet.controlPort())}};
    const QJsonObject control{{QStringLiteral("controlInfoList"), QJsonArray{gateway}}};
    return {{QStringLiteral("userId"), session.userId},
        {QStringLiteral("sessionId"), text(session.sessionId)},
        {QStringLiteral("controlList"), QJsonArray{control}}};
}

} // namespace orvane::cloud
