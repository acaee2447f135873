#pragma once

namespace orvane::cloud {

class Database;

// Creates the tables of a new database and brings an older one up to date, step by step, in one transaction
// each. PRAGMA user_version counts the steps that were taken. Called once, with the database's lock held,
// before anything else uses it. Throws DatabaseError, also for a database that a newer version has written.
void updateSchema(Database &database);

} // namespace orvane::cloud
