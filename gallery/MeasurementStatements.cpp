#include "MeasurementStatements.h"

#include "ChartPatches.h"

#include <QRandomGenerator>

#include <cmath>

namespace {

const QString kTable = QStringLiteral("txgallery_measurements");

/// 2025-01-01 06:00 UTC.
constexpr qint64 kFirstSecond = 1735711200;
constexpr int kSecondsPerPatch = 30;
/// Coprime to the number of patches: each batch brings readings and patches together anew.
constexpr int kShiftPerBatch = 7;
constexpr double kDriftPerBatch = 0.02;
constexpr quint32 kSeed = 1976;
constexpr double kDeviationOfLightness = 0.5;
constexpr double kDeviationOfAxes = 0.7;

/// A value of the normal distribution around 0.
double scattered(QRandomGenerator &random, double deviation)
{
    constexpr double kFullTurn = 6.283185307179586;
    const double length = std::sqrt(-2 * std::log(1 - random.generateDouble()));
    return deviation * length * std::cos(kFullTurn * random.generateDouble());
}

QString number(double value)
{
    return QString::number(value, 'f', 4);
}

QString patchRows()
{
    QStringList rows;
    for (const ChartPatch &patch : chartPatches()) {
        rows.append(QStringLiteral("(%1, '%2', %3, %4, %5)")
                        .arg(QString::number(rows.size()), QString::fromLatin1(patch.name),
                             number(patch.newer.lightness), number(patch.newer.a),
                             number(patch.newer.b)));
    }
    return rows.join(QStringLiteral(", "));
}

/// How far readings lie beside the reference. The same at each call.
QString deviationRows()
{
    QRandomGenerator random(kSeed);
    QStringList rows;
    rows.reserve(kMeasurementBatchRows);
    for (int i = 0; i < kMeasurementBatchRows; ++i) {
        const double lightness = scattered(random, kDeviationOfLightness);
        const double a = scattered(random, kDeviationOfAxes);
        const double b = scattered(random, kDeviationOfAxes);
        const double deltaE = std::sqrt(lightness * lightness + a * a + b * b);
        rows.append(
            QStringLiteral("(%1, %2, %3, %4, %5)")
                .arg(QString::number(i), number(lightness), number(a), number(b), number(deltaE)));
    }
    return rows.join(QStringLiteral(", "));
}

} // namespace

QString measurementTable()
{
    return kTable;
}

QStringList measurementBeginning()
{
    return {
        measurementRemoval(),
        QStringLiteral("CREATE TABLE %1 (id INTEGER PRIMARY KEY, patch VARCHAR(40) NOT NULL, "
                       "lightness DOUBLE NOT NULL, a DOUBLE NOT NULL, b DOUBLE NOT NULL, "
                       "delta_e DOUBLE NOT NULL, measured INTEGER NOT NULL)")
            .arg(kTable),
        QStringLiteral("CREATE TEMPORARY TABLE txgallery_patches (id INTEGER PRIMARY KEY, "
                       "name VARCHAR(40), lightness DOUBLE, a DOUBLE, b DOUBLE)"),
        QStringLiteral("CREATE TEMPORARY TABLE txgallery_deviations (id INTEGER PRIMARY KEY, "
                       "lightness DOUBLE, a DOUBLE, b DOUBLE, delta_e DOUBLE)"),
        QStringLiteral("INSERT INTO txgallery_patches VALUES ") + patchRows(),
        QStringLiteral("INSERT INTO txgallery_deviations VALUES ") + deviationRows(),
    };
}

QString measurementBatch(int batch)
{
    const QString id = QStringLiteral("(%1 + (d.id + %2) % %3)")
                           .arg(qint64(batch) * kMeasurementBatchRows)
                           .arg(batch * kShiftPerBatch)
                           .arg(kMeasurementBatchRows);
    return QStringLiteral("INSERT INTO %1 SELECT %2, p.name, "
                          "ROUND(p.lightness + %3 * d.lightness, 2), ROUND(p.a + %3 * d.a, 2), "
                          "ROUND(p.b + %3 * d.b, 2), ROUND(%3 * d.delta_e, 2), %4 + %5 * %2 "
                          "FROM txgallery_deviations d "
                          "JOIN txgallery_patches p ON p.id = %2 % %6")
        .arg(kTable, id, number(1 + batch * kDriftPerBatch), QString::number(kFirstSecond),
             QString::number(kSecondsPerPatch), QString::number(kChartPatches));
}

QString measurementIndex()
{
    return QStringLiteral("CREATE INDEX txgallery_delta_e ON %1 (delta_e)").arg(kTable);
}

QString measurementRemoval()
{
    return QStringLiteral("DROP TABLE IF EXISTS %1").arg(kTable);
}

QString measurementFilter(double leastDeltaE)
{
    return leastDeltaE > 0 ? QStringLiteral("delta_e > %1").arg(number(leastDeltaE)) : QString();
}
