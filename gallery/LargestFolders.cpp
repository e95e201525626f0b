#include "LargestFolders.h"

#include <QMutexLocker>

#include <algorithm>

void LargestFolders::add(const FolderReport &report)
{
    const QMutexLocker locker(&mutex);
    const bool isFull = reports.size() == kKept;
    if (isFull && report.totalBytes <= reports.constLast().totalBytes) {
        return;
    }
    const auto place = std::upper_bound(
        reports.cbegin(), reports.cend(), report,
        [](const FolderReport &a, const FolderReport &b) { return a.totalBytes > b.totalBytes; });
    // Lists of names may be long, and nobody asks for them here.
    FolderReport kept = report;
    kept.folders.clear();
    kept.findings.clear();
    reports.insert(place, kept);
    if (isFull) {
        reports.removeLast();
    }
}

QList<FolderReport> LargestFolders::list() const
{
    const QMutexLocker locker(&mutex);
    return reports;
}

void LargestFolders::clear()
{
    const QMutexLocker locker(&mutex);
    reports.clear();
}
