#pragma once

#include "TXGUICommonExport.h"

class QPainter;
class QRect;
class QWidget;

/// The frame that shows a keyboard user where the focus is, on widgets that paint themselves.
///
/// Thread: the GUI thread.
namespace FocusFrame {

/// True when the widget has the focus and its window has been worked with by the keyboard: the
/// focus was moved there by Tab, Backtab or a shortcut at least once. It stays wanted after clicks
/// from then on, as Qt's own controls have it.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT bool isWanted(const QWidget &widget);

/// Draws the frame along the inside of the area's edge when it is wanted, two pixels wide: a line
/// in the Highlight of the widget's palette, and inside it one in its Window, so that it stands out
/// from whatever colour the widget shows. What is further inside stays as it is. The painter may be
/// scaled or clipped; it is left as it was.
TXGUICOMMON_PRIVATE_EXPORT void paint(QPainter &painter, const QWidget &widget, const QRect &area);

} // namespace FocusFrame
