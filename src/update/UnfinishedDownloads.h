#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// Which files on this computer are downloads that never came to their end, also those of an
/// earlier run that was killed: a file of that name must not pass for the whole one.
///
/// Remembered in the application's settings, an entry for each file in the group
/// "UnfinishedDownloads", so that programs that run at the same time do not overwrite what the
/// others remember. A file is the same under every spelling of its path, relative or through a
/// folder that is a link.
///
/// Every call reads or writes the settings on disk: some milliseconds for a write, so once a
/// transfer and never for each piece. An empty path is never remembered. Any thread.
class TXGUICOMMON_PRIVATE_EXPORT UnfinishedDownloads
{
public:
    /// How long an entry is kept whose file is not there: the file may just be about to be made.
    static constexpr qint64 kKeptSeconds = 24 * 60 * 60;

    UnfinishedDownloads() = delete;

    /// Whether the file was begun and not finished.
    [[nodiscard]] static bool contains(const QString &path);

    /// To be called before the file is made. When it returns true the file is remembered on disk.
    /// False when the path is empty or the settings cannot be written.
    ///
    /// Forgets entries older than kKeptSeconds whose file is gone, so that they do not pile up.
    [[nodiscard]] static bool add(const QString &path);

    /// To be called when the last byte is on disk, or when the file has been deleted. Does nothing
    /// for a file that is not remembered.
    static void remove(const QString &path);
};
