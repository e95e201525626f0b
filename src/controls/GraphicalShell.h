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
    /// program that does it; tells whether it was started.
    static bool show(const QString &path);
};
