#include "api/DemoData.h"

#include "api/DemoSchemes.h"
#include "api/ServiceData.h"

#include <algorithm>
#include <array>

namespace orvane::cloud {

namespace {

constexpr const char *demoAccount = "demo";
constexpr const char *demoPassword = "orvane-demo";
constexpr const char *secondAccount = "second";
constexpr const char *secondPassword = "orvane-second";

// Service ids are consecutive from here; a pad code is "VM" and the service id.
constexpr int firstDemoServiceId = 100001;
constexpr int firstSecondServiceId = 900001;
constexpr int secondDeviceCount = 2;

constexpr std::array demoNames{"Aurora", "Breeze", "Comet", "Dune", "Ember", "Fjord", "Grove", "Harbor",
    "Iris", "Juniper", "Kestrel", "Lagoon"};
constexpr std::array secondNames{"Maple", "Nova"};

// Each of the next few devices, from the first one on.
constexpr std::array demoGroupNames{"Morning farm", "Guild raid"};
constexpr std::size_t demoGroupSize = 4;

using Days = std::chrono::duration<int, std::ratio<86400>>;

// Days until a device's time is over, repeated for more devices: mostly months, so that lists show a mixture.
constexpr std::array rentalDays{92, 214, 365, 61, 183, 122, 31, 274, 153, 14, 305, 245};

Device newDevice(int firstServiceId, int index, std::string aliasName, std::int32_t userId, WallTime now)
{
    const std::string serviceId = std::to_string(firstServiceId + index);
    const Days days(rentalDays[static_cast<std::size_t>(index) % rentalDays.size()]);
    return Device{serviceId, "VM" + serviceId, std::move(aliasName), userId, "month", now + days};
}

std::string demoName(int index)
{
    const auto position = static_cast<std::size_t>(index);
    return position < demoNames.size() ? demoNames[position] : "Phone " + std::to_string(index + 1);
}

void setDeviceCount(ServiceData &data, std::int32_t userId, int count)
{
    const std::vector<Device> present = data.devices.ofUser(userId);
    std::vector<Device> added;
    for (int index = 0; index < count; ++index) {
        Device device = newDevice(firstDemoServiceId, index, demoName(index), userId, data.clocks.wall());
        const bool exists = std::any_of(present.begin(), present.end(),
            [&device](const Device &other) { return other.serviceId == device.serviceId; });
        if (!exists)
            added.push_back(std::move(device));
    }
    std::vector<std::string> surplus;
    for (std::size_t index = static_cast<std::size_t>(count); index < present.size(); ++index)
        surplus.push_back(present[index].serviceId);
    data.devices.add(added);
    data.devices.remove(surplus);
}

// The groups that the demo account begins with, of those devices that it has.
std::vector<DeviceGroup> demoGroups(const ServiceData &data, std::int32_t userId)
{
    const std::vector<Device> devices = data.devices.ofUser(userId);
    std::vector<DeviceGroup> groups;
    std::size_t first = 0;
    for (const char *name : demoGroupNames) {
        DeviceGroup group;
        group.name = name;
        const std::size_t end = std::min(first + demoGroupSize, devices.size());
        for (; first < end; ++first)
            group.serviceIds.push_back(devices[first].serviceId);
        if (!group.serviceIds.empty())
            groups.push_back(std::move(group));
    }
    return groups;
}

void createSecondUser(ServiceData &data)
{
    const User second = data.users.create(secondAccount, "Second", secondPassword);
    std::vector<Device> devices;
    devices.reserve(secondDeviceCount);
    for (int index = 0; index < secondDeviceCount; ++index)
        devices.push_back(newDevice(firstSecondServiceId, index, secondNames[static_cast<std::size_t>(index)],
            second.id, data.clocks.wall()));
    data.devices.add(devices);
}

} // namespace

void prepareDemoData(ServiceData &data, std::optional<int> deviceCount)
{
    // Each account by itself, so that an interrupted first start is made good by the next one.
    if (!data.users.find(secondAccount))
        createSecondUser(data);
    std::optional<User> demo = data.users.find(demoAccount);
    if (!demo) {
        demo = data.users.create(demoAccount, "Demo", demoPassword);
        deviceCount = deviceCount.value_or(defaultDeviceCount);
    }
    if (deviceCount)
        setDeviceCount(data, demo->id, std::clamp(*deviceCount, 0, maxDeviceCount));
    data.groups.seed(demo->id, demoGroups(data, demo->id));
    data.keyMaps.seed(demo->id, demoSchemes());
}

} // namespace orvane::cloud
