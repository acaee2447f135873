#pragma once

#include "api/Clocks.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cloud {

class Database;

// A saved group of devices that are controlled together.
struct DeviceGroup
{
    std::int64_t id = -1; // from 1; never used again
    std::string name;
    std::vector<std::string> serviceIds; // in the user's order, each once
    WallTime createdAt;
};

// The groups that users have saved. A device that is removed leaves its groups, which stay even when they are
// empty. Every operation may be called from any thread and throws DatabaseError. Owned by ServiceData.
class DeviceGroupStore
{
public:
    static constexpr int maxGroupsPerUser = 200;

    DeviceGroupStore(Database &database, Clocks clocks);

    // Oldest first. Devices that are not the user's (any more) are left out.
    std::vector<DeviceGroup> ofUser(std::int32_t userId) const;
    // Saves a group of devices that exist, each named once. Returns its id; none when the user has as many
    // groups as there may be.
    std::optional<std::int64_t> create(
        std::int32_t userId, const std::string &name, const std::vector<std::string> &serviceIds);
    // False when the user has no such group.
    bool rename(std::int32_t userId, std::int64_t groupId, const std::string &name);
    bool remove(std::int32_t userId, std::int64_t groupId);

    // Saves the groups that a user begins with (names and devices count), all or none. Only the first call
    // for a user does anything, so that what the user has deleted stays deleted.
    void seed(std::int32_t userId, const std::vector<DeviceGroup> &groups);

private:
    // Within a transaction.
    std::int64_t insert(
        std::int32_t userId, const std::string &name, const std::vector<std::string> &serviceIds);

    Database &m_database;
    const Clocks m_clocks;
};

} // namespace orvane::cloud
