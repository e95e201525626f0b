#pragma once

#include <QFileInfo>
#include <QPluginLoader>
#include <QTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// The plug-in as Qt Designer finds it: its file in the build.
namespace PluginUnderTest {

/// The folder that a program adds to its plug-in paths.
inline QString folder()
{
    return QFileInfo(QStringLiteral(TX_DESIGNER_PLUGIN)).path();
}

/// What the plug-in tells of the widgets; empty when it cannot be loaded. Owned by the plug-in.
inline QList<QDesignerCustomWidgetInterface *> widgets()
{
    QPluginLoader loader(QStringLiteral(TX_DESIGNER_PLUGIN));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

/// The widget of the class; null when there is none.
inline QDesignerCustomWidgetInterface *widgetOf(const QString &className)
{
    const auto all = widgets();
    for (QDesignerCustomWidgetInterface *widget : all) {
        if (widget->name() == className) {
            return widget;
        }
    }
    return nullptr;
}

/// A row of test data for each widget, with its class name in the column "className".
inline void addRows()
{
    QTest::addColumn<QString>("className");
    const auto all = widgets();
    QVERIFY(!all.isEmpty());
    for (const QDesignerCustomWidgetInterface *widget : all) {
        QTest::newRow(qPrintable(widget->name())) << widget->name();
    }
}

} // namespace PluginUnderTest
