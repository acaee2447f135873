#include "api/DeviceGroupApi.h"

#include "api/LocalTimeText.h"
#include "api/Router.h"
#include "api/ServiceData.h"

#include <QJsonArray>

#include <set>

namespace orvane::cloud {

namespace {

constexpr std::size_t maxServiceIds = 500;
constexpr int maxNameCharacters = 50;

QJsonObject describe(const DeviceGroup &group)
{
    QJsonArray serviceIds;
    for (const std::string &serviceId : group.serviceIds)
        serviceIds.append(QString::fromStdString(serviceId));
    return {{QStringLiteral("cc_group_id"), QString::number(group.id)},
        {QStringLiteral("cc_group_name"), QString::fromStdString(group.name)},
        {QStringLiteral("service_ids"), serviceIds},
        {QStringLiteral("created_time"), localTimeText(group.createdAt)}};
}

std::string nameOf(const ApiCall &call)
{
    return call.body.title("cc_group_name", maxNameCharacters);
}

// -1, which no group has, when the text is none of our ids.
std::int64_t groupIdOf(const ApiCall &call)
{
    const QString text = QString::fromStdString(call.body.text("cc_group_id"));
    bool valid = false;
    const qint64 id = text.toLongLong(&valid, 10);
    return valid && QString::number(id) == text ? id : -1;
}

void demand(bool found)
{
    if (!found)
        throw ApiError(ApiCode::NotFound, "You have no such group.");
}

} // namespace

DeviceGroupApi::DeviceGroupApi(ServiceData &data)
    : m_data(data)
{ }

void DeviceGroupApi::addRoutes(Router &router)
{
    using Verb = Router::Verb;
    router.add(Verb::get, "/apiv1/device/ccGroupList", Access::SignedIn,
        [this](const ApiCall &call) { return list(call); });
    router.add(Verb::post, "/apiv1/device/actionCcGroup", Access::SignedIn,
        [this](const ApiCall &call) { return act(call); });
}

ApiAnswer DeviceGroupApi::list(const ApiCall &call) const
{
    QJsonArray groups;
    for (const DeviceGroup &group : m_data.groups.ofUser(call.signIn.userId))
        groups.append(describe(group));
    return {{{QStringLiteral("groups"), groups}}, {}};
}

ApiAnswer DeviceGroupApi::act(const ApiCall &call)
{
    const std::string action = call.body.text("action_type");
    if (action == "create")
        return create(call);
    if (action == "rename")
        return rename(call);
    if (action == "delete")
        return remove(call);
    throw ApiError(ApiCode::BadField, R"("action_type" must be "create", "rename" or "delete")");
}

ApiAnswer DeviceGroupApi::create(const ApiCall &call)
{
    const std::string name = nameOf(call);
    const std::vector<std::string> serviceIds = ownDevicesOf(call);
    if (serviceIds.empty())
        throw ApiError(ApiCode::NotFound, "You have none of these devices.");
    const std::optional<std::int64_t> id = m_data.groups.create(call.signIn.userId, name, serviceIds);
    if (!id)
        throw ApiError(ApiCode::NotNow,
            "You have " + std::to_string(DeviceGroupStore::maxGroupsPerUser)
                + " groups already. Please delete one first.");
    return {{{QStringLiteral("cc_group_id"), QString::number(*id)}}, {}};
}

ApiAnswer DeviceGroupApi::rename(const ApiCall &call)
{
    const std::int64_t id = groupIdOf(call);
    demand(m_data.groups.rename(call.signIn.userId, id, nameOf(call)));
    return {};
}

ApiAnswer DeviceGroupApi::remove(const ApiCall &call)
{
    demand(m_data.groups.remove(call.signIn.userId, groupIdOf(call)));
    return {};
}

// The request's devices that are the user's, each once, in the request's order.
std::vector<std::string> DeviceGroupApi::ownDevicesOf(const ApiCall &call) const
{
    const std::vector<std::string> wanted = call.body.texts("service_ids", maxServiceIds);
    std::set<std::string> own;
    for (const Device &device : m_data.devices.ofUser(call.signIn.userId))
        own.insert(device.serviceId);
    std::vector<std::string> serviceIds;
    for (const std::string &serviceId : wanted)
        if (own.erase(serviceId) > 0)
            serviceIds.push_back(serviceId);
    return serviceIds;
}

} // namespace orvane::cloud
