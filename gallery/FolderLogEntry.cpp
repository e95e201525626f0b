#include "FolderLogEntry.h"

#include "FolderReport.h"
#include "FolderScan.h"

#include "TXLogItem.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

TXStringI18n message(const char *source)
{
    return {"FolderLogEntry", source, nullptr, -1};
}

TXStringI18n message(const char *source, const QString &argument)
{
    return message(source).arg(argument, 0, QLatin1Char(' '));
}

void add(TXLogItem &item, int level, const TXStringI18n &text)
{
    item.addChild(TXLogItem::create(level, text, item.date));
}

TXStringI18n describe(const FolderFinding &finding)
{
    switch (finding.kind) {
    case FolderFinding::EmptyFolder:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "The folder is empty."));
    case FolderFinding::BrokenLink:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "Broken link: %1"), finding.name);
    case FolderFinding::LongName:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "Very long name: %1"), finding.name);
    case FolderFinding::UnreadableFile:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "No right to read: %1"), finding.name);
    case FolderFinding::UnreadableFolder:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "No right to list the folder."));
    case FolderFinding::MissingFolder:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "The folder does not exist."));
    case FolderFinding::NotAFolder:
        return message(QT_TRANSLATE_NOOP("FolderLogEntry", "This is a file, not a folder."));
    }
    return {};
}

void addFiles(TXLogItem &item, const FolderReport &report)
{
    const QLocale locale;
    add(item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Files: %1"),
                locale.toString(report.fileCount)));
    if (report.fileCount == 0) {
        return;
    }
    add(item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Total size: %1"),
                locale.formattedDataSize(report.totalBytes)));
    if (report.newestTime.isValid()) {
        const QString time = locale.toString(report.newestTime.toLocalTime(), QLocale::ShortFormat);
        add(item, TXLogItem::Information,
            message(QT_TRANSLATE_NOOP("FolderLogEntry", "Changed last: %1"),
                    QStringLiteral("%1, %2").arg(report.newestFile, time)));
    }
}

void addFindings(TXLogItem &item, const FolderReport &report)
{
    for (const FolderFinding &finding : report.findings) {
        add(item, finding.level(), describe(finding));
    }
    if (report.findings.size() == FolderReport::kMaximumFindings) {
        add(item, report.level(),
            message(QT_TRANSLATE_NOOP("FolderLogEntry", "Further findings are not listed.")));
    }
}

} // namespace

QSharedPointer<TXLogItem> makeFolderLogEntry(const FolderReport &report)
{
    auto item = TXLogItem::create(
        report.level(), message(QT_TRANSLATE_NOOP("FolderLogEntry", "Folder %1"), report.label));
    addFindings(*item, report);
    if (report.fileCount > 0 || report.errorCount == 0) {
        addFiles(*item, report);
    }
    return item;
}

QSharedPointer<TXLogItem> makeScanLogEntry(const FolderScanCounts &counts, qint64 milliseconds,
                                           bool isComplete)
{
    const QLocale locale;
    const QString seconds = locale.toString(double(milliseconds) / 1000, 'f', 2);
    auto item = TXLogItem::create(
        TXLogItem::Information,
        isComplete
            ? message(QT_TRANSLATE_NOOP("FolderLogEntry", "Scan finished after %1 s"), seconds)
            : message(QT_TRANSLATE_NOOP("FolderLogEntry", "Scan cancelled after %1 s"), seconds));
    add(*item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Folders: %1"),
                locale.toString(counts.folders)));
    add(*item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Files: %1"), locale.toString(counts.files)));
    add(*item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Total size: %1"),
                locale.formattedDataSize(counts.bytes)));
    add(*item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Warnings: %1"),
                locale.toString(counts.warnings)));
    add(*item, TXLogItem::Information,
        message(QT_TRANSLATE_NOOP("FolderLogEntry", "Errors: %1"), locale.toString(counts.errors)));
    return item;
}
