#pragma once

#include <QString>

// AppPaths::dumpDir(), created if it is missing; the data directory itself must be there. Any thread.
QString createCrashDumpDir();

// From here on a crash writes a dump "dump-<local time>.dmp" into AppPaths::dumpDir(), tells the log, and
// ends the process without the system's error dialog (CrashDumpWriter.h). GUI thread, once, just before the
// event loop starts.
//
// On systems other than Windows it does nothing: there the system itself keeps core dumps as its user set it
// up.
void installCrashHandler();
