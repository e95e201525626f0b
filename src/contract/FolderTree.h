#pragma once

#include "TXCoreCommonExport.h"

#include <QList>
#include <QSet>
#include <QString>

#include <memory>
#include <unordered_map>

/// One folder of a FolderTree.
struct Folder
{
    /// Never given twice by one tree, so that what remembers a removed folder finds nothing.
    quintptr id = 0;
    QString name;
    /// Null on the root only.
    Folder *parent = nullptr;
    /// The place among the siblings.
    int row = 0;
    bool expanded = true;
    QList<Folder *> children;
    QSet<QString> childNames;
};

/// The folders behind FolderModel: a tree of names without views, indexes or signals.
///
/// Finding a folder by its id, its row, and a name among siblings takes constant time; appending a
/// folder too. Inserting, moving and taking away cost the siblings behind the place. All folders
/// are owned flatly, so that no depth exhausts the stack.
class TXCORECOMMON_PRIVATE_EXPORT FolderTree
{
public:
    FolderTree();
    ~FolderTree();

    /// The invisible folder that holds the top-level ones. Its id is 0.
    [[nodiscard]] Folder *root() const;
    /// Null when no such folder is there, or no longer.
    [[nodiscard]] Folder *find(quintptr id) const;
    /// Every folder but the root, parents before their children, siblings in order.
    [[nodiscard]] QList<Folder *> allFolders() const;

    /// Makes a folder the last child of `parent`. The name must be free there.
    Folder *append(Folder *parent, const QString &name);
    /// Gives a folder another name, which must be free among its siblings.
    static void rename(Folder *folder, const QString &name);
    /// Takes `count` folders away, with all below them.
    void remove(Folder *parent, int row, int count);
    /// Moves `count` folders before the row `destinationRow` of `destination`, counted before the
    /// move. The destination must not lie within them, and their names must be free there.
    static void move(Folder *parent, int row, int count, Folder *destination, int destinationRow);

private:
    void forget(Folder *top);

    std::unordered_map<quintptr, std::unique_ptr<Folder>> folders;
    quintptr lastId = 0;
};
