#include "TXVariantViewer.h"

#include "VariantKind.h"
#include "VariantMoreButton.h"

#include <utility>

// The user goes through viewers and, below the rows of a large level, the button for more of them.
//
// Widgets of the entries stand in childWidgets: viewers alone for a list, keys and viewers by turns
// for a dictionary. Each viewer knows its place among its siblings, so that to find it there, or
// the one beside it, costs the same among any number of them; the rest costs the depth.

namespace {

qsizetype widgetsPerEntry(const QVariant &value)
{
    return VariantKind::isMap(value) ? 2 : 1;
}

} // namespace

const TXVariantViewer *TXVariantViewer::rootViewer() const
{
    const TXVariantViewer *root = this;
    while (const TXVariantViewer *above = root->parentViewer()) {
        root = above;
    }
    return root;
}

TXVariantViewer *TXVariantViewer::rootViewer()
{
    return const_cast<TXVariantViewer *>(std::as_const(*this).rootViewer());
}

qsizetype TXVariantViewer::entryCount() const
{
    qsizetype count = childWidgets.size() / widgetsPerEntry(value);
    while (count > 0 && entryViewer(count - 1) == nullptr) {
        --count;
    }
    return count;
}

TXVariantViewer *TXVariantViewer::entryViewer(qsizetype index) const
{
    const qsizetype step = widgetsPerEntry(value);
    return qobject_cast<TXVariantViewer *>(childWidgets.value(step * index + step - 1));
}

qsizetype TXVariantViewer::indexOfEntry(const TXVariantViewer *entry) const
{
    // One that was folded away keeps its place, where another one or none stands now.
    return entryViewer(entry->entryPlace) == entry ? entry->entryPlace : -1;
}

TXVariantViewer *TXVariantViewer::siblingViewer(int step) const
{
    const TXVariantViewer *parent = parentViewer();
    if (parent == nullptr) {
        return nullptr;
    }
    const qsizetype index = parent->indexOfEntry(this);
    return index < 0 || index + step < 0 ? nullptr : parent->entryViewer(index + step);
}

QWidget *TXVariantViewer::lastShown()
{
    TXVariantViewer *last = this;
    while (last->moreButton == nullptr && last->entryCount() > 0) {
        last = last->entryViewer(last->entryCount() - 1);
    }
    return last->moreButton != nullptr ? static_cast<QWidget *>(last->moreButton) : last;
}

QWidget *TXVariantViewer::shownAbove() const
{
    TXVariantViewer *before = siblingViewer(-1);
    return before != nullptr ? before->lastShown() : parentViewer();
}

QWidget *TXVariantViewer::shownBelow() const
{
    return entryCount() > 0 ? entryViewer(0) : shownBehind();
}

QWidget *TXVariantViewer::shownBehind() const
{
    for (const TXVariantViewer *viewer = this; viewer != nullptr; viewer = viewer->parentViewer()) {
        if (TXVariantViewer *after = viewer->siblingViewer(1)) {
            return after;
        }
        const TXVariantViewer *parent = viewer->parentViewer();
        if (parent != nullptr && parent->moreButton != nullptr) {
            return parent->moreButton;
        }
    }
    return nullptr;
}
