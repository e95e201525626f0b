#include "PageSettings.h"

#include <QSettings>

namespace {

QString groupOf(const QString &pluginName)
{
    return QStringLiteral("Gallery/Plugins/") + pluginName;
}

} // namespace

std::optional<QHash<QString, QVariant>> readPageSettings(const QString &pluginName)
{
    QSettings store;
    store.beginGroup(groupOf(pluginName));
    const QStringList keys = store.childKeys();
    if (keys.isEmpty()) {
        return std::nullopt;
    }
    QHash<QString, QVariant> settings;
    for (const QString &key : keys) {
        settings.insert(key, store.value(key));
    }
    return settings;
}

void writePageSettings(const QString &pluginName, const QHash<QString, QVariant> &settings)
{
    QSettings store;
    store.beginGroup(groupOf(pluginName));
    store.remove(QString());
    for (auto entry = settings.begin(); entry != settings.end(); ++entry) {
        store.setValue(entry.key(), entry.value());
    }
}
