#pragma once

#include <windows.h>

// What the test of ExplorerProcess and the explorer.exe that it starts tell each other, in memory
// that both see and by events; all by name, since the started program inherits no handle.

constexpr wchar_t kRecordName[] = L"TXExplorerRecord";
constexpr wchar_t kRecordedEvent[] = L"TXExplorerRecorded";
constexpr wchar_t kMayEndEvent[] = L"TXExplorerMayEnd";
constexpr wchar_t kEndsEvent[] = L"TXExplorerEnds";

/// A variable of the test's environment, and what it is set to.
constexpr wchar_t kVariable[] = L"TX_EXPLORER_TEST";

/// Longer than any command line can be.
constexpr DWORD kMostCharacters = 40000;

/// Filled in by the started program, but for the handle.
struct ExplorerRecord
{
    /// An event that the test has made inheritable; the started program tries to set it.
    HANDLE inheritable;
    wchar_t commandLine[kMostCharacters];
    wchar_t folder[MAX_PATH];
    wchar_t variable[MAX_PATH];
    DWORD x;
    DWORD y;
    DWORD width;
    DWORD height;
    DWORD flags;
};
