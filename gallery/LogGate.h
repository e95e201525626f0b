#pragma once

#include <QMutex>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QWaitCondition>

class TXLogItem;
class TXLogManager;

/// Hands the entries of worker threads to a log no faster than the log takes them in, so that a job
/// that outruns the views neither piles up entries nor seems to end long before they are shown.
///
/// Made on the log's own thread, and closed at first: workers wait while kMostOnTheWay entries have
/// been handed over that are not in the tree yet.
class LogGate : public QObject
{
    Q_OBJECT

public:
    /// How many entries may be on their way before a worker waits.
    static constexpr int kMostOnTheWay = 500;

    /// The log is shared.
    explicit LogGate(const QSharedPointer<TXLogManager> &log, QObject *parent = nullptr);

    /// Appends the entry at the top level of the log, when there is room. Any thread but the log's,
    /// which would wait for itself.
    void append(const QSharedPointer<TXLogItem> &entry);

    /// Lets all waiting workers through, and nobody waits any more. Any thread.
    void open();

    /// Makes workers wait again when there is no room. Any thread.
    void close();

private slots:
    void entryTaken(QSharedPointer<TXLogItem> entry);
    void forgetAll();

private:
    QSharedPointer<TXLogManager> log;
    QMutex mutex;
    QWaitCondition changed;
    QSet<const TXLogItem *> onTheWay; // guarded by mutex
    bool isOpen = false; // guarded by mutex
};
