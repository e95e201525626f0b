#include "MeasurementMaker.h"

#include "MeasurementStatements.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QSqlQuery>

namespace {

constexpr int kWholePercent = 100;

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
    if (database.driverName() == QStringLiteral("QSQLITE")
        && !execute(database, QStringLiteral("PRAGMA synchronous = OFF"))) {
        return;
    }
    for (const QString &statement : measurementBeginning()) {
        if (!execute(database, statement)) {
            return;
        }
    }
    for (int batch = 0; batch < batches && !isCancelled; ++batch) {
        if (!execute(database, measurementBatch(batch))) {
            return;
        }
        emit progressed(kWholePercent * (batch + 1) / batches);
    }
    const bool isWhole = !isCancelled;
    if (execute(database, isWhole ? measurementIndex() : measurementRemoval())) {
        lastEnding = isWhole ? Ending::Made : Ending::Cancelled;
    }
}

bool MeasurementMaker::execute(const QSqlDatabase &database, const QString &statement)
{
    QSqlQuery query(database);
    const bool isDone = query.exec(statement);
    if (!isDone) {
        reason = query.lastError().text();
    }
    return isDone;
}
