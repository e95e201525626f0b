#include "LogManagerHelpers.h"
#include "TXLogManager.h"
#include "TestBase.h"

using LogManagerTest::childTexts;
using LogManagerTest::Item;
using LogManagerTest::plain;
using LogManagerTest::Protocol;

/// What a log lets go when it is full, and entries below what it has let go.
class TestTXLogManagerLimits : public TestBase
{
    Q_OBJECT

private slots:
    void limitDropsTheOldestFirst();
    void limitSetLaterDropsTheSurplus();
    void negativeLimitIsNone();
    void limitDoesNotCountSubItems();
    void entryUnderADroppedParentIsShownNowhere();
    void entryUnderAParentDroppedByClearingIsShownNowhere();
    void entryUnderASubItemOfAnEndedParentIsShownNowhere();
    void towerOfEntriesStopsGrowing();
};

void TestTXLogManagerLimits::limitDropsTheOldestFirst()
{
    TXLogManager manager;
    Protocol protocol(manager);
    manager.setMaximumCount(2);
    QCOMPARE(manager.maximumCount(), 2);

    for (const char *text : {"a", "b", "c", "d"}) {
        manager.append(1, plain(QString::fromLatin1(text)));
    }
    manager.flush();

    QCOMPARE(protocol.lines,
             QStringList({QStringLiteral("+a"), QStringLiteral("+b"), QStringLiteral("+c"),
                          QStringLiteral("-a"), QStringLiteral("+d"), QStringLiteral("-b")}));
    QCOMPARE(childTexts(*manager.rootItem()),
             QStringList({QStringLiteral("c"), QStringLiteral("d")}));
}

void TestTXLogManagerLimits::limitSetLaterDropsTheSurplus()
{
    TXLogManager manager;
    for (int i = 0; i < 5; ++i) {
        manager.append(1, plain(QString::number(i)));
    }
    manager.flush();
    Protocol protocol(manager);

    manager.setMaximumCount(3);

    QCOMPARE(protocol.lines, QStringList({QStringLiteral("-0"), QStringLiteral("-1")}));
}

void TestTXLogManagerLimits::negativeLimitIsNone()
{
    TXLogManager manager;
    manager.setMaximumCount(-5);
    manager.append(1, plain(QStringLiteral("a")));
    manager.flush();

    QCOMPARE(manager.maximumCount(), 0);
    QCOMPARE(manager.rootItem()->children.size(), 1);
}

void TestTXLogManagerLimits::limitDoesNotCountSubItems()
{
    TXLogManager manager;
    manager.setMaximumCount(1);
    const Item parent = manager.append(1, plain(QStringLiteral("parent")));
    for (int i = 0; i < 3; ++i) {
        manager.append(1, plain(QString::number(i)), parent);
    }
    manager.flush();

    QCOMPARE(manager.rootItem()->children.size(), 1);
    QCOMPARE(parent->children.size(), 3);
}

void TestTXLogManagerLimits::entryUnderADroppedParentIsShownNowhere()
{
    TXLogManager manager;
    manager.setMaximumCount(1);
    const Item dropped = manager.append(1, plain(QStringLiteral("old")));
    const Item below = manager.append(1, plain(QStringLiteral("below")), dropped);
    manager.append(1, plain(QStringLiteral("new")));
    manager.flush();
    Protocol protocol(manager);

    const Item late = manager.append(1, plain(QStringLiteral("late")), dropped);
    manager.append(1, plain(QStringLiteral("later")), below);
    manager.flush();

    QVERIFY(late);
    QCOMPARE(protocol.lines, QStringList());
    QCOMPARE(dropped->children.size(), 1);
    QVERIFY(below->children.isEmpty());
}

void TestTXLogManagerLimits::entryUnderAParentDroppedByClearingIsShownNowhere()
{
    TXLogManager manager;
    const Item parent = manager.append(1, plain(QStringLiteral("old")));
    manager.flush();
    manager.rootItem()->removeAllChildren();
    Protocol protocol(manager);

    manager.append(1, plain(QStringLiteral("late")), parent);
    manager.flush();

    QCOMPARE(protocol.lines, QStringList());
    QVERIFY(parent->children.isEmpty());
}

void TestTXLogManagerLimits::entryUnderASubItemOfAnEndedParentIsShownNowhere()
{
    TXLogManager manager;
    Item parent = manager.append(1, plain(QStringLiteral("parent")));
    const Item child = manager.append(1, plain(QStringLiteral("child")), parent);
    manager.flush();
    manager.rootItem()->removeAllChildren();
    parent.reset();
    QVERIFY(!child->parent);
    Protocol protocol(manager);

    manager.append(1, plain(QStringLiteral("late")), child);
    manager.flush();

    QCOMPARE(protocol.lines, QStringList());
    QVERIFY(child->children.isEmpty());
}

void TestTXLogManagerLimits::towerOfEntriesStopsGrowing()
{
    constexpr int kEntries = 100000;
    TXLogManager manager;
    Item last;
    for (int i = 0; i < kEntries; ++i) {
        last = manager.append(1, TXStringI18n(), last);
    }
    manager.flush();

    QCOMPARE(last->depth(), int(TXLogManager::kMaximumDepth));
    QCOMPARE(last->parent->children.size(), kEntries - TXLogManager::kMaximumDepth + 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogManagerLimits>(argc, argv);
}

#include "tst_TXLogManagerLimits.moc"
