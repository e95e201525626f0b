#pragma once

#include "TXGUICommonExport.h"

#include <QTreeView>

class TXGUICOMMON_EXPORT TreeViewDragAndDrop : public QTreeView
{
    Q_OBJECT

public:
    explicit TreeViewDragAndDrop(QWidget *parent = nullptr);
};
