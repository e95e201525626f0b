#pragma once

#include "GalleryPanel.h"

class QAbstractItemDelegate;
class QCheckBox;
class QStandardItemModel;
class QTreeView;

/// The chart of 24 colours as a tree, row by row, with and without the lines of
/// TreeViewGridDelegate.
class ChartTreePanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ChartTreePanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void showGrid(bool isShown);

private:
    void fillModel();
    void showTexts(int row);
    void setUpView();

    QStandardItemModel *model;
    QTreeView *view;
    QCheckBox *gridBox;
    QAbstractItemDelegate *grid;
    QAbstractItemDelegate *plain;
};
