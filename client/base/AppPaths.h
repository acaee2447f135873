#pragma once

#include <QString>

// Where the client keeps its per-user files. Everything stands under the per-user application data location,
// which the toolkit derives from the organisation and application names. Absolute paths with forward slashes
// and without a trailing one; nothing is created. Any thread.
namespace AppPaths {

// The per-user application data location itself.
QString dataDir();
// Daily log files, the client's and the streaming runtime's.
QString logDir();
// Crash dumps.
QString dumpDir();
// The installer of a new version, while it is downloaded and until it is used.
QString pendingDir();
// The INI file that AppSettings reads and writes.
QString settingsFile();

} // namespace AppPaths
