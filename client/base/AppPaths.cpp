#include "base/AppPaths.h"

#include <QStandardPaths>

namespace AppPaths {

QString dataDir()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString logDir()
{
    return dataDir() + QStringLiteral("/log");
}

QString dumpDir()
{
    return dataDir() + QStringLiteral("/dump");
}

QString pendingDir()
{
    return dataDir() + QStringLiteral("/pending");
}

QString settingsFile()
{
    return dataDir() + QStringLiteral("/config/config.ini");
}

} // namespace AppPaths
