#pragma once

#include "TXGUICommonExport.h"

#include <QString>

class QDialog;
class QLineEdit;

/// What the dialogs around the lock of the user interface have in common. Holds no state; the GUI
/// thread.
class TXGUICOMMON_PRIVATE_EXPORT LockerDialogs
{
public:
    /// The result of a dialog that was cancelled, by its button, by Escape or by the window system.
    static constexpr int kCancelled = -1;
    /// The result of a password dialog whose password is to be taken over.
    static constexpr int kApplied = 1;

    /// The password as it is stored: the 32 lower-case hexadecimal digits of the MD5 digest of its
    /// UTF-8 bytes, or the password itself.
    static QString storedForm(const QString &password, bool useHash);

    /// Whether the password can be applied: entered twice alike, and not empty.
    static bool isEnteredTwice(const QLineEdit &first, const QLineEdit &second);

    /// Gives the dialog a title bar without a close button. To be called before its form is built.
    static void setUpWindow(QDialog &dialog);

    /// Fixes the size of a dialog with a finished form: its minimum width, and the height that it
    /// needs.
    static void fixSize(QDialog &dialog);
};
