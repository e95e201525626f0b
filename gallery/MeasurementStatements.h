#pragma once

#include <QString>
#include <QStringList>

/// @file
/// The statements that make a table of measured colour patches, in the words that SQLite and
/// MariaDB share.
///
/// A device measures the chart of ChartPatches.h patch by patch, one each half minute, and its
/// readings drift away from the reference as months go by.

/// The rows that one batch adds.
constexpr int kMeasurementBatchRows = 10000;

/// The columns of the table, in their order.
enum class MeasurementColumn {
    Number, ///< "id", the primary key, from 0
    Patch, ///< "patch", English name
    Lightness, ///< "lightness", L*
    A, ///< "a", a*
    B, ///< "b", b*
    DeltaE, ///< "delta_e", the CIE76 difference from the reference; has an index
    Measured, ///< "measured", seconds since 1970 in UTC
};

/// The name of the table, the gallery's own: what else lies in a database is left alone.
[[nodiscard]] QString measurementTable();

/// Makes the table anew, empty, and what the batches are made from, which is the connection's own.
[[nodiscard]] QStringList measurementBeginning();

/// Adds the rows of a batch, counted from 0. One statement, costs the same for each batch.
[[nodiscard]] QString measurementBatch(int batch);

/// Makes the index, once all batches are there.
[[nodiscard]] QString measurementIndex();

/// Takes the table away.
[[nodiscard]] QString measurementRemoval();

/// The condition for rows that differ from the reference by more than this; empty for 0 or less.
[[nodiscard]] QString measurementFilter(double leastDeltaE);
