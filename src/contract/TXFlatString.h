#pragma once

#include "TXCoreCommonExport.h"

#include <QString>
#include <QStringList>

#include <optional>

/// A list of strings in one line of printable ASCII, guarded by a checksum, so that it can lie in
/// a file among ordinary texts and be told from them.
class TXCORECOMMON_PRIVATE_EXPORT TXFlatString
{
public:
    /// The fields in one line. Any characters may stand in them, unpaired surrogates too.
    static QString join(const QStringList &fields);

    /// The fields again, or nothing when the text is not exactly what join() once returned. A text
    /// without the mark costs a comparison of the first characters.
    static std::optional<QStringList> split(const QString &text);
};
