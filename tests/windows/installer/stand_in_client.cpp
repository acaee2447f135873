// Stands for orvane.exe in the checks of the installer.
//
//     orvane.exe wait FILE    creates FILE.started and runs until FILE is there

#include <string>

#include <windows.h>

int wmain(int argc, wchar_t **argv)
{
    if (argc != 3 || std::wstring(argv[1]) != L"wait")
        return 2;
    const HANDLE started = CreateFileW(
        (std::wstring(argv[2]) + L".started").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    CloseHandle(started);
    while (GetFileAttributesW(argv[2]) == INVALID_FILE_ATTRIBUTES)
        Sleep(20);
    return 0;
}
