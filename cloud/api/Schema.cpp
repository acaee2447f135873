#include "api/Schema.h"

#include "api/Database.h"
#include "api/DatabaseError.h"
#include "api/Statement.h"

#include <string>

namespace orvane::cloud {

namespace {

// Step n (from 0) leads from version n to n + 1. Steps that were released are never edited: add one.
// Times are milliseconds since 1970-01-01 UTC.
constexpr const char *schemaSteps[] = {
    R"(
    CREATE TABLE users (
        id INTEGER PRIMARY KEY,
        account TEXT NOT NULL UNIQUE,
        name TEXT NOT NULL,
        password_hash TEXT NOT NULL
    );
    CREATE TABLE sign_ins (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        token_hash TEXT NOT NULL UNIQUE,
        login_id TEXT NOT NULL,
        user_id INTEGER NOT NULL REFERENCES users(id) ON DELETE CASCADE,
        expires_at INTEGER NOT NULL
    );
    CREATE TABLE devices (
        service_id TEXT PRIMARY KEY,
        pad_code TEXT NOT NULL UNIQUE,
        alias_name TEXT NOT NULL,
        user_id INTEGER NOT NULL REFERENCES users(id) ON DELETE CASCADE,
        pay_mode TEXT NOT NULL,
        expires_at INTEGER NOT NULL
    );
    CREATE INDEX devices_of_user ON devices(user_id);
    CREATE TABLE stream_sessions (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        session_id TEXT NOT NULL UNIQUE,
        pad_code TEXT NOT NULL REFERENCES devices(pad_code) ON DELETE CASCADE,
        user_id INTEGER NOT NULL REFERENCES users(id) ON DELETE CASCADE,
        sign_in_id INTEGER NOT NULL REFERENCES sign_ins(id) ON DELETE CASCADE
    );
    CREATE INDEX stream_sessions_of_device ON stream_sessions(pad_code, user_id);
    CREATE INDEX stream_sessions_of_sign_in ON stream_sessions(sign_in_id);
    )",
    R"(
    CREATE TABLE device_groups (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        user_id INTEGER NOT NULL REFERENCES users(id) ON DELETE CASCADE,
        name TEXT NOT NULL,
        created_at INTEGER NOT NULL
    );
    CREATE INDEX device_groups_of_user ON device_groups(user_id);
    CREATE TABLE device_group_members (
        group_id INTEGER NOT NULL REFERENCES device_groups(id) ON DELETE CASCADE,
        position INTEGER NOT NULL,
        service_id TEXT NOT NULL REFERENCES devices(service_id) ON DELETE CASCADE,
        PRIMARY KEY (group_id, position)
    ) WITHOUT ROWID;
    CREATE INDEX device_group_members_of_device ON device_group_members(service_id);
    -- Users whose first groups have been put in.
    CREATE TABLE seeded_groups (
        user_id INTEGER PRIMARY KEY REFERENCES users(id) ON DELETE CASCADE
    );
    )",
    R"(
    CREATE TABLE release (
        id INTEGER PRIMARY KEY CHECK (id = 1),
        version TEXT NOT NULL,
        version_code INTEGER NOT NULL,
        notes TEXT NOT NULL,
        update_path TEXT NOT NULL
    );
    CREATE TABLE release_files (
        position INTEGER PRIMARY KEY,
        name TEXT NOT NULL,
        bytes INTEGER NOT NULL
    );
    )",
    R"(
    CREATE TABLE key_map_schemes (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        map_id TEXT NOT NULL UNIQUE,
        user_id INTEGER NOT NULL REFERENCES users(id) ON DELETE CASCADE,
        name TEXT NOT NULL,
        keys TEXT NOT NULL,
        landscape INTEGER NOT NULL,
        show_keys INTEGER NOT NULL,
        show_notes INTEGER NOT NULL,
        opacity_percent INTEGER NOT NULL,
        key_size INTEGER NOT NULL
    );
    CREATE INDEX key_map_schemes_of_user ON key_map_schemes(user_id);
    -- Users whose first schemes have been put in.
    CREATE TABLE seeded_key_map_schemes (
        user_id INTEGER PRIMARY KEY REFERENCES users(id) ON DELETE CASCADE
    );
    )",
};
constexpr int schemaVersion = static_cast<int>(std::size(schemaSteps));

int currentVersion(Database &database)
{
    Statement statement(database, "PRAGMA user_version");
    return statement.step() ? static_cast<int>(statement.integer(0)) : 0;
}

} // namespace

void updateSchema(Database &database)
{
    const int found = currentVersion(database);
    if (found > schemaVersion)
        throw DatabaseError("written by a newer version of this program (schema " + std::to_string(found)
            + ", this program knows up to " + std::to_string(schemaVersion) + ")");
    for (int version = found; version < schemaVersion; ++version) {
        // An error leaves the transaction open; closing the connection rolls it back.
        database.execute("BEGIN IMMEDIATE");
        database.execute(schemaSteps[version]);
        database.execute(("PRAGMA user_version = " + std::to_string(version + 1)).c_str());
        database.execute("COMMIT");
    }
}

} // namespace orvane::cloud
