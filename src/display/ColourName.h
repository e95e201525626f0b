#pragma once

#include "TXGUICommonExport.h"

class QColor;
class QString;

/// How colours are named where they are told in words.
namespace ColourName {

/// "#rrggbb", or "#aarrggbb" of a colour that is not opaque; small letters. An invalid colour is
/// "#000000". QColor reads all of these.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString of(const QColor &colour);

} // namespace ColourName
