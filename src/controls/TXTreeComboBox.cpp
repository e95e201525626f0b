#include "TXTreeComboBox.h"

#include <QAbstractItemModel>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QTreeView>

namespace {

/// The index, or none if it is of another model: a model that is asked about such a one may crash.
QModelIndex indexOf(const QAbstractItemModel *model, const QModelIndex &index)
{
    return index.model() == model ? index : QModelIndex();
}

} // namespace

TXTreeComboBox::TXTreeComboBox(QWidget *parent)
    : QComboBox(parent)
    , tree(new QTreeView(this))
{
    tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    tree->setAllColumnsShowFocus(true);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    setView(tree);
    tree->viewport()->installEventFilter(this);
}

QTreeView *TXTreeComboBox::treeView() const
{
    return tree;
}

void TXTreeComboBox::setCurrentModelIndex(QModelIndex index)
{
    const QPersistentModelIndex item = indexOf(model(), index);
    QItemSelectionModel *selection = tree ? tree->selectionModel() : nullptr;
    if (selection) {
        // Unlike the view's setter, this takes disabled items too.
        selection->setCurrentIndex(item,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    // A slot that was told of the tree's current item may have replaced the model.
    const QModelIndex shown = indexOf(model(), item);
    setRootModelIndex(shown.parent());
    setCurrentIndex(shown.row());
}

void TXTreeComboBox::showPopup()
{
    setRootModelIndex(QModelIndex());
    QComboBox::showPopup();
}

void TXTreeComboBox::hidePopup()
{
    if (!skipNextHide || !tree) {
        QComboBox::hidePopup();
        return;
    }
    // Used up at once: a slot of the change below that hides the list must not come here again,
    // and so on without an end.
    skipNextHide = false;
    const QModelIndex item = tree->currentIndex();
    const int row = item.row();
    setRootModelIndex(item.parent());
    setCurrentIndex(row);
}

bool TXTreeComboBox::eventFilter(QObject *object, QEvent *event)
{
    // The type comes first: other events come while the tree is being destroyed, and must not look
    // at it.
    if (event->type() == QEvent::MouseButtonPress && tree && object == tree->viewport()) {
        const QPoint place = static_cast<QMouseEvent *>(event)->position().toPoint();
        if (!tree->visualRect(tree->indexAt(place)).contains(place)) {
            skipNextHide = true;
        }
    }
    return false;
}
