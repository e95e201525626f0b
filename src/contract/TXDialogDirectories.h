#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// @file
/// The folders in which file dialogs open, remembered under a name of the caller's in the default
/// QSettings, group "OpenDialogDirectories". The host sets the organisation and application names
/// first. Thread: any.

/// The folder in which a dialog can open: the remembered folder, that of a remembered file, or the
/// nearest folder above it that still exists. Empty when nothing usable is remembered.
TXCORECOMMON_EXPORT QString getOpenDialogDirectoryForKey(const QString &key);

/// Remembers the path of a folder or of a file; it need not exist. A relative path is taken from
/// the current folder. An empty path makes the key forgotten. The key may hold any characters; an
/// empty key is ignored.
TXCORECOMMON_EXPORT void saveOpenDialogDirectoryForKey(const QString &key, const QString &path);
