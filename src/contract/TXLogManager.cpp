#include "TXLogManager.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMutexLocker>
#include <QPointer>
#include <QTimer>

namespace {

/// The present date in local time. Working out the local time costs far more than the rest of an
/// entry, so that entries of one thread within the same millisecond share it.
QDateTime now()
{
    thread_local qint64 cachedMilliseconds = -1;
    thread_local QDateTime cachedDate;
    const qint64 milliseconds = QDateTime::currentMSecsSinceEpoch();
    if (milliseconds != cachedMilliseconds) {
        cachedMilliseconds = milliseconds;
        cachedDate = QDateTime::fromMSecsSinceEpoch(milliseconds);
    }
    return cachedDate;
}

QSharedPointer<TXLogManager> makeApplicationLog()
{
    const auto manager = QSharedPointer<TXLogManager>::create();
    if (const auto *application = QCoreApplication::instance()) {
        manager->moveToThread(application->thread());
    }
    return manager;
}

} // namespace

QSharedPointer<TXLogManager> TXLogManager::applicationLog()
{
    static const QSharedPointer<TXLogManager> manager = makeApplicationLog();
    return manager;
}

TXLogManager::TXLogManager(QObject *parent)
    : QObject(parent)
    , root(QSharedPointer<TXLogItem>::create())
    , timer(new QTimer(this))
{
    qRegisterMetaType<QSharedPointer<TXLogItem>>();
    timer->setSingleShot(true);
    connect(timer, SIGNAL(timeout()), this, SLOT(deliverSlice()));
}

TXLogManager::~TXLogManager() = default;

QSharedPointer<TXLogItem> TXLogManager::rootItem() const
{
    return root;
}

QSharedPointer<TXLogItem> TXLogManager::append(int level, const TXStringI18n &message,
                                               const QSharedPointer<TXLogItem> &parent)
{
    const QSharedPointer<TXLogItem> item = TXLogItem::create(level, message, now());
    enqueue({item, parent});
    return item;
}

void TXLogManager::append(const QSharedPointer<TXLogItem> &item,
                          const QSharedPointer<TXLogItem> &parent)
{
    if (item) {
        enqueue({item, parent});
    }
}

int TXLogManager::maximumCount() const
{
    return maximum;
}

void TXLogManager::setMaximumCount(int count)
{
    maximum = qMax(count, 0);
    QMetaObject::invokeMethod(this, "dropSurplus");
}

void TXLogManager::flush()
{
    takeWaitingEntries();
    const QPointer<TXLogManager> self(this);
    while (self && deliverNext()) { }
}

void TXLogManager::reset()
{
    takeWaitingEntries();
    batch.clear();
    nextInBatch = 0;
    root->removeAllChildren();
    emit hasBeenReset();
}

void TXLogManager::deliverSlice()
{
    takeWaitingEntries();
    QElapsedTimer slice;
    slice.start();
    // Whoever receives the signals may destroy the manager, or run an event loop of its own, in
    // which the next slice starts while this one has not ended.
    const QPointer<TXLogManager> self(this);
    while (!slice.hasExpired(kSliceMilliseconds)) {
        if (!deliverNext() || !self) {
            return;
        }
    }
    timer->start(0);
}

void TXLogManager::dropSurplus()
{
    const QPointer<TXLogManager> self(this);
    while (self && maximum > 0 && countTopLevelItems() > maximum) {
        if (const QSharedPointer<TXLogItem> oldest = root->takeFirstChild()) {
            emit root->itemDeleted(oldest);
        }
    }
}

qsizetype TXLogManager::countTopLevelItems() const
{
    const QMutexLocker locker(&root->mutex);
    return root->children.size();
}

void TXLogManager::enqueue(Entry entry)
{
    bool isFirst = false;
    {
        const QMutexLocker locker(&waitingMutex);
        waiting.append(std::move(entry));
        isFirst = !std::exchange(wakeUpIsPosted, true);
    }
    if (isFirst) {
        QMetaObject::invokeMethod(this, "deliverSlice", Qt::QueuedConnection);
    }
}

void TXLogManager::takeWaitingEntries()
{
    const QMutexLocker locker(&waitingMutex);
    wakeUpIsPosted = false;
    // What is done goes each time, or a batch that writers never let run empty would only grow.
    batch.remove(0, std::exchange(nextInBatch, 0));
    if (batch.isEmpty()) {
        batch.swap(waiting);
    } else {
        batch.append(std::exchange(waiting, {}));
    }
}

/// Links the next entry of the batch. False when the batch has ended.
bool TXLogManager::deliverNext()
{
    if (nextInBatch == batch.size()) {
        return false;
    }
    const Entry entry = std::exchange(batch[nextInBatch++], {});
    link(entry);
    return true;
}

void TXLogManager::link(const Entry &entry)
{
    TXLogItem *parent = entry.parent ? entry.parent.data() : root.data();
    if (entry.item->parent || entry.item == root || !parent->isInTree()) {
        return;
    }
    if (parent->depth() >= kMaximumDepth) {
        parent = parent->parent;
    }
    parent->addChild(entry.item);
    const QPointer<TXLogManager> self(this);
    emit root->itemAppended(entry.item);
    if (self && parent == root) {
        dropSurplus();
    }
}
