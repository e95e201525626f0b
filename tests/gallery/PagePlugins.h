#pragma once

#include "ConfWidget.h"
#include "IWidgetPlugin.h"
#include "WidgetPluginManager.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>

/// Where the gallery's plug-ins lie, from the folder of a test.
inline QString pagePluginsFolder()
{
    return QStringLiteral("../gallery/bin/ConfWidgets");
}

using PageSettingsHash = QHash<QString, QVariant>;
Q_DECLARE_METATYPE(PageSettingsHash)

/// The plug-in of this name, loaded from its file, or null.
inline IWidgetPlugin *loadPagePlugin(const QString &name)
{
    const WidgetPluginManager manager;
    manager.loadPlugins(pagePluginsFolder());
    return manager.plugin(name);
}

/// A new page of the plug-in, or null.
inline std::unique_ptr<ConfWidget> makePluginPage(const QString &name)
{
    IWidgetPlugin *plugin = loadPagePlugin(name);
    return std::unique_ptr<ConfWidget>(plugin ? plugin->createPage(nullptr) : nullptr);
}
