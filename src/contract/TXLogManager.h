#pragma once

#include "TXCoreCommonExport.h"
#include "TXLogItem.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QSharedPointer>

#include <atomic>

class QTimer;

/// The owner of a log tree. Any thread writes to it; whoever shows it follows the signals of the
/// root item.
///
/// What is appended is collected and linked into the tree on the manager's own thread (the thread
/// that made it, or that it was moved to), in the order of the calls, by one wake-up of that
/// thread's event loop for a whole batch. The signals come from there, one for each item. A long
/// batch is cut into slices, so that the event loop keeps turning.
///
/// Make the manager on the thread of its views. A view on another thread may see a sub-item twice
/// that is appended while its parent is still on the way to the view.
///
/// Thread: its own, but for what is said to be for any thread.
class TXCORECOMMON_EXPORT TXLogManager : public QObject
{
    Q_OBJECT

public:
    /// How deep an entry can stand, the top level being 1. An entry under a parent that stands this
    /// deep or deeper is put beside that parent, so that a program which hangs each line under its
    /// last builds no tower. What a ready item brings with it is not counted.
    static constexpr int kMaximumDepth = 100;

    /// How long a batch may keep the event loop from turning, in milliseconds.
    static constexpr int kSliceMilliseconds = 8;

    /// The log of the running application, that TXLogPrint() writes to. Made at the first call, for
    /// the thread of the application object where there is one. Never null.
    static QSharedPointer<TXLogManager> applicationLog();

    /// An empty log.
    explicit TXLogManager(QObject *parent = nullptr);
    ~TXLogManager() override;

    /// The invisible root; the same object for the manager's whole life, never null.
    [[nodiscard]] QSharedPointer<TXLogItem> rootItem() const;

    /// Logs a message with the present date, under `parent` or, when that is null, at the top
    /// level. Returns the new item, which may be used as a parent at once. Any thread.
    ///
    /// When the parent has been dropped in the meantime, the new item is shown nowhere.
    QSharedPointer<TXLogItem> append(int level, const TXStringI18n &message,
                                     const QSharedPointer<TXLogItem> &parent = {});

    /// Logs an item that was made with TXLogItem::create(), with the sub-items it brings. Any
    /// thread; the item belongs to the log from this call on. A null item, and one that is part of
    /// a tree already, is ignored.
    void append(const QSharedPointer<TXLogItem> &item,
                const QSharedPointer<TXLogItem> &parent = {});

    /// How many top-level items are kept; 0, the default, is no limit.
    [[nodiscard]] int maximumCount() const;

    /// Keeps at most `count` top-level items: those above the limit are dropped, oldest first. A
    /// negative count reads as 0. Any thread; what is too much now goes on the manager's thread.
    void setMaximumCount(int count);

public slots:
    /// Links all that waits, at once. For the end of a program and for threads without an event
    /// loop; on the manager's own thread only.
    void flush();

    /// Drops everything, also what still waits, without a signal for each item. On the manager's
    /// own thread only.
    void reset();

signals:
    /// The tree was emptied as a whole by reset().
    void hasBeenReset();

private slots:
    void deliverSlice();
    void dropSurplus();

private:
    struct Entry
    {
        QSharedPointer<TXLogItem> item;
        QSharedPointer<TXLogItem> parent;
    };

    void enqueue(Entry entry);
    void takeWaitingEntries();
    bool deliverNext();
    void link(const Entry &entry);
    qsizetype countTopLevelItems() const;

    QSharedPointer<TXLogItem> root;
    std::atomic_int maximum = 0;

    QMutex waitingMutex;
    QList<Entry> waiting; // guarded by waitingMutex
    bool wakeUpIsPosted = false; // guarded by waitingMutex

    // Only touched on the manager's thread.
    QList<Entry> batch;
    qsizetype nextInBatch = 0;
    QTimer *timer = nullptr;
};
