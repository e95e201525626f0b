#pragma once

#include "TXGUICommonExport.h"

#include <QSizeF>
#include <QStringView>

#include <string>
#include <vector>

/// Texts with their sizes, kept in few large pieces of memory.
///
/// A report asks for tens of thousands of short texts, mostly in the order in which they came
/// first. A table of strings of their own would wait for memory at each; here texts that came after
/// one another lie after one another. Adding a text costs no allocation of its own.
class TXGUICOMMON_PRIVATE_EXPORT TextSizeTable
{
public:
    /// What the other functions want to have along with the text, so that it is computed once.
    [[nodiscard]] static size_t hash(QStringView text);

    /// The size that was added for the text; null if none was. Valid until the table changes.
    [[nodiscard]] const QSizeF *find(QStringView text, size_t hash) const;

    /// Adds a text that is not there yet. Its characters are copied.
    void add(QStringView text, size_t hash, const QSizeF &size);

    /// Lets go of all texts and their memory.
    void clear();

    /// The number of texts.
    [[nodiscard]] qsizetype count() const { return qsizetype(entries.size()); }

private:
    struct Entry
    {
        QSizeF size;
        quint32 hash;
        quint32 length;
        size_t start;
    };

    [[nodiscard]] bool isOf(const Entry &entry, QStringView text, quint32 hash) const;
    void grow();
    void occupySlot(quint32 entry);

    std::u16string characters;
    std::vector<Entry> entries;
    /// The number of an entry plus 1, or 0. Their count is a power of two, at most half of them
    /// are occupied, and an entry stands in the first free one from the place its hash names.
    std::vector<quint32> slotsByHash;
};
