#include "FolderScan.h"

#include <QDir>
#include <QFileInfo>
#include <QRunnable>

#include <utility>

namespace {

QString join(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

} // namespace

class FolderScan::Task : public QRunnable
{
public:
    Task(FolderScan &scan, QString path, QString label)
        : scan(scan)
        , path(std::move(path))
        , label(std::move(label))
    { }

    void run() override
    {
        scan.visit(path, label);
        scan.taskDone();
    }

private:
    FolderScan &scan;
    QString path;
    QString label;
};

FolderScan::FolderScan(Sink sink, QObject *parent)
    : QObject(parent)
    , sink(std::move(sink))
{ }

FolderScan::~FolderScan()
{
    cancel();
    pool.waitForDone();
}

bool FolderScan::start(const QStringList &paths)
{
    if (running || paths.isEmpty()) {
        return false;
    }
    running = true;
    isCancelled = false;
    isIncomplete = false;
    for (std::atomic<qint64> *number : {&folders, &files, &bytes, &warnings, &errors}) {
        *number = 0;
    }
    openTasks = 1;
    for (const QString &path : paths) {
        const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
        const QString name = QFileInfo(absolute).fileName();
        enqueue(absolute, name.isEmpty() ? absolute : name);
    }
    taskDone();
    return true;
}

void FolderScan::cancel()
{
    isCancelled = true;
}

FolderScanCounts FolderScan::counts() const
{
    return {folders, files, bytes, warnings, errors};
}

void FolderScan::finishRun()
{
    running = false;
    emit finished(!isIncomplete);
}

void FolderScan::enqueue(const QString &path, const QString &label)
{
    ++openTasks;
    pool.start(new Task(*this, path, label));
}

void FolderScan::visit(const QString &path, const QString &label)
{
    if (isCancelled) {
        isIncomplete = true;
        return;
    }
    const FolderReport report = inspectFolder(path, label, isCancelled);
    if (isCancelled) {
        // It may be half a report.
        isIncomplete = true;
        return;
    }
    count(report);
    sink(report);
    for (const QString &name : report.folders) {
        enqueue(join(path, name), join(label, name));
    }
}

void FolderScan::taskDone()
{
    if (--openTasks == 0) {
        QMetaObject::invokeMethod(this, "finishRun", Qt::QueuedConnection);
    }
}

void FolderScan::count(const FolderReport &report)
{
    ++folders;
    files += report.fileCount;
    bytes += report.totalBytes;
    warnings += report.warningCount;
    errors += report.errorCount;
}
