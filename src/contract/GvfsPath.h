#pragma once

#include "TXCoreCommonExport.h"

#include <QString>
#include <QStringList>

#include <optional>

struct ProgramResult;

/// A path in the folder in which gvfs shows the connected shares:
/// "/run/user/1000/gvfs/smb-share:server=nas,share=pictures/2026".
///
/// That folder is a file system of another process, which may hang, and with it whoever looks into
/// it. So nothing here does: the program "ls" is to be asked, which can be killed.
///
/// Thread: any.
struct TXCORECOMMON_PRIVATE_EXPORT GvfsPath
{
    /// Whether a share is connected, as far as can be seen.
    enum class Standing {
        Connected, ///< its name is in the folder
        Gone, ///< it is not there, or the folder cannot be read
        Unknown, ///< the folder does not answer, or nobody could be asked
    };

    /// Nothing for a path that leads elsewhere.
    [[nodiscard]] static std::optional<GvfsPath> of(const QString &path);

    /// The folder of all shares, without a slash at its end.
    QString folder;
    /// The name of the share in it.
    QString share;

    /// What "ls" is to be called with. It reads the names in the folder and never looks at the
    /// shares themselves, whose servers may be mute.
    [[nodiscard]] QStringList listArguments() const;

    /// What this run of "ls" says of the share. Costs one pass over the names.
    [[nodiscard]] Standing standing(const ProgramResult &listed) const;
};
