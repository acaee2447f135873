#pragma once

#include <memory>
#include <mutex>
#include <string>

struct sqlite3;

namespace orvane::cloud {

// The service's state in one SQLite file. Opening creates the file and brings its schema up to date; the file
// is held exclusively until destruction, so that two services never work on the same one.
//
// One connection, shared by all threads: whoever uses it holds lock() for the duration of one operation.
// Owned by ServiceData, and outlives every store built on it.
class Database
{
public:
    using Lock = std::unique_lock<std::mutex>;

    // Throws DatabaseError when the file cannot be opened, is not a database of this program, is damaged,
    // comes from a newer version or is in use by another process. The file is left as it was in all these
    // cases.
    explicit Database(const std::string &path);
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    // Any thread; not recursive.
    [[nodiscard]] Lock lock() { return Lock(m_mutex); }

    // With lock() held:

    // Runs statements that have no parameters and no result. Throws DatabaseError.
    void execute(const char *sql);
    // Rows that the last statement inserted, changed or deleted.
    int changes() const;
    sqlite3 *handle() const { return m_handle.get(); }

private:
    struct Closer
    {
        void operator()(sqlite3 *handle) const;
    };

    void configure();

    std::unique_ptr<sqlite3, Closer> m_handle; // m_mutex
    std::mutex m_mutex;
};

} // namespace orvane::cloud
