#include "MeasurementModel.h"

#include "LabColour.h"
#include "MeasurementStatements.h"
#include "WaitCursor.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>
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
        return tr("\u0394E");
    case MeasurementColumn::Measured:
        return tr("Measured (UTC)");
    }
    return {};
}

Qt::ItemFlags MeasurementModel::flags(const QModelIndex &index) const
{
    return TXSqlTableModel::flags(index) & ~Qt::ItemIsEditable;
}

bool MeasurementModel::removePageRows(const QList<int> &rows)
{
    if (!database().transaction()) {
        return false;
    }
    const bool isMarked =
        std::all_of(rows.begin(), rows.end(), [this](int row) { return removeRow(row); });
    const bool isDone = isMarked && submitAll() && database().commit();
    if (!isDone) {
        const QSqlError reason = lastError();
        database().rollback();
        revertAll();
        setLastError(reason);
    }
    return isDone;
}

void MeasurementModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
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
        return QLocale().toString(QDateTime::fromSecsSinceEpoch(value.toLongLong(), Qt::UTC),
                                  QLocale::ShortFormat);
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
