#include "TXLogItem.h"

#include <QMutexLocker>

QSharedPointer<TXLogItem> TXLogItem::create(int level, const TXStringI18n &message,
                                            const QDateTime &date)
{
    const auto item = QSharedPointer<TXLogItem>::create();
    item->level = level;
    item->message = message;
    item->date = date;
    return item;
}

TXLogItem::~TXLogItem()
{
    for (const QSharedPointer<TXLogItem> &child : qAsConst(children)) {
        child->parent = nullptr;
    }
}

void TXLogItem::addChild(const QSharedPointer<TXLogItem> &child)
{
    if (!child || child->parent) {
        return;
    }
    child->parent = this;
    const QMutexLocker locker(&mutex);
    children.append(child);
}
