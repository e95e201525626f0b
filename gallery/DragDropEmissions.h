#pragma once

#include "GalleryPanel.h"

#include <QList>
#include <QModelIndex>
#include <QUrl>

class EmissionList;
class LineEditDrapAndDrop;
class TreeViewDragAndDrop;

/// Lists the signals of the field and the trees as they come, with what they carry.
class DragDropEmissions final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit DragDropEmissions(QWidget *parent = nullptr);

    /// Lists the signal of this field from now on.
    void listen(const LineEditDrapAndDrop *field);
    /// Lists the signals of this tree from now on, with its object name before them.
    void listen(const TreeViewDragAndDrop *tree);

protected:
    void retranslate() override;

private slots:
    void noteUrls(const QList<QUrl> &urls);
    void noteFolder(const QModelIndex &folder);
    void noteMouse(bool isOver);
    void noteData(const QString &data, const QString &format);

private:
    void note(const QString &arguments);

    EmissionList *emissions;
};
