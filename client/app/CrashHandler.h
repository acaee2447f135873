#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
struct _EXCEPTION_POINTERS;

// The process's unhandled-exception filter: writes a minidump "dump-<local time>.dmp" into
// AppPaths::dumpDir() and lets the process end without the system's error dialog, also when no dump could be
// written. Runs on the crashing thread.
long __stdcall writeCrashDump(_EXCEPTION_POINTERS *exceptionPointers);
#endif

// From here on a crash writes a dump. GUI thread, once, just before the event loop starts.
//
// On systems other than Windows it does nothing: there the system itself keeps core dumps as its user set it
// up.
void installCrashHandler();
