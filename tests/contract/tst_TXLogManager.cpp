#include "LogManagerHelpers.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <utility>

using LogManagerTest::childTexts;
using LogManagerTest::Item;
using LogManagerTest::plain;
using LogManagerTest::Protocol;

namespace {

/// Counts the wake-ups that are posted to an object.
class WakeUpCounter : public QObject
{
    Q_OBJECT

public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::MetaCall ? 1 : 0;
        return false;
    }
};

} // namespace

/// How entries come into the log, and what its receivers may do meanwhile.
class TestTXLogManager : public TestBase
{
    Q_OBJECT

private slots:
    void rootIsNeverNullAndStays();
    void appendedItemIsLinkedByTheEventLoop();
    void appendedItemMayBeAParentAtOnce();
    void readyItemBringsItsSubItemsWithOneSignal();
    void nothingAndAnItemInATreeAreIgnored();
    void manyEntriesTakeOneWakeUp();
    void eachTurnOfTheEventLoopDelivers();
    void resetDropsAllIncludingWhatWaits();
    void loggingGoesOnAfterAReset();
    void receiverMayLogFromWithinASignal();
    void receiverMayRunAnEventLoop();
    void receiverMayDestroyTheManager_data();
    void receiverMayDestroyTheManager();
    void managerThatEndsWithWaitingEntriesFreesThem();
    void longBatchIsCutIntoSlices();
    void datesAreThePresent();
};

void TestTXLogManager::rootIsNeverNullAndStays()
{
    TXLogManager manager;
    const Item root = manager.rootItem();
    QVERIFY(root);
    QVERIFY(!root->parent);

    manager.append(1, plain(QStringLiteral("a")));
    manager.reset();

    QCOMPARE(manager.rootItem(), root);
}

void TestTXLogManager::appendedItemIsLinkedByTheEventLoop()
{
    TXLogManager manager;
    Protocol protocol(manager);

    const Item item = manager.append(TXLogItem::Error, plain(QStringLiteral("a")));

    QVERIFY(item);
    QCOMPARE(item->level, int(TXLogItem::Error));
    QVERIFY(manager.rootItem()->children.isEmpty());
    QTRY_COMPARE(protocol.lines, QStringList(QStringLiteral("+a")));
    QCOMPARE(item->parent, manager.rootItem().data());
    QCOMPARE(manager.rootItem()->children, QList<Item>({item}));
}

void TestTXLogManager::appendedItemMayBeAParentAtOnce()
{
    TXLogManager manager;
    Protocol protocol(manager);

    const Item parent = manager.append(1, plain(QStringLiteral("parent")));
    manager.append(2, plain(QStringLiteral("child")), parent);
    manager.flush();

    QCOMPARE(protocol.lines, QStringList({QStringLiteral("+parent"), QStringLiteral("+child")}));
    QCOMPARE(childTexts(*parent), QStringList(QStringLiteral("child")));
    QCOMPARE(manager.rootItem()->children.size(), 1);
}

void TestTXLogManager::readyItemBringsItsSubItemsWithOneSignal()
{
    TXLogManager manager;
    Protocol protocol(manager);
    const Item item = TXLogItem::create(1, plain(QStringLiteral("whole")));
    item->addChild(TXLogItem::create(1, plain(QStringLiteral("part"))));

    manager.append(item);
    manager.flush();

    QCOMPARE(protocol.lines, QStringList(QStringLiteral("+whole")));
    QCOMPARE(childTexts(*item), QStringList(QStringLiteral("part")));
}

void TestTXLogManager::nothingAndAnItemInATreeAreIgnored()
{
    TXLogManager manager;
    Protocol protocol(manager);
    const Item item = TXLogItem::create(1, plain(QStringLiteral("a")));

    manager.append(Item());
    manager.append(manager.rootItem());
    manager.append(item);
    manager.append(item);
    manager.flush();

    QCOMPARE(protocol.lines, QStringList(QStringLiteral("+a")));
}

void TestTXLogManager::manyEntriesTakeOneWakeUp()
{
    TXLogManager manager;
    Protocol protocol(manager);
    WakeUpCounter counter;
    manager.installEventFilter(&counter);

    for (int i = 0; i < 1000; ++i) {
        manager.append(1, plain(QString::number(i)));
    }

    QTRY_COMPARE(protocol.lines.size(), 1000);
    QCOMPARE(counter.count, 1);
    QCOMPARE(protocol.lines.first(), QStringLiteral("+0"));
    QCOMPARE(protocol.lines.last(), QStringLiteral("+999"));
}

void TestTXLogManager::eachTurnOfTheEventLoopDelivers()
{
    TXLogManager manager;
    Protocol protocol(manager);

    for (int i = 1; i <= 3; ++i) {
        manager.append(1, plain(QStringLiteral("a")));
        QCoreApplication::processEvents();
        QCOMPARE(protocol.lines.size(), i);
    }
}

void TestTXLogManager::resetDropsAllIncludingWhatWaits()
{
    TXLogManager manager;
    manager.append(1, plain(QStringLiteral("shown")));
    manager.flush();
    manager.append(1, plain(QStringLiteral("waiting")));
    Protocol protocol(manager);
    QSignalSpy reset(&manager, SIGNAL(hasBeenReset()));

    manager.reset();
    manager.flush();

    QCOMPARE(reset.count(), 1);
    QCOMPARE(protocol.lines, QStringList());
    QVERIFY(manager.rootItem()->children.isEmpty());
}

void TestTXLogManager::loggingGoesOnAfterAReset()
{
    TXLogManager manager;
    Protocol protocol(manager);
    manager.append(1, plain(QStringLiteral("before")));
    manager.reset();

    manager.append(1, plain(QStringLiteral("after")));

    QTRY_COMPARE(protocol.lines, QStringList(QStringLiteral("+after")));
}

void TestTXLogManager::receiverMayLogFromWithinASignal()
{
    TXLogManager manager;
    Protocol protocol(manager);
    int rest = 3;
    connect(manager.rootItem().data(), &TXLogItem::itemAppended, this,
            [&manager, &rest](const Item &item) {
                if (rest-- > 0) {
                    manager.append(1, plain(QStringLiteral("below")), item);
                }
            });

    manager.append(1, plain(QStringLiteral("first")));

    QTRY_COMPARE(protocol.lines.size(), 4);
    QCOMPARE(protocol.lines.last(), QStringLiteral("+below"));
}

void TestTXLogManager::receiverMayRunAnEventLoop()
{
    TXLogManager manager;
    Protocol protocol(manager);
    bool isInner = false;
    connect(manager.rootItem().data(), &TXLogItem::itemAppended, this, [&](const Item &) {
        if (!std::exchange(isInner, true)) {
            manager.append(1, plain(QStringLiteral("late")));
            manager.flush();
        }
    });
    for (int i = 0; i < 4; ++i) {
        manager.append(1, plain(QString::number(i)));
    }

    manager.flush();

    QCOMPARE(protocol.lines,
             QStringList({QStringLiteral("+0"), QStringLiteral("+1"), QStringLiteral("+2"),
                          QStringLiteral("+3"), QStringLiteral("+late")}));
}

void TestTXLogManager::receiverMayDestroyTheManager_data()
{
    QTest::addColumn<bool>("byEventLoop");
    QTest::addColumn<int>("limit");
    QTest::addRow("flush") << false << 0;
    QTest::addRow("event loop") << true << 0;
    QTest::addRow("flush, with a limit") << false << 1;
    QTest::addRow("event loop, with a limit") << true << 1;
}

void TestTXLogManager::receiverMayDestroyTheManager()
{
    QFETCH(bool, byEventLoop);
    QFETCH(int, limit);
    auto *manager = new TXLogManager(nullptr);
    const QPointer<TXLogManager> watched(manager);
    manager->setMaximumCount(limit);
    const auto root = manager->rootItem();
    if (limit == 0) {
        connect(root.data(), &TXLogItem::itemAppended, this, [&manager] { delete manager; });
    } else {
        connect(root.data(), &TXLogItem::itemDeleted, this, [&manager] { delete manager; });
    }
    for (int i = 0; i < 3; ++i) {
        manager->append(1, plain(QString::number(i)));
    }

    if (!byEventLoop) {
        manager->flush();
    }

    QTRY_VERIFY(!watched);
    QCOMPARE(root->children.size(), 1);
}

void TestTXLogManager::managerThatEndsWithWaitingEntriesFreesThem()
{
    QWeakPointer<TXLogItem> waiting;
    {
        TXLogManager manager;
        waiting = manager.append(1, plain(QStringLiteral("a")));
        QVERIFY(waiting);
    }
    QVERIFY(!waiting);
}

void TestTXLogManager::longBatchIsCutIntoSlices()
{
    TXLogManager manager;
    // A receiver that needs a whole slice for each item.
    int received = 0;
    connect(manager.rootItem().data(), &TXLogItem::itemAppended, this, [&received] {
        ++received;
        QElapsedTimer timer;
        timer.start();
        while (!timer.hasExpired(TXLogManager::kSliceMilliseconds + 1)) { }
    });
    for (int i = 0; i < 5; ++i) {
        manager.append(1, plain(QString::number(i)));
    }

    QList<int> receivedByTurn;
    while (received < 5) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        receivedByTurn.append(received);
    }

    QVERIFY2(receivedByTurn.size() >= 5, "all came in one turn of the event loop");
}

void TestTXLogManager::datesAreThePresent()
{
    TXLogManager manager;
    const QDateTime before = QDateTime::currentDateTime();
    const Item first = manager.append(1, plain(QStringLiteral("a")));
    const Item second = manager.append(1, plain(QStringLiteral("b")));
    const QDateTime after = QDateTime::currentDateTime();

    QVERIFY(before <= first->date);
    QVERIFY(first->date <= second->date);
    QVERIFY(second->date <= after);
    QCOMPARE(first->date.timeSpec(), Qt::LocalTime);
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogManager>(argc, argv);
}

#include "tst_TXLogManager.moc"
