#pragma once

class QPalette;
class QWidget;

/// What is done to widgets that may stand out of view by the thousand.
///
/// A widget that is shown, or gets another palette, asks to be painted, in view or not, and Qt
/// compares each that has asked with all of its siblings: time with the square of their number.
/// These functions let only those ask that can be seen. The others need not: what comes into view
/// later is painted whole.
///
/// Thread: the GUI thread.
namespace OutOfView {

/// Shows a new child of a widget below all that its parent shows, until a layout moves it into
/// view. A native widget is shown like any other, with the cost told above.
void show(QWidget &widget);

/// Gives the widget a palette, which all within it take over. Costs in proportion to their number.
void setPalette(QWidget &widget, const QPalette &palette);

} // namespace OutOfView
