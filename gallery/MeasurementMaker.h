#pragma once

#include "DatabasePlace.h"

#include <QObject>
#include <QSqlDatabase>
#include <QString>
#include <QThreadPool>

#include <atomic>

/// Makes the table of measurements in a database, on a thread and a connection of its own, and
/// tells how far it has come. One run at a time. Lives on a thread with an event loop.
class MeasurementMaker : public QObject
{
    Q_OBJECT

public:
    enum class Ending {
        None, ///< before the first run and during each
        Made,
        Cancelled, ///< there is no table
        Failed, ///< error() tells why, and there may be a part of a table
    };

    explicit MeasurementMaker(QObject *parent = nullptr);

    /// Cancels and waits for the thread, which takes no longer than one batch of rows or one try to
    /// connect; finished() is not emitted any more.
    ~MeasurementMaker() override;

    /// Starts to make the table with this many batches of rows, in the place of one that is there.
    /// Nobody else uses that one meanwhile. No effect during a run.
    void start(const DatabasePlace &place, int batches);

    /// Lets the run end soon, without a table. No effect when none is going on.
    void cancel();

    [[nodiscard]] bool isRunning() const { return running; }
    [[nodiscard]] Ending ending() const { return lastEnding; }

    /// What the database has said, in its words. Empty unless the run has failed.
    [[nodiscard]] QString error() const { return reason; }

    /// How long the last run took.
    [[nodiscard]] qint64 milliseconds() const { return duration; }

signals:
    /// How far the run has come, 0 to 100.
    void progressed(int percent);

    /// Emitted once at the end of each run.
    void finished();

private slots:
    void endRun();

private:
    void run(const DatabasePlace &place, int batches);
    void makeTable(const QSqlDatabase &database, int batches);
    [[nodiscard]] bool execute(const QSqlDatabase &database, const QString &statement);

    QThreadPool pool;
    bool running = false;
    std::atomic_bool isCancelled = false;
    // Written by the run's thread, read when it has ended.
    Ending lastEnding = Ending::None;
    QString reason;
    qint64 duration = 0;
};
