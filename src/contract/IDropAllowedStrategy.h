#pragma once

#include "TXCoreCommonExport.h"

#include <QAbstractItemView>

class QMimeData;
class QModelIndex;

/// A policy that says whether dragged data may be dropped at a place of an item view.
///
/// A tree view for drag and drop asks its policies on every movement of the mouse over it, so an
/// answer should be quick. Implement this in a model that knows its own rules, or in an object of
/// its own that adds rules to a model.
///
/// Thread: asked on the GUI thread.
class TXCORECOMMON_EXPORT IDropAllowedStrategy
{
    /// Opens the names of the positions, which the view keeps for its subclasses. Never made.
    struct Access : QAbstractItemView
    {
        using Position = DropIndicatorPosition;
        static constexpr Position kOnItem = OnItem;
        static constexpr Position kAboveItem = AboveItem;
        static constexpr Position kBelowItem = BelowItem;
        static constexpr Position kOnViewport = OnViewport;
    };

public:
    /// The view's own type, under a name that an implementation can write.
    using DropIndicatorPosition = Access::Position;
    /// Onto the item, to become its child.
    static constexpr DropIndicatorPosition OnItem = Access::kOnItem;
    /// Between items, just above the item.
    static constexpr DropIndicatorPosition AboveItem = Access::kAboveItem;
    /// Between items, just below the item.
    static constexpr DropIndicatorPosition BelowItem = Access::kBelowItem;
    /// Onto the empty part of the view; the index is invalid.
    static constexpr DropIndicatorPosition OnViewport = Access::kOnViewport;

    virtual ~IDropAllowedStrategy() = default;

    /// Whether `mimeData` may be dropped with `action` at `position` of `index`.
    ///
    /// `index` belongs to the view's model, which may be a proxy of the model that is asked; it is
    /// invalid over the empty part of the view. `mimeData` stays with the caller. Called again and
    /// again during one drag: an answer must change nothing.
    virtual bool isDropAllowed(const QModelIndex &index, const QMimeData *mimeData,
                               Qt::DropAction action, DropIndicatorPosition position) = 0;
};
