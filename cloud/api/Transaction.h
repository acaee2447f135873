#pragma once

#include "api/Database.h"

namespace orvane::cloud {

// A write to the database that happens as a whole or not at all. Holds the database's lock while it lives;
// what was not committed is rolled back by the destructor. Lives on the stack of one operation.
class Transaction
{
public:
    // Throws DatabaseError.
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    // Throws DatabaseError; then nothing was written.
    void commit();

private:
    Database &m_database;
    Database::Lock m_lock;
    bool m_open = false;
};

} // namespace orvane::cloud
