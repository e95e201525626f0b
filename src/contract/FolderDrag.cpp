#include "FolderDrag.h"

#include "FolderTree.h"

#include <QHash>
#include <QMimeData>
#include <QUuid>

#include <algorithm>

namespace {

/// Remembers what it found on its way up, so that a long way is walked once only.
class CarriedFolders
{
public:
    explicit CarriedFolders(const QList<Folder *> &folders)
        : dragged(folders.cbegin(), folders.cend())
    { }

    bool contains(const Folder *folder)
    {
        QList<const Folder *> walked;
        const Folder *above = folder->parent;
        while (above && !dragged.contains(above) && !known.contains(above)) {
            walked.append(above);
            above = above->parent;
        }
        const bool carried = above && (dragged.contains(above) || known.value(above));
        for (const Folder *passed : qAsConst(walked)) {
            known.insert(passed, carried);
        }
        return carried;
    }

private:
    QSet<const Folder *> dragged;
    QHash<const Folder *, bool> known;
};

/// The folders without repetitions and without those that lie below another one.
QList<Folder *> topMost(const QList<Folder *> &folders)
{
    CarriedFolders carried(folders);
    QSet<const Folder *> taken;
    QList<Folder *> found;
    for (Folder *folder : folders) {
        if (!taken.contains(folder) && !carried.contains(folder)) {
            taken.insert(folder);
            found.append(folder);
        }
    }
    return found;
}

bool continuesRun(const QList<QList<Folder *>> &runs, const Folder *folder)
{
    if (runs.isEmpty()) {
        return false;
    }
    const Folder *last = runs.last().last();
    return last->parent == folder->parent && last->row + 1 == folder->row;
}

} // namespace

QString FolderDrag::mimeType()
{
    return QStringLiteral("application/x-txfolders");
}

QByteArray FolderDrag::makeToken()
{
    return QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
}

QByteArray FolderDrag::encode(const QByteArray &token, const QList<Folder *> &folders)
{
    QByteArray text = token;
    for (const Folder *folder : folders) {
        text += ' ' + QByteArray::number(quint64(folder->id));
    }
    return text;
}

QList<Folder *> FolderDrag::decode(const QByteArray &token, const FolderTree &tree,
                                   const QMimeData *data)
{
    if (!data || !data->hasFormat(mimeType())) {
        return {};
    }
    QList<QByteArray> words = data->data(mimeType()).split(' ');
    if (words.takeFirst() != token) {
        return {};
    }
    QList<Folder *> folders;
    for (const QByteArray &word : qAsConst(words)) {
        Folder *folder = tree.find(quintptr(word.toULongLong()));
        if (folder && folder->parent) {
            folders.append(folder);
        }
    }
    return topMost(folders);
}

QList<QList<Folder *>> FolderDrag::toRuns(const QList<Folder *> &folders)
{
    QHash<const Folder *, qsizetype> rank;
    for (const Folder *folder : folders) {
        if (!rank.contains(folder->parent)) {
            rank.insert(folder->parent, rank.size());
        }
    }
    QList<Folder *> ordered = folders;
    std::sort(ordered.begin(), ordered.end(), [&rank](const Folder *left, const Folder *right) {
        const qsizetype leftRank = rank.value(left->parent);
        const qsizetype rightRank = rank.value(right->parent);
        return leftRank != rightRank ? leftRank < rightRank : left->row < right->row;
    });

    QList<QList<Folder *>> runs;
    for (Folder *folder : qAsConst(ordered)) {
        if (!continuesRun(runs, folder)) {
            runs.append(QList<Folder *>());
        }
        runs.last().append(folder);
    }
    return runs;
}
