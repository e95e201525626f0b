#pragma once

#include <QModelIndex>

class FolderModel;

/// @file
/// What dragging does with a folder, one step at a time for users of the keyboard. Each returns
/// false, and changes nothing, when there is no such step: at the end of a row of siblings, or
/// where a name is taken.
namespace FolderMoves {

/// Before the sibling above.
bool moveUp(FolderModel &model, const QModelIndex &folder);
/// Behind the sibling below.
bool moveDown(FolderModel &model, const QModelIndex &folder);
/// Into the sibling above, as its last folder.
bool moveIn(FolderModel &model, const QModelIndex &folder);
/// Out of the folder above it, and behind that.
bool moveOut(FolderModel &model, const QModelIndex &folder);

} // namespace FolderMoves
