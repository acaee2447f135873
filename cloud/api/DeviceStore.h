#pragma once

#include "api/Clocks.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::cloud {

class Database;

// A rented device, as the account book knows it. The device itself lives in the fleet under its pad code.
struct Device
{
    std::string serviceId; // names the rental in the API
    std::string padCode; // names the device to the gateway
    std::string aliasName; // what its user calls it
    std::int32_t userId = -1;
    std::string payMode; // "month"
    WallTime expiresAt; // its time is over from this moment on
};

// Who rents which device until when. Every operation may be called from any thread and throws DatabaseError.
// Owned by ServiceData.
class DeviceStore
{
public:
    explicit DeviceStore(Database &database);

    // Adds devices, all or none. Throws also when one of them exists.
    void add(const std::vector<Device> &devices);
    // Removes devices by service id together with their streaming sessions; unknown ids are ignored.
    void remove(const std::vector<std::string> &serviceIds);

    // Ordered by service id, shorter ids first.
    std::vector<Device> all() const;
    std::vector<Device> ofUser(std::int32_t userId) const;
    std::optional<Device> findByServiceId(std::string_view serviceId) const;
    std::optional<Device> findByPadCode(std::string_view padCode) const;

    // Sets the end of a device's time; false when there is no such device.
    bool setExpiresAt(std::string_view padCode, WallTime expiresAt);
    // When the next device's time is over, counted from a moment on; none when no device's is.
    std::optional<WallTime> nextExpiry(WallTime after) const;

private:
    Database &m_database;
};

} // namespace orvane::cloud
