#pragma once

#include "TXGUICommonExport.h"

#include <QString>

class QVariant;

/// Values as text without any markup, for those who hear it.
///
/// Thread: any.
namespace VariantPlainText {

/// The most characters that a text has, the mark of what was cut off left aside.
constexpr qsizetype kMostCharacters = 1000;

/// The text of a value in the words and in the order in which a viewer shows it on one line. With
/// more than kMostCharacters it is cut there and ends in an ellipsis.
///
/// Costs as much as the text that is kept, at any size of the value; of a hash the keys are sorted,
/// and lists of strings are copied.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString fromVariant(const QVariant &value);

} // namespace VariantPlainText
