#include "TXLogFilterProxyModel.h"

#include "LogFilterProxyTest.h"
#include "LogTestHelpers.h"
#include "TXLogModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStringListModel>

using LogTest::append;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;

/// The proxy by itself.
class TestTXLogFilterProxyModel : public LogFilterProxyTest
{
    Q_OBJECT

private slots:
    void sortedByNothingKeepsTheOrderOfTheLog();
    void newRowsTakeTheirPlace();
    void equalRowsKeepTheOrderOfArrival_data();
    void equalRowsKeepTheOrderOfArrival();
    void filterIsAnnouncedOnce();
    void filterThatChangesNothingIsNotAnnounced();
    void persistentIndexesFollowFilterAndSorting();
    void propertiesOfTheBaseAreFollowed();
    void filterOnAnotherColumnLooksAtItsText();
    void filterWithoutAColumnLooksAtAll();
    void invalidPatternLetsNothingThrough();
    void headerIsTheLogs();
    void flagsAreTheLogs();
    void nothingCanBeEdited();
    void foreignIndexesMapToNothing();
    void indexOutsideIsInvalid();
    void siblingsStandInTheSameParent();
    void indexThatOutlivedItsRowIsHarmless();
    void sourceThatEndsLeavesAnEmptyProxy();
    void foreignSourceIsRefused();
    void sourceCanBeExchanged();
    void turnedOffSortingAddsNewRowsInLogOrder();
    void testerFindsNoFault();
};

void TestTXLogFilterProxyModel::sortedByNothingKeepsTheOrderOfTheLog()
{
    logLevels({3, 1, 2});

    QCOMPARE(proxy->sortColumn(), -1);
    QCOMPARE(texts(),
             QStringList({QStringLiteral("0:3"), QStringLiteral("1:1"), QStringLiteral("2:2")}));

    proxy->sort(2);
    proxy->sort(-1);
    QCOMPARE(texts(),
             QStringList({QStringLiteral("0:3"), QStringLiteral("1:1"), QStringLiteral("2:2")}));
}

void TestTXLogFilterProxyModel::newRowsTakeTheirPlace()
{
    proxy->sort(1, Qt::AscendingOrder);
    for (const char *text : {"m", "z", "a", "n", "b"}) {
        append(*manager, makeItem(QString::fromLatin1(text)));
    }

    QCOMPARE(texts().join(u""), QStringLiteral("abmnz"));
    QCOMPARE(proxy->sortColumn(), 1);
    QCOMPARE(proxy->sortOrder(), Qt::AscendingOrder);
}

void TestTXLogFilterProxyModel::equalRowsKeepTheOrderOfArrival_data()
{
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addRow("ascending") << Qt::AscendingOrder;
    QTest::addRow("descending") << Qt::DescendingOrder;
}

void TestTXLogFilterProxyModel::equalRowsKeepTheOrderOfArrival()
{
    QFETCH(Qt::SortOrder, order);
    proxy->sort(0, order);
    for (int i = 0; i < 5; ++i) {
        append(*manager, makeItem(QString::number(i)));
    }

    QCOMPARE(texts().join(u""), QStringLiteral("01234"));
}

void TestTXLogFilterProxyModel::filterIsAnnouncedOnce()
{
    logLevels({1, 3, 1, 3, 2, 1, 3});
    QCOMPARE(proxy->rowCount(), 7);
    proxy->setFilterKeyColumn(TXLogModel::LevelColumn);
    QSignalSpy layout(proxy.get(), &QAbstractItemModel::layoutChanged);
    QSignalSpy removed(proxy.get(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(proxy.get(), &QAbstractItemModel::rowsInserted);

    proxy->setFilterRegularExpression(QStringLiteral("3"));
    QCOMPARE(proxy->rowCount(), 3);
    proxy->setFilterRegularExpression(QString());
    QCOMPARE(proxy->rowCount(), 7);

    QCOMPARE(layout.count(), 2);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(inserted.count(), 0);
}

void TestTXLogFilterProxyModel::filterThatChangesNothingIsNotAnnounced()
{
    logLevels({2, 3});
    QCOMPARE(proxy->rowCount(), 2);
    QSignalSpy layout(proxy.get(), &QAbstractItemModel::layoutChanged);

    filterByLevel(QStringLiteral("[2-3]"));

    QCOMPARE(layout.count(), 0);
}

void TestTXLogFilterProxyModel::persistentIndexesFollowFilterAndSorting()
{
    append(*manager, makeItem(QStringLiteral("quiet"), 1));
    append(*manager, makeItemWithChildren(QStringLiteral("loud"), 2, 3));
    const QPersistentModelIndex quiet = proxy->index(0, 1);
    const QPersistentModelIndex loud = proxy->index(1, 1);
    const QPersistentModelIndex below = proxy->index(1, 0, proxy->index(1, 0));

    proxy->sort(1, Qt::AscendingOrder);
    QCOMPARE(loud.row(), 0);
    QCOMPARE(quiet.row(), 1);

    filterByLevel(QStringLiteral("3"));
    QVERIFY(!quiet.isValid());
    QCOMPARE(loud.data().toString(), QStringLiteral("loud"));
    QCOMPARE(below.sibling(below.row(), 1).data().toString(), QStringLiteral("loud/1"));

    filterByLevel(QStringLiteral("2"));
    QVERIFY(!loud.isValid());
    QVERIFY(!below.isValid());
}

void TestTXLogFilterProxyModel::propertiesOfTheBaseAreFollowed()
{
    for (const char *text : {"b", "A", "a", "B"}) {
        append(*manager, makeItem(QString::fromLatin1(text)));
    }
    auto *base = static_cast<QSortFilterProxyModel *>(proxy.get());
    base->sort(1, Qt::AscendingOrder);
    QCOMPARE(texts().join(u""), QStringLiteral("ABab"));

    base->setSortCaseSensitivity(Qt::CaseInsensitive);
    QCOMPARE(texts().join(u""), QStringLiteral("AaBb"));

    base->setFilterKeyColumn(1);
    base->setFilterRegularExpression(QStringLiteral("a"));
    QCOMPARE(texts().join(u""), QStringLiteral("a"));

    base->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QCOMPARE(texts().join(u""), QStringLiteral("aA"));

    base->setFilterRole(Qt::ToolTipRole);
    QCOMPARE(texts(), QStringList());

    base->setFilterRole(Qt::DisplayRole);
    base->setFilterFixedString(QStringLiteral("b"));
    QCOMPARE(texts().join(u""), QStringLiteral("bB"));
}

void TestTXLogFilterProxyModel::filterOnAnotherColumnLooksAtItsText()
{
    append(*manager, makeItem(QStringLiteral("disk full")));
    append(*manager, makeItem(QStringLiteral("disk ready")));
    proxy->setFilterKeyColumn(TXLogModel::MessageColumn);

    proxy->setFilterRegularExpression(QStringLiteral("f.ll"));

    QCOMPARE(texts(), QStringList(QStringLiteral("disk full")));
}

void TestTXLogFilterProxyModel::filterWithoutAColumnLooksAtAll()
{
    append(*manager, makeItem(QStringLiteral("disk 3"), 1));
    append(*manager, makeItem(QStringLiteral("disk"), 3));
    append(*manager, makeItem(QStringLiteral("disk"), 2));
    proxy->setFilterKeyColumn(-1);

    proxy->setFilterRegularExpression(QStringLiteral("^3$|disk 3"));

    QCOMPARE(texts(), QStringList({QStringLiteral("disk 3"), QStringLiteral("disk")}));
}

void TestTXLogFilterProxyModel::invalidPatternLetsNothingThrough()
{
    logLevels({1, 2, 3});
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("invalid QRegularExpression")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("invalid QRegularExpression")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("invalid QRegularExpression")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("invalid QRegularExpression")));
    QCOMPARE(proxy->rowCount(), 3);

    filterByLevel(QStringLiteral("[2-"));

    QCOMPARE(proxy->rowCount(), 0);
}

void TestTXLogFilterProxyModel::headerIsTheLogs()
{
    logLevels({1, 2});
    proxy->sort(0, Qt::DescendingOrder);

    for (int section = -1; section < 5; ++section) {
        const QVariant expected =
            section >= 0 && section < 3 ? log->headerData(section, Qt::Horizontal) : QVariant();
        QCOMPARE(proxy->headerData(section, Qt::Horizontal), expected);
    }
    QCOMPARE(proxy->headerData(0, Qt::Vertical), QVariant(QStringLiteral("1")));
    QVERIFY(!proxy->headerData(2, Qt::Vertical).isValid());
}

void TestTXLogFilterProxyModel::flagsAreTheLogs()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));
    const QModelIndex row = proxy->index(0, 1);
    const QModelIndex below = proxy->index(0, 0, row.siblingAtColumn(0));

    QCOMPARE(proxy->flags(row), log->flags(proxy->mapToSource(row)));
    QCOMPARE(proxy->flags(below), log->flags(proxy->mapToSource(below)));
    QCOMPARE(proxy->flags(QModelIndex()), log->flags(QModelIndex()));
}

void TestTXLogFilterProxyModel::nothingCanBeEdited()
{
    logLevels({1, 2});

    QAbstractItemModel &model = *proxy;
    QVERIFY(!model.removeRows(0, 1));
    QVERIFY(!model.removeColumns(0, 1));
    QVERIFY(!model.insertRows(0, 1));
    QVERIFY(!model.insertColumns(0, 1));
    QVERIFY(!model.setHeaderData(0, Qt::Horizontal, QStringLiteral("x")));
    QVERIFY(!proxy->setData(proxy->index(0, 1), QStringLiteral("x")));

    QCOMPARE(proxy->rowCount(), 2);
    QCOMPARE(proxy->columnCount(), 3);
}

void TestTXLogFilterProxyModel::foreignIndexesMapToNothing()
{
    logLevels({1});
    QStringListModel other({QStringLiteral("x")});

    QVERIFY(!proxy->mapToSource(other.index(0, 0)).isValid());
    QVERIFY(!proxy->mapFromSource(other.index(0, 0)).isValid());
    QVERIFY(!proxy->mapToSource(QModelIndex()).isValid());
    QVERIFY(!proxy->mapFromSource(QModelIndex()).isValid());
    QVERIFY(!proxy->parent(other.index(0, 0)).isValid());
    QCOMPARE(proxy->rowCount(other.index(0, 0)), 0);
}

void TestTXLogFilterProxyModel::indexOutsideIsInvalid()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 1));
    const QModelIndex item = proxy->index(0, 0);

    for (const auto &[row, column] : {std::pair(1, 0), {-1, 0}, {0, 3}, {0, -1}}) {
        QVERIFY(!proxy->index(row, column).isValid());
        QVERIFY(!proxy->index(row, column, item).isValid());
        QVERIFY(!item.sibling(row, column).isValid());
    }
    QVERIFY(!proxy->hasChildren(proxy->index(0, 0, item)));
    QVERIFY(proxy->hasChildren(item));
}

void TestTXLogFilterProxyModel::siblingsStandInTheSameParent()
{
    append(*manager, makeItemWithChildren(QStringLiteral("a"), 3));
    const QModelIndex first = proxy->index(0, 0, proxy->index(0, 0));

    QCOMPARE(first.sibling(2, 1), proxy->index(2, 1, proxy->index(0, 0)));
    QCOMPARE(first.sibling(2, 1).data().toString(), QStringLiteral("a/2"));
}

void TestTXLogFilterProxyModel::indexThatOutlivedItsRowIsHarmless()
{
    // As a tree view keeps them until it lays out again.
    append(*manager, makeItemWithChildren(QStringLiteral("quiet"), 2, 1));
    append(*manager, makeItem(QStringLiteral("loud"), 3));
    const QModelIndex row = proxy->index(1, 0);
    const QModelIndex below = proxy->index(1, 1, proxy->index(0, 0));
    QCOMPARE(below.data().toString(), QStringLiteral("quiet/1"));

    filterByLevel(QStringLiteral("3"));

    QVERIFY(!below.parent().isValid());
    QVERIFY(!below.data().isValid());
    QVERIFY(!below.sibling(0, 0).isValid());
    QCOMPARE(proxy->rowCount(below), 0);
    QVERIFY(!proxy->mapToSource(row).isValid());
    QVERIFY(!proxy->hasChildren(row));
}

void TestTXLogFilterProxyModel::sourceThatEndsLeavesAnEmptyProxy()
{
    logLevels({1, 2});
    QCOMPARE(proxy->rowCount(), 2);
    QSignalSpy reset(proxy.get(), &QAbstractItemModel::modelReset);

    log.reset();

    QVERIFY(reset.count() > 0);
    QCOMPARE(proxy->rowCount(), 0);
    QCOMPARE(proxy->columnCount(), 0);
    QVERIFY(!proxy->sourceModel());
    proxy->sort(1);
    proxy->setFilterRegularExpression(QStringLiteral("x"));
}

void TestTXLogFilterProxyModel::foreignSourceIsRefused()
{
    logLevels({1, 2});
    QStringListModel other({QStringLiteral("x")});

    proxy->setSourceModel(&other);

    QCOMPARE(proxy->rowCount(), 0);
    QVERIFY(!proxy->sourceModel());
    proxy->setSourceModel(nullptr);
    QCOMPARE(proxy->rowCount(), 0);
}

void TestTXLogFilterProxyModel::sourceCanBeExchanged()
{
    logLevels({1, 2});
    QCOMPARE(proxy->rowCount(), 2);
    const auto otherManager = QSharedPointer<TXLogManager>::create();
    TXLogModel other(otherManager);

    proxy->setSourceModel(&other);
    append(*otherManager, makeItem(QStringLiteral("other")));
    logLevels({3});

    QCOMPARE(texts(), QStringList(QStringLiteral("other")));
    proxy->setSourceModel(nullptr);
}

void TestTXLogFilterProxyModel::turnedOffSortingAddsNewRowsInLogOrder()
{
    proxy->setDynamicSortFilter(false);
    proxy->sort(1, Qt::AscendingOrder);
    for (const char *text : {"c", "a", "b"}) {
        append(*manager, makeItem(QString::fromLatin1(text)));
    }
    QCOMPARE(texts().join(u""), QStringLiteral("cab"));

    proxy->setDynamicSortFilter(true);

    QCOMPARE(texts().join(u""), QStringLiteral("abc"));
}

void TestTXLogFilterProxyModel::testerFindsNoFault()
{
    // Flat, as the log itself has children under every column, which the tester does not take.
    QAbstractItemModelTester tester(proxy.get(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    logLevels({1, 3, 2, 1, 3, 2});
    proxy->sort(0, Qt::DescendingOrder);
    filterByLevel(QStringLiteral("3"));
    logLevels({3, 1});
    filterByLevel(QStringLiteral("[1-2]"));
    manager->setMaximumCount(3);
    proxy->sort(1, Qt::AscendingOrder);
    filterByLevel(QString());
    manager->reset();
    log->clear();
    logLevels({1});

    QCOMPARE(texts(), QStringList(QStringLiteral("0:1")));
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogFilterProxyModel>(argc, argv);
}

#include "tst_TXLogFilterProxyModel.moc"
