#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

/// @file
/// Settings of configuration pages in the application's default QSettings, under
/// "Gallery/Plugins/<name of the plug-in>/".

/// The settings that are kept for the plug-in; nothing when there are none. Numbers may come back
/// as texts, as the format of the settings has it.
[[nodiscard]] std::optional<QHash<QString, QVariant>> readPageSettings(const QString &pluginName);

/// Keeps the settings in place of those that were kept before.
void writePageSettings(const QString &pluginName, const QHash<QString, QVariant> &settings);
