#include "api/DeviceStore.h"

#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

namespace {

Device deviceOf(const Statement &row)
{
    return Device{row.text(0), row.text(1), row.text(2), static_cast<std::int32_t>(row.integer(3)),
        row.text(4), row.time(5)};
}

// With the database's lock held. `condition` is empty or a WHERE clause with the values' parameters.
template <typename... Values>
std::vector<Device> selectDevices(Database &database, const std::string &condition, const Values &...values)
{
    const std::string sql
        = "SELECT service_id, pad_code, alias_name, user_id, pay_mode, expires_at FROM devices " + condition
        + " ORDER BY length(service_id), service_id";
    Statement select(database, sql.c_str(), values...);
    std::vector<Device> devices;
    while (select.step())
        devices.push_back(deviceOf(select));
    return devices;
}

std::optional<Device> onlyOne(const std::vector<Device> &devices)
{
    return devices.empty() ? std::nullopt : std::optional<Device>(devices.front());
}

} // namespace

DeviceStore::DeviceStore(Database &database)
    : m_database(database)
{ }

void DeviceStore::add(const std::vector<Device> &devices)
{
    Transaction transaction(m_database);
    for (const Device &device : devices)
        Statement(m_database,
            "INSERT INTO devices (service_id, pad_code, alias_name, user_id, pay_mode, expires_at)"
            " VALUES (?, ?, ?, ?, ?, ?)",
            device.serviceId, device.padCode, device.aliasName, std::int64_t{device.userId}, device.payMode,
            device.expiresAt)
            .run();
    transaction.commit();
}

void DeviceStore::remove(const std::vector<std::string> &serviceIds)
{
    Transaction transaction(m_database);
    for (const std::string &serviceId : serviceIds)
        Statement(m_database, "DELETE FROM devices WHERE service_id = ?", serviceId).run();
    transaction.commit();
}

std::vector<Device> DeviceStore::all() const
{
    const Database::Lock lock = m_database.lock();
    return selectDevices(m_database, "");
}

std::vector<Device> DeviceStore::ofUser(std::int32_t userId) const
{
    const Database::Lock lock = m_database.lock();
    return selectDevices(m_database, "WHERE user_id = ?", std::int64_t{userId});
}

std::optional<Device> DeviceStore::findByServiceId(std::string_view serviceId) const
{
    const Database::Lock lock = m_database.lock();
    return onlyOne(selectDevices(m_database, "WHERE service_id = ?", serviceId));
}

std::optional<Device> DeviceStore::findByPadCode(std::string_view padCode) const
{
    const Database::Lock lock = m_database.lock();
    return onlyOne(selectDevices(m_database, "WHERE pad_code = ?", padCode));
}

bool DeviceStore::setExpiresAt(std::string_view padCode, WallTime expiresAt)
{
    Transaction transaction(m_database);
    Statement(m_database, "UPDATE devices SET expires_at = ? WHERE pad_code = ?", expiresAt, padCode).run();
    const bool found = m_database.changes() > 0;
    transaction.commit();
    return found;
}

std::optional<WallTime> DeviceStore::nextExpiry(WallTime after) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(
        m_database, "SELECT expires_at FROM devices WHERE expires_at > ? ORDER BY expires_at LIMIT 1", after);
    return select.step() ? std::optional<WallTime>(select.time(0)) : std::nullopt;
}

} // namespace orvane::cloud
