#include "MeasurementModel.h"

#include "LabColour.h"
#include "MeasurementStatements.h"
#include "WaitCursor.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

namespace {

constexpr int kDecimals = 2;

MeasurementColumn columnOf(int section)
{
    return static_cast<MeasurementColumn>(section);
}

/// Short, but with seconds, which the short time of most languages leaves out: behind the minutes,
/// with the sign that stands before those.
QString dateText(const QDateTime &date)
{
    static const QRegularExpression minutes(QStringLiteral("([^\\w']*)mm"));
    const QLocale locale;
    QString timeFormat = locale.timeFormat(QLocale::ShortFormat);
    if (!timeFormat.contains(u's')) {
        timeFormat.replace(minutes, QStringLiteral("\\1mm\\1ss"));
    }
    return locale.toString(date.date(), QLocale::ShortFormat) + u' '
        + locale.toString(date.time(), timeFormat);
}

} // namespace

MeasurementModel::MeasurementModel(const QSqlDatabase &database, QObject *parent)
    : TXSqlTableModel(parent, database)
{
    setEditStrategy(OnManualSubmit);
    setTable(measurementTable());
    setSort(int(MeasurementColumn::Number), Qt::AscendingOrder);
}

bool MeasurementModel::select()
{
    const WaitCursor cursor;
    QElapsedTimer timer;
    timer.start();
    const QString statement = selectStatement();
    const bool isDone = TXSqlTableModel::select();
    emit selected(isDone, statement, timer.elapsed());
    return isDone;
}

QVariant MeasurementModel::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return displayed(index);
    case Qt::DecorationRole:
        return columnOf(index.column()) == MeasurementColumn::Patch ? colour(index.row())
                                                                    : QVariant();
    case Qt::TextAlignmentRole: {
        const bool isText = columnOf(index.column()) == MeasurementColumn::Patch;
        return int(Qt::AlignVCenter | (isText ? Qt::AlignLeft : Qt::AlignRight));
    }
    default:
        return TXSqlTableModel::data(index, role);
    }
}

QVariant MeasurementModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return TXSqlTableModel::headerData(section, orientation, role);
    }
    switch (columnOf(section)) {
    case MeasurementColumn::Number:
        return tr("No.");
    case MeasurementColumn::Patch:
        return tr("Patch");
    case MeasurementColumn::Lightness:
        return tr("L*");
    case MeasurementColumn::A:
        return tr("a*");
    case MeasurementColumn::B:
        return tr("b*");
    case MeasurementColumn::DeltaE:
        return tr("ΔE");
    case MeasurementColumn::Measured:
        return tr("Measured (UTC)");
    }
    return {};
}

Qt::ItemFlags MeasurementModel::flags(const QModelIndex &index) const
{
    return TXSqlTableModel::flags(index) & ~Qt::ItemIsEditable;
}

bool MeasurementModel::isSortable(int column)
{
    return columnOf(column) == MeasurementColumn::Number
        || columnOf(column) == MeasurementColumn::DeltaE;
}

void MeasurementModel::sort(int column, Qt::SortOrder order)
{
    if (isSortable(column)) {
        TXSqlTableModel::sort(column, order);
    }
}

bool MeasurementModel::removePageRows(const QList<int> &rows)
{
    if (!database().transaction()) {
        setLastError(connectionError());
        return false;
    }
    const bool areMarked =
        std::all_of(rows.begin(), rows.end(), [this](int row) { return removeRow(row); });
    if (!areMarked || !submitAll()) {
        const QSqlError reason = lastError();
        database().rollback();
        revertAll();
        setLastError(reason);
        return false;
    }
    if (!database().commit()) {
        const QSqlError reason = connectionError();
        database().rollback();
        // The page has been got without the rows already.
        select();
        setLastError(reason);
        return false;
    }
    return true;
}

void MeasurementModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

/// What the database has said of a transaction. Drivers say nothing when there is no connection.
QSqlError MeasurementModel::connectionError() const
{
    const QSqlError told = database().lastError();
    return told.isValid() ? told
                          : QSqlError(tr("There is no connection to the database."), QString(),
                                      QSqlError::ConnectionError);
}

QVariant MeasurementModel::displayed(const QModelIndex &index) const
{
    const QVariant value = TXSqlTableModel::data(index, Qt::DisplayRole);
    if (!value.isValid()) {
        return value;
    }
    switch (columnOf(index.column())) {
    case MeasurementColumn::Number:
        return QLocale().toString(value.toLongLong());
    case MeasurementColumn::Patch:
        return value;
    case MeasurementColumn::Measured:
        return dateText(QDateTime::fromSecsSinceEpoch(value.toLongLong(), Qt::UTC));
    default:
        return QLocale().toString(value.toDouble(), 'f', kDecimals);
    }
}

QColor MeasurementModel::colour(int row) const
{
    const auto value = [this, row](MeasurementColumn column) {
        return TXSqlTableModel::data(index(row, int(column)), Qt::DisplayRole).toDouble();
    };
    return LabColour{value(MeasurementColumn::Lightness), value(MeasurementColumn::A),
                     value(MeasurementColumn::B)}
        .toScreen();
}
