#include "app/CrashDumpFile.h"

#include <cwchar>

namespace CrashDumpFile {

namespace {

// What the formatting functions leave behind when the text does not fit differs between systems.
bool settle(int written, wchar_t *buffer, std::size_t size)
{
    if (written >= 0 && static_cast<std::size_t>(written) < size)
        return true;
    if (size > 0)
        buffer[0] = L'\0';
    return false;
}

} // namespace

bool formatStamp(const Time &time, wchar_t *buffer, std::size_t size)
{
    return settle(std::swprintf(buffer, size, L"%.4d%.2d%.2d-%.2d%.2d%.2d", time.year, time.month, time.day,
                      time.hour, time.minute, time.second),
        buffer, size);
}

bool formatPath(const wchar_t *dumpDir, const wchar_t *stamp, wchar_t *buffer, std::size_t size)
{
    return settle(std::swprintf(buffer, size, L"%ls/dump-%ls.dmp", dumpDir, stamp), buffer, size);
}

} // namespace CrashDumpFile
