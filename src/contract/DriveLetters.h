#pragma once

#include "TXCoreCommonExport.h"

#include <QString>
#include <QStringList>

/// Which drive letters there are and which are taken, as far as network drives are concerned.
///
/// On Windows these are the letters of the system. Elsewhere there are none: there a letter is the
/// name of a link in the user's folder "Network Drives", which leads to the share of a connected
/// drive, and it is in use while such an entry stands in that folder.
///
/// Thread: any.
class TXCORECOMMON_EXPORT DriveLetters
{
public:
    /// The letters in use, each with ":/" behind it ("C:/"), in alphabetical order. Reads one
    /// folder; never looks at a drive, so never waits for a server. Empty when the folder cannot be
    /// read.
    [[nodiscard]] static QStringList inUse();

    /// The letter of a mount point, in upper case: 'N' for "N:/", "n:" and "n". Null for any other
    /// text; letters of other scripts are none.
    [[nodiscard]] static QChar letterOf(const QString &mountPoint);

    /// The mount point of a letter: "N:/" for 'N' and 'n'. Empty for what is no letter.
    [[nodiscard]] static QString mountPoint(QChar letter);
};
