#include "FolderMoves.h"

#include "FolderModel.h"

namespace {

bool move(FolderModel &model, const QModelIndex &folder, const QModelIndex &into, int before)
{
    return folder.isValid() && model.moveRows(folder.parent(), folder.row(), 1, into, before);
}

} // namespace

bool FolderMoves::moveUp(FolderModel &model, const QModelIndex &folder)
{
    return move(model, folder, folder.parent(), folder.row() - 1);
}

bool FolderMoves::moveDown(FolderModel &model, const QModelIndex &folder)
{
    return move(model, folder, folder.parent(), folder.row() + 2);
}

bool FolderMoves::moveIn(FolderModel &model, const QModelIndex &folder)
{
    const QModelIndex above = folder.siblingAtRow(folder.row() - 1);
    return above.isValid() && move(model, folder, above, model.rowCount(above));
}

bool FolderMoves::moveOut(FolderModel &model, const QModelIndex &folder)
{
    const QModelIndex around = folder.parent();
    return around.isValid() && move(model, folder, around.parent(), around.row() + 1);
}
