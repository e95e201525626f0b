#pragma once

#include "TXGUICommonExport.h"

class QString;

/// The desktop's file manager.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT GraphicalShell
{
public:
    GraphicalShell() = delete;

    /// Opens a folder, or the folder of a file with the file selected. Does not wait for the
    /// program that does it; tells whether it was started, or asked.
    ///
    /// On Windows that is the Explorer. Elsewhere it is the file manager that serves the desktop on
    /// the message bus of the session. Where there is none, or no bus, or the bus is silent, or the
    /// file manager answers with an error later, the program "xdg-open" opens the folder without
    /// selecting anything. A relative path counts from the current folder. False there for an empty
    /// path, for one with a NUL, and when there is neither.
    ///
    /// A bus that is well is asked in milliseconds, at each call anew. For one that is silent the
    /// first call blocks for a second. Those after it do not wait, but use the bus again once it
    /// has found its voice.
    static bool show(const QString &path);
};
