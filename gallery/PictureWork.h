#pragma once

#include "PictureFile.h"
#include "PictureSet.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>

/// Makes sets of pictures on a thread of its own: drawing the chart with its print takes a moment,
/// reading large files seconds. One run at a time. Lives on a thread with an event loop.
class PictureWork : public QObject
{
    Q_OBJECT

public:
    explicit PictureWork(QObject *parent = nullptr);

    /// Waits for the thread, which leaves off at the next row of the difference or the next file.
    /// finished() is not emitted any more.
    ~PictureWork() override;

    /// Starts to make the chart, its print and their difference. The second time in a
    /// program, whoever asks, they are there at once and the same images, though finished() comes
    /// later as ever. No effect during a run.
    void makeChart();

    /// Starts to read files, the first PictureSet::kLargestCount of them. No effect during a run,
    /// or without a file.
    void readFiles(const QStringList &paths);

    [[nodiscard]] bool isRunning() const { return running; }

    /// What the last run has made. Without pictures before the first one's end, and when one of the
    /// files could not be read.
    [[nodiscard]] const PictureSet &result() const { return set; }

    /// The files of the last run that could not be read, each with its problem.
    [[nodiscard]] const QList<PictureFile> &troubles() const { return failed; }

signals:
    /// Emitted once at the end of each run.
    void finished();

private slots:
    void endRun();

private:
    void start(const std::function<void()> &work);
    void runChart();
    void runFiles(const QStringList &paths);

    QThreadPool pool;
    bool running = false;
    std::atomic_bool isCancelled = false;
    // Written by the run's thread, read when it has ended.
    PictureSet set;
    QList<PictureFile> failed;
};
