#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// Which files on this computer are downloads that never came to their end, also those of an
/// earlier run that was killed: such a file must not pass for the whole one.
///
/// A file is known by its path and by the time when it was made: one that somebody has put there
/// at another time is not meant, where the file system knows that time.
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
    /// How long an entry is kept.
    static constexpr qint64 kKeptSeconds = qint64(30) * 24 * 60 * 60;

    /// How far apart the entry and its file are made at most.
    static constexpr qint64 kApartSeconds = 60;

    UnfinishedDownloads() = delete;

    /// Whether the file was begun and not finished. Without a file at the path: whether one is
    /// remembered.
    [[nodiscard]] static bool contains(const QString &path);

    /// To be called right before the file is made, also when it is remembered already. When it
    /// returns true the file is remembered on disk. False when the path is empty or the settings
    /// cannot be written.
    ///
    /// Forgets entries older than kKeptSeconds, so that they do not pile up. Their files are not
    /// looked at: they may lie on a share that does not answer.
    static bool add(const QString &path);

    /// To be called when the last byte is on disk, or when the file is gone. Does nothing for a
    /// path that is not remembered.
    static void remove(const QString &path);
};
