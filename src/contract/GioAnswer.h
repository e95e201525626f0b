#pragma once

#include "NetworkCredentials.h"
#include "ProgramRun.h"
#include "TXCoreCommonExport.h"

#include <QString>

/// What a run of the gio program has to say about a share.
struct TXCORECOMMON_PRIVATE_EXPORT GioAnswer
{
    ProgramResult result;
    /// The share that gio was asked about.
    QString location;

    /// After "gio mount": whether the share is connected now, by this run or before.
    [[nodiscard]] bool isMounted() const;
    /// After "gio mount": whether the share was connected before, by whomever and as whomever.
    [[nodiscard]] bool wasMounted() const;
    /// After "gio mount": whether the server has answered and does not want this log-in.
    [[nodiscard]] bool isRefused() const;
    /// After "gio mount -u": whether the share is not connected any more.
    [[nodiscard]] bool isUnmounted() const;
    /// After "gio info": where the share is found among the files; empty when it is not.
    [[nodiscard]] QString localPath() const;
    /// Why it went wrong, in words, without a full stop. Words of gio that hold the user's name or
    /// the password are left out.
    [[nodiscard]] QString reason(const NetworkCredentials &credentials) const;
};
