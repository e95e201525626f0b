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
    if (!child || child.data() == this || child->parent) {
        return;
    }
    const QMutexLocker locker(&mutex);
    child->parent = this;
    child->givenNumber.store(nextChildNumber++, std::memory_order_relaxed);
    children.append(child);
}

QSharedPointer<TXLogItem> TXLogItem::takeFirstChild()
{
    QSharedPointer<TXLogItem> first;
    {
        const QMutexLocker locker(&mutex);
        if (!children.isEmpty()) {
            first = children.takeFirst();
        }
    }
    if (first) {
        first->leaveTree();
    }
    return first;
}

void TXLogItem::removeAllChildren()
{
    QList<QSharedPointer<TXLogItem>> removed;
    {
        const QMutexLocker locker(&mutex);
        removed.swap(children);
    }
    for (const QSharedPointer<TXLogItem> &child : qAsConst(removed)) {
        child->leaveTree();
    }
}

int TXLogItem::depth() const
{
    int count = 0;
    for (const TXLogItem *above = parent; above; above = above->parent) {
        ++count;
    }
    return count;
}

qint64 TXLogItem::number()
{
    const qint64 known = givenNumber.load(std::memory_order_relaxed);
    if (known != kNoNumber || !parent) {
        return qMax<qint64>(known, 0);
    }
    // Only for an item that was put into `children` by hand.
    const QMutexLocker locker(&parent->mutex);
    if (givenNumber == kNoNumber) {
        givenNumber = parent->nextChildNumber++;
    }
    return givenNumber;
}

/// Marks all that goes, so that nobody has to look upwards later, where items may be gone by then.
void TXLogItem::leaveTree()
{
    QList<TXLogItem *> open = {this};
    while (!open.isEmpty()) {
        TXLogItem *item = open.takeLast();
        item->taken = true;
        const QMutexLocker locker(&item->mutex);
        for (const QSharedPointer<TXLogItem> &child : qAsConst(item->children)) {
            open.append(child.data());
        }
    }
}
