#pragma once

#include "TXGUICommonExport.h"

#include <QString>
#include <QVariant>

/// The entries of a list or a dictionary, one after the other: those of a dictionary in the order
/// of their keys. The values are shared with the container, not copied; a dictionary that is not
/// sorted and a list of strings are converted once.
///
/// Thread: any; one object is for one thread.
class TXGUICOMMON_PRIVATE_EXPORT VariantEntries
{
public:
    /// No entries.
    VariantEntries() = default;

    /// The entries of `container`, none when it is neither a list nor a dictionary.
    explicit VariantEntries(const QVariant &container);

    /// True for a dictionary that holds something.
    [[nodiscard]] bool hasKeys() const { return !map.isEmpty(); }

    /// How many there are, with those that were read.
    [[nodiscard]] qsizetype count() const { return map.size() + list.size(); }

    /// How many were read.
    [[nodiscard]] qsizetype readCount() const { return read; }

    /// How many are still to be read.
    [[nodiscard]] qsizetype left() const { return count() - read; }

    /// The key of the next entry; only for a dictionary of which something is left.
    [[nodiscard]] const QString &key() const { return nextInMap.key(); }

    /// The next entry's value, after which the one behind it is the next; only while something is
    /// left.
    [[nodiscard]] QVariant takeValue();

private:
    QVariantMap map;
    QVariantMap::const_iterator nextInMap;
    QVariantList list;
    qsizetype read = 0;
};
