#pragma once

#include "WidgetRow.h"

#include <QList>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// The plug-in: all widgets of the library that can stand on a form.
class TXGUICommonDesigner : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")

public:
    /// Describes the widgets, but makes none.
    explicit TXGUICommonDesigner(QObject *parent = nullptr);

    /// In the order of the widget box; owned by the plug-in.
    [[nodiscard]] QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    void add(const QString &group, const QList<WidgetRow> &rows);

    QList<QDesignerCustomWidgetInterface *> widgets;
};
