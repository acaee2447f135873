#include "api/Statement.h"

#include "api/Database.h"
#include "api/DatabaseError.h"

#include <sqlite3.h>

namespace orvane::cloud {

void Statement::Finalizer::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(Database &database, const char *sql, Unbound)
    : m_database(database)
{
    sqlite3_stmt *statement = nullptr;
    const int result = sqlite3_prepare_v2(database.handle(), sql, -1, &statement, nullptr);
    m_statement.reset(statement);
    check(result);
}

void Statement::check(int result) const
{
    if (result != SQLITE_OK)
        throw DatabaseError(sqlite3_errmsg(m_database.handle()));
}

bool Statement::step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        check(result);
    return false;
}

std::vector<std::string> Statement::texts()
{
    std::vector<std::string> result;
    while (step())
        result.push_back(text(0));
    return result;
}

std::int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string Statement::text(int column) const
{
    // The pointer is null for NULL; the byte count is asked for after the conversion to text.
    const unsigned char *bytes = sqlite3_column_text(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return bytes ? std::string(reinterpret_cast<const char *>(bytes), static_cast<std::size_t>(size)) : "";
}

void Statement::bind(int index, std::int64_t value)
{
    check(sqlite3_bind_int64(m_statement.get(), index, value));
}

void Statement::bind(int index, std::string_view value)
{
    check(sqlite3_bind_text64(
        m_statement.get(), index, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

} // namespace orvane::cloud
