#include "FolderTree.h"

#include <algorithm>
#include <iterator>

namespace {

void renumber(const Folder *parent, int from)
{
    for (int row = from; row < parent->children.size(); ++row) {
        parent->children.at(row)->row = row;
    }
}

QList<Folder *> takeOut(Folder *parent, int row, int count)
{
    const QList<Folder *> taken = parent->children.mid(row, count);
    parent->children.remove(row, count);
    for (const Folder *folder : taken) {
        parent->childNames.remove(folder->name);
    }
    renumber(parent, row);
    return taken;
}

void putIn(Folder *parent, int row, const QList<Folder *> &folders)
{
    parent->children.insert(row, folders.size(), nullptr);
    std::copy(folders.cbegin(), folders.cend(), std::next(parent->children.begin(), row));
    for (Folder *folder : folders) {
        folder->parent = parent;
        parent->childNames.insert(folder->name);
    }
    renumber(parent, row);
}

} // namespace

FolderTree::FolderTree()
{
    folders.emplace(0, std::make_unique<Folder>());
}

FolderTree::~FolderTree() = default;

Folder *FolderTree::root() const
{
    return find(0);
}

Folder *FolderTree::find(quintptr id) const
{
    const auto found = folders.find(id);
    return found == folders.cend() ? nullptr : found->second.get();
}

QList<Folder *> FolderTree::allFolders() const
{
    QList<Folder *> found;
    found.reserve(qsizetype(folders.size()));
    QList<Folder *> waiting(root()->children.crbegin(), root()->children.crend());
    while (!waiting.isEmpty()) {
        Folder *folder = waiting.takeLast();
        found.append(folder);
        std::copy(folder->children.crbegin(), folder->children.crend(),
                  std::back_inserter(waiting));
    }
    return found;
}

Folder *FolderTree::append(Folder *parent, const QString &name)
{
    auto made = std::make_unique<Folder>();
    Folder *folder = made.get();
    folder->id = ++lastId;
    folder->name = name;
    folders.emplace(folder->id, std::move(made));
    putIn(parent, int(parent->children.size()), {folder});
    return folder;
}

void FolderTree::rename(Folder *folder, const QString &name)
{
    folder->parent->childNames.remove(folder->name);
    folder->parent->childNames.insert(name);
    folder->name = name;
}

void FolderTree::remove(Folder *parent, int row, int count)
{
    const QList<Folder *> taken = takeOut(parent, row, count);
    for (Folder *folder : taken) {
        forget(folder);
    }
}

void FolderTree::move(Folder *parent, int row, int count, Folder *destination, int destinationRow)
{
    const QList<Folder *> taken = takeOut(parent, row, count);
    const bool shifted = destination == parent && destinationRow > row;
    putIn(destination, shifted ? destinationRow - count : destinationRow, taken);
}

void FolderTree::forget(Folder *top)
{
    QList<Folder *> waiting{top};
    while (!waiting.isEmpty()) {
        const Folder *folder = waiting.takeLast();
        waiting.append(folder->children);
        folders.erase(folder->id);
    }
}
