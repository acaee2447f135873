#include "api/KeyMapStore.h"

#include "api/RandomToken.h"
#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

namespace {

// 32^10 codes: nobody comes upon somebody else's by trying.
constexpr std::size_t mapIdLength = 10;

constexpr const char *selectOfUser
    = "SELECT map_id, user_id, name, keys, landscape, show_keys, show_notes, opacity_percent, key_size"
      " FROM key_map_schemes WHERE user_id = ? ORDER BY id";
constexpr const char *selectOne
    = "SELECT map_id, user_id, name, keys, landscape, show_keys, show_notes, opacity_percent, key_size"
      " FROM key_map_schemes WHERE map_id = ?";

KeyMapScheme read(const Statement &row)
{
    KeyMapScheme scheme;
    scheme.mapId = row.text(0);
    scheme.userId = static_cast<std::int32_t>(row.integer(1));
    scheme.name = row.text(2);
    scheme.keys = row.text(3);
    scheme.landscape = row.integer(4) != 0;
    scheme.showKeys = row.integer(5) != 0;
    scheme.showNotes = row.integer(6) != 0;
    scheme.opacityPercent = static_cast<int>(row.integer(7));
    scheme.keySize = static_cast<int>(row.integer(8));
    return scheme;
}

template <typename Value>
void take(const std::optional<Value> &change, Value &value)
{
    if (change)
        value = *change;
}

} // namespace

void KeyMapChanges::applyTo(KeyMapScheme &scheme) const
{
    take(name, scheme.name);
    take(keys, scheme.keys);
    take(landscape, scheme.landscape);
    take(showKeys, scheme.showKeys);
    take(showNotes, scheme.showNotes);
    take(opacityPercent, scheme.opacityPercent);
    take(keySize, scheme.keySize);
}

KeyMapStore::KeyMapStore(Database &database)
    : m_database(database)
{ }

std::vector<KeyMapScheme> KeyMapStore::ofUser(std::int32_t userId) const
{
    const Database::Lock lock = m_database.lock();
    std::vector<KeyMapScheme> schemes;
    Statement select(m_database, selectOfUser, std::int64_t{userId});
    while (select.step())
        schemes.push_back(read(select));
    return schemes;
}

std::optional<KeyMapScheme> KeyMapStore::find(const std::string &mapId) const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database, selectOne, mapId);
    return select.step() ? std::optional(read(select)) : std::nullopt;
}

std::optional<std::string> KeyMapStore::create(std::int32_t userId, const KeyMapScheme &scheme)
{
    Transaction transaction(m_database);
    {
        Statement count(
            m_database, "SELECT count(*) FROM key_map_schemes WHERE user_id = ?", std::int64_t{userId});
        if (count.step() && count.integer(0) >= maxSchemesPerUser)
            return std::nullopt;
    }
    std::string mapId = insert(userId, scheme);
    transaction.commit();
    return mapId;
}

std::string KeyMapStore::insert(std::int32_t userId, const KeyMapScheme &scheme)
{
    std::string mapId = randomCode(mapIdLength);
    Statement(m_database,
        "INSERT INTO key_map_schemes (map_id, user_id, name, keys, landscape, show_keys, show_notes,"
        " opacity_percent, key_size) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
        mapId, std::int64_t{userId}, scheme.name, scheme.keys, std::int64_t{scheme.landscape},
        std::int64_t{scheme.showKeys}, std::int64_t{scheme.showNotes}, std::int64_t{scheme.opacityPercent},
        std::int64_t{scheme.keySize})
        .run();
    return mapId;
}

bool KeyMapStore::update(std::int32_t userId, const std::string &mapId, const KeyMapChanges &changes)
{
    Transaction transaction(m_database);
    KeyMapScheme scheme;
    {
        Statement select(m_database, selectOne, mapId);
        if (!select.step())
            return false;
        scheme = read(select);
    }
    if (scheme.userId != userId)
        return false;
    changes.applyTo(scheme);
    Statement(m_database,
        "UPDATE key_map_schemes SET name = ?, keys = ?, landscape = ?, show_keys = ?, show_notes = ?,"
        " opacity_percent = ?, key_size = ? WHERE map_id = ?",
        scheme.name, scheme.keys, std::int64_t{scheme.landscape}, std::int64_t{scheme.showKeys},
        std::int64_t{scheme.showNotes}, std::int64_t{scheme.opacityPercent}, std::int64_t{scheme.keySize},
        mapId)
        .run();
    transaction.commit();
    return true;
}

bool KeyMapStore::remove(std::int32_t userId, const std::string &mapId)
{
    Transaction transaction(m_database);
    Statement(m_database, "DELETE FROM key_map_schemes WHERE map_id = ? AND user_id = ?", mapId,
        std::int64_t{userId})
        .run();
    const bool found = m_database.changes() > 0;
    transaction.commit();
    return found;
}

void KeyMapStore::seed(std::int32_t userId, const std::vector<KeyMapScheme> &schemes)
{
    Transaction transaction(m_database);
    Statement(
        m_database, "INSERT OR IGNORE INTO seeded_key_map_schemes (user_id) VALUES (?)", std::int64_t{userId})
        .run();
    if (m_database.changes() == 0)
        return;
    for (const KeyMapScheme &scheme : schemes)
        insert(userId, scheme);
    transaction.commit();
}

} // namespace orvane::cloud
