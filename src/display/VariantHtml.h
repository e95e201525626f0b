#pragma once

#include "TXGUICommonExport.h"

#include <QString>

class QVariant;

/// Values as coloured text in HTML.
///
/// Thread: any.
namespace VariantHtml {

/// The text of the value. A list or a dictionary shows what it holds, or without `preview` what
/// QVariant::toString() makes of it: nothing, and of a list of one string the string. One buffer,
/// time in proportion to the text; the depth costs no stack.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString fromVariant(const QVariant &value, bool preview);

/// The line of a viewer: puts `html`, as fromVariant() makes it, between the tags that make it
/// monospaced. It is taken as it stands, nothing in it is escaped.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString line(const QString &html);

/// The name of an entry with a colon behind it, monospaced. `key` is plain text: what would be
/// markup in it is escaped.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString key(const QString &key);

} // namespace VariantHtml
