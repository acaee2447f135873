#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cloud {

class Database;

// A user's arrangement of keys over the picture of a device.
struct KeyMapScheme
{
    std::string mapId; // its name towards clients, and the code by which it is shared; never used again
    std::int32_t userId = -1; // whose it is
    std::string name;
    std::string keys = "[]"; // JSON text of the key array, as the client wrote it
    bool landscape = false; // how the picture was held when the positions in `keys` were taken
    bool showKeys = true; // during the game
    bool showNotes = true; // during the game
    int opacityPercent = 80; // 0 to 100
    int keySize = 30; // 20 to 40, as on the client's slider
};

// What is to become different about a scheme; the rest stays.
struct KeyMapChanges
{
    std::optional<std::string> name;
    std::optional<std::string> keys;
    std::optional<bool> landscape;
    std::optional<bool> showKeys;
    std::optional<bool> showNotes;
    std::optional<int> opacityPercent;
    std::optional<int> keySize;

    void applyTo(KeyMapScheme &scheme) const;
};

// The schemes of all users. Every operation may be called from any thread and throws DatabaseError. Owned by
// ServiceData.
class KeyMapStore
{
public:
    static constexpr int maxSchemesPerUser = 200;

    explicit KeyMapStore(Database &database);

    // Oldest first.
    std::vector<KeyMapScheme> ofUser(std::int32_t userId) const;
    // Any user's.
    std::optional<KeyMapScheme> find(const std::string &mapId) const;
    // Saves the scheme for the user under a new id, whatever its own ids say. Returns the id; none when the
    // user has as many schemes as there may be.
    std::optional<std::string> create(std::int32_t userId, const KeyMapScheme &scheme);
    // False when the user has no such scheme.
    bool update(std::int32_t userId, const std::string &mapId, const KeyMapChanges &changes);
    bool remove(std::int32_t userId, const std::string &mapId);

    // Saves the schemes that a user begins with, all or none. Only the first call for a user does anything,
    // so that what the user has deleted stays deleted.
    void seed(std::int32_t userId, const std::vector<KeyMapScheme> &schemes);

private:
    // Within a transaction.
    std::string insert(std::int32_t userId, const KeyMapScheme &scheme);

    Database &m_database;
};

} // namespace orvane::cloud
