#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <atomic>

class ICompletionDelegate;

/// What came of a run of FileDigests so far.
struct FileDigestSums
{
    /// Files read, and their bytes.
    qint64 files = 0;
    qint64 bytes = 0;
    /// Those among them with the content of another that was read before. Empty files do not count.
    qint64 copies = 0;
    /// Files that could not be read.
    qint64 unreadable = 0;
};

/// Computes the SHA-256 digests of the files in folders and below, on several threads that all
/// report to the same delegate: the name of the file as the message, and after each block the share
/// of all bytes.
///
/// Reads regular files only, follows no links, and no more of a file than its size was when it was
/// found, so that a file that grows comes to an end. One run at a time. Lives on a thread with an
/// event loop. Costs the size of the files, and memory for their names and digests.
class FileDigests : public QObject
{
    Q_OBJECT

public:
    /// The most files that a run reads; further ones are left out.
    static constexpr int kMaximumFiles = 50000;
    static constexpr int kMaximumThreads = 8;

    /// The delegate is called on the run's threads and has to outlive this object.
    explicit FileDigests(ICompletionDelegate *progress, QObject *parent = nullptr);

    /// Cancels and waits for the threads, which leave off at the next block; finished() is not
    /// emitted any more.
    ~FileDigests() override;

    /// Starts to read the folders with so many threads, 1 to kMaximumThreads; another number is
    /// taken as the nearest of them. False when a run is going on or there is no folder.
    bool start(const QStringList &folders, int threads);

    /// Lets the run end soon. No effect when none is going on.
    void cancel();

    [[nodiscard]] bool isRunning() const { return running; }

    /// The numbers of the moment. Any thread; taken one by one while the run goes on.
    [[nodiscard]] FileDigestSums sums() const { return {files, bytes, copies, unreadable}; }

signals:
    /// Emitted once at the end of each run, after the last report. `isComplete` is false when
    /// cancel() left something out.
    void finished(bool isComplete);

private slots:
    void endRun();

private:
    struct Entry
    {
        QString path;
        qint64 size;
    };

    void reset();
    void find(const QStringList &folders);
    void findIn(const QString &folder);
    void work();
    void read(const Entry &entry);
    [[nodiscard]] QByteArray digestOf(const Entry &entry, qint64 *readBytes);
    void advance(qint64 byteCount);
    void report(const QString &path);

    ICompletionDelegate *progress;
    QThreadPool pool;
    bool running = false;
    int threadCount = 1;
    std::atomic_bool isCancelled = false;
    std::atomic_bool isIncomplete = false;
    // Written before the threads start that read them.
    QList<Entry> entries;
    /// Sparse files may come to more than an integer holds.
    double totalBytes = 0;
    std::atomic<qsizetype> nextEntry = 0;
    std::atomic_int openThreads = 0;
    std::atomic<qint64> passedBytes = 0;
    std::atomic<qint64> files = 0;
    std::atomic<qint64> bytes = 0;
    std::atomic<qint64> copies = 0;
    std::atomic<qint64> unreadable = 0;
    QMutex mutex;
    QSet<QByteArray> digests; // guarded by mutex
};
