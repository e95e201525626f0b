#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

#include <optional>

class QUrl;

/// The share that the address of a network drive names, as the programs that connect it want it:
/// without user and password.
///
/// The first part of the address' path is the share, what follows is a folder in it; slashes before
/// the share do not count. The schemes "smb" and "afp" both mean a share of the SMB protocol, which
/// is all that is spoken here: the editor of a drive does not show its protocol, and gives "AFP" to
/// each one that is typed in.
struct TXCORECOMMON_PRIVATE_EXPORT NetworkShare
{
    /// Whether addresses of this scheme mean shares: "smb", "afp", and "", which is "smb". In lower
    /// case, as QUrl has it.
    [[nodiscard]] static bool isSpoken(const QString &scheme);

    /// Nothing when the address has no host or no share, the port 0, or a scheme that is not
    /// spoken. Nothing either when a part of the path is "..", which would lead out of the share,
    /// or holds a null character. Empty parts and "." do not count; user, password, query and
    /// fragment are left out.
    [[nodiscard]] static std::optional<NetworkShare> fromUrl(const QUrl &url);

    /// The share as a URL in its encoded form: "smb://nas.local:1445/pictures". The same share has
    /// the same location, as gvfs sees it: its name is folded to lower case, and the usual port 445
    /// is left out.
    QString location;

    /// The folder in the share, without slashes at its ends; empty for the share itself.
    QString folder;
};
