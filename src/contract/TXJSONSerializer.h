#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QVariant>

/// Variants to JSON text and back.
///
/// Thread: both functions may be called from any thread.
class TXCORECOMMON_EXPORT TXJSONSerializer
{
public:
    /// The deepest nesting of objects and arrays, in both directions.
    static constexpr int kDeepestNesting = 1024;

    TXJSONSerializer() = delete;

    /// The value as JSON text in UTF-8, on one line or, when `indented`, over several.
    ///
    /// - Dictionaries (hash or map with string keys) become objects with their keys in order, lists
    ///   become arrays. Any other value may stand at the top level too.
    /// - Integers of all sizes are written exactly. Numbers that are not finite become null, as do
    ///   an invalid variant and types that have no text.
    /// - Strings are escaped; a byte array is text in UTF-8, in which other bytes are replaced.
    ///   Types that convert to a string, such as dates and URLs, become that string.
    ///
    /// A value nested deeper than kDeepestNesting gives an empty byte array.
    static QByteArray serialize(const QVariant &value, bool indented);

    /// The value of a JSON text.
    ///
    /// - An object becomes a QVariantHash, an array a QVariantList, at every depth. Of a key that
    ///   stands twice the last one counts.
    /// - A number without a fraction becomes a `qlonglong`, past its range a `qulonglong`; all
    ///   others become a `double`. 1.0 has no fraction: it becomes the integer 1.
    /// - null becomes QVariant::fromValue(nullptr), which is valid.
    ///
    /// Text that is not JSON (empty, cut off, not UTF-8, nested deeper than kDeepestNesting) gives
    /// an invalid variant.
    static QVariant deserialize(const QByteArray &json);
};
