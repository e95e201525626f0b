#include "FolderReport.h"

#include "TXLogItem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

/// True when the folder can be read; otherwise the report says why not.
bool checkFolder(FolderReport &report)
{
    const QFileInfo folder(report.path);
    if (!folder.exists()) {
        report.addFinding(FolderFinding::MissingFolder);
    } else if (!folder.isDir()) {
        report.addFinding(FolderFinding::NotAFolder);
    } else if (!folder.isReadable() || !folder.isExecutable()) {
        report.addFinding(FolderFinding::UnreadableFolder);
    } else {
        return true;
    }
    return false;
}

void addFile(FolderReport &report, const QFileInfo &file)
{
    ++report.fileCount;
    if (file.isSymLink() && !file.exists()) {
        report.addFinding(FolderFinding::BrokenLink, file.fileName());
        return;
    }
    report.totalBytes += file.size();
    if (!file.isReadable()) {
        report.addFinding(FolderFinding::UnreadableFile, file.fileName());
    }
    const QDateTime time = file.fileTime(QFile::FileModificationTime).toUTC();
    if (!report.newestTime.isValid() || time > report.newestTime) {
        report.newestTime = time;
        report.newestFile = file.fileName();
    }
}

void addEntry(FolderReport &report, const QFileInfo &entry)
{
    if (QFile::encodeName(entry.fileName()).size() > FolderReport::kLongNameBytes) {
        report.addFinding(FolderFinding::LongName, entry.fileName());
    }
    if (entry.isDir() && !entry.isSymLink()) {
        report.folders.append(entry.fileName());
    } else {
        addFile(report, entry);
    }
}

} // namespace

int FolderFinding::level() const
{
    switch (kind) {
    case EmptyFolder:
        return TXLogItem::Information;
    case BrokenLink:
    case LongName:
        return TXLogItem::Warning;
    default:
        return TXLogItem::Error;
    }
}

int FolderReport::level() const
{
    if (errorCount > 0) {
        return TXLogItem::Error;
    }
    return warningCount > 0 ? TXLogItem::Warning : TXLogItem::Information;
}

void FolderReport::addFinding(FolderFinding::Kind kind, const QString &name)
{
    const FolderFinding finding = {kind, name};
    warningCount += finding.level() == TXLogItem::Warning ? 1 : 0;
    errorCount += finding.level() == TXLogItem::Error ? 1 : 0;
    if (findings.size() < kMaximumFindings) {
        findings.append(finding);
    }
}

FolderReport inspectFolder(const QString &path, const QString &label,
                           const std::atomic_bool &isCancelled)
{
    FolderReport report;
    report.path = path;
    report.label = label;
    if (!checkFolder(report)) {
        return report;
    }
    // System brings the broken links along.
    const auto filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QStringList names = QDir(path).entryList(filters, QDir::Name);
    for (const QString &name : names) {
        if (isCancelled) {
            return report;
        }
        addEntry(report, QFileInfo(path + QLatin1Char('/') + name));
    }
    if (names.isEmpty()) {
        // A folder that has vanished since it was checked lists nothing, too.
        report.addFinding(QFileInfo::exists(path) ? FolderFinding::EmptyFolder
                                                  : FolderFinding::MissingFolder);
    }
    return report;
}
