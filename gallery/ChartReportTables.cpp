#include "ChartReportTables.h"

#include "ChartPatches.h"
#include "ChartReportStyle.h"
#include "ReportFonts.h"

#include <QColor>
#include <QLocale>
#include <QPixmap>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

using ChartReportStyle::decimal;
using ChartReportStyle::kMarkColour;

/// Between the paper's content and the cells: the frame of a table on either side.
constexpr double kFramesPoints = 10;
/// The width of a table that asks for fonts of kUsualFontPixels.
constexpr double kUsualWidthPoints = 513;
constexpr double kUsualFontPixels = 8;
constexpr int kSmallestFontPixels = 6;
constexpr int kLargestFontPixels = 9;
constexpr double kBorderWidthPoints = 0.35;
constexpr int kLabValues = 3;

/// Shares of the width. The name's column takes what the others leave over.
enum PatchColumn { PatchNumber, PatchName, PatchOlder, PatchNewer, PatchOlderLab, PatchNewerLab };
constexpr int kNameColumn = PatchName;
const QList<double> kPatchShares = {3, 13.5, 5, 5, 14, 14, 5.5, 6};
const QList<double> kPairShares = {3.5, 13.5, 4.5, 4.5, 13.5, 15, 5.5, 6};
constexpr int kLabColumnsOfPatches[] = {PatchOlderLab, PatchNewerLab};
constexpr int kStepsColumnOfPairs = 5;

const QColor kBorderColour(0xb8, 0xb8, 0xb8);
const QColor kGroupColour(0xe2, 0xe4, 0xe8);
const QColor kStripeColour(0xf6, 0xf7, 0xf8);

QStringList decimals(const LabColour &colour)
{
    return {decimal(colour.lightness), decimal(colour.a), decimal(colour.b)};
}

int fontPixelsFor(double width)
{
    const int pixels = int(std::lround(kUsualFontPixels * width / kUsualWidthPoints));
    return std::clamp(pixels, kSmallestFontPixels, kLargestFontPixels);
}

/// Whole points, so that merged cells, whose widths are truncated, keep their width. A column of
/// several cells is as wide as they need to be whole too.
template<class Columns>
QList<int> widthsFor(const QList<double> &shares, double total, const Columns &sharedColumns)
{
    const double sum = std::accumulate(shares.cbegin(), shares.cend(), 0.0);
    QList<int> widths;
    for (const double share : shares) {
        widths.append(int(share * total / sum));
    }
    for (const int column : sharedColumns) {
        widths[column] -= widths.at(column) % kLabValues;
    }
    widths[kNameColumn] += int(total) - std::accumulate(widths.cbegin(), widths.cend(), 0);
    return widths;
}

/// As high as lets all rows stand on one page, within what looks well.
int rowHeightFor(int rows, double height, int fontPixels)
{
    constexpr double kLeastOfFont = 1.6;
    const int fitting = int(std::ceil(height / rows)) - 1;
    return fitting < kLeastOfFont * fontPixels ? 2 * fontPixels : std::min(fitting, 3 * fontPixels);
}

/// Number and name of a patch; the names stand below one another.
QString numberedName(int patch)
{
    constexpr char16_t kFigureSpace = 0x2007;
    return QStringLiteral("%L1  %2")
        .arg(patch + 1, 2, 10, QChar(kFigureSpace))
        .arg(chartPatches()[size_t(patch)].translatedName());
}

/// The colour as a picture that fills its cell: exactly of the proportions of the room within, or
/// it would lose up to a point on one side. By a power of two finer than points, so that the factor
/// by which it is fitted is exact too, and finer than a report keeps its pictures.
QPixmap pictureOf(const LabColour &colour, const QSize &cellSize)
{
    constexpr int kPixelsPerPoint = 4;
    constexpr int kInsetPoints = 1;
    const QSize inner = cellSize - QSize(2 * kInsetPoints, 2 * kInsetPoints);
    QPixmap picture((kPixelsPerPoint * inner).expandedTo(QSize(1, 1)));
    picture.fill(colour.toScreen());
    return picture;
}

} // namespace

class ChartReportTables::Filler
{
public:
    Filler(const QList<int> &widths, int rowHeight)
        : widths(widths)
        , rowHeight(rowHeight)
        , table(int(widths.size()), false)
    {
        for (int column = 0; column < widths.size(); ++column) {
            table.setColumnWidth(float(widths.at(column)), column);
        }
    }

    void addHeader(const QList<QVariant> &titles)
    {
        TXTable::initHeaderOfTableWithTitles(table, titles, false, float(rowHeight));
    }

    void beginRow(const QColor &colour)
    {
        ++row;
        column = 0;
        background = colour;
    }

    void add(const QVariant &element, TXHorizontalAlignment align, const Settings &further = {})
    {
        Settings settings = further;
        settings.insert("CellElement", element);
        settings.insert("CellSize", QSizeF(cellSize()));
        settings.insert("CellTextHorizontalAlign", quint32(align));
        settings.insert("InsideCellColor", background);
        settings.insert("BorderCellColor", kBorderColour);
        settings.insert("BorderCellLineWidth", kBorderWidthPoints);
        table.addCell(settings);
        ++column;
    }

    void addPicture(const LabColour &colour)
    {
        const QString key = colour.toScreen().name();
        if (!pictures.contains(key)) {
            pictures.insert(key, pictureOf(colour, cellSize()));
        }
        add(pictures.value(key), TXAlignHorizontallyCentred);
    }

    void addNumbers(const QStringList &numbers) { add(numbers, TXAlignRight); }

    /// Joins all cells of the row that was filled last.
    void mergeRow()
    {
        const auto cells = table.getTableCellList().at(row).size();
        table.mergeCells(0, int(cells) - 1, row);
    }

    [[nodiscard]] QSize cellSize() const { return {widths.at(column), rowHeight}; }
    [[nodiscard]] int columnCount() const { return int(widths.size()); }
    [[nodiscard]] int nextColumn() const { return column; }
    [[nodiscard]] const TXTable &result() const { return table; }

private:
    QList<int> widths;
    int rowHeight;
    TXTable table;
    /// The header is row 0.
    int row = 0;
    int column = 0;
    QColor background = Qt::white;
    QHash<QString, QPixmap> pictures;
};

ChartReportTables::ChartReportTables(const QSizeF &content, const ChartReportOptions &options)
    : content(content - QSizeF(kFramesPoints, kFramesPoints))
    , options(options)
    , cellFont(ReportFonts::withPixels(fontPixelsFor(this->content.width())))
{ }

TXTable ChartReportTables::patches() const
{
    constexpr int kRows = 1 + kChartRows + kChartPatches;
    Filler filler(widthsFor(kPatchShares, content.width(), kLabColumnsOfPatches),
                  rowHeightFor(kRows, content.height(), cellFont.pixelSize()));
    filler.addHeader({tr("No."), tr("Patch"), tr("A"), tr("B"),
                      QStringList{tr("A L*"), tr("A a*"), tr("A b*")},
                      QStringList{tr("B L*"), tr("B a*"), tr("B b*")}, tr("ΔE*ab"), tr("ΔE00")});
    const QList<PatchPair> pairs = ChartComparison::samePatches();
    for (int i = 0; i < pairs.size(); ++i) {
        if (i % kChartColumns == 0) {
            addGroupRow(filler, i / kChartColumns);
        }
        filler.beginRow(i % 2 == 0 ? QColor(Qt::white) : kStripeColour);
        addPatchRow(filler, pairs.at(i));
    }
    return filler.result();
}

TXTable ChartReportTables::pairs() const
{
    constexpr double kHeightOfFont = 1.75;
    Filler filler(widthsFor(kPairShares, content.width(), QList<int>{kStepsColumnOfPairs}),
                  int(std::lround(kHeightOfFont * cellFont.pixelSize())));
    filler.addHeader({tr("No."), tr("Patch of set A"), tr("A"), tr("B"), tr("Patch of set B"),
                      QStringList{tr("ΔL*"), tr("Δa*"), tr("Δb*")}, tr("ΔE*ab"), tr("ΔE00")});
    const QList<PatchPair> pairs =
        ChartComparison::differentPatches(options.formula, options.order);
    for (int i = 0; i < pairs.size(); ++i) {
        filler.beginRow(i % 2 == 0 ? QColor(Qt::white) : kStripeColour);
        addPairRow(filler, pairs.at(i), i + 1);
    }
    return filler.result();
}

void ChartReportTables::addGroupRow(Filler &filler, int chartRow) const
{
    filler.beginRow(kGroupColour);
    filler.add(chartRowName(chartRow), TXAlignLeft, {{"CellTextBold", true}});
    while (filler.nextColumn() < filler.columnCount()) {
        filler.add(QString(""), TXAlignLeft);
    }
    filler.mergeRow();
}

void ChartReportTables::addPatchRow(Filler &filler, const PatchPair &pair) const
{
    const ChartPatch &patch = chartPatches()[size_t(pair.older)];
    filler.add(QLocale().toString(pair.older + 1), TXAlignRight);
    filler.add(patch.translatedName(), TXAlignLeft);
    filler.addPicture(patch.older);
    filler.addPicture(patch.newer);
    filler.addNumbers(decimals(patch.older));
    filler.addNumbers(decimals(patch.newer));
    addDifference(filler, pair, DifferenceFormula::Cie76, true);
    addDifference(filler, pair, DifferenceFormula::Ciede2000, true);
}

void ChartReportTables::addPairRow(Filler &filler, const PatchPair &pair, int number) const
{
    const LabColour &from = chartPatches()[size_t(pair.older)].older;
    const LabColour &to = chartPatches()[size_t(pair.newer)].newer;
    filler.add(QLocale().toString(number), TXAlignRight);
    filler.add(numberedName(pair.older), TXAlignLeft);
    filler.addPicture(from);
    filler.addPicture(to);
    filler.add(numberedName(pair.newer), TXAlignLeft);
    filler.addNumbers(decimals({to.lightness - from.lightness, to.a - from.a, to.b - from.b}));
    // Different patches are meant to differ: there is nothing to mark.
    addDifference(filler, pair, DifferenceFormula::Cie76, false);
    addDifference(filler, pair, DifferenceFormula::Ciede2000, false);
}

void ChartReportTables::addDifference(Filler &filler, const PatchPair &pair,
                                      DifferenceFormula formula, bool isMarkedAboveTolerance) const
{
    const double value = pair.by(formula);
    const bool isMarked =
        isMarkedAboveTolerance && formula == options.formula && value > options.tolerance;
    Settings settings;
    if (isMarked) {
        settings = {{"CellTextColor", kMarkColour}, {"CellTextBold", true}};
    }
    filler.add(decimal(value), TXAlignRight, settings);
}
