#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

/// Small helpers for files. Thread: any.
class TXCORECOMMON_EXPORT FilePathUtilities
{
public:
    FilePathUtilities() = delete;

    /// Deletes a file, or a symbolic link to a file or to nothing. True when it is gone. A folder,
    /// a link to one, a path at which there is nothing and an empty path give false, and nothing is
    /// deleted.
    static bool remove(const QString &path);
};
