#pragma once

#include "TXGUICommonExport.h"

#include <QLine>

class QModelIndex;
class QPainter;
class QRect;
class QStyleOptionViewItem;

/// What the delegates that draw separator rows share: which row is one, and where its line stands.
///
/// Thread: the GUI thread.
namespace SeparatorLine {

/// Whether the row's text under Qt::AccessibleDescriptionRole is "separator", in these very
/// letters, as QComboBox::insertSeparator() makes it. An index without a model is no separator.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT bool isSeparator(const QModelIndex &index);

/// The line from the left to the right edge of the item: at its middle for the position 0, rounded
/// towards 0, at its top for 1, at its bottom for 2, and at y 0 for all others.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QLine lineAt(int linePosition, const QRect &item);

/// Draws lineAt() over the item in the active QPalette::Dark of the option's palette, whichever its
/// present group. The painter keeps its pen.
TXGUICOMMON_PRIVATE_EXPORT void draw(QPainter &painter, const QStyleOptionViewItem &option,
                                     int linePosition);

} // namespace SeparatorLine
