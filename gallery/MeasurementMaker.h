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
        Cancelled, ///< there is no table, or an older one when it was cancelled while connecting
        Failed, ///< error() tells why; what was there of the table is removed if that can be done
    };

    explicit MeasurementMaker(QObject *parent = nullptr);

    /// Cancels and waits for the thread, which ends with the statement under way, or with the try
    /// to connect, and the removal of the table: a batch of rows takes tenths of a second, the
    /// index of a million rows a second or more, a server that is silent the connect time-out of
    /// the place. finished() is not emitted any more.
    ~MeasurementMaker() override;

    /// Starts to make the table with this many batches of rows, in the place of one that is there.
    /// Nobody else uses that one meanwhile. No effect during a run.
    void start(const DatabasePlace &place, int batches);

    /// Lets the run end without a table, as soon as the destructor would. No effect when none is
    /// going on.
    void cancel();

    [[nodiscard]] bool isRunning() const { return running; }

    /// Whether a run is going on that has been cancelled.
    [[nodiscard]] bool isCancelling() const { return running && isCancelled; }
    [[nodiscard]] Ending ending() const { return lastEnding; }

    /// What the database has said first, in its words. Empty unless the run has failed.
    [[nodiscard]] QString error() const { return reason; }

    /// How long the last run took.
    [[nodiscard]] qint64 milliseconds() const { return duration; }

signals:
    /// How far the run has come, 0 to 100: after each batch, and after the index.
    void progressed(int percent);

    /// Emitted once at the end of each run.
    void finished();

private slots:
    void endRun();

private:
    void run(const DatabasePlace &place, int batches);
    void makeTable(const QSqlDatabase &database, int batches);
    [[nodiscard]] bool fillTable(const QSqlDatabase &database, int batches);
    [[nodiscard]] bool execute(const QSqlDatabase &database, const QString &statement);

    QThreadPool pool;
    bool running = false;
    std::atomic_bool isCancelled = false;
    // Written by the run's thread, read when it has ended.
    Ending lastEnding = Ending::None;
    QString reason;
    qint64 duration = 0;
};
