#pragma once

#include "TXGUICommonExport.h"

class QString;
class QWidget;

/// Opens the application's manual, a PDF, in the viewer that the system has for it.
///
/// Manuals stand in the folder "../Resources/Manual" seen from the program; `fileName` names one of
/// them, or one in a folder below ("fr/Manual.pdf"). "." and ".." in it are resolved, so a name
/// can lead out of that folder: do not take it from outside the application.
///
/// When there is no such file (a folder is none), or no viewer for it, the user is told so in a
/// warning box over `parent`, which may be null; the call then returns when the box is closed.
/// Otherwise it returns at once, without waiting for the viewer. Thread: the GUI thread.
TXGUICOMMON_EXPORT void TXDisplayAppManual(const QString &fileName, QWidget *parent);
