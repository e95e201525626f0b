#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// Small helpers for files.
class TXCORECOMMON_EXPORT FilePathUtilities
{
public:
    FilePathUtilities() = delete;

    /// Deletes a file, or a symbolic link to one. True when it is gone. A folder, a path at which
    /// there is nothing and an empty path give false and nothing is deleted.
    static bool remove(const QString &path);
};
