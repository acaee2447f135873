#pragma once

#include "api/Clocks.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace orvane::cloud {

class Database;

// One prepared statement. Lives on the stack of one operation that holds the database's lock. Every operation
// throws DatabaseError.
class Statement
{
public:
    // `values` are bound to the statement's parameters in order.
    template <typename... Values>
    Statement(Database &database, const char *sql, const Values &...values)
        : Statement(database, sql, Unbound{})
    {
        int index = 0;
        (bind(++index, values), ...);
    }

    // Goes to the next row of the result; false when there is none left.
    bool step();
    // Runs a statement that has no result.
    void run() { (void)step(); }
    // First column of all rows that are left.
    std::vector<std::string> texts();

    // Columns of the present row, counted from 0.
    std::int64_t integer(int column) const;
    std::string text(int column) const;
    WallTime time(int column) const { return WallTime(std::chrono::milliseconds(integer(column))); }

private:
    struct Unbound
    { };
    struct Finalizer
    {
        void operator()(sqlite3_stmt *statement) const;
    };

    Statement(Database &database, const char *sql, Unbound);
    void bind(int index, std::int64_t value);
    void bind(int index, std::string_view value);
    void bind(int index, WallTime value) { bind(index, std::int64_t{value.time_since_epoch().count()}); }
    void check(int result) const;

    Database &m_database;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

} // namespace orvane::cloud
