#include "TXDataCryptKey.h"

#include <QDir>

#include <qt_windows.h>

#include <string>

namespace {

std::wstring nativePath(const QString &path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

bool syncToDisk(const std::wstring &path)
{
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool isSynced = FlushFileBuffers(file) != 0;
    CloseHandle(file);
    return isSynced;
}

} // namespace

bool publishFileUnlessExists(const QString &from, const QString &to, QString *reason)
{
    const std::wstring source = nativePath(from);
    // Without MOVEFILE_REPLACE_EXISTING the file of a process that was quicker stays.
    if (syncToDisk(source)
        && MoveFileExW(source.c_str(), nativePath(to).c_str(), MOVEFILE_WRITE_THROUGH) != 0) {
        return true;
    }
    const DWORD code = GetLastError();
    DeleteFileW(source.c_str());
    *reason = qt_error_string(static_cast<int>(code));
    return code == ERROR_ALREADY_EXISTS || code == ERROR_FILE_EXISTS;
}
