#include "FolderModel.h"

#include "FolderModelHelpers.h"
#include "TestBase.h"

#include <QIdentityProxyModel>
#include <QMimeData>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>

using FolderTest::Folders;
using FolderTest::outline;

namespace {

/// A tree view whose drops a test can send.
class DropView : public QTreeView
{
public:
    using QTreeView::dropEvent;

    DropView()
    {
        setDragDropMode(QAbstractItemView::DragDrop);
        resize(200, 300);
    }

    /// Drops onto the middle of an item.
    bool drop(const QMimeData &data, const QModelIndex &onto)
    {
        const QPoint place = visualRect(onto).center();
        QDragMoveEvent move(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        dragMoveEvent(&move);
        QDropEvent event(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        dropEvent(&event);
        return event.isAccepted();
    }
};

} // namespace

/// What is dragged, which drops are allowed, and what they do.
class TestFolderModelDrops : public TestBase
{
    Q_OBJECT

private slots:
    void dropPolicy_data();
    void dropPolicy();
    void dropPolicyIgnoresWhatIsNotAFolder();
    void dropPolicyWantsDataAndAMove();
    void dropPolicySeesThroughProxies();
    void dropPolicyRefusesOtherForeignIndexes();
    void dragCarriesTextUnderOneFormat();
    void dragOfNothingIsNull();
    void dropMoves_data();
    void dropMoves();
    void dropOfChildWithItsParentMovesTheParentOnly();
    void dropOfEqualNamesIsRefusedAsAWhole();
    void dropOfAnotherModelOrDamagedDataIsRefused_data();
    void dropOfAnotherModelOrDamagedDataIsRefused();
    void dropSurvivesARemovalBetweenItsMoves_data();
    void dropSurvivesARemovalBetweenItsMoves();
    void dropFromTheViewMovesAndIsNotTakenForARemoval();
    void persistentIndexesFollowADrop();
};

void TestFolderModelDrops::dropPolicy_data()
{
    using Policy = IDropAllowedStrategy;
    QTest::addColumn<QString>("dragged");
    QTest::addColumn<QString>("at");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("into itself") << "A"
                                 << "A" << int(Policy::OnItem) << false;
    QTest::newRow("into its child") << "A"
                                    << "A1" << int(Policy::OnItem) << false;
    QTest::newRow("into a grandchild") << "A"
                                       << "A1a" << int(Policy::OnItem) << false;
    QTest::newRow("beside its child") << "A"
                                      << "A2" << int(Policy::AboveItem) << false;
    QTest::newRow("beside a grandchild") << "A"
                                         << "A1a" << int(Policy::BelowItem) << false;
    QTest::newRow("beside itself") << "A"
                                   << "A" << int(Policy::BelowItem) << true;
    QTest::newRow("beside a sibling") << "A"
                                      << "B" << int(Policy::AboveItem) << true;
    QTest::newRow("into a sibling") << "A"
                                    << "B" << int(Policy::OnItem) << true;
    QTest::newRow("into its parent") << "A1"
                                     << "A" << int(Policy::OnItem) << true;
    QTest::newRow("out to the top") << "A1a"
                                    << "C" << int(Policy::BelowItem) << true;
    QTest::newRow("viewport") << "A1a"
                              << "" << int(Policy::OnViewport) << true;
    QTest::newRow("viewport, near an item") << "A"
                                            << "A1" << int(Policy::OnViewport) << true;
}

void TestFolderModelDrops::dropPolicy()
{
    QFETCH(QString, dragged);
    QFETCH(QString, at);
    QFETCH(int, position);
    QFETCH(bool, allowed);
    Folders folders;
    const QHash<QString, QModelIndex> byName{{"A", folders.a},     {"A1", folders.a1},
                                             {"A1a", folders.a1a}, {"A2", folders.a2},
                                             {"B", folders.b},     {"C", folders.c}};
    const auto data = folders.drag({byName.value(dragged)});
    const auto place = IDropAllowedStrategy::DropIndicatorPosition(position);
    QCOMPARE(folders.model.isDropAllowed(byName.value(at), data.get(), Qt::MoveAction, place),
             allowed);
    QCOMPARE(outline(folders.model), "A(A1(A1a) A2) B C");
}

void TestFolderModelDrops::dropPolicyIgnoresWhatIsNotAFolder()
{
    Folders folders;
    QMimeData data;
    data.setText("queue entry");
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::MoveAction}) {
        QVERIFY(folders.model.isDropAllowed(folders.a, &data, action, FolderModel::OnItem));
    }
}

void TestFolderModelDrops::dropPolicyWantsDataAndAMove()
{
    Folders folders;
    const auto data = folders.drag({folders.b});
    QVERIFY(!folders.model.isDropAllowed(folders.a, nullptr, Qt::MoveAction, FolderModel::OnItem));
    QVERIFY(
        folders.model.isDropAllowed(folders.a, data.get(), Qt::MoveAction, FolderModel::OnItem));
    QVERIFY(
        !folders.model.isDropAllowed(folders.a, data.get(), Qt::CopyAction, FolderModel::OnItem));
}

void TestFolderModelDrops::dropPolicySeesThroughProxies()
{
    Folders folders;
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&folders.model);
    sorted.sort(0, Qt::DescendingOrder);
    QIdentityProxyModel outer;
    outer.setSourceModel(&sorted);
    const auto data = folders.drag({folders.a});

    const QModelIndex a = outer.mapFromSource(sorted.mapFromSource(folders.a));
    const QModelIndex b = outer.mapFromSource(sorted.mapFromSource(folders.b));
    QCOMPARE(b.row(), 1);
    QCOMPARE(a.row(), 2);
    QVERIFY(!folders.model.isDropAllowed(a, data.get(), Qt::MoveAction, FolderModel::OnItem));
    QVERIFY(folders.model.isDropAllowed(b, data.get(), Qt::MoveAction, FolderModel::OnItem));
}

void TestFolderModelDrops::dropPolicyRefusesOtherForeignIndexes()
{
    Folders folders;
    QStandardItemModel other(1, 1);
    const auto data = folders.drag({folders.a});
    QVERIFY(!folders.model.isDropAllowed(other.index(0, 0), data.get(), Qt::MoveAction,
                                         FolderModel::OnItem));
}

void TestFolderModelDrops::dragCarriesTextUnderOneFormat()
{
    Folders folders;
    const auto data = folders.drag({folders.b});
    QCOMPARE(data->formats(), folders.model.mimeTypes());
    const QByteArray bytes = data->data(data->formats().first());
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(QString::fromUtf8(bytes).toUtf8(), bytes);
}

void TestFolderModelDrops::dragOfNothingIsNull()
{
    Folders folders;
    QVERIFY(!folders.drag({}));
    QVERIFY(!folders.drag({QModelIndex()}));
}

void TestFolderModelDrops::dropMoves_data()
{
    QTest::addColumn<QStringList>("dragged");
    QTest::addColumn<QString>("into");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("result");
    const QString same = "A(A1(A1a) A2) B C";
    QTest::newRow("onto") << QStringList{"C"} << "B" << -1 << "A(A1(A1a) A2) B(C)";
    QTest::newRow("onto its parent") << QStringList{"A1"} << "A" << -1 << "A(A2 A1(A1a)) B C";
    QTest::newRow("between") << QStringList{"C"} << "A" << 1 << "A(A1(A1a) C A2) B";
    QTest::newRow("before itself") << QStringList{"B"} << "" << 1 << same;
    QTest::newRow("behind itself") << QStringList{"B"} << "" << 2 << same;
    QTest::newRow("to the end") << QStringList{"A2"} << "" << -1 << "A(A1(A1a)) B C A2";
    QTest::newRow("row too high") << QStringList{"A"} << "" << 99 << "B C A(A1(A1a) A2)";
    QTest::newRow("several, in tree order")
        << QStringList{"C", "A2", "B"} << "A1" << 0 << "A(A1(B C A2 A1a))";
    QTest::newRow("apart, around their place")
        << QStringList{"A", "C"} << "" << 1 << "A(A1(A1a) A2) C B";
    QTest::newRow("into themselves") << QStringList{"B", "A"} << "A1" << 0 << same;
}

void TestFolderModelDrops::dropMoves()
{
    QFETCH(QStringList, dragged);
    QFETCH(QString, into);
    QFETCH(int, row);
    QFETCH(QString, result);
    Folders folders;
    const QHash<QString, QModelIndex> byName{{"A", folders.a},
                                             {"A1", folders.a1},
                                             {"A2", folders.a2},
                                             {"B", folders.b},
                                             {"C", folders.c}};
    QModelIndexList indexes;
    for (const QString &name : dragged) {
        indexes.append(byName.value(name));
    }
    const auto data = folders.drag(indexes);
    QVERIFY(!folders.model.dropMimeData(data.get(), Qt::MoveAction, row, 0, byName.value(into)));
    QCOMPARE(outline(folders.model), result);
}

void TestFolderModelDrops::dropOfChildWithItsParentMovesTheParentOnly()
{
    Folders folders;
    const auto data = folders.drag({folders.a1a, folders.a, folders.a1});
    folders.model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, folders.b);
    QCOMPARE(outline(folders.model), "B(A(A1(A1a) A2)) C");
}

void TestFolderModelDrops::dropOfEqualNamesIsRefusedAsAWhole()
{
    Folders folders;
    const QModelIndex inB = folders.model.addFolder("A2", folders.b);
    const QString before = outline(folders.model);

    const auto twins = folders.drag({folders.a2, inB});
    QVERIFY(!folders.model.canDropMimeData(twins.get(), Qt::MoveAction, -1, -1, folders.c));
    folders.model.dropMimeData(twins.get(), Qt::MoveAction, -1, -1, folders.c);
    QCOMPARE(outline(folders.model), before);

    const auto taken = folders.drag({folders.c, inB});
    QVERIFY(
        !folders.model.isDropAllowed(folders.a, taken.get(), Qt::MoveAction, FolderModel::OnItem));
    folders.model.dropMimeData(taken.get(), Qt::MoveAction, -1, -1, folders.a);
    QCOMPARE(outline(folders.model), before);
}

void TestFolderModelDrops::dropOfAnotherModelOrDamagedDataIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank") << QByteArray(" ");
    QTest::newRow("ids without a model") << QByteArray(" 5 6");
    QTest::newRow("binary") << QByteArray("\0\xff\n 5", 5);
    const Folders others;
    const auto foreign = others.drag({others.b});
    QTest::newRow("of another model") << foreign->data(foreign->formats().first());
}

void TestFolderModelDrops::dropOfAnotherModelOrDamagedDataIsRefused()
{
    QFETCH(QByteArray, bytes);
    Folders folders;
    QMimeData data;
    data.setData(folders.model.mimeTypes().first(), bytes);
    QVERIFY(!folders.model.canDropMimeData(&data, Qt::MoveAction, -1, -1, folders.a));
    QVERIFY(!folders.model.dropMimeData(&data, Qt::MoveAction, -1, -1, folders.a));
    QCOMPARE(outline(folders.model), "A(A1(A1a) A2) B C");
    QVERIFY(!folders.model.canDropMimeData(nullptr, Qt::MoveAction, -1, -1, folders.a));
}

void TestFolderModelDrops::dropSurvivesARemovalBetweenItsMoves_data()
{
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("left");
    QTest::newRow("what was to move next") << "B"
                                           << "A(A2) C(A1(A1a))";
    QTest::newRow("the destination") << "C"
                                     << "A(A2) B";
}

void TestFolderModelDrops::dropSurvivesARemovalBetweenItsMoves()
{
    QFETCH(QString, removed);
    QFETCH(QString, left);
    Folders folders;
    const QPersistentModelIndex doomed(removed == "B" ? folders.b : folders.c);
    connect(&folders.model, &QAbstractItemModel::rowsMoved, this,
            [&] { folders.model.remove(doomed); });
    const auto data = folders.drag({folders.a1, folders.b});

    folders.model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, folders.c);

    QCOMPARE(outline(folders.model), left);
}

void TestFolderModelDrops::dropFromTheViewMovesAndIsNotTakenForARemoval()
{
    Folders folders;
    DropView view;
    view.setModel(&folders.model);
    view.expandAll();
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const auto data = folders.drag({folders.b});
    QVERIFY(!view.drop(*data, folders.c));
    QCOMPARE(outline(folders.model), "A(A1(A1a) A2) C(B)");
}

void TestFolderModelDrops::persistentIndexesFollowADrop()
{
    Folders folders;
    const auto data = folders.drag({folders.a1, folders.c});
    folders.model.dropMimeData(data.get(), Qt::MoveAction, 0, 0, {});
    QCOMPARE(outline(folders.model), "A1(A1a) C A(A2) B");
    QCOMPARE(folders.a1.row(), 0);
    QCOMPARE(folders.a1a.parent(), QModelIndex(folders.a1));
    QCOMPARE(folders.a.row(), 2);
    QCOMPARE(folders.a2.row(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestFolderModelDrops>(argc, argv);
}

#include "tst_FolderModelDrops.moc"
