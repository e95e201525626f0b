#pragma once

class QWidget;

/// Puts a widget, a child of the same parent, into the place of another one in the parent's layout,
/// and deletes the other. In the tab order its controls come where those of the other were, in
/// front of `next`; some control of the window has to be in front of them.
void replaceWidget(QWidget *old, QWidget *replacement, QWidget *next);
