#pragma once

#include "TXCoreCommonExport.h"

/// Whether this system has what connects network drives. Where it never has, the application's log
/// says so at each call; a program that is only not installed is told when it is needed.
[[nodiscard]] TXCORECOMMON_PRIVATE_EXPORT bool canConnectNetworkDrives();
