#pragma once

#include "TXGUICommonExport.h"

#include <QString>

class QVariant;

/// What a user can take out of a viewer of a value.
///
/// Thread: the GUI thread.
namespace VariantCopyAction {

/// What the action is called for this value, in the language of the moment.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString text(const QVariant &value);

/// Puts the value on the clipboard as text: lists, dictionaries, true, false and null as JSON on
/// one line, all else as its toString(), which is empty for types without a text. True when that is
/// done.
///
/// What is nested deeper than TXJSONSerializer::kDeepestNesting leaves the clipboard as it is; then
/// the result is false.
TXGUICOMMON_PRIVATE_EXPORT bool copy(const QVariant &value);

} // namespace VariantCopyAction
