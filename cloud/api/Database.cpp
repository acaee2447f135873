#include "api/Database.h"

#include "api/DatabaseError.h"
#include "api/Schema.h"

#include <sqlite3.h>

#include <filesystem>

namespace orvane::cloud {

void Database::Closer::operator()(sqlite3 *handle) const
{
    sqlite3_close_v2(handle);
}

Database::Database(const std::string &path)
{
    sqlite3 *handle = nullptr;
    // NOMUTEX: m_mutex does SQLite's locking.
    const int result = sqlite3_open_v2(
        path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_handle.reset(handle);
    if (result != SQLITE_OK)
        throw DatabaseError("cannot open " + path + ": " + sqlite3_errstr(result));

    try {
        const Lock held = lock();
        configure();
        updateSchema(*this);
    } catch (const DatabaseError &error) {
        throw DatabaseError(path + ": " + error.what());
    }
    // It holds password hashes and session ids: nobody else's to read.
    namespace fs = std::filesystem;
    std::error_code error;
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error)
        throw DatabaseError("cannot make " + path + " private: " + error.message());
}

void Database::configure()
{
    sqlite3_extended_result_codes(handle(), 1);
    // Exclusive before WAL: the first access takes the lock and keeps it, and no shared-memory file is
    // needed.
    execute("PRAGMA locking_mode = EXCLUSIVE");
    execute("PRAGMA journal_mode = WAL");
    // Every commit survives a crash of the process; a power cut may lose the newest ones but damages nothing.
    execute("PRAGMA synchronous = NORMAL");
    execute("PRAGMA foreign_keys = ON");
}

void Database::execute(const char *sql)
{
    char *message = nullptr;
    const int result = sqlite3_exec(handle(), sql, nullptr, nullptr, &message);
    const std::unique_ptr<char, decltype(&sqlite3_free)> text(message, sqlite3_free);
    if ((result & 0xff) == SQLITE_BUSY)
        throw DatabaseError("in use by another process");
    if (result != SQLITE_OK)
        throw DatabaseError(text ? text.get() : sqlite3_errstr(result));
}

int Database::changes() const
{
    return sqlite3_changes(handle());
}

} // namespace orvane::cloud
