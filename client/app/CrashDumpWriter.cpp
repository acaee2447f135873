#include "app/CrashDumpWriter.h"

#include "app/CrashDumpFile.h"

// The order matters: dbghelp.h needs windows.h.
#include <windows.h>

#include <dbghelp.h>

namespace {

constexpr std::size_t stampLength = 64; // characters, with the final null
constexpr std::size_t pathLength = 1024;

CrashDumpHooks hooksInUse{}; // set once, before any crash is handled

// Owns the dump file's handle.
class DumpFile
{
public:
    explicit DumpFile(const wchar_t *path)
        : m_handle(
            CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr))
    { }
    ~DumpFile()
    {
        if (isOpen())
            CloseHandle(m_handle);
    }
    DumpFile(const DumpFile &) = delete;
    DumpFile &operator=(const DumpFile &) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE handle() const { return m_handle; }

private:
    HANDLE m_handle;
};

} // namespace

long __stdcall writeCrashDump(_EXCEPTION_POINTERS *exceptionPointers)
{
    hooksInUse.log(L"dump!!!!!");
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t stamp[stampLength];
    const bool hasStamp = CrashDumpFile::formatStamp(
        {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond}, stamp, stampLength);
    const std::wstring dumpDir = hooksInUse.createDumpDir();
    wchar_t path[pathLength];
    const bool hasPath = hasStamp && CrashDumpFile::formatPath(dumpDir.c_str(), stamp, path, pathLength);
    hooksInUse.log(L"dumpPath ---> " + dumpDir);
    if (!hasPath)
        return EXCEPTION_EXECUTE_HANDLER;

    const DumpFile file(path);
    if (!file.isOpen())
        return EXCEPTION_EXECUTE_HANDLER;
    MINIDUMP_EXCEPTION_INFORMATION information;
    information.ThreadId = GetCurrentThreadId();
    information.ExceptionPointers = exceptionPointers;
    information.ClientPointers = FALSE;
    MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), file.handle(), MiniDumpNormal, &information,
        nullptr, nullptr);
    return EXCEPTION_EXECUTE_HANDLER;
}

void installCrashDumpWriter(const CrashDumpHooks &hooks)
{
    hooksInUse = hooks;
    SetUnhandledExceptionFilter(&writeCrashDump);
}
