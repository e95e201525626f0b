#pragma once

#include "TXLogManager.h"

#include <QAbstractItemModel>
#include <QStringList>

/// Shorthands for tests that fill a log by hand.
namespace LogTest {

using Item = QSharedPointer<TXLogItem>;

inline Item makeItem(const QString &text, int level = TXLogItem::Information)
{
    return TXLogItem::create(level, TXStringI18n::fromString(text),
                             QDateTime(QDate(2026, 1, 31), QTime(12, 0)));
}

/// An item with sub-items named "text/0", "text/1" and so on.
inline Item makeItemWithChildren(const QString &text, int count, int level = TXLogItem::Information)
{
    const Item item = makeItem(text, level);
    for (int i = 0; i < count; ++i) {
        item->addChild(makeItem(QStringLiteral("%1/%2").arg(text).arg(i), level));
    }
    return item;
}

inline void append(TXLogManager &manager, const Item &item, const Item &parent = {})
{
    manager.append(item, parent);
    manager.flush();
}

/// The messages below an index, indented by a dot for each level, in row order.
inline QStringList shownTexts(const QAbstractItemModel &model, const QModelIndex &parent = {},
                              const QString &indent = {})
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        texts.append(indent + index.siblingAtColumn(1).data().toString());
        texts.append(shownTexts(model, index, indent + u'.'));
    }
    return texts;
}

} // namespace LogTest
