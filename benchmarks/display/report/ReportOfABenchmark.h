#pragma once

#include "TXReportDocument.h"
#include "TXTable.h"
#include "TextSizeCache.h"

#include <QFile>
#include <QFont>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

/// The report that the benchmarks of documents write, and the paper that all contestants have.
namespace ReportOfABenchmark {

inline constexpr int kColumns = 8;
inline constexpr double kRowHeight = 15.0;
inline constexpr double kColumnWidth = 64.0;
/// That of our writer.
inline constexpr int kDotsPerInch = 300;
inline constexpr double kPointsPerInch = 72.0;

inline QFont reportFont()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(9);
    return font;
}

/// Four texts of ten are new, the others are among a few hundred that come again and again.
inline QString textAt(int row, int column)
{
    const quint32 mixed = quint32(row * kColumns + column) * 2654435761U;
    if (column == 0) {
        return QString::number(row + 1);
    }
    if (mixed % 100 < 31) {
        return QString::number(double(mixed >> 8) / 1e4, 'f', 3);
    }
    return column % 2 == 0 ? QStringLiteral("Patch %1").arg(mixed / 7 % 150)
                           : QString::number(double(mixed / 7 % 150) / 8.0, 'f', 2);
}

inline QList<QVariant> titles()
{
    return {"No.", "Patch", "L*", "a*", "b*", "Name", "Difference", "Verdict"};
}

inline QList<QStringList> reportTexts(int rows)
{
    QList<QStringList> texts;
    for (int row = 0; row < rows; ++row) {
        texts.append(QStringList());
        for (int column = 0; column < kColumns; ++column) {
            texts.last().append(textAt(row, column));
        }
    }
    return texts;
}

inline TXTable tableWith(const QList<QStringList> &texts, double columnWidth, bool hasShadow)
{
    TXTable table(kColumns, hasShadow);
    for (int column = 0; column < kColumns; ++column) {
        table.setColumnWidth(float(columnWidth), column);
    }
    TXTable::initHeaderOfTableWithTitles(table, titles(), false, float(kRowHeight));
    QHash<QString, QVariant> settings{{"CellSize", QSizeF(columnWidth, kRowHeight)}};
    for (const QStringList &row : texts) {
        for (const QString &text : row) {
            settings.insert("CellElement", text);
            table.addCell(settings);
        }
    }
    return table;
}

/// A folder for the files, which all contestants write to alike.
class Folder
{
public:
    [[nodiscard]] QString file() const { return folder.filePath("report.pdf"); }
    [[nodiscard]] qint64 fileSize() const { return QFile(file()).size(); }

private:
    QTemporaryDir folder;
};

inline QPageLayout pageLayout()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(36, 36, 36, 36),
            QPageLayout::Point};
}

/// What our report has between its margins and above its footer.
inline QSizeF contentSize()
{
    return TXReportDocument().contentRect().size();
}

inline void setUp(QPdfWriter &writer)
{
    writer.setResolution(kDotsPerInch);
    writer.setPageLayout(pageLayout());
}

inline void usePoints(QPainter &painter)
{
    painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
}

/// Untimed: a report is written by a program that has measured none of its texts.
inline void forgetTexts(benchmark::State &state)
{
    state.PauseTiming();
    TextSizeCache::forget();
    state.ResumeTiming();
}

} // namespace ReportOfABenchmark
