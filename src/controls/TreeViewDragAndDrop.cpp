#include "TreeViewDragAndDrop.h"

TreeViewDragAndDrop::TreeViewDragAndDrop(QWidget *parent)
    : QTreeView(parent)
{ }
