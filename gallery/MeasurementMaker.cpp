#include "MeasurementMaker.h"

#include "MeasurementStatements.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

namespace {

constexpr int kWholePercent = 100;
/// The index takes about as long as one in so many batches.
constexpr int kBatchesPerStepOfIndex = 5;

} // namespace

MeasurementMaker::MeasurementMaker(QObject *parent)
    : QObject(parent)
{
    pool.setMaxThreadCount(1);
}

MeasurementMaker::~MeasurementMaker()
{
    cancel();
    pool.waitForDone();
}

void MeasurementMaker::start(const DatabasePlace &place, int batches)
{
    if (running) {
        return;
    }
    running = true;
    isCancelled = false;
    lastEnding = Ending::None;
    reason.clear();
    pool.start([this, place, batches] { run(place, batches); });
}

void MeasurementMaker::cancel()
{
    isCancelled = true;
}

void MeasurementMaker::endRun()
{
    running = false;
    emit finished();
}

void MeasurementMaker::run(const DatabasePlace &place, int batches)
{
    QElapsedTimer timer;
    timer.start();
    {
        const DatabaseConnection connection(place);
        QSqlDatabase database = connection.database();
        if (database.open()) {
            makeTable(database, batches);
        } else if (isCancelled) {
            lastEnding = Ending::Cancelled;
        } else {
            reason = database.lastError().text();
        }
        database.close();
    }
    if (lastEnding == Ending::None) {
        lastEnding = Ending::Failed;
    }
    duration = timer.elapsed();
    QMetaObject::invokeMethod(this, "endRun", Qt::QueuedConnection);
}

void MeasurementMaker::makeTable(const QSqlDatabase &database, int batches)
{
    // Not even begun: what is there stays.
    if (isCancelled) {
        lastEnding = Ending::Cancelled;
        return;
    }
    const bool isFilled = fillTable(database, batches);
    if (isFilled && !isCancelled) {
        lastEnding = Ending::Made;
    } else if (execute(database, measurementRemoval()) && isFilled) {
        lastEnding = Ending::Cancelled;
    }
}

/// False when the database refuses; true, with whatever is there by then, when cancelled.
bool MeasurementMaker::fillTable(const QSqlDatabase &database, int batches)
{
    QStringList beginning = measurementBeginning();
    if (database.driverName() == QStringLiteral("QSQLITE")) {
        beginning.prepend(QStringLiteral("PRAGMA synchronous = OFF"));
    }
    for (const QString &statement : qAsConst(beginning)) {
        if (!execute(database, statement)) {
            return false;
        }
    }
    const int steps = batches + std::max(1, batches / kBatchesPerStepOfIndex);
    for (int batch = 0; batch < batches && !isCancelled; ++batch) {
        if (!execute(database, measurementBatch(batch))) {
            return false;
        }
        emit progressed(kWholePercent * (batch + 1) / steps);
    }
    if (isCancelled) {
        return true;
    }
    const bool isIndexed = execute(database, measurementIndex());
    if (isIndexed) {
        emit progressed(kWholePercent);
    }
    return isIndexed;
}

bool MeasurementMaker::execute(const QSqlDatabase &database, const QString &statement)
{
    QSqlQuery query(database);
    const bool isDone = query.exec(statement);
    if (!isDone && reason.isEmpty()) {
        reason = query.lastError().text();
    }
    return isDone;
}
