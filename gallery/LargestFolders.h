#pragma once

#include "FolderReport.h"

#include <QList>
#include <QMutex>

/// Keeps the reports of the folders whose own files are the largest together, without their
/// findings and sub-folders. Any thread.
class LargestFolders
{
public:
    /// How many folders are kept.
    static constexpr int kKept = 50;

    /// Takes the report, or leaves it when there are enough of larger folders. Costs a look at the
    /// smallest one kept, and a place among kKept where it is larger.
    void add(const FolderReport &report);

    /// The folders kept, the largest first; those of the same size in the order of their coming.
    [[nodiscard]] QList<FolderReport> list() const;

    /// Starts again with none.
    void clear();

private:
    mutable QMutex mutex;
    QList<FolderReport> reports; // guarded by mutex, the largest first
};
