#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// The file name of an installer, out of what the update service sent for it.
///
/// The service is not trusted to name places: a file of this name, in a folder of the user's, is a
/// file of that folder on every platform, or one that cannot be opened there. The rules are the
/// same on all of them, so that a release is downloadable everywhere or nowhere. Nothing here keeps
/// state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT InstallerName
{
public:
    InstallerName() = delete;

    /// The last component of the path, whichever kind of slash it uses, unchanged. Its length is
    /// not looked at. Empty for a component that is no file of its own:
    /// - an empty one, and one of dots and blanks alone, as ".." and ".. ";
    /// - one with a control character, at which some systems cut a name off;
    /// - one with a colon, which names a drive ("C:a.exe") or a part of another file ("a.exe:b");
    /// - a name of a device, in any case and with any suffix ("NUL", "com1.exe").
    [[nodiscard]] static QString in(const QString &path);
};
