#include "TXLogFilterProxyModel.h"

#include "LogTestHelpers.h"
#include "TXLogModel.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTreeView>

#include <memory>

using LogTest::append;
using LogTest::Item;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;
using LogTest::shownTexts;

namespace {

const QDateTime kNoon(QDate(2026, 1, 31), QTime(12, 0));

/// A log window's tree over one of the two proxies that are compared.
struct Side
{
    Side(std::unique_ptr<QSortFilterProxyModel> model, QAbstractItemModel *source)
        : proxy(std::move(model))
    {
        view.setSortingEnabled(true);
        proxy->setDynamicSortFilter(true);
        proxy->setSourceModel(source);
        view.setModel(proxy.get());
        if (auto *ours = qobject_cast<TXLogFilterProxyModel *>(proxy.get())) {
            ours->setSelectionModel(view.selectionModel());
        }
        view.show();
    }

    std::unique_ptr<QSortFilterProxyModel> proxy;
    QTreeView view;
};

/// What a user sees: each laid-out row with its depth, text, and whether it is expanded, selected
/// or current.
QStringList seen(const QTreeView &view)
{
    QStringList lines;
    for (QModelIndex index = view.model()->index(0, 0); index.isValid();
         index = view.indexBelow(index)) {
        QString line;
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
            line += u'.';
        }
        line += index.siblingAtColumn(1).data().toString();
        line += view.isExpanded(index) ? QStringLiteral(" expanded") : QString();
        line += view.selectionModel()->isSelected(index) ? QStringLiteral(" selected") : QString();
        line += view.currentIndex().siblingAtColumn(0) == index ? QStringLiteral(" current")
                                                                : QString();
        lines.append(line);
    }
    return lines;
}

/// Every index of a model, column 0.
QModelIndexList allIndexes(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QModelIndexList indexes;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        indexes.append(model.index(row, 0, parent));
        indexes.append(allIndexes(model, indexes.last()));
    }
    return indexes;
}

} // namespace

class TestTXLogFilterProxyModel : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        manager = QSharedPointer<TXLogManager>::create();
        log = std::make_unique<TXLogModel>(manager);
        proxy = std::make_unique<TXLogFilterProxyModel>();
        proxy->setSourceModel(log.get());
    }

    void finish() override
    {
        proxy.reset();
        log.reset();
        manager.reset();
    }

private slots:
    void behavesLikeAPlainProxyUnderAView_data();
    void behavesLikeAPlainProxyUnderAView();
    void sortedByNothingKeepsTheOrderOfTheLog();
    void newRowsTakeTheirPlace();
    void equalRowsKeepTheOrderOfArrival_data();
    void equalRowsKeepTheOrderOfArrival();
    void filterIsAnnouncedOnce();
    void filterThatChangesNothingIsNotAnnounced();
    void persistentIndexesFollowFilterAndSorting();
    void currentRowMovesToANeighbourWhenItIsFilteredAway();
    void rowHiddenWithItsParentLeavesNoCurrentRow();
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

private:
    void logLevels(const QList<int> &levels);
    [[nodiscard]] QStringList texts() const { return shownTexts(*proxy); }
    void filterByLevel(const QString &pattern)
    {
        proxy->setFilterKeyColumn(TXLogModel::LevelColumn);
        proxy->setFilterRegularExpression(pattern);
    }

    QSharedPointer<TXLogManager> manager;
    std::unique_ptr<TXLogModel> log;
    std::unique_ptr<TXLogFilterProxyModel> proxy;
};

/// Logs a row of each level, a minute apart, named "row:level".
void TestTXLogFilterProxyModel::logLevels(const QList<int> &levels)
{
    for (int row = 0; row < levels.size(); ++row) {
        const Item item =
            makeItem(QStringLiteral("%1:%2").arg(row).arg(levels.at(row)), levels.at(row));
        item->date = kNoon.addSecs(qint64(60) * row);
        append(*manager, item);
    }
}

void TestTXLogFilterProxyModel::behavesLikeAPlainProxyUnderAView_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

/// One step of a user or of the log, done alike on both sides.
class RandomSteps
{
public:
    RandomSteps(quint32 seed, TXLogManager &manager, TXLogModel &model, Side &left, Side &right)
        : random(seed)
        , manager(manager)
        , model(model)
        , sides{&left, &right}
    { }

    QString next()
    {
        switch (random.bounded(16)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return appendEntry();
        case 4:
        case 5:
            return appendBelow();
        case 6:
            manager.setMaximumCount(int(manager.rootItem()->children.size()) / 2 + 1);
            manager.setMaximumCount(0);
            return QStringLiteral("drop the older half");
        case 7:
            return dropOldest();
        case 8:
        case 9:
            return filter();
        case 10:
            return sort();
        case 11:
        case 12:
            return expandOrCollapse();
        case 13:
        case 14:
            return select();
        default:
            return clearOrReset();
        }
    }

private:
    QString appendEntry()
    {
        const int level = random.bounded(5);
        const Item item =
            makeItemWithChildren(QString::number(counter++ % 7), random.bounded(3), level);
        item->date = kNoon.addSecs(random.bounded(3) == 0 ? random.bounded(20) : clock++ / 3);
        for (const Item &child : qAsConst(item->children)) {
            child->level = random.bounded(5);
        }
        items.append(item);
        append(manager, item);
        return QStringLiteral("append");
    }

    QString appendBelow()
    {
        if (!items.isEmpty()) {
            const Item child = makeItem(QString::number(counter++ % 5), random.bounded(5));
            append(manager, child, items.at(random.bounded(items.size())));
            items.append(child);
        }
        return QStringLiteral("append below");
    }

    QString dropOldest()
    {
        if (const Item oldest = manager.rootItem()->takeFirstChild()) {
            emit manager.rootItem()->itemDeleted(oldest);
        }
        return QStringLiteral("drop the oldest");
    }

    QString filter()
    {
        static const QStringList patterns = {QString(), QStringLiteral("[2-3]"),
                                             QStringLiteral("3"), QStringLiteral("[0-4]")};
        const int column = random.bounded(4) == 0 ? 1 : 2;
        const QString &pattern = patterns.at(random.bounded(patterns.size()));
        for (Side *side : sides) {
            side->proxy->setFilterKeyColumn(column);
            side->proxy->setFilterRegularExpression(pattern);
        }
        return QStringLiteral("filter column %1 by \"%2\"").arg(column).arg(pattern);
    }

    QString sort()
    {
        const int column = random.bounded(3);
        const auto order = random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder;
        for (Side *side : sides) {
            side->view.sortByColumn(column, order);
        }
        return QStringLiteral("sort column %1 in order %2").arg(column).arg(order);
    }

    /// A row that the left view shows, as its position from the top; -1 where it shows none.
    int anyRow()
    {
        const auto count = seen(sides[0]->view).size();
        return count == 0 ? -1 : random.bounded(int(count));
    }

    static QModelIndex rowAt(const QTreeView &view, int position)
    {
        QModelIndex index = view.model()->index(0, 0);
        for (int i = 0; i < position; ++i) {
            index = view.indexBelow(index);
        }
        return index;
    }

    QString expandOrCollapse()
    {
        const int position = anyRow();
        const bool isExpanding = random.bounded(3) > 0;
        for (Side *side : sides) {
            side->view.setExpanded(rowAt(side->view, position), isExpanding);
        }
        return QStringLiteral("expand or collapse row %1").arg(position);
    }

    QString select()
    {
        const int position = anyRow();
        for (Side *side : sides) {
            side->view.setCurrentIndex(rowAt(side->view, position));
        }
        return QStringLiteral("select row %1").arg(position);
    }

    QString clearOrReset()
    {
        switch (random.bounded(6)) {
        case 0:
            model.clear();
            return QStringLiteral("clear");
        case 1:
            manager.reset();
            return QStringLiteral("reset");
        default:
            return filter();
        }
    }

    QRandomGenerator random;
    TXLogManager &manager;
    TXLogModel &model;
    std::array<Side *, 2> sides;
    QList<Item> items;
    int counter = 0;
    int clock = 0;
};

void TestTXLogFilterProxyModel::behavesLikeAPlainProxyUnderAView()
{
    QFETCH(quint32, seed);
    Side ours(std::make_unique<TXLogFilterProxyModel>(), log.get());
    Side plain(std::make_unique<QSortFilterProxyModel>(), log.get());
    RandomSteps steps(seed, *manager, *log, ours, plain);
    QStringList history;

    for (int i = 0; i < 300; ++i) {
        history.append(steps.next());
        const QStringList ourRows = seen(ours.view);
        const QStringList plainRows = seen(plain.view);
        QVERIFY2(ourRows == plainRows,
                 qPrintable(QStringLiteral("after step %1:\n%2\nours:\n%3\nplain:\n%4")
                                .arg(i)
                                .arg(history.mid(qMax(0, i - 12)).join(u'\n'), ourRows.join(u'\n'),
                                     plainRows.join(u'\n'))));
        if (i % 10 == 0) {
            QCOMPARE(shownTexts(*ours.proxy), shownTexts(*plain.proxy));
            for (const QModelIndex &index : allIndexes(*ours.proxy)) {
                QCOMPARE(ours.proxy->mapFromSource(ours.proxy->mapToSource(index)), index);
            }
            // Below a hidden entry the plain proxy would make up indexes that nothing shows, and
            // lose track of what arrives there.
            for (const QModelIndex &index : allIndexes(*log)) {
                if (!index.parent().isValid()
                    || ours.proxy->mapFromSource(index.parent()).isValid()) {
                    QCOMPARE(ours.proxy->mapFromSource(index).row(),
                             plain.proxy->mapFromSource(index).row());
                }
            }
        }
    }
}

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

void TestTXLogFilterProxyModel::currentRowMovesToANeighbourWhenItIsFilteredAway()
{
    logLevels({3, 1, 1, 1, 3});
    Side side(std::make_unique<TXLogFilterProxyModel>(), log.get());
    side.view.sortByColumn(0, Qt::AscendingOrder);
    side.view.setCurrentIndex(side.proxy->index(2, 0));
    side.proxy->setFilterKeyColumn(TXLogModel::LevelColumn);

    side.proxy->setFilterRegularExpression(QStringLiteral("3"));

    QCOMPARE(seen(side.view),
             QStringList({QStringLiteral("0:3"), QStringLiteral("4:3 selected current")}));
}

void TestTXLogFilterProxyModel::rowHiddenWithItsParentLeavesNoCurrentRow()
{
    append(*manager, makeItemWithChildren(QStringLiteral("quiet"), 2, 1));
    append(*manager, makeItem(QStringLiteral("loud"), 3));
    Side side(std::make_unique<TXLogFilterProxyModel>(), log.get());
    side.view.sortByColumn(1, Qt::AscendingOrder);
    side.view.expand(side.proxy->index(1, 0));
    side.view.setCurrentIndex(side.proxy->index(0, 0, side.proxy->index(1, 0)));
    side.proxy->setFilterKeyColumn(TXLogModel::LevelColumn);

    side.proxy->setFilterRegularExpression(QStringLiteral("3"));

    QCOMPARE(seen(side.view), QStringList(QStringLiteral("loud")));
    QVERIFY(!side.view.currentIndex().isValid());
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
