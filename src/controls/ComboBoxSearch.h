#pragma once

#include "TXGUICommonExport.h"

class QComboBox;
class QVariant;

/// Looks for an item of a combo box by its value.
namespace ComboBoxSearch {

/// The first row with this value under Qt::UserRole, -1 when there is none. Values are equal as
/// QVariant sees it, texts letter for letter. Separators are no items, so an invalid value finds an
/// item without a value only. Reads the value of each row up to the one that it finds; rows behind
/// an ExtraItemProxyComboModel are read at their source.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT int rowOf(const QVariant &value, const QComboBox &box);

} // namespace ComboBoxSearch
