#pragma once

#include "TXGUICommonExport.h"

#include <QDir>
#include <QHash>
#include <QString>

class IWidgetPlugin;

/// Loads the configuration pages that stand as plug-ins in a folder beside the program.
///
///     WidgetPluginManager manager;
///     manager.loadPlugins(QString());
///     for (IWidgetPlugin *plugin : manager.plugins()) {
///         tabs->addTab(plugin->createPage(tabs), plugin->pageTitle());
///     }
///
/// Nothing is reported: a file that is no plug-in, or one of another kind, is just not there
/// afterwards. (Set QT_DEBUG_PLUGINS=1 to see what Qt says of it.)
///
/// A plug-in that was loaded stays loaded and usable until the process ends, also when the manager
/// is gone: the table does not own its plug-ins. Loading runs code from the files, so scan only
/// folders whose writers may run code in the program.
///
/// Thread: the GUI thread; there is no lock.
class TXGUICOMMON_EXPORT WidgetPluginManager
{
public:
    /// An empty table; no folder is looked at.
    WidgetPluginManager();
    ~WidgetPluginManager();

    /// Loads every file of buildPluginDir() that is a plug-in and adds it to the table; folders in
    /// it are not entered. A plug-in takes the place of one with the same name, and since files
    /// come in no particular order, which of two namesakes in a folder is kept is not defined. A
    /// folder that is empty or missing adds nothing. Another call adds to the table. Blocks while
    /// libraries are loaded; costs time in proportion to the number of files.
    void loadPlugins(const QString &subFolder) const;

    /// All plug-ins by name. The reference holds as long as the manager.
    [[nodiscard]] const QHash<QString, IWidgetPlugin *> &plugins() const;

    /// The plug-in of that name, null when there is none.
    [[nodiscard]] IWidgetPlugin *plugin(const QString &name) const;

    /// The folder to scan: this one below the folder of the program, or ConfWidgets when the name
    /// is empty. It need not exist.
    [[nodiscard]] QDir buildPluginDir(const QString &subFolder) const;

    /// Loads one file without adding it to the table. Null when the file cannot be loaded or its
    /// object does not implement IWidgetPlugin. The same file gives the same plug-in each time.
    [[nodiscard]] IWidgetPlugin *loadPlugin(const QString &path) const;

private:
    // Filled by loadPlugins(), which leaves the manager as it is in the eyes of its users.
    mutable QHash<QString, IWidgetPlugin *> table;
};
