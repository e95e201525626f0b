#pragma once

#include <QList>

class QWidget;

/// Lets Tab go through these parts of a page one after the other. A part is a control, or a panel
/// whose controls keep their order among themselves. For parts that are not made in the order in
/// which they are read; all belong to one window, or to none yet.
///
/// Costs a walk over all widgets of the window for each part.
void setTabOrderOfParts(const QList<QWidget *> &parts);
