#pragma once

#include "FolderReport.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>

/// Numbers of a scan, all of the present run.
struct FolderScanCounts
{
    qint64 folders = 0;
    qint64 files = 0;
    qint64 bytes = 0;
    qint64 warnings = 0;
    qint64 errors = 0;
};

/// Reads folders with all that is below them, on several threads of its own.
///
/// One folder is one piece of work for the threads; what it finds goes to a function of the owner,
/// and its sub-folders become further pieces. Links to folders are not followed. One run at a time;
/// the object can be started again. Lives on a thread with an event loop.
class FolderScan : public QObject
{
    Q_OBJECT

public:
    /// Takes the report of a folder. Called on the scan's threads, several at a time.
    using Sink = std::function<void(const FolderReport &report)>;

    explicit FolderScan(Sink sink, QObject *parent = nullptr);

    /// Cancels and waits for the threads; finished() is not emitted any more.
    ~FolderScan() override;

    /// Starts to read the folders, none of which need exist, and sets the counts to 0. Paths are
    /// made absolute. False when a run is going on or there is nothing to read: nothing happens.
    bool start(const QStringList &paths);

    /// Lets the run end soon; folders that were not begun are left out. No effect when none is
    /// going on.
    void cancel();

    [[nodiscard]] bool isRunning() const { return running; }

    /// The numbers of the moment. Any thread; taken one by one while the scan goes on.
    [[nodiscard]] FolderScanCounts counts() const;

signals:
    /// Emitted once at the end of each run, after the last call of the sink. `isComplete` is false
    /// when cancel() left something out.
    void finished(bool isComplete);

private slots:
    void finishRun();

private:
    class Task;

    void enqueue(const QString &path, const QString &label);
    void visit(const QString &path, const QString &label);
    void taskDone();
    void count(const FolderReport &report);

    Sink sink;
    QThreadPool pool;
    bool running = false;
    std::atomic_bool isCancelled = false;
    std::atomic_bool isIncomplete = false;
    // Pieces of work that are not done; start() itself counts as one.
    std::atomic<qint64> openTasks = 0;
    std::atomic<qint64> folders = 0;
    std::atomic<qint64> files = 0;
    std::atomic<qint64> bytes = 0;
    std::atomic<qint64> warnings = 0;
    std::atomic<qint64> errors = 0;
};
