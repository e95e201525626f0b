#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// @file
/// What the library asks about the application that runs it. Thread: any, once the host has set its
/// names.

/// The name of the running application as the user reads it: QGuiApplication's display name, or the
/// application name where none is set. Empty when neither is set; needs no application object.
TXCORECOMMON_EXPORT QString currentApplicationDisplayName();

/// The code of the host product, 0 until the host has set one. Defaults, such as the port of the
/// web interface, depend on it.
TXCORECOMMON_EXPORT int baseProd();

/// Sets the code of the host product. A host calls it once, before it makes any panel.
TXCORECOMMON_EXPORT void setBaseProd(int code);
