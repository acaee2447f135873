#include "api/ReleaseStore.h"

#include "api/Statement.h"
#include "api/Transaction.h"

namespace orvane::cloud {

ReleaseStore::ReleaseStore(Database &database)
    : m_database(database)
{ }

std::optional<Release> ReleaseStore::newest() const
{
    const Database::Lock lock = m_database.lock();
    Statement select(m_database, "SELECT version, version_code, notes, update_path FROM release");
    if (!select.step())
        return std::nullopt;
    Release release{select.text(0), select.integer(1), select.text(2), select.text(3), {}};
    Statement files(m_database, "SELECT name, bytes FROM release_files ORDER BY position");
    while (files.step())
        release.files.push_back({files.text(0), files.integer(1)});
    return release;
}

void ReleaseStore::offer(const Release &release)
{
    Transaction transaction(m_database);
    clear();
    Statement(m_database,
        "INSERT INTO release (id, version, version_code, notes, update_path) VALUES (1, ?, ?, ?, ?)",
        release.version, release.versionCode, release.notes, release.updatePath)
        .run();
    std::int64_t position = 0;
    for (const Release::File &file : release.files)
        Statement(m_database, "INSERT INTO release_files (position, name, bytes) VALUES (?, ?, ?)",
            position++, file.name, file.bytes)
            .run();
    transaction.commit();
}

void ReleaseStore::withdraw()
{
    Transaction transaction(m_database);
    clear();
    transaction.commit();
}

void ReleaseStore::clear()
{
    Statement(m_database, "DELETE FROM release_files").run();
    Statement(m_database, "DELETE FROM release").run();
}

} // namespace orvane::cloud
