#pragma once

#include <cstddef>

// What a crash dump is called. These parts of the crash handler are the same on every system and free of Qt.
// Any thread.
namespace CrashDumpFile {

// A local time, as the system tells it.
struct Time
{
    int year;
    int month; // 1 to 12
    int day; // 1 to 31
    int hour;
    int minute;
    int second;
};

// Writes "yyyymmdd-hhmmss" and a final null into a buffer of so many characters. False if it does not fit;
// the buffer then holds the empty string.
bool formatStamp(const Time &time, wchar_t *buffer, std::size_t size);

// Writes "<dumpDir>/dump-<stamp>.dmp" and a final null, as formatStamp does.
bool formatPath(const wchar_t *dumpDir, const wchar_t *stamp, wchar_t *buffer, std::size_t size);

} // namespace CrashDumpFile
