#include "api/DeviceGroupStore.h"

#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

DeviceGroupStore::DeviceGroupStore(Database &database, Clocks clocks)
    : m_database(database)
    , m_clocks(std::move(clocks))
{ }

std::vector<DeviceGroup> DeviceGroupStore::ofUser(std::int32_t userId) const
{
    const Database::Lock lock = m_database.lock();
    std::vector<DeviceGroup> groups;
    Statement select(m_database,
        "SELECT id, name, created_at FROM device_groups WHERE user_id = ? ORDER BY id", std::int64_t{userId});
    while (select.step())
        groups.push_back({select.integer(0), select.text(1), {}, select.time(2)});

    // Both results are in the order of the groups' ids.
    Statement members(m_database,
        "SELECT group_id, service_id FROM device_groups"
        " JOIN device_group_members ON group_id = device_groups.id JOIN devices USING (service_id)"
        " WHERE device_groups.user_id = ? AND devices.user_id = device_groups.user_id"
        " ORDER BY group_id, position",
        std::int64_t{userId});
    auto group = groups.begin();
    while (members.step()) {
        while (group->id != members.integer(0))
            ++group;
        group->serviceIds.push_back(members.text(1));
    }
    return groups;
}

std::optional<std::int64_t> DeviceGroupStore::create(
    std::int32_t userId, const std::string &name, const std::vector<std::string> &serviceIds)
{
    Transaction transaction(m_database);
    Statement count(m_database, "SELECT count(*) FROM device_groups WHERE user_id = ?", std::int64_t{userId});
    if (count.step() && count.integer(0) >= maxGroupsPerUser)
        return std::nullopt;
    const std::int64_t id = insert(userId, name, serviceIds);
    transaction.commit();
    return id;
}

std::int64_t DeviceGroupStore::insert(
    std::int32_t userId, const std::string &name, const std::vector<std::string> &serviceIds)
{
    Statement group(m_database,
        "INSERT INTO device_groups (user_id, name, created_at) VALUES (?, ?, ?) RETURNING id",
        std::int64_t{userId}, name, m_clocks.wall());
    group.step();
    const std::int64_t id = group.integer(0);
    group.run();
    std::int64_t position = 0;
    for (const std::string &serviceId : serviceIds)
        Statement(m_database,
            "INSERT INTO device_group_members (group_id, position, service_id) VALUES (?, ?, ?)", id,
            position++, serviceId)
            .run();
    return id;
}

bool DeviceGroupStore::rename(std::int32_t userId, std::int64_t groupId, const std::string &name)
{
    Transaction transaction(m_database);
    Statement(m_database, "UPDATE device_groups SET name = ? WHERE id = ? AND user_id = ?", name, groupId,
        std::int64_t{userId})
        .run();
    const bool found = m_database.changes() > 0;
    transaction.commit();
    return found;
}

bool DeviceGroupStore::remove(std::int32_t userId, std::int64_t groupId)
{
    Transaction transaction(m_database);
    Statement(
        m_database, "DELETE FROM device_groups WHERE id = ? AND user_id = ?", groupId, std::int64_t{userId})
        .run();
    const bool found = m_database.changes() > 0;
    transaction.commit();
    return found;
}

void DeviceGroupStore::seed(std::int32_t userId, const std::vector<DeviceGroup> &groups)
{
    Transaction transaction(m_database);
    Statement(m_database, "INSERT OR IGNORE INTO seeded_groups (user_id) VALUES (?)", std::int64_t{userId})
        .run();
    if (m_database.changes() == 0)
        return;
    for (const DeviceGroup &group : groups)
        insert(userId, group.name, group.serviceIds);
    transaction.commit();
}

} // namespace orvane::cloud
