#include "Samples.h"

#include <ConfWidget.h>
#include <IWidgetPlugin.h>
#include <WidgetPluginManager.h>

#include <QSettings>
#include <QTabWidget>

//! [pages]
void addPluginPages(const WidgetPluginManager &manager, QTabWidget *tabs)
{
    manager.loadPlugins(QString());
    const QSettings settings;
    for (IWidgetPlugin *plugin : manager.plugins()) {
        ConfWidget *page = plugin->createPage(tabs);
        page->setObjectName(plugin->pluginName());
        page->load(settings.value("Plugins/" + plugin->pluginName()).toHash());
        tabs->addTab(page, plugin->pageTitle());
    }
}

void savePluginPages(const QTabWidget &tabs)
{
    QSettings settings;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (auto *page = qobject_cast<ConfWidget *>(tabs.widget(tab))) {
            settings.setValue("Plugins/" + page->objectName(), page->save());
        }
    }
}
//! [pages]
