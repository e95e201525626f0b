#pragma once

#include <QVariantMap>

class QSettings;

/// The settings in force as one value: each group is a map, and holds its keys and further groups.
///
/// Values stay as they are stored, but for byte arrays that are no printable text, which are shown
/// as hexadecimal digits. Where a key has a group's name too, the group stands under the name with
/// a slash, as in "Folder" and "Folder/". The settings are left at the group at which they stand,
/// and that group is where the reading begins.
[[nodiscard]] QVariantMap settingsValue(QSettings &settings);
