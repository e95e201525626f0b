#include "TXLogFilterProxyModel.h"

#include "LogFilterProxyTest.h"
#include "LogTestHelpers.h"
#include "TXLogModel.h"

#include <QRandomGenerator>
#include <QTreeView>

#include <memory>

using LogTest::append;
using LogTest::Item;
using LogTest::makeItem;
using LogTest::makeItemWithChildren;
using LogTest::shownTexts;

namespace {

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
        item->date = LogFilterProxyTest::kNoon.addSecs(random.bounded(3) == 0 ? random.bounded(20)
                                                                              : clock++ / 3);
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

} // namespace

/// The proxy under the tree of a log window.
class TestTXLogFilterProxyModelView : public LogFilterProxyTest
{
    Q_OBJECT

private slots:
    void behavesLikeAPlainProxyUnderAView_data();
    void behavesLikeAPlainProxyUnderAView();
    void currentRowMovesToANeighbourWhenItIsFilteredAway();
    void rowHiddenWithItsParentLeavesNoCurrentRow();
};

void TestTXLogFilterProxyModelView::behavesLikeAPlainProxyUnderAView_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestTXLogFilterProxyModelView::behavesLikeAPlainProxyUnderAView()
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

void TestTXLogFilterProxyModelView::currentRowMovesToANeighbourWhenItIsFilteredAway()
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

void TestTXLogFilterProxyModelView::rowHiddenWithItsParentLeavesNoCurrentRow()
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

int main(int argc, char **argv)
{
    return runTest<TestTXLogFilterProxyModelView>(argc, argv);
}

#include "tst_TXLogFilterProxyModelView.moc"
