#pragma once

#include <QSharedPointer>

struct FolderReport;
struct FolderScanCounts;
class TXLogItem;

/// @file
/// The log entries of a folder scan. Their texts are translated when they are shown; numbers, sizes
/// and dates are written as the language of the moment has them. Any thread.

/// The entry of one folder: its name with the level of its gravest finding; below it the number of
/// files, their size, the newest file, and each finding with a level of its own.
[[nodiscard]] QSharedPointer<TXLogItem> makeFolderLogEntry(const FolderReport &report);

/// The entry at the end of a scan, with the sums below it. Its level is information.
[[nodiscard]] QSharedPointer<TXLogItem> makeScanLogEntry(const FolderScanCounts &counts,
                                                         qint64 milliseconds, bool isComplete);
