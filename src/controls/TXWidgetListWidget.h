#pragma once

#include "TXGUICommonExport.h"

#include <QFrame>
#include <QList>
#include <QWidget>

class QLayoutItem;

class TXGUICOMMON_EXPORT TXWidgetListWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TXWidgetListWidget(QWidget *parent = nullptr);
    [[nodiscard]] int count() const;
    void append(QWidget *widget);
    void insert(int index, QWidget *widget);
    bool removeAt(int index);
    bool removeWidget(QWidget *widget);
    void clear();
    QWidget *widgetAt(int index);
    void setFrameShape(QFrame::Shape shape);
};
