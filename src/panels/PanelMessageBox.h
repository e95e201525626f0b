#pragma once

#include "TXGUICommonExport.h"

class QString;
class QWidget;

/// The message boxes of the panels: the ones of QMessageBox with the button OK, but for two things.
///
/// The parent may be deleted while the box is open; then the box goes with it and the call returns.
/// After a call nothing of the caller may be touched unless it is guarded. And the text is shown as
/// it is, never as rich text, since a part of it may come from a server.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT PanelMessageBox
{
public:
    /// Returns when the user has closed the box, or when the parent is gone.
    static void information(QWidget *parent, const QString &title, const QString &text);

    /// Like information(), with the warning icon.
    static void warning(QWidget *parent, const QString &title, const QString &text);
};
