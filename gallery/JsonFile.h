#pragma once

#include "JsonText.h"

#include <QString>

/// Reads a JSON file, with the limits of readJsonText(). What cannot be read, or is no file at all,
/// such as a folder, a pipe or a device, gives an error as well; nothing blocks.
[[nodiscard]] JsonReading readJsonFile(const QString &path);
