#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// Sets our results against those of our peers.
///
/// A benchmark is named "<family>/<contestant>" or "<family>/<contestant>/<case>", where a case may
/// hold further slashes ("Append/ours/1000", "Append/QStandardItemModel/1000"). The contestant
/// "ours" is paired with every other contestant of the same family and case. A benchmark without a
/// counterpart, or with a name of another form, is left out.
class RatioTable
{
public:
    /// What was measured, and the unit of the value. Less is better for both.
    enum class Measure { Seconds, BytesPerRow };

    /// One line of the table.
    struct Row
    {
        QString family;
        /// The arguments of the benchmark, empty when it has none.
        QString caseName;
        QString peer;
        Measure measure = Measure::Seconds;
        double ours = 0.0;
        double theirs = 0.0;

        /// Ours by theirs: below 1 ours is better. Infinite when theirs is 0 and ours is not, and 1
        /// when both are 0.
        [[nodiscard]] double ratio() const;
    };

    /// Adds one measured value. Several of the same name and measure count with their median.
    void add(const QString &name, Measure measure, double value);

    /// The pairs, in the order in which the benchmarks of ours were added first, the peers of each
    /// in the order in which they were.
    [[nodiscard]] QList<Row> rows() const;

    /// The rows in columns for a terminal, with a heading; empty when there are no rows.
    [[nodiscard]] QString toText() const;

    /// The rows as a Markdown table below a heading with the title; empty when there are no rows.
    [[nodiscard]] QString toMarkdown(const QString &title) const;

private:
    /// The values that were added under one name and measure.
    struct Contestant
    {
        QString name;
        QList<double> values;
    };

    /// All contestants of a family, case and measure, in the order in which they came.
    struct Contest
    {
        QString family;
        QString caseName;
        Measure measure = Measure::Seconds;
        QList<Contestant> contestants;
    };

    [[nodiscard]] QList<QStringList> cells() const;

    QList<Contest> contests;
    /// Family, case and measure to the place in `contests`.
    QHash<QString, qsizetype> places;
};
