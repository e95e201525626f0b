#pragma once

#include "IDropAllowedStrategy.h"
#include "TXGUICommonExport.h"

#include <QPointer>
#include <QSharedPointer>
#include <QTreeView>

class FolderModel;

/// A tree view over a FolderModel, which asks for each place whether a drop may happen there, and
/// keeps what is expanded in step with what the model remembers.
///
/// The view's model is a FolderModel or one proxy over it; with any other model the view is a plain
/// QTreeView that still asks the drop policies. Set what QTreeView leaves off, such as
/// setDragDropMode(), as for any view.
///
/// **Drops.** During a drag up to three policies are asked, and all must allow it: the folder
/// model, the view's model where it is an IDropAllowedStrategy itself, and the strategy of
/// setDropStrategy(). A policy may replace the strategy or delete the view while it is asked.
///
/// **Expansion.** What the user opens and closes goes to the folder model, and what the folder
/// model asks for is opened and closed, both through the proxy if there is one. A folder that the
/// proxy filters out stays remembered as it was.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TreeViewDragAndDrop : public QTreeView
{
    Q_OBJECT

public:
    /// A view without a model and without a strategy.
    explicit TreeViewDragAndDrop(QWidget *parent = nullptr);

    /// Sets the last of the policies that decide on drops, or none with null. The view shares it
    /// and lets the previous one go.
    void setDropStrategy(QSharedPointer<IDropAllowedStrategy> strategy);

    /// Shows the model, which stays with its owner; null is allowed. A folder model, found as it is
    /// or below one proxy, is connected with the view, and the whole tree opens, but for what the
    /// model remembers as collapsed, with the next turn of the event loop.
    ///
    /// Calling it again with the same model connects again, so that signals come twice. A folder
    /// model that was connected before and is no longer the one below the view is disconnected.
    /// Exchanging the source of a proxy connects nothing: call this again.
    void setModel(QAbstractItemModel *model) override;

    /// The index in the model below the view's proxy; unchanged when the view's model is no proxy.
    /// Invalid for an index that is not the proxy's.
    [[nodiscard]] QModelIndex fromProxyIndex(const QModelIndex &index) const;

    /// The index in the view's proxy of one in the model below; unchanged when the view's model is
    /// no proxy. Invalid for an index that the proxy does not show or that is of a foreign model.
    [[nodiscard]] QModelIndex toProxyIndex(const QModelIndex &index) const;

signals:
    /// The view has collapsed the folder; the index is one of the folder model. Like the three
    /// that follow, only emitted while a folder model is connected.
    void hasBeenCollapsed(const QModelIndex &index);
    /// The view has expanded the folder; the index is one of the folder model.
    void hasBeenExpanded(const QModelIndex &index);
    /// The folder model asks for the folder to be collapsed; the index is the view's, and invalid
    /// when the view does not show the folder.
    void hasToBeCollasped(const QModelIndex &index);
    /// The folder model asks for the folder to be expanded; the index as above.
    void hasToBeExpanded(const QModelIndex &index);
    /// The mouse has entered the view (true) or left it (false).
    void cursorEntreLeaveWidget(bool entered);
    /// Something was dropped onto an item, whether or not the model could use it: the data of the
    /// first format read as UTF-8, and the name of that format. Data without a format come as an
    /// empty text of "application/vnd.tpk.queue+xml".
    void itemDataDropped(const QString &data, const QString &format);

public slots:
    /// Tells the folder model what the view has collapsed.
    void itemHasBeenCollasped(const QModelIndex &index);
    /// Tells the folder model what the view has expanded.
    void itemHasBeenExpanded(const QModelIndex &index);
    /// Passes on what the folder model wants collapsed.
    void itemHasToBeCollapsed(const QModelIndex &index);
    /// Passes on what the folder model wants expanded.
    void itemHasToBeExpanded(const QModelIndex &index);
    /// Expands the whole tree, then lets the folder model collapse what it remembers as collapsed.
    /// Costs the number of folders.
    void expandAllItems();

protected:
    /// Lets QTreeView decide, then the policies; the first that refuses ends it. Costs what the
    /// policies cost, at each movement of the mouse.
    void dragMoveEvent(QDragMoveEvent *event) override;

    /// Drops onto the item at the place and emits itemDataDropped(). Outside all items nothing is
    /// dropped.
    void dropEvent(QDropEvent *event) override;

    /// Emits cursorEntreLeaveWidget(true).
    void enterEvent(QEnterEvent *event) override;

    /// Emits cursorEntreLeaveWidget(false).
    void leaveEvent(QEvent *event) override;

private:
    [[nodiscard]] FolderModel *folderModel() const;
    void connectToFolders(FolderModel *folders);
    void disconnectFromFolders(FolderModel *folders);
    [[nodiscard]] bool isDropAllowedAt(const QModelIndex &index, const QDropEvent *event,
                                       DropIndicatorPosition position);

    QSharedPointer<IDropAllowedStrategy> dropStrategy;
    QPointer<FolderModel> connectedFolders;
};
