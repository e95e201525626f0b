#include "ExplorerProcess.h"

#include <windows.h>

std::wstring explorerCommandLine(const std::wstring &nativePath, bool isFolder)
{
    const std::wstring prefix = isFolder ? L"" : L"/select,";
    return L"explorer.exe " + prefix + L'"' + nativePath + L'"';
}

bool startExplorer(const std::wstring &nativePath, bool isFolder)
{
    std::wstring commandLine = explorerCommandLine(nativePath, isFolder);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwX = static_cast<DWORD>(CW_USEDEFAULT);
    startup.dwY = static_cast<DWORD>(CW_USEDEFAULT);
    startup.dwXSize = static_cast<DWORD>(CW_USEDEFAULT);
    startup.dwYSize = static_cast<DWORD>(CW_USEDEFAULT);
    DWORD flags = CREATE_UNICODE_ENVIRONMENT;
    if (GetConsoleWindow() == nullptr) {
        flags |= CREATE_NO_WINDOW;
    }
    PROCESS_INFORMATION process = {};
    // The call may write into the command line.
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, flags, nullptr,
                        nullptr, &startup, &process)) {
        return false;
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}
