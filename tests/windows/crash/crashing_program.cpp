// A program for Windows with the client's crash handler and without Qt. The test runs it under Wine.
//
//     crashing_program crash DIR     installs the handler, with DIR as the folder for dumps, and writes to
//     address 0 crashing_program unhandled     writes to address 0 without the handler crashing_program mark
//     FILE     creates FILE: stands for the system's debugger, which asks the user

#include "app/CrashDumpWriter.h"

#include <cstdio>
#include <cwchar>
#include <string>

#include <windows.h>

namespace {

std::wstring dumpDir;

// UTF-8, as the test reads it, on whatever the program's output is.
void printLine(const std::wstring &line)
{
    char text[4096];
    WideCharToMultiByte(CP_UTF8, 0, line.c_str(), -1, text, sizeof text, nullptr, nullptr);
    std::printf("%s\n", text);
    std::fflush(stdout);
}

std::wstring createDumpDir()
{
    CreateDirectoryW(dumpDir.c_str(), nullptr);
    return dumpDir;
}

void writeToNull()
{
    volatile int *volatile nowhere = nullptr;
    *nowhere = 1;
    printLine(L"still running");
}

} // namespace

int wmain(int argc, wchar_t **argv)
{
    const std::wstring job = argc > 1 ? argv[1] : L"";
    if (job == L"crash" && argc == 3) {
        dumpDir = argv[2];
        installCrashDumpWriter({&printLine, &createDumpDir});
        writeToNull();
    } else if (job == L"unhandled") {
        writeToNull();
    } else if (job == L"mark" && argc >= 3) {
        std::FILE *file = _wfopen(argv[2], L"w");
        return file && std::fclose(file) == 0 ? 0 : 1;
    }
    return 2;
}
