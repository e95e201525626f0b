#pragma once

#include "FolderModel.h"
#include "TreeViewDragAndDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QSortFilterProxyModel>

#include <functional>
#include <memory>

// What the tests of TreeViewDragAndDrop share.

/// A tree view whose drags a test can send past the window system.
class DropTree : public TreeViewDragAndDrop
{
public:
    using TreeViewDragAndDrop::dragMoveEvent;
    using TreeViewDragAndDrop::dropEvent;
    using TreeViewDragAndDrop::dropIndicatorPosition;
    using TreeViewDragAndDrop::enterEvent;
    using TreeViewDragAndDrop::leaveEvent;

    explicit DropTree(QWidget *parent = nullptr)
        : TreeViewDragAndDrop(parent)
    {
        setHeaderHidden(true);
        setDragDropMode(QAbstractItemView::DragDrop);
        resize(200, 300);
    }

    /// Whether the data may be dropped at the place.
    bool move(const QMimeData &data, const QPointF &place, Qt::DropAction action = Qt::MoveAction)
    {
        QDragMoveEvent event(place.toPoint(), action, &data, Qt::LeftButton, Qt::NoModifier);
        dragMoveEvent(&event);
        return event.isAccepted();
    }

    /// Whether the data may be dropped onto the item.
    bool moveOnto(const QMimeData &data, const QModelIndex &index)
    {
        return move(data, visualRect(index).center());
    }

    /// Drops at the place.
    void drop(const QMimeData &data, const QPointF &place)
    {
        QDropEvent event(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        dropEvent(&event);
    }

    /// Drops onto the item.
    void dropOnto(const QMimeData &data, const QModelIndex &index)
    {
        drop(data, visualRect(index).center());
    }
};

/// One question to a policy.
struct DropQuestion
{
    QString policy;
    QPersistentModelIndex index;
    const QMimeData *data;
    Qt::DropAction action;
    IDropAllowedStrategy::DropIndicatorPosition position;
};

/// Writes down what it is asked, and answers as it is told.
struct AskedPolicy
{
    QString name;
    QList<DropQuestion> *questions = nullptr;
    bool answer = true;
    std::function<void()> whenAsked = {};

    bool ask(const QModelIndex &index, const QMimeData *data, Qt::DropAction action,
             IDropAllowedStrategy::DropIndicatorPosition position) const
    {
        if (questions) {
            questions->append({name, index, data, action, position});
        }
        // Called on a copy, since the policy may die of it.
        const bool result = answer;
        const std::function<void()> deed = whenAsked;
        if (deed) {
            deed();
        }
        return result;
    }
};

/// A strategy beside the models.
class AskedStrategy : public IDropAllowedStrategy
{
public:
    AskedPolicy policy;

    bool isDropAllowed(const QModelIndex &index, const QMimeData *data, Qt::DropAction action,
                       DropIndicatorPosition position) override
    {
        return policy.ask(index, data, action, position);
    }
};

/// A folder model that takes anything, so that the view always comes to the policies.
class AskedFolders : public FolderModel
{
public:
    AskedPolicy policy;

    bool isDropAllowed(const QModelIndex &index, const QMimeData *data, Qt::DropAction action,
                       DropIndicatorPosition position) override
    {
        return policy.ask(index, data, action, position);
    }
    bool canDropMimeData(const QMimeData * /*data*/, Qt::DropAction /*action*/, int /*row*/,
                         int /*column*/, const QModelIndex & /*parent*/) const override
    {
        return isOpen;
    }
    Qt::DropActions supportedDropActions() const override
    {
        return Qt::MoveAction | Qt::CopyAction;
    }

    /// False lets the view itself refuse every drag.
    bool isOpen = true;
};

/// A proxy that is a policy too.
class AskedProxy : public QSortFilterProxyModel, public IDropAllowedStrategy
{
public:
    AskedPolicy policy;

    bool isDropAllowed(const QModelIndex &index, const QMimeData *data, Qt::DropAction action,
                       DropIndicatorPosition position) override
    {
        return policy.ask(index, data, action, position);
    }
};

/// Printing(Coated(Glossy) Uncoated) Screens
template<class Model = FolderModel>
struct ProfileFolders
{
    Model model;
    QPersistentModelIndex printing = model.addFolder("Printing");
    QPersistentModelIndex coated = model.addFolder("Coated", printing);
    QPersistentModelIndex glossy = model.addFolder("Glossy", coated);
    QPersistentModelIndex uncoated = model.addFolder("Uncoated", printing);
    QPersistentModelIndex screens = model.addFolder("Screens");
};

/// The names of the folders that a signal has named, "-" for an invalid index.
inline QStringList namesIn(const QSignalSpy &spy)
{
    QStringList names;
    for (const QList<QVariant> &arguments : spy) {
        const QModelIndex index = arguments.first().toModelIndex();
        names.append(index.isValid() ? index.data().toString() : QStringLiteral("-"));
    }
    return names;
}
