#pragma once

#include "TXLogItem.h"

#include <QList>

/// The entries that the benchmarks of the log write.
namespace LogEntries {

using Item = QSharedPointer<TXLogItem>;

/// One date for all, a millisecond apart: working out local dates would be most of what is
/// measured.
inline QDateTime date(int number)
{
    static const QDateTime start(QDate(2026, 1, 31), QTime(12, 0));
    return start.addMSecs(number);
}

/// An entry of alternating level with sub-items.
inline Item make(int number, int subItems)
{
    const Item item = TXLogItem::create(
        1 + number % 3, TXStringI18n::fromString(QStringLiteral("Profile %1 was read").arg(number)),
        date(number));
    for (int i = 0; i < subItems; ++i) {
        item->addChild(TXLogItem::create(
            1 + i % 3, TXStringI18n::fromString(QStringLiteral("Tag is missing")), item->date));
    }
    return item;
}

inline QList<Item> makeMany(int first, int count, int subItems)
{
    QList<Item> items;
    for (int i = 0; i < count; ++i) {
        items.append(make(first + i, subItems));
    }
    return items;
}

} // namespace LogEntries
