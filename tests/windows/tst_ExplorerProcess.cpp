#include "ExplorerProcess.h"
#include "ExplorerRecord.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string>

// Without a Qt for Windows there is no QtTest: a failed check is printed, and fails the program.

namespace {

HWND consoleWindow = nullptr;
DWORD lastFlags = 0;

HWND WINAPI pretendedConsoleWindow()
{
    return consoleWindow;
}

BOOL WINAPI watchedCreateProcess(LPCWSTR application, LPWSTR commandLine,
                                 LPSECURITY_ATTRIBUTES process, LPSECURITY_ATTRIBUTES thread,
                                 BOOL inherits, DWORD flags, LPVOID environment, LPCWSTR folder,
                                 LPSTARTUPINFOW startup, LPPROCESS_INFORMATION information)
{
    lastFlags = flags;
    const FARPROC real = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "CreateProcessW");
    return reinterpret_cast<decltype(&CreateProcessW)>(reinterpret_cast<void *>(real))(
        application, commandLine, process, thread, inherits, flags, environment, folder, startup,
        information);
}

} // namespace

// The two calls go through these pointers, which are Windows's own unless a program brings others.
// Nothing in a started program tells the flags, and without a screen there is no console's window.
extern "C" {
decltype(&GetConsoleWindow) __imp_GetConsoleWindow = pretendedConsoleWindow;
decltype(&CreateProcessW) __imp_CreateProcessW = watchedCreateProcess;
}

namespace {

int failures = 0;

void check(bool isGood, const char *what)
{
    std::printf("%s: %s\n", isGood ? "PASS" : "FAIL", what);
    failures += isGood ? 0 : 1;
}

/// The memory and the events that the started program finds by their names.
class Recorder
{
public:
    Recorder()
        : memory(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                    sizeof(ExplorerRecord), kRecordName))
        , recorded(CreateEventW(nullptr, FALSE, FALSE, kRecordedEvent))
        , mayEnd(CreateEventW(nullptr, FALSE, FALSE, kMayEndEvent))
        , ends(CreateEventW(nullptr, FALSE, FALSE, kEndsEvent))
        , record(static_cast<ExplorerRecord *>(
              MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(ExplorerRecord))))
    {
        SECURITY_ATTRIBUTES inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        record->inheritable = CreateEventW(&inherited, TRUE, FALSE, nullptr);
    }

    /// Starts the program and gives what it recorded while it still runs. Should the start wait for
    /// the end, nothing ever comes back: the program waits to be told that it may end. It has taken
    /// that when this returns, so that the next start's program finds no word that is not its own.
    const ExplorerRecord &start(const std::wstring &path, bool isFolder)
    {
        record->commandLine[0] = 0;
        check(startExplorer(path, isFolder), "the program starts");
        check(WaitForSingleObject(recorded, 60000) == WAIT_OBJECT_0,
              "the start comes back while the program runs");
        SetEvent(mayEnd);
        check(WaitForSingleObject(ends, 60000) == WAIT_OBJECT_0, "the program ends when it may");
        return *record;
    }

private:
    HANDLE memory;
    HANDLE recorded;
    HANDLE mayEnd;
    HANDLE ends;
    ExplorerRecord *record;
};

void checkCommandLine(Recorder &recorder, const std::wstring &path, bool isFolder,
                      const std::wstring &expected, const char *what)
{
    check(explorerCommandLine(path, isFolder) == expected, what);
    check(recorder.start(path, isFolder).commandLine == expected, what);
}

void commandLines(Recorder &recorder)
{
    checkCommandLine(recorder, L"C:\\Data", true, L"explorer.exe \"C:\\Data\"",
                     "a folder is opened without a prefix");
    checkCommandLine(recorder, L"C:\\Data\\a.txt", false,
                     L"explorer.exe /select,\"C:\\Data\\a.txt\"", "a file is selected");
    checkCommandLine(recorder, L"C:\\My  Data\\ a b.txt", false,
                     L"explorer.exe /select,\"C:\\My  Data\\ a b.txt\"", "blanks stay");
    checkCommandLine(recorder, L"C:\\\u00dcbergr\u00f6\u00dfen\\\u65e5\u672c", true,
                     L"explorer.exe \"C:\\\u00dcbergr\u00f6\u00dfen\\\u65e5\u672c\"",
                     "letters of all languages stay");
    checkCommandLine(recorder, L"C:\\%20\\%PATH%\\#a&b^c", true,
                     L"explorer.exe \"C:\\%20\\%PATH%\\#a&b^c\"", "no shell reads the path");
    checkCommandLine(recorder, L"C:\\a\"b", false, L"explorer.exe /select,\"C:\\a\"b\"",
                     "quotes are not doubled");
    checkCommandLine(recorder, L"C:\\", true, L"explorer.exe \"C:\\\"",
                     "a closing backslash stays single");
    checkCommandLine(recorder, L"", false, L"explorer.exe /select,\"\"", "an empty path");
}

void longPaths(Recorder &recorder)
{
    const std::wstring longest(32000, L'x');
    checkCommandLine(recorder, longest, true, L"explorer.exe \"" + longest + L"\"",
                     "a path as long as Windows can have");
}

void surroundings(Recorder &recorder)
{
    SetEnvironmentVariableW(kVariable, L"\u00fc 1");
    wchar_t folder[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, folder);
    const ExplorerRecord &record = recorder.start(L"C:\\Data", true);
    constexpr auto kDefault = static_cast<DWORD>(CW_USEDEFAULT);
    check(record.x == kDefault && record.y == kDefault, "the position is the default");
    check(record.width == kDefault && record.height == kDefault, "the size is the default");
    check(record.flags == 0, "no flag of the window is set");
    check(std::wstring(record.variable) == L"\u00fc 1", "the environment is handed on");
    check(std::wstring(record.folder) == folder, "the current folder is handed on");
    check(WaitForSingleObject(record.inheritable, 0) == WAIT_TIMEOUT, "no handle is inherited");
}

void flags(Recorder &recorder)
{
    consoleWindow = nullptr;
    recorder.start(L"C:\\Data", true);
    check(lastFlags == (CREATE_UNICODE_ENVIRONMENT | CREATE_NO_WINDOW),
          "without a console none is opened");
    consoleWindow = GetDesktopWindow();
    recorder.start(L"C:\\Data", true);
    check(lastFlags == CREATE_UNICODE_ENVIRONMENT, "with a console the program shares it");
}

/// The highest of many new handles: Windows fills gaps first, so each forgotten handle pushes it
/// up. (Wine does not count the handles of a process.)
HANDLE highestHandle()
{
    HANDLE made[100] = {};
    for (HANDLE &handle : made) {
        handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    }
    const HANDLE highest = *std::max_element(std::begin(made), std::end(made));
    for (const HANDLE handle : made) {
        CloseHandle(handle);
    }
    return highest;
}

void handles(Recorder &recorder)
{
    recorder.start(L"C:\\Data", true);
    const HANDLE before = highestHandle();
    const HANDLE forgotten = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    check(highestHandle() != before, "a forgotten handle is seen");
    CloseHandle(forgotten);
    check(highestHandle() == before, "a closed one is not");
    for (int round = 0; round < 5; ++round) {
        recorder.start(L"C:\\Data", true);
    }
    check(highestHandle() == before, "no handle is left open");
}

std::wstring besideTheTest(const wchar_t *name)
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program = path;
    return program.substr(0, program.rfind(L'\\') + 1) + name;
}

/// Windows has an explorer.exe always, and so has Wine; one that is no program takes its place.
void brokenProgram()
{
    const std::wstring good = besideTheTest(L"explorer.exe");
    const std::wstring away = besideTheTest(L"explorer.away");
    check(MoveFileExW(good.c_str(), away.c_str(), MOVEFILE_REPLACE_EXISTING), "put away");
    const HANDLE broken = CreateFileW(good.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(broken, "no program", 10, &written, nullptr);
    CloseHandle(broken);
    check(!startExplorer(L"C:\\Data", true), "what cannot be started is told");
    check(MoveFileExW(away.c_str(), good.c_str(), MOVEFILE_REPLACE_EXISTING), "put back");
}

} // namespace

int wmain()
{
    Recorder recorder;
    commandLines(recorder);
    longPaths(recorder);
    surroundings(recorder);
    flags(recorder);
    handles(recorder);
    brokenProgram();
    std::printf("%d failed\n", failures);
    return failures == 0 ? 0 : 1;
}
