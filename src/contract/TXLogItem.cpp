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
    const QMutexLocker locker(&mutex);
    if (children.isEmpty()) {
        return {};
    }
    children.first()->taken = true;
    return children.takeFirst();
}

void TXLogItem::removeAllChildren()
{
    QList<QSharedPointer<TXLogItem>> removed;
    {
        const QMutexLocker locker(&mutex);
        removed.swap(children);
    }
    for (const QSharedPointer<TXLogItem> &child : qAsConst(removed)) {
        child->taken = true;
    }
}

bool TXLogItem::isInTree() const
{
    for (const TXLogItem *item = this; item; item = item->parent) {
        if (item->taken) {
            return false;
        }
    }
    return true;
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
