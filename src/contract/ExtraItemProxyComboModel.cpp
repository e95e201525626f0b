#include "ExtraItemProxyComboModel.h"

#include <algorithm>

ExtraItemProxyComboModel::ExtraItemProxyComboModel(const QList<QString> &labels,
                                                   const QList<QVariant> &values,
                                                   const QString &text, bool textWhenEmpty,
                                                   const QVariant &value, QObject *parent)
    : QAbstractProxyModel(parent)
    , labels(labels)
    , values(values.mid(0, labels.size()))
    , text(text)
    , textValue(value)
    , textWhenEmpty(textWhenEmpty)
    , textRowShown(textWhenEmpty)
{ }

void ExtraItemProxyComboModel::setSourceModel(QAbstractItemModel *model)
{
    if (model == sourceModel() || wouldBeItsOwnSource(model)) {
        return;
    }
    beginResetModel();
    if (sourceModel()) {
        disconnect(sourceModel(), nullptr, this, nullptr);
    }
    QAbstractProxyModel::setSourceModel(model);
    followSource();
    endReset();
}

void ExtraItemProxyComboModel::setItemText(const QString &newText)
{
    if (newText == text) {
        return;
    }
    text = newText;
    if (textRowShown) {
        emit dataChanged(index(0, 0), index(0, columnCount() - 1), {Qt::DisplayRole, Qt::EditRole});
    }
}

void ExtraItemProxyComboModel::setLabels(const QList<QString> &newLabels)
{
    const qsizetype count = std::min(labels.size(), newLabels.size());
    std::copy_n(newLabels.cbegin(), count, labels.begin());
    if (fixedRowsShown && count > 0) {
        const int last = rowCount() - 1;
        const int first = last - int(labels.size()) + 1;
        emit dataChanged(index(first, 0), index(last, columnCount() - 1),
                         {Qt::DisplayRole, Qt::EditRole});
    }
}

QModelIndex ExtraItemProxyComboModel::mapToSource(const QModelIndex &proxyIndex) const
{
    if (kindOf(proxyIndex) != Row::Source) {
        return {};
    }
    return sourceModel()->index(proxyIndex.row() - firstSourceRow(), proxyIndex.column());
}

QModelIndex ExtraItemProxyComboModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid() || sourceIndex.model() != sourceModel()
        || sourceIndex.parent().isValid()) {
        return {};
    }
    return index(sourceIndex.row() + firstSourceRow(), sourceIndex.column());
}

QModelIndex ExtraItemProxyComboModel::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex ExtraItemProxyComboModel::parent(const QModelIndex &) const
{
    return {};
}

int ExtraItemProxyComboModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid()) {
        return 0;
    }
    return firstSourceRow() + sourceRows() + (fixedRowsShown ? countOfFixedRows() : 0);
}

int ExtraItemProxyComboModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : std::max(1, sourceColumns());
}

bool ExtraItemProxyComboModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant ExtraItemProxyComboModel::data(const QModelIndex &index, int role) const
{
    if (kindOf(index) == Row::Source) {
        return QAbstractProxyModel::data(index, role);
    }
    return extraData(index, role);
}

bool ExtraItemProxyComboModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return kindOf(index) == Row::Source && QAbstractProxyModel::setData(index, value, role);
}

QVariant ExtraItemProxyComboModel::headerData(int section, Qt::Orientation orientation,
                                              int role) const
{
    if (orientation == Qt::Horizontal && sourceModel()) {
        return sourceModel()->headerData(section, orientation, role);
    }
    // The rows count as they stand here: the source knows nothing of the extra ones.
    return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
}

Qt::ItemFlags ExtraItemProxyComboModel::flags(const QModelIndex &index) const
{
    switch (kindOf(index)) {
    case Row::Source:
        return QAbstractProxyModel::flags(index) | Qt::ItemNeverHasChildren;
    case Row::Text:
    case Row::Entry:
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    case Row::Separator:
        return Qt::ItemNeverHasChildren;
    case Row::None:
        break;
    }
    return index.isValid() ? Qt::NoItemFlags : QAbstractProxyModel::flags(index);
}

QModelIndex ExtraItemProxyComboModel::buddy(const QModelIndex &index) const
{
    return kindOf(index) == Row::Source ? QAbstractProxyModel::buddy(index) : index;
}

bool ExtraItemProxyComboModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && QAbstractProxyModel::canFetchMore(parent);
}

void ExtraItemProxyComboModel::fetchMore(const QModelIndex &parent)
{
    if (!parent.isValid()) {
        QAbstractProxyModel::fetchMore(parent);
    }
}

// Asked with each value that is read, so the source is asked for its rows only once.
ExtraItemProxyComboModel::Row ExtraItemProxyComboModel::kindOf(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this) {
        return Row::None;
    }
    if (index.row() < firstSourceRow()) {
        return Row::Text;
    }
    const int behind = index.row() - firstSourceRow() - sourceRows();
    if (behind < 0) {
        return Row::Source;
    }
    if (behind >= countOfFixedRows() || !fixedRowsShown) {
        return Row::None;
    }
    return behind == 0 ? Row::Separator : Row::Entry;
}

int ExtraItemProxyComboModel::sourceRows() const
{
    return sourceModel() ? sourceModel()->rowCount() : 0;
}

int ExtraItemProxyComboModel::sourceColumns() const
{
    return sourceModel() ? sourceModel()->columnCount() : 0;
}

int ExtraItemProxyComboModel::firstSourceRow() const
{
    return textRowShown ? 1 : 0;
}

int ExtraItemProxyComboModel::countOfFixedRows() const
{
    return labels.isEmpty() ? 0 : int(labels.size()) + 1;
}

bool ExtraItemProxyComboModel::wouldBeItsOwnSource(const QAbstractItemModel *model) const
{
    while (model && model != this) {
        const auto *proxy = qobject_cast<const QAbstractProxyModel *>(model);
        model = proxy ? proxy->sourceModel() : nullptr;
    }
    return model != nullptr;
}

QVariant ExtraItemProxyComboModel::extraData(const QModelIndex &index, int role) const
{
    const Row kind = kindOf(index);
    if (kind == Row::Separator) {
        return role == Qt::AccessibleDescriptionRole ? QVariant(QStringLiteral("separator"))
                                                     : QVariant();
    }
    if (kind == Row::None) {
        return {};
    }
    const int entry = index.row() - firstSourceRow() - sourceRows() - 1;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return kind == Row::Text ? text : labels.at(entry);
    case Qt::UserRole:
        return kind == Row::Text ? textValue : values.value(entry);
    default:
        return {};
    }
}
