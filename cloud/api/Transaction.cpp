#include "api/Transaction.h"

#include "api/ApiLog.h"
#include "api/DatabaseError.h"

namespace orvane::cloud {

Transaction::Transaction(Database &database)
    : m_database(database)
    , m_lock(database.lock())
{
    m_database.execute("BEGIN IMMEDIATE");
    m_open = true;
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_database.execute("ROLLBACK");
    } catch (const DatabaseError &error) {
        // Some failures (a full disk) have rolled back already.
        qCWarning(apiLog, "rolling back: %s", error.what());
    }
}

void Transaction::commit()
{
    m_database.execute("COMMIT");
    m_open = false;
}

} // namespace orvane::cloud
