#pragma once

#include "TXCoreCommonExport.h"
#include "TXStringI18n.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QRecursiveMutex>
#include <QSharedPointer>

#include <atomic>

/// One node of the log tree: a dated message of a level, with sub-items.
///
/// Items are made by TXLogManager::append() or by create(), and are always held by QSharedPointer.
/// A node owns its children; a child knows its parent by a raw pointer.
///
/// Thread: an item may be made, read and destroyed on any thread. `message`, `level` and `date` are
/// written before the item enters a tree and only read afterwards. `children` is guarded by
/// `mutex`; take it for one access at a time and never while calling into another item. `parent` is
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

    /// Links a child as the last one. Nothing is signalled, so this is for items that are not in a
    /// tree yet. A null child, the item itself, and a child that has a parent already are ignored.
    void addChild(const QSharedPointer<TXLogItem> &child);

    /// Takes the oldest child away and returns it, null when there is none. The child keeps its
    /// `parent` for those who still show it, but it and all below it are no longer part of the
    /// tree.
    QSharedPointer<TXLogItem> takeFirstChild();

    /// Takes all children away, in the same sense.
    void removeAllChildren();

    /// False once this item or one above it was taken away.
    [[nodiscard]] bool isInTree() const { return !taken; }

    /// How many items are above this one; 0 for the root. Only for an item in a tree, on the thread
    /// that changes the tree.
    [[nodiscard]] int depth() const;

    /// The item's place among all children that its parent ever had, counted from 0, so that
    /// siblings have consecutive numbers whatever is taken away in front of them. Given by
    /// addChild() or, when the item was put into `children` by hand, at the first call. Without a
    /// parent 0, and none is given.
    qint64 number();

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

private:
    static constexpr qint64 kNoNumber = -1;

    void leaveTree();

    std::atomic<qint64> givenNumber = kNoNumber;
    std::atomic_bool taken = false;
    qint64 nextChildNumber = 0;
};
