#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cloud {

class Database;

// A version of the client that older clients are offered.
struct Release
{
    struct File
    {
        std::string name;
        std::int64_t bytes = 0;
    };

    std::string version; // for people: "1.3.0"
    std::int64_t versionCode = 0; // what versions are compared by
    std::string notes; // for people; lines
    std::string updatePath; // URL of the folder that the files are in; empty = this service's own
    std::vector<File> files;
};

// The newest release of the client, if any. Every operation may be called from any thread and throws
// DatabaseError. Owned by ServiceData.
class ReleaseStore
{
public:
    explicit ReleaseStore(Database &database);

    std::optional<Release> newest() const;
    // Replaces the one before.
    void offer(const Release &release);
    void withdraw();

private:
    void clear(); // within a transaction

    Database &m_database;
};

} // namespace orvane::cloud
