#include "ColourPresetModel.h"

#include "ColourPresetCollection.h"

ColourPresetModel::ColourPresetModel(const ColourPresetCollection &collection, QObject *parent)
    : QAbstractListModel(parent)
    , collection(collection)
{
    const QObject *source = &collection;
    connect(source, SIGNAL(aboutToLoad()), this, SLOT(beginLoading()));
    connect(source, SIGNAL(loaded()), this, SLOT(endLoading()));
    connect(source, SIGNAL(aboutToAdd(int)), this, SLOT(beginAdding(int)));
    connect(source, SIGNAL(added()), this, SLOT(endAdding()));
    connect(source, SIGNAL(changed(int)), this, SLOT(tellChange(int)));
    connect(source, SIGNAL(aboutToRemove(int)), this, SLOT(beginRemoving(int)));
    connect(source, SIGNAL(removed()), this, SLOT(endRemoving()));
}

int ColourPresetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(collection.presets().size());
}

QVariant ColourPresetModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const ColourPreset &preset = collection.presets().at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return preset.name;
    case Qt::UserRole:
        return preset.id;
    case Qt::ToolTipRole:
        return preset.summary();
    default:
        return {};
    }
}

void ColourPresetModel::retranslate()
{
    const int rows = rowCount();
    if (rows > 0) {
        emit dataChanged(index(0), index(rows - 1), {Qt::ToolTipRole});
    }
}

void ColourPresetModel::beginLoading()
{
    beginResetModel();
}

void ColourPresetModel::endLoading()
{
    endResetModel();
}

void ColourPresetModel::beginAdding(int row)
{
    beginInsertRows({}, row, row);
}

void ColourPresetModel::endAdding()
{
    endInsertRows();
}

void ColourPresetModel::tellChange(int row)
{
    emit dataChanged(index(row), index(row));
}

void ColourPresetModel::beginRemoving(int row)
{
    beginRemoveRows({}, row, row);
}

void ColourPresetModel::endRemoving()
{
    endRemoveRows();
}
