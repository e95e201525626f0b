#pragma once

#include "TXGUICommonExport.h"

class QWidget;
class TXError;

/// @file
/// The way in which an error reaches the user. Both functions run a nested event loop until the
/// user has closed the box; what was answered is not told. An error that is not valid, or has no
/// text to show, is not shown. Thread: the GUI thread.

/// What kind of box shows the error. The numbers are part of the interface.
enum ErroMessageBoxType : int {
    /// Something worth knowing.
    ErroMessageBoxInformation = 0,
    /// Something that sounds like a question; the short box then has the buttons Yes and No.
    ErroMessageBoxQuestion = 1,
    /// Something that went wrong, and work goes on.
    ErroMessageBoxWarning = 2,
    /// Something that could not be done.
    ErroMessageBoxCritical = 3,
};

/// Shows the error in short, in a box over the parent: its description, then one line for each of
/// its nested errors; without a description of its own only the first nested error.
///
/// The title is the text under "MessageBoxTitle" in the error's `userInfo`, else the error's
/// domain. A type other than the four shows nothing. The parent may be null.
TXGUICOMMON_EXPORT void TXDisplayErrorMessageBox(const TXError &error, ErroMessageBoxType type,
                                                 QWidget *parent);

/// Shows the error's description, with everything else that the error tells as details that the
/// user can unfold. Nothing is shown without a description.
///
/// The box has one button, Ok, whatever the type, no title of its own, and is wide enough that
/// neither the description nor a line of the details is wrapped, as far as the screen allows. A
/// type other than the four gives a box without an icon. The parent is ignored: the box stands on
/// its own. Details that would only repeat the description are not offered.
TXGUICOMMON_EXPORT void TXDisplayCompletErrorMessageBox(const TXError &error,
                                                        ErroMessageBoxType type, QWidget *parent);
