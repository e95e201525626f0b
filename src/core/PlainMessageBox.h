#pragma once

#include "TXGUICommonExport.h"

class QString;
class QWidget;

/// The message boxes that show text from outside, from a server or a file: those of QMessageBox but
/// for two things.
///
/// The text is shown as it is, never as rich text. And the parent may be deleted while the box is
/// open; then the box goes with it and the call returns. After a call nothing of the caller may be
/// touched unless it is guarded.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT PlainMessageBox
{
public:
    /// Shows the button OK. Returns when the user has closed the box, or when the parent is gone.
    static void information(QWidget *parent, const QString &title, const QString &text);

    /// Like information(), with the warning icon.
    static void warning(QWidget *parent, const QString &title, const QString &text);

    /// Asks a question with the warning icon and the buttons Yes and No, none of them the default
    /// one, and without a parent. True for Yes, false for any other end.
    [[nodiscard]] static bool confirm(const QString &title, const QString &text);
};
