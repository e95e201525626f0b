#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// Which files on this computer are downloads that never came to their end, also those of an
/// earlier run that was killed: a file of that name must not pass for the whole one.
///
/// Remembered in the application's settings under "UnfinishedDownloads", by absolute path, and
/// written to disk at once. Paths whose file is gone are forgotten. Any thread.
class TXGUICOMMON_PRIVATE_EXPORT UnfinishedDownloads
{
public:
    UnfinishedDownloads() = delete;

    /// Whether the file was begun and not finished.
    [[nodiscard]] static bool contains(const QString &path);

    /// To be called before the first byte is written.
    static void add(const QString &path);

    /// To be called when the last byte is on disk, or when the file has been deleted.
    static void remove(const QString &path);
};
