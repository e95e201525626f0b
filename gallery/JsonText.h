#pragma once

#include "TXStringI18n.h"

#include <QVariant>

class QByteArray;

/// The value that was read from a text, or why there is none.
struct JsonReading
{
    /// Valid exactly when there is no error; JSON's null is valid.
    QVariant value;
    /// A sentence for the user, to stand behind one that names the text; empty for a good one.
    TXStringI18n error;
};

/// The most bytes that a text may have.
inline constexpr qint64 kLargestJsonBytes = 64LL * 1024 * 1024;

/// The most values that a text may hold, lists and objects counted. More would take gigabytes of
/// memory to show in one line.
inline constexpr qsizetype kMostJsonValues = 1'000'000;

/// Reads a JSON text through TXJSONSerializer. The error for what is no JSON names the line.
///
/// Costs time in proportion to the text; memory only as far as the limits above allow.
[[nodiscard]] JsonReading readJsonText(const QByteArray &text);
