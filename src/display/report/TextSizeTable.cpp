#include "TextSizeTable.h"

#include <QHashFunctions>

#include <algorithm>

namespace {

constexpr size_t kFewestSlots = 64;

} // namespace

size_t TextSizeTable::hash(QStringView text)
{
    // With the seed of this process, so that no report can be made to have texts of one hash.
    return qHash(text, size_t(QHashSeed::globalSeed()));
}

bool TextSizeTable::isOf(const Entry &entry, QStringView text, quint32 hash) const
{
    return entry.hash == hash
        && QStringView(characters.data() + entry.start, qsizetype(entry.length)) == text;
}

const QSizeF *TextSizeTable::find(QStringView text, size_t hash) const
{
    if (slotsByHash.empty()) {
        return nullptr;
    }
    const auto shortHash = quint32(hash);
    const size_t mask = slotsByHash.size() - 1;
    for (size_t slot = shortHash & mask; slotsByHash[slot] != 0; slot = (slot + 1) & mask) {
        const Entry &entry = entries[slotsByHash[slot] - 1];
        if (isOf(entry, text, shortHash)) {
            return &entry.size;
        }
    }
    return nullptr;
}

void TextSizeTable::add(QStringView text, size_t hash, const QSizeF &size)
{
    entries.push_back({size, quint32(hash), quint32(text.size()), characters.size()});
    characters.append(text.utf16(), size_t(text.size()));
    if (2 * entries.size() > slotsByHash.size()) {
        grow();
    } else {
        occupySlot(quint32(entries.size()) - 1);
    }
}

void TextSizeTable::grow()
{
    const size_t count = std::max(kFewestSlots, 2 * slotsByHash.size());
    slotsByHash.assign(count, 0);
    for (quint32 entry = 0; entry < entries.size(); ++entry) {
        occupySlot(entry);
    }
}

void TextSizeTable::occupySlot(quint32 entry)
{
    const size_t mask = slotsByHash.size() - 1;
    size_t slot = entries[entry].hash & mask;
    while (slotsByHash[slot] != 0) {
        slot = (slot + 1) & mask;
    }
    slotsByHash[slot] = entry + 1;
}

void TextSizeTable::clear()
{
    *this = TextSizeTable();
}
