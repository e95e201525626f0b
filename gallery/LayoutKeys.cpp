#include "LayoutKeys.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace {

QHeaderView *headerOf(QWidget &view)
{
    if (auto *tree = qobject_cast<QTreeView *>(&view)) {
        return tree->header();
    }
    auto *table = qobject_cast<QTableView *>(&view);
    return table ? table->horizontalHeader() : nullptr;
}

QList<QSplitter *> splittersAround(const QWidget &focused)
{
    QList<QSplitter *> around;
    for (QWidget *step = focused.parentWidget(); step; step = step->parentWidget()) {
        if (auto *splitter = qobject_cast<QSplitter *>(step)) {
            around.append(splitter);
        }
    }
    return around;
}

QSplitter *splitterFor(const QWidget &focused, Qt::Orientation orientation)
{
    QList<QSplitter *> candidates = splittersAround(focused);
    if (!candidates.isEmpty()) {
        candidates += candidates.constLast()->findChildren<QSplitter *>();
    }
    const auto found =
        std::find_if(candidates.cbegin(), candidates.cend(), [orientation](QSplitter *splitter) {
            return splitter->orientation() == orientation && splitter->count() > 1;
        });
    return found == candidates.cend() ? nullptr : *found;
}

/// The number of the part in which the focus is; the first part for a focus elsewhere.
int partWith(const QSplitter &splitter, const QWidget &focused)
{
    for (int part = 0; part < splitter.count(); ++part) {
        if (splitter.widget(part) == &focused || splitter.widget(part)->isAncestorOf(&focused)) {
            return part;
        }
    }
    return 0;
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

LayoutKeys::LayoutKeys(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool LayoutKeys::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && object == QApplication::focusWidget()) {
        return isTaken(*static_cast<QKeyEvent *>(event), *static_cast<QWidget *>(object));
    }
    return false;
}

bool LayoutKeys::isTaken(const QKeyEvent &event, QWidget &focused)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (!isArrow(event.key())) {
        return false;
    }
    if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier)) {
        return changeColumn(focused, event.key());
    }
    return modifiers == (Qt::ControlModifier | Qt::AltModifier) && moveBorder(focused, event.key());
}

bool LayoutKeys::changeColumn(QWidget &focused, int key)
{
    QHeaderView *header = headerOf(focused);
    if (!header || header->count() == 0) {
        return false;
    }
    const auto *view = static_cast<QAbstractItemView *>(&focused);
    const int column = std::max(view->currentIndex().column(), 0);
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        if (!header->isSortIndicatorShown()) {
            return false;
        }
        header->setSortIndicator(column,
                                 key == Qt::Key_Up ? Qt::AscendingOrder : Qt::DescendingOrder);
        return true;
    }
    const bool isWider = (key == Qt::Key_Right) == (focused.layoutDirection() == Qt::LeftToRight);
    const int width = header->sectionSize(column) + (isWider ? kStepPixels : -kStepPixels);
    header->resizeSection(column, std::max(width, header->minimumSectionSize()));
    return true;
}

bool LayoutKeys::moveBorder(const QWidget &focused, int key)
{
    const bool isSideways = key == Qt::Key_Left || key == Qt::Key_Right;
    QSplitter *splitter = splitterFor(focused, isSideways ? Qt::Horizontal : Qt::Vertical);
    if (!splitter) {
        return false;
    }
    const int part = std::min(partWith(*splitter, focused), splitter->count() - 2);
    const bool isMirrored = isSideways && splitter->layoutDirection() == Qt::RightToLeft;
    const bool isOnward = (key == Qt::Key_Right || key == Qt::Key_Down) != isMirrored;
    QList<int> sizes = splitter->sizes();
    const int wanted = isOnward ? kStepPixels : -kStepPixels;
    const int step = std::clamp(wanted, -sizes[part], sizes[part + 1]);
    sizes[part] += step;
    sizes[part + 1] -= step;
    splitter->setSizes(sizes);
    return true;
}
