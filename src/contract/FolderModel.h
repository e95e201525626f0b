#pragma once

#include "IDropAllowedStrategy.h"
#include "TXCoreCommonExport.h"

#include <QAbstractItemModel>
#include <QList>

#include <memory>

class FolderTree;
struct Folder;

/// A tree of named folders in memory, for views in which the user sorts things into folders.
///
/// It has one column, the name, which is editable. The user moves folders by drag and drop, onto
/// another folder or between folders; the model refuses what cannot be (see isDropAllowed()).
///
/// **Names.** A name is stored without surrounding blanks. An empty name, and a name that a sibling
/// already has (case counts), are refused: addFolder() returns an invalid index, rename(),
/// setData() and a move return false, and nothing changes.
///
/// **Expansion.** The model remembers for each folder whether the user wants it expanded, through
/// moves and changes of the view. A new folder is expanded, so that a new tree opens as a whole.
/// A view reports what the user did by the slots, and updateExpandState() brings a view, whatever
/// it shows, to what is remembered.
///
/// **Indexes.** An index of another model, or of a folder that was removed, is safe everywhere: it
/// reads as nothing and changes nothing. An invalid index as parent means the top level.
///
/// Finding a row takes constant time, appending a folder too; inserting, moving and removing cost
/// the siblings behind the place.
///
/// Thread: the GUI thread, or the one thread that the model lives in.
class TXCORECOMMON_EXPORT FolderModel : public QAbstractItemModel, public IDropAllowedStrategy
{
    Q_OBJECT

public:
    /// An empty tree.
    explicit FolderModel(QObject *parent = nullptr);
    ~FolderModel() override;

    /// Adds a folder as the last child of `parent`. Returns its index, or an invalid one when the
    /// name is refused or `parent` is no folder of this model.
    QModelIndex addFolder(const QString &name, const QModelIndex &parent = {});

    /// Gives a folder another name. True also when it is the present one; then nothing is
    /// signalled.
    bool rename(const QModelIndex &index, const QString &name);

    /// Removes a folder and all below it. False when there is no such folder.
    bool remove(const QModelIndex &index);

    /// Whether the folder is remembered as expanded, which a folder without children can be too.
    /// False for an index that is no folder.
    [[nodiscard]] bool isExpanded(const QModelIndex &index) const;

    /// Asks the view to show what is remembered: for each folder that has children, parents first,
    /// emits itemHasToBeExpanded() or itemHasToBeCollapsed().
    ///
    /// A view calls this right after it expanded everything. While it does that, it reports each
    /// folder that it opens as if the user had; so reports of expansion that came by signal in the
    /// same turn of the event loop are taken back here. A slot that is called directly is always
    /// believed.
    void updateExpandState();

    /// False when dropping would put a folder of this model into itself or below itself, or beside
    /// a folder of the same name, or the data are missing, or the action is not a move. Data that
    /// carry no folder of this model are none of its business: the answer is true.
    ///
    /// `index` may be of this model or of a proxy over it, however deep; an invalid index means the
    /// top level, another foreign one is refused. Costs the depth of the place for each dragged
    /// folder.
    bool isDropAllowed(const QModelIndex &index, const QMimeData *mimeData, Qt::DropAction action,
                       DropIndicatorPosition position) override;

    /// Column 0 of the folder at `row`; an invalid index when there is none.
    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    /// The folder that holds this one; invalid for one on the top level.
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    /// How many folders are directly in this one, or on the top level.
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    /// Always 1.
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    /// The name under Qt::DisplayRole, Qt::EditRole and Qt::ToolTipRole.
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    /// rename() under Qt::EditRole; false for any other role.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// A folder can be chosen, edited, dragged and dropped onto; the top level only dropped onto.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Removes folders with all below them. False, and nothing happens, when the rows are not all
    /// there or `count` is below 1.
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Moves folders before the row `destinationChild`, counted before the move. False, and nothing
    /// happens, when the rows are not all there, they would land within themselves or where they
    /// stand, or a name is taken.
    bool moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                  const QModelIndex &destinationParent, int destinationChild) override;

    /// One format, which only this model can read: UTF-8 text that names the model and the folders.
    [[nodiscard]] QStringList mimeTypes() const override;
    /// The dragged folders. One that lies below another dragged one travels with it. Null when no
    /// index is a folder; otherwise the caller owns the data.
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Only Qt::MoveAction.
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    /// Only data of this model, and where isDropAllowed() would allow it.
    [[nodiscard]] bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                       int column, const QModelIndex &parent) const override;
    /// Moves the dragged folders before `row`, or to the end when `row` is -1, in the order of the
    /// tree. All are moved or none.
    ///
    /// Always returns false, for a view takes true as the order to remove the dragged rows itself,
    /// which by then stand at their new place. Look at the model, or at rowsMoved(), for the
    /// outcome.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

public slots:
    /// The view has collapsed a folder. Remembered; nothing is signalled.
    void itemHasBeenCollasped(const QModelIndex &index);
    /// The view has expanded a folder. Remembered; nothing is signalled. See updateExpandState().
    void itemHasBeenExpanded(const QModelIndex &index);

signals:
    /// Asks the view to collapse a folder. Emitted by updateExpandState() only.
    void itemHasToBeCollapsed(const QModelIndex &index);
    /// Asks the view to expand a folder. Emitted by updateExpandState(), and when a folder that is
    /// remembered as expanded receives its first child, since a view opens no folder that is empty.
    void itemHasToBeExpanded(const QModelIndex &index);

private slots:
    void believeExpansions();

private:
    [[nodiscard]] Folder *folderOf(const QModelIndex &index) const;
    [[nodiscard]] Folder *folderOrRoot(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(const Folder *folder) const;
    [[nodiscard]] Folder *dropParent(const QModelIndex &index,
                                     DropIndicatorPosition position) const;
    [[nodiscard]] bool canMoveInto(const QList<Folder *> &folders, const Folder *parent) const;
    void moveRun(const QList<quintptr> &run, quintptr intoId, quintptr beforeId);
    void askToExpand(quintptr id);

    std::unique_ptr<FolderTree> tree;
    QByteArray dragToken;
    QList<quintptr> unconfirmedExpansions;
};
