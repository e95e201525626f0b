#pragma once

#include "TXCoreCommonExport.h"
#include "TXStringI18n.h"

#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QRecursiveMutex>
#include <QSharedPointer>

/// One node of the log tree: a dated message of a level, with sub-items.
///
/// Items are made by TXLogManager::append() or by create(), and are always held by QSharedPointer.
/// A node's children are its own; a child knows its parent by a raw pointer.
///
/// Thread: an item may be made, read and destroyed on any thread. `message`, `level` and `date` are
/// written before the item enters the tree and only read afterwards. `children` is guarded by
/// `mutex`; take it for one access at a time, never while calling into another item. `parent` is
/// written by the thread that links the item.
class TXCORECOMMON_EXPORT TXLogItem : public QObject
{
    Q_OBJECT

public:
    /// What the numbers in `level` mean. Any other number reads as information.
    enum Level { Information = 1, Warning = 2, Error = 3 };

    /// Makes an item outside any tree, to be filled with addChild() and handed to
    /// TXLogManager::append(). An invalid date is kept as it is.
    static QSharedPointer<TXLogItem> create(int level, const TXStringI18n &message,
                                            const QDateTime &date = QDateTime::currentDateTime());

    /// An empty item; the root of a log tree is one. Hosts use create().
    TXLogItem() = default;

    /// Lets the children go. A child that somebody else still holds has no parent from then on.
    ~TXLogItem() override;

    /// Links a child as the last one. For items that are not in a tree yet: nothing is signalled.
    /// A null child, or one that already has a parent, is ignored.
    void addChild(const QSharedPointer<TXLogItem> &child);

    /// Guards `children`.
    mutable QRecursiveMutex mutex;
    /// The text, translated when it is shown.
    TXStringI18n message;
    /// A Level, or any other number.
    int level = Information;
    /// When the event was logged.
    QDateTime date;
    /// The sub-items, oldest first.
    QList<QSharedPointer<TXLogItem>> children;
    /// Null on the root, and on an item outside any tree.
    TXLogItem *parent = nullptr;

signals:
    /// Emitted on the root of a tree when the item has been linked as the last child of its parent.
    /// Sub-items that it brings with it are not signalled one by one.
    void itemAppended(QSharedPointer<TXLogItem> item);

    /// Emitted on the root of a tree when the item, the oldest child of its parent, has been
    /// taken away.
    void itemDeleted(QSharedPointer<TXLogItem> item);
};

Q_DECLARE_METATYPE(QSharedPointer<TXLogItem>)
