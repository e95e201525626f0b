#include "TXLogModel.h"

#include "LogModelTest.h"
#include "LogTestHelpers.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <thread>

using LogTest::append;
using LogTest::Item;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;
using LogTest::shownTexts;

namespace {

/// Writes down each announced change: "+/0" a first top-level row, "-a/0" the first row below "a".
class Changes : public QObject
{
    Q_OBJECT

public:
    explicit Changes(const QAbstractItemModel &model)
    {
        connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this,
                [this](const QModelIndex &parent, int first, int last) {
                    write(u'+', parent, first, last);
                });
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex &parent, int first, int last) {
                    write(u'-', parent, first, last);
                });
        connect(&model, &QAbstractItemModel::modelReset, this,
                [this] { lines.append(QStringLiteral("reset")); });
    }

    QStringList lines;

private:
    void write(QChar sign, const QModelIndex &parent, int first, int last)
    {
        const QString name = parent.siblingAtColumn(1).data().toString();
        lines.append(first == last ? QStringLiteral("%1%2/%3").arg(sign).arg(name).arg(first)
                                   : QStringLiteral("several rows"));
    }
};

/// Keeps what is printed from the test's own eyes, to be looked at one by one.
class MessageCollector
{
public:
    MessageCollector() { previous = qInstallMessageHandler(collect); }
    ~MessageCollector()
    {
        qInstallMessageHandler(previous);
        collected.clear();
    }
    Q_DISABLE_COPY_MOVE(MessageCollector)

    [[nodiscard]] QStringList lines() const { return collected; }

private:
    static void collect(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        collected.append(message);
    }

    static inline QStringList collected;
    QtMessageHandler previous = nullptr;
};

} // namespace

/// The rows, and how they follow the log.
class TestTXLogModel : public LogModelTest
{
    Q_OBJECT

private slots:
    void logThatHoldsItemsAlreadyShowsNone();
    void itemWithThreeSubItemsMakesFourInserts();
    void subItemAppendedLaterGoesToItsParent();
    void subItemOfAnUnknownParentIsNotInserted();
    void childrenOfAnUnknownParentAreStillLookedAt();
    void itemAnnouncedTwiceHasTwoRows();
    void nullItemIsIgnored();

    void rowDeletedDropsTheFirstRow();
    void rowDeletedDropsTheFirstRowWhicheverItemIsNamed();
    void rowDeletedOfASubItemDropsTheFirstSubItem();
    void rowDeletedOfAnUnknownParentRemovesNothing();
    void rowDeletedOfAnotherItemEmptiesThatItem();
    void rowDeletedWithoutRowsRemovesNothing();
    void newItemNeverInheritsTheSubItemsOfADroppedOne();

    void clearEmptiesLogAndViewInOneReset();
    void clearFreesDroppedEntries();
    void managerResetKeepsTheRows();
    void limitOfTheManagerIsFollowed();

    void modelPassesTheTesterThroughEveryChange();
    void signalsFromOtherThreadsArriveHere();
    void itemsLiveAsLongAsTheirRows();
};

void TestTXLogModel::logThatHoldsItemsAlreadyShowsNone()
{
    append(*manager, makeItem(QStringLiteral("old")));
    TXLogModel late(manager);
    QCOMPARE(late.rowCount(), 0);

    append(*manager, makeItem(QStringLiteral("new")));

    QCOMPARE(shownTexts(late), QStringList(QStringLiteral("new")));
}

void TestTXLogModel::itemWithThreeSubItemsMakesFourInserts()
{
    Changes changes(*model);

    append(*manager, makeItemWithChildren(QStringLiteral("a"), 3));

    QCOMPARE(changes.lines,
             QStringList({QStringLiteral("+/0"), QStringLiteral("+a/0"), QStringLiteral("+a/1"),
                          QStringLiteral("+a/2")}));
    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral(".a/0"), QStringLiteral(".a/1"),
                          QStringLiteral(".a/2")}));
}

void TestTXLogModel::subItemAppendedLaterGoesToItsParent()
{
    const Item first = makeItem(QStringLiteral("a"));
    append(*manager, first);
    append(*manager, makeItem(QStringLiteral("b")));
    Changes changes(*model);

    append(*manager, makeItem(QStringLiteral("late")), first);

    QCOMPARE(changes.lines, QStringList(QStringLiteral("+a/0")));
    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral(".late"), QStringLiteral("b")}));
}

void TestTXLogModel::subItemOfAnUnknownParentIsNotInserted()
{
    const Item unknown = makeItemWithChildren(QStringLiteral("unknown"), 1);
    unknown->parent = &root();
    Changes changes(*model);

    emit root().itemAppended(unknown->children.first());

    QCOMPARE(changes.lines, QStringList());
    QCOMPARE(model->rowCount(), 0);
}

void TestTXLogModel::childrenOfAnUnknownParentAreStillLookedAt()
{
    // The sub-item's parent is unknown, but what the sub-item brings hangs below a shown row.
    const Item shown = makeItem(QStringLiteral("shown"));
    append(*manager, shown);
    const Item unknown = makeItemWithChildren(QStringLiteral("unknown"), 1);
    const Item subItem = unknown->children.first();
    const Item deep = makeItem(QStringLiteral("deep"));
    deep->parent = shown.data();
    subItem->children.append(deep);

    emit root().itemAppended(subItem);

    QCOMPARE(texts(), QStringList({QStringLiteral("shown"), QStringLiteral(".deep")}));
}

void TestTXLogModel::itemAnnouncedTwiceHasTwoRows()
{
    const Item item = makeItem(QStringLiteral("a"));
    append(*manager, item);
    append(*manager, makeItemWithChildren(QStringLiteral("b"), 1));

    emit root().itemAppended(item);
    append(*manager, makeItemWithChildren(QStringLiteral("c"), 1));

    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral(".b/0"),
                          QStringLiteral("a"), QStringLiteral("c"), QStringLiteral(".c/0")}));
    QCOMPARE(model->index(item.data(), 0, QModelIndex()).row(), 0);
}

void TestTXLogModel::nullItemIsIgnored()
{
    Changes changes(*model);

    emit root().itemAppended(Item());
    emit root().itemDeleted(Item());

    QCOMPARE(changes.lines, QStringList());
}

void TestTXLogModel::rowDeletedDropsTheFirstRow()
{
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItem(QStringLiteral("b")));
    Changes changes(*model);

    emit root().itemDeleted(root().takeFirstChild());

    QCOMPARE(changes.lines, QStringList(QStringLiteral("-/0")));
    QCOMPARE(texts(), QStringList(QStringLiteral("b")));
}

void TestTXLogModel::rowDeletedDropsTheFirstRowWhicheverItemIsNamed()
{
    const Item last = makeItem(QStringLiteral("c"));
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItem(QStringLiteral("b")));
    append(*manager, last);

    emit root().itemDeleted(last);

    QCOMPARE(texts(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
}

void TestTXLogModel::rowDeletedOfASubItemDropsTheFirstSubItem()
{
    const Item item = makeItemWithChildren(QStringLiteral("a"), 3);
    append(*manager, item);
    Changes changes(*model);

    emit root().itemDeleted(item->children.at(1));

    QCOMPARE(changes.lines, QStringList(QStringLiteral("-a/0")));
    QCOMPARE(texts(),
             QStringList({QStringLiteral("a"), QStringLiteral(".a/1"), QStringLiteral(".a/2")}));
}

void TestTXLogModel::rowDeletedOfAnUnknownParentRemovesNothing()
{
    append(*manager, makeItem(QStringLiteral("a")));
    const Item unknown = makeItemWithChildren(QStringLiteral("unknown"), 1);
    unknown->parent = &root();
    Changes changes(*model);

    emit root().itemDeleted(unknown->children.first());

    QCOMPARE(changes.lines, QStringList());
}

void TestTXLogModel::rowDeletedOfAnotherItemEmptiesThatItem()
{
    // Naming "b" drops the row of "a"; the sub-items of "b" are then dropped from the row that
    // stays.
    const Item second = makeItemWithChildren(QStringLiteral("b"), 2);
    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, second);
    Changes changes(*model);

    emit root().itemDeleted(second);

    QCOMPARE(changes.lines,
             QStringList({QStringLiteral("-/0"), QStringLiteral("-b/0"), QStringLiteral("-b/0")}));
    QCOMPARE(texts(), QStringList(QStringLiteral("b")));
}

void TestTXLogModel::rowDeletedWithoutRowsRemovesNothing()
{
    append(*manager, makeItem(QStringLiteral("a")));
    TXLogModel late(manager);
    Changes changes(late);

    emit root().itemDeleted(root().takeFirstChild());

    QCOMPARE(changes.lines, QStringList());
    QCOMPARE(late.rowCount(), 0);
}

void TestTXLogModel::newItemNeverInheritsTheSubItemsOfADroppedOne()
{
    // Many rounds, so that an address would be given out again if the model let it go.
    manager->setMaximumCount(1);
    for (int i = 0; i < 200; ++i) {
        append(*manager, makeItemWithChildren(QStringLiteral("a"), 2));
        append(*manager, makeItem(QStringLiteral("b")));
        QCOMPARE(texts(), QStringList(QStringLiteral("b")));
    }
}

void TestTXLogModel::clearEmptiesLogAndViewInOneReset()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 2));
    append(*manager, makeItem(QStringLiteral("b")));
    Changes changes(*model);
    QSignalSpy deleted(&root(), SIGNAL(itemDeleted(QSharedPointer<TXLogItem>)));

    model->clear();

    QCOMPARE(changes.lines, QStringList(QStringLiteral("reset")));
    QCOMPARE(deleted.count(), 0);
    QVERIFY(root().children.isEmpty());
    QCOMPARE(model->rowCount(), 0);

    append(*manager, makeItem(QStringLiteral("c")));
    QCOMPARE(texts(), QStringList(QStringLiteral("c")));
}

void TestTXLogModel::clearFreesDroppedEntries()
{
    Item entry = makeItemWithChildren(QStringLiteral("a"), 1);
    const QWeakPointer<TXLogItem> child = entry->children.first();
    const QWeakPointer<TXLogItem> parent = entry;
    append(*manager, entry);
    entry.reset();
    emit root().itemDeleted(root().takeFirstChild());
    QCOMPARE(model->rowCount(), 0);
    QVERIFY(child);

    model->clear();

    QVERIFY(!child);
    QVERIFY(!parent);
}

void TestTXLogModel::managerResetKeepsTheRows()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));
    const QStringList before = texts();
    Changes changes(*model);

    manager->reset();

    QCOMPARE(changes.lines, QStringList(QStringLiteral("reset")));
    QCOMPARE(texts(), before);
    QCOMPARE(model->rowCount(), 1);
}

void TestTXLogModel::limitOfTheManagerIsFollowed()
{
    manager->setMaximumCount(2);

    for (const char *text : {"a", "b", "c", "d"}) {
        append(*manager, makeItemWithChildren(QString::fromLatin1(text), 1));
    }

    QCOMPARE(texts(),
             QStringList({QStringLiteral("c"), QStringLiteral(".c/0"), QStringLiteral("d"),
                          QStringLiteral(".d/0")}));
}

void TestTXLogModel::modelPassesTheTesterThroughEveryChange()
{
    // The tester wants an item's children under its first column only, this model has them under
    // each. All its other rules are kept.
    const MessageCollector complaints;
    QAbstractItemModelTester tester(model.get(),
                                    QAbstractItemModelTester::FailureReportingMode::Warning);

    append(*manager, makeItem(QStringLiteral("a")));
    append(*manager, makeItemWithChildren(QStringLiteral("b"), 2));
    append(*manager, makeItem(QStringLiteral("late")), root().children.last());
    manager->setMaximumCount(2);
    append(*manager, makeItemWithChildren(QStringLiteral("c"), 1));
    manager->reset();
    model->clear();
    append(*manager, makeItem(QStringLiteral("d")));

    QCOMPARE(texts(), QStringList(QStringLiteral("d")));
    static const QRegularExpression childrenUnderOtherColumns(
        QStringLiteral("childIndex != childIndex1"
                       "|\\(model->parent\\(index\\)\\) QModelIndex\\((\\d+),0,(\\w+),"
                       "[\\s\\S]*\\(parent\\) +QModelIndex\\(\\1,[12],\\2,"));
    const QStringList failures = complaints.lines().filter(QStringLiteral("FAIL!"));
    QVERIFY(!failures.isEmpty());
    for (const QString &failure : failures) {
        QVERIFY2(failure.contains(childrenUnderOtherColumns), qPrintable(failure));
    }
}

void TestTXLogModel::signalsFromOtherThreadsArriveHere()
{
    std::thread([this] {
        const Item item = makeItem(QStringLiteral("a"));
        root().addChild(item);
        emit root().itemAppended(item);
    }).join();
    QCOMPARE(model->rowCount(), 0);

    QTRY_COMPARE(model->rowCount(), 1);

    std::thread([this] { emit root().itemDeleted(root().takeFirstChild()); }).join();
    QTRY_COMPARE(model->rowCount(), 0);
}

void TestTXLogModel::itemsLiveAsLongAsTheirRows()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));

    const QWeakPointer<TXLogItem> item = root().children.first();

    manager->reset();
    QVERIFY(item);
    QCOMPARE(texts(), QStringList({QStringLiteral("a"), QStringLiteral(".a/0")}));

    model.reset();
    QVERIFY(!item);
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogModel>(argc, argv);
}

#include "tst_TXLogModel.moc"
