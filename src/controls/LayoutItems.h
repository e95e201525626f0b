#pragma once

#include "TXGUICommonExport.h"

class QLayoutItem;
class QObject;

/// What our layouts ask of an item before they take it.
namespace LayoutItems {

/// True when the place is the object itself or lies below it, over the borders of windows too.
/// False for a null object.
[[nodiscard]] bool isInside(const QObject *place, const QObject *object);

/// True when a layout that is `place` can take the item and own it: it has a widget if it is the
/// kind that must have one, a layout has no parent yet, and neither it nor anything in it holds the
/// place. False for null. Costs one step for each item in nested layouts.
[[nodiscard]] bool fitInto(const QObject *place, QLayoutItem *item);

} // namespace LayoutItems
