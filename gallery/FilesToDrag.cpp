#include "FilesToDrag.h"

#include <QDir>
#include <QDirIterator>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <memory>

FilesToDrag::FilesToDrag(const QString &folderPath, QWidget *parent)
    : QListWidget(parent)
{
    const QDir folder(folderPath);
    QStringList paths;
    QDirIterator files(folderPath, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext() && paths.size() < kMaximumFiles) {
        paths.append(folder.relativeFilePath(files.next()));
    }
    paths.sort(Qt::CaseInsensitive);
    for (const QString &path : qAsConst(paths)) {
        auto *item = new QListWidgetItem(QDir::toNativeSeparators(path), this);
        item->setData(Qt::UserRole, QUrl::fromLocalFile(folder.absoluteFilePath(path)));
    }
    setSelectionMode(ExtendedSelection);
    setDragDropMode(DragOnly);
    setCurrentRow(0);
}

QList<QUrl> FilesToDrag::selectedUrls() const
{
    QModelIndexList indexes = selectedIndexes();
    // They come in the order in which they were selected.
    std::sort(indexes.begin(), indexes.end());
    QList<QUrl> urls;
    for (const QModelIndex &index : qAsConst(indexes)) {
        urls.append(index.data(Qt::UserRole).toUrl());
    }
    return urls;
}

QMimeData *FilesToDrag::mimeData(const QList<QListWidgetItem *> & /*items*/) const
{
    // Only what is selected can be dragged.
    auto data = std::make_unique<QMimeData>();
    data->setUrls(selectedUrls());
    return data.release();
}
