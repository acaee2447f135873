#pragma once

#include <string>

struct _EXCEPTION_POINTERS;

// The part of the crash handler that talks to the system: the unhandled-exception filter that writes a
// minidump. Windows only, and free of Qt. It runs on the crashing thread.

// What the filter asks of the program. Both are called on the crashing thread.
struct CrashDumpHooks
{
    // One line for the program's log.
    void (*log)(const std::wstring &line);
    // Creates the folder for dumps if it is missing and returns its path, without a final slash.
    std::wstring (*createDumpDir)();
};

// Writes "dump-<local time>.dmp" into the hooks' folder and lets the process end without the system's error
// dialog (EXCEPTION_EXECUTE_HANDLER), also when no dump could be written.
long __stdcall writeCrashDump(_EXCEPTION_POINTERS *exceptionPointers);

// Makes writeCrashDump the process's unhandled-exception filter. GUI thread, once.
void installCrashDumpWriter(const CrashDumpHooks &hooks);
