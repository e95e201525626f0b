#pragma once

#include "TXGUICommonExport.h"

class QModelIndex;
class QPainter;
class QStyleOptionViewItem;

/// The pen and the brush of a cell that stands on no ground of its own.
///
/// Thread: the GUI thread.
namespace ItemInk {

/// Gives the painter a solid pen, one device pixel wide, of QPalette::WindowText in the present
/// group of the option's palette, and as its brush what stands under Qt::ForegroundRole: a QBrush,
/// or what converts to one, such as a colour. Without any the brush is Qt::NoBrush.
TXGUICOMMON_PRIVATE_EXPORT void apply(QPainter &painter, const QStyleOptionViewItem &option,
                                      const QModelIndex &index);

} // namespace ItemInk
