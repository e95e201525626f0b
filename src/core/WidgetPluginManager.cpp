#include "WidgetPluginManager.h"

#include "IWidgetPlugin.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPluginLoader>

namespace {

bool isEmptyFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() == 0;
}

} // namespace

WidgetPluginManager::WidgetPluginManager() = default;
WidgetPluginManager::~WidgetPluginManager() = default;

void WidgetPluginManager::loadPlugins(const QString &subFolder) const
{
    const QDir folder = buildPluginDir(subFolder);
    const QStringList files = folder.entryList(QDir::Files, QDir::NoSort);
    for (const QString &file : files) {
        if (IWidgetPlugin *found = loadPlugin(folder.absoluteFilePath(file))) {
            table.insert(found->pluginName(), found);
        }
    }
}

const QHash<QString, IWidgetPlugin *> &WidgetPluginManager::plugins() const
{
    return table;
}

IWidgetPlugin *WidgetPluginManager::plugin(const QString &name) const
{
    return table.value(name);
}

QDir WidgetPluginManager::buildPluginDir(const QString &subFolder) const
{
    const QString program = QCoreApplication::applicationDirPath();
    return subFolder.isEmpty() ? QDir(program + QStringLiteral("/ConfWidgets/"))
                               : QDir(program + u'/' + subFolder);
}

IWidgetPlugin *WidgetPluginManager::loadPlugin(const QString &path) const
{
    // Qt would print a warning.
    if (isEmptyFile(path)) {
        return nullptr;
    }
    // Never unloaded: hosts keep what they got from a plug-in.
    QPluginLoader loader(path);
    return qobject_cast<IWidgetPlugin *>(loader.instance());
}
