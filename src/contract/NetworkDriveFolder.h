#pragma once

#include "TXCoreCommonExport.h"

#include <QList>
#include <QString>

/// The user's folder "Network Drives", in which each connected drive is a link named for its
/// letter: "N" leads to the share of the drive N:/. What stands for drive letters on systems that
/// have none.
///
/// Looks at the links only, never at what they lead to, which may be a server that does not answer.
/// A link in place of the folder itself is not followed either: it counts as a folder that cannot
/// be written. The folder is made with the first link, for its user alone, and stays.
///
/// Thread: any. Of two processes that place the same letter, one is told that it is taken.
/// On systems that have drive letters there is no such folder: nothing is found and nothing placed.
class TXCORECOMMON_PRIVATE_EXPORT NetworkDriveFolder
{
public:
    /// "Network Drives" in the user's home folder.
    [[nodiscard]] static QString path();

    /// The letters whose entry is there, whatever it is and wherever it leads, in alphabetical
    /// order. An entry counts when its name is one letter in upper case.
    [[nodiscard]] static QList<QChar> letters();

    /// Where the link of the letter leads, as it was placed; empty when there is none, or when the
    /// entry is no link.
    [[nodiscard]] static QString target(QChar letter);

    /// Makes the link of the letter, in upper case. True also when it is there already and leads to
    /// this target. False when there is another entry of that name, when the folder cannot be
    /// written, or when the letter is none or the target is no path.
    [[nodiscard]] static bool place(QChar letter, const QString &target);

    /// Takes the link of the letter away if it leads to this target; leaves anything else alone.
    static void remove(QChar letter, const QString &target);
};
