#include "ComboBoxSearch.h"

#include "ExtraItemProxyComboModel.h"
#include "SeparatorLine.h"

#include <QComboBox>
#include <QModelIndex>
#include <QVariant>

namespace {

/// The first index below the parent, from the row on, with this value; invalid when there is none.
QModelIndex find(const QVariant &value, const QAbstractItemModel &model, int row, int column,
                 const QModelIndex &parent)
{
    for (const int end = model.rowCount(parent); row < end; ++row) {
        const QModelIndex index = model.index(row, column, parent);
        if (index.isValid() && index.data(Qt::UserRole) == value
            && !SeparatorLine::isSeparator(index)) {
            return index;
        }
    }
    return {};
}

} // namespace

int ComboBoxSearch::rowOf(const QVariant &value, const QComboBox &box)
{
    int first = 0;
    const auto *extra = qobject_cast<const ExtraItemProxyComboModel *>(box.model());
    if (extra && extra->sourceModel()) {
        const QAbstractItemModel &source = *extra->sourceModel();
        const QModelIndex found = find(value, source, 0, box.modelColumn(), {});
        if (found.isValid()) {
            return extra->mapFromSource(found).row();
        }
        first = source.rowCount();
    }
    return find(value, *box.model(), first, box.modelColumn(), box.rootModelIndex()).row();
}
