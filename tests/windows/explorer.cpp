#include "ExplorerRecord.h"

#include <cwchar>

// A file manager that opens no window: it records how it was started, says so, waits until it may
// end, and says that too.

namespace {

void fillIn(ExplorerRecord &record)
{
    std::wcsncpy(record.commandLine, GetCommandLineW(), kMostCharacters - 1);
    GetCurrentDirectoryW(MAX_PATH, record.folder);
    GetEnvironmentVariableW(kVariable, record.variable, MAX_PATH);
    STARTUPINFOW startup = {};
    GetStartupInfoW(&startup);
    record.x = startup.dwX;
    record.y = startup.dwY;
    record.width = startup.dwXSize;
    record.height = startup.dwYSize;
    record.flags = startup.dwFlags;
    SetEvent(record.inheritable);
}

} // namespace

int wmain()
{
    const HANDLE memory = OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, kRecordName);
    const HANDLE recorded = OpenEventW(EVENT_MODIFY_STATE, FALSE, kRecordedEvent);
    const HANDLE mayEnd = OpenEventW(SYNCHRONIZE, FALSE, kMayEndEvent);
    const HANDLE ends = OpenEventW(EVENT_MODIFY_STATE, FALSE, kEndsEvent);
    auto *record = static_cast<ExplorerRecord *>(
        MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(ExplorerRecord)));
    if (record == nullptr) {
        return 1;
    }
    fillIn(*record);
    SetEvent(recorded);
    return WaitForSingleObject(mayEnd, 60000) == WAIT_OBJECT_0 && SetEvent(ends) ? 0 : 1;
}
