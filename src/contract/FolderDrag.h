#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class FolderTree;
class QMimeData;
struct Folder;

/// What travels with the mouse when folders are dragged, and what is read from it at the drop.
namespace FolderDrag {

/// The MIME type of dragged folders.
QString mimeType();

/// A name for one model in one process, so that its ids are not taken for those of another.
QByteArray makeToken();

/// Writes which folders of the model named by `token` are dragged.
QByteArray encode(const QByteArray &token, const QList<Folder *> &folders);

/// The dragged folders that are still there, each once, without those that lie below another one
/// and so travel with it. Empty when the data are null, damaged, or not of the model named by
/// `token`. Costs the folders and the ways up from them, each part once.
QList<Folder *> decode(const QByteArray &token, const FolderTree &tree, const QMimeData *data);

/// Splits folders into runs of neighbours that can be moved in one go: by parent in order of first
/// appearance, then by row. Costs a sort of the folders.
QList<QList<Folder *>> toRuns(const QList<Folder *> &folders);

} // namespace FolderDrag
