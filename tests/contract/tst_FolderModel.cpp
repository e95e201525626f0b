#include "FolderModel.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QMimeData>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

namespace {

constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

/// A(A1(A1a) A2) B C
struct Folders
{
    FolderModel model;
    QAbstractItemModelTester tester{&model, kFatal};
    QPersistentModelIndex a = model.addFolder("A");
    QPersistentModelIndex a1 = model.addFolder("A1", a);
    QPersistentModelIndex a1a = model.addFolder("A1a", a1);
    QPersistentModelIndex a2 = model.addFolder("A2", a);
    QPersistentModelIndex b = model.addFolder("B");
    QPersistentModelIndex c = model.addFolder("C");

    std::unique_ptr<QMimeData> drag(const QModelIndexList &indexes) const
    {
        return std::unique_ptr<QMimeData>(model.mimeData(indexes));
    }
};

QString outline(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList parts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = outline(model, index);
        parts.append(index.data().toString() + (below.isEmpty() ? "" : "(" + below + ")"));
    }
    return parts.join(' ');
}

QStringList names(const QSignalSpy &spy)
{
    QStringList found;
    for (const QList<QVariant> &arguments : spy) {
        found.append(arguments.first().toModelIndex().data().toString());
    }
    return found;
}

/// Wires a view to the model as the library's tree view does.
void wire(QTreeView &view, FolderModel &model)
{
    QObject::connect(&view, SIGNAL(collapsed(QModelIndex)), &model,
                     SLOT(itemHasBeenCollasped(QModelIndex)));
    QObject::connect(&view, SIGNAL(expanded(QModelIndex)), &model,
                     SLOT(itemHasBeenExpanded(QModelIndex)));
    QObject::connect(&model, SIGNAL(itemHasToBeCollapsed(QModelIndex)), &view,
                     SLOT(collapse(QModelIndex)));
    QObject::connect(&model, SIGNAL(itemHasToBeExpanded(QModelIndex)), &view,
                     SLOT(expand(QModelIndex)));
    view.setModel(&model);
    view.expandAll();
    model.updateExpandState();
}

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

class TestFolderModel : public TestBase
{
    Q_OBJECT

private slots:
    void baseClassesAreVisibleAcrossTheLibrary();
    void foldersAreAddedAsLastChildren();
    void refusedNamesAreNotAdded_data();
    void refusedNamesAreNotAdded();
    void namesAreStoredWithoutSurroundingBlanks();
    void sameNameIsFreeUnderAnotherParentAndAfterRemoval();
    void renamingChangesTheNameAndTellsIt();
    void refusedRenamingChangesNothing();
    void removingTakesTheSubtree();
    void removingRowsThatAreNotThereIsRefused_data();
    void removingRowsThatAreNotThereIsRefused();
    void foreignAndOldIndexesReadAsNothing();
    void moveRowsFollowsItsArguments_data();
    void moveRowsFollowsItsArguments();

    void newFolderIsExpanded();
    void reportsOfTheViewAreRemembered();
    void updateAsksForEveryFolderWithChildren();
    void expandingEverythingDoesNotEraseTheMemory();
    void expansionByTheUserIsBelievedInTheNextTurn();
    void aSecondViewOpensAsTheFirstWasLeft();
    void folderOpensInTheViewWithItsFirstChild();
    void expansionSurvivesAMove();
    void treeMayChangeWhileTheViewIsAsked();

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

    void deepTreesAreDestroyedSafely();
    void walkOverManySiblingsIsNotSquare();
};

void TestFolderModel::baseClassesAreVisibleAcrossTheLibrary()
{
    FolderModel model;
    QAbstractItemModel *plain = &model;
    QVERIFY(dynamic_cast<FolderModel *>(plain));
    QVERIFY(dynamic_cast<IDropAllowedStrategy *>(plain));

    QStandardItemModel other;
    plain = &other;
    QVERIFY(!dynamic_cast<IDropAllowedStrategy *>(plain));
}

void TestFolderModel::foldersAreAddedAsLastChildren()
{
    Folders folders;
    QCOMPARE(outline(folders.model), "A(A1(A1a) A2) B C");
    QCOMPARE(folders.a1.parent(), QModelIndex(folders.a));
    QCOMPARE(folders.a2.row(), 1);
    QCOMPARE(folders.model.columnCount(folders.a), 1);
    QVERIFY(folders.model.flags(folders.a) & Qt::ItemIsDragEnabled);
    QVERIFY(folders.model.flags(folders.a) & Qt::ItemIsDropEnabled);
    QCOMPARE(folders.model.flags({}), Qt::ItemIsDropEnabled);
}

void TestFolderModel::refusedNamesAreNotAdded_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << " \t\n";
    QTest::newRow("taken") << "A";
    QTest::newRow("taken, with blanks") << " A ";
}

void TestFolderModel::refusedNamesAreNotAdded()
{
    QFETCH(QString, name);
    Folders folders;
    const QSignalSpy spy(&folders.model, &FolderModel::rowsInserted);
    QVERIFY(!folders.model.addFolder(name).isValid());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(folders.model.rowCount(), 3);
}

void TestFolderModel::namesAreStoredWithoutSurroundingBlanks()
{
    FolderModel model;
    QCOMPARE(model.addFolder("  two words ").data().toString(), "two words");
}

void TestFolderModel::sameNameIsFreeUnderAnotherParentAndAfterRemoval()
{
    Folders folders;
    QVERIFY(folders.model.addFolder("A", folders.b).isValid());
    QVERIFY(folders.model.addFolder("a").isValid());
    QVERIFY(folders.model.remove(folders.c));
    QVERIFY(folders.model.addFolder("C").isValid());
    QVERIFY(folders.model.rename(folders.b, "D"));
    QVERIFY(folders.model.addFolder("B").isValid());
}

void TestFolderModel::renamingChangesTheNameAndTellsIt()
{
    Folders folders;
    const QSignalSpy spy(&folders.model, &FolderModel::dataChanged);
    QVERIFY(folders.model.rename(folders.a2, "new"));
    QVERIFY(folders.model.setData(folders.b, "other"));
    QCOMPARE(outline(folders.model), "A(A1(A1a) new) other C");
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.first().first().toModelIndex(), QModelIndex(folders.a2));

    QVERIFY(folders.model.rename(folders.a2, "new"));
    QCOMPARE(spy.count(), 2);
}

void TestFolderModel::refusedRenamingChangesNothing()
{
    Folders folders;
    const QSignalSpy spy(&folders.model, &FolderModel::dataChanged);
    QVERIFY(!folders.model.rename(folders.a, " "));
    QVERIFY(!folders.model.rename(folders.a, "B"));
    QVERIFY(!folders.model.setData(folders.a, "B"));
    QVERIFY(!folders.model.setData(folders.a, "free", Qt::DisplayRole));
    QVERIFY(!folders.model.rename({}, "free"));
    QCOMPARE(outline(folders.model), "A(A1(A1a) A2) B C");
    QCOMPARE(spy.count(), 0);
}

void TestFolderModel::removingTakesTheSubtree()
{
    Folders folders;
    QVERIFY(folders.model.remove(folders.a));
    QCOMPARE(outline(folders.model), "B C");
    QVERIFY(!folders.a1a.isValid());
    QVERIFY(folders.model.removeRows(0, 2));
    QCOMPARE(folders.model.rowCount(), 0);
    QVERIFY(!folders.model.remove({}));
}

void TestFolderModel::removingRowsThatAreNotThereIsRefused_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::newRow("before the first") << -1 << 1;
    QTest::newRow("behind the last") << 3 << 1;
    QTest::newRow("too many") << 1 << 3;
    QTest::newRow("none") << 1 << 0;
    QTest::newRow("less than none") << 1 << -1;
    QTest::newRow("overflow") << 1 << INT_MAX;
}

void TestFolderModel::removingRowsThatAreNotThereIsRefused()
{
    QFETCH(int, row);
    QFETCH(int, count);
    Folders folders;
    QVERIFY(!folders.model.removeRows(row, count));
    QCOMPARE(outline(folders.model), "A(A1(A1a) A2) B C");
}

void TestFolderModel::foreignAndOldIndexesReadAsNothing()
{
    Folders folders;
    Folders others;
    const QModelIndex old = folders.a1;
    folders.model.remove(folders.a);

    for (const QModelIndex &index : {old, QModelIndex(others.a)}) {
        QVERIFY(!folders.model.data(index).isValid());
        QCOMPARE(folders.model.flags(index), Qt::NoItemFlags);
        QCOMPARE(folders.model.rowCount(index), 0);
        QVERIFY(!folders.model.parent(index).isValid());
        QVERIFY(!folders.model.index(0, 0, index).isValid());
        QVERIFY(!folders.model.isExpanded(index));
        QVERIFY(!folders.model.addFolder("x", index).isValid());
        QVERIFY(!folders.model.rename(index, "x"));
        QVERIFY(!folders.model.remove(index));
        QVERIFY(!folders.model.removeRows(0, 1, index));
        QVERIFY(!folders.model.moveRows(index, 0, 1, {}, 0));
        QVERIFY(!folders.model.moveRows({}, 0, 1, index, 0));
        folders.model.itemHasBeenCollasped(index);
        folders.model.itemHasBeenExpanded(index);
    }
    QCOMPARE(outline(folders.model), "B C");
    QVERIFY(others.model.isExpanded(others.a));
}

void TestFolderModel::moveRowsFollowsItsArguments_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("into");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("result");
    const QString same = "A(A1(A1a) A2) B C";
    QTest::newRow("down") << "" << 0 << 1 << "" << 2 << "B A(A1(A1a) A2) C";
    QTest::newRow("to the end") << "" << 0 << 2 << "" << 3 << "C A(A1(A1a) A2) B";
    QTest::newRow("up") << "" << 2 << 1 << "" << 0 << "C A(A1(A1a) A2) B";
    QTest::newRow("into") << "" << 1 << 2 << "A" << 1 << "A(A1(A1a) B C A2)";
    QTest::newRow("out") << "A" << 0 << 2 << "" << 0 << "A1(A1a) A2 A B C";
    QTest::newRow("where it stands") << "" << 1 << 1 << "" << 1 << same;
    QTest::newRow("just behind itself") << "" << 1 << 1 << "" << 2 << same;
    QTest::newRow("into itself") << "" << 0 << 1 << "A" << 0 << same;
    QTest::newRow("below itself") << "" << 0 << 1 << "A1" << 0 << same;
    QTest::newRow("row missing") << "" << 2 << 2 << "A" << 0 << same;
    QTest::newRow("place missing") << "" << 1 << 1 << "A" << 3 << same;
    QTest::newRow("place negative") << "" << 1 << 1 << "A" << -1 << same;
}

void TestFolderModel::moveRowsFollowsItsArguments()
{
    QFETCH(QString, from);
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, into);
    QFETCH(int, before);
    QFETCH(QString, result);
    Folders folders;
    const QHash<QString, QModelIndex> byName{{"A", folders.a}, {"A1", folders.a1}};
    const bool moves = result != outline(folders.model);
    QCOMPARE(folders.model.moveRows(byName.value(from), row, count, byName.value(into), before),
             moves);
    QCOMPARE(outline(folders.model), result);
}

void TestFolderModel::newFolderIsExpanded()
{
    Folders folders;
    QVERIFY(folders.model.isExpanded(folders.a));
    QVERIFY(folders.model.isExpanded(folders.c));
    QVERIFY(!folders.model.isExpanded({}));
}

void TestFolderModel::reportsOfTheViewAreRemembered()
{
    Folders folders;
    folders.model.itemHasBeenCollasped(folders.a);
    QVERIFY(!folders.model.isExpanded(folders.a));
    QVERIFY(folders.model.isExpanded(folders.a1));
    folders.model.itemHasBeenExpanded(folders.a);
    QVERIFY(folders.model.isExpanded(folders.a));
}

void TestFolderModel::updateAsksForEveryFolderWithChildren()
{
    Folders folders;
    folders.model.itemHasBeenCollasped(folders.a);
    folders.model.itemHasBeenCollasped(folders.a1);
    folders.model.itemHasBeenExpanded(folders.a);
    const QSignalSpy collapse(&folders.model, SIGNAL(itemHasToBeCollapsed(QModelIndex)));
    const QSignalSpy expand(&folders.model, SIGNAL(itemHasToBeExpanded(QModelIndex)));
    folders.model.updateExpandState();
    QCOMPARE(names(collapse), QStringList{"A1"});
    QCOMPARE(names(expand), QStringList{"A"});
}

void TestFolderModel::expandingEverythingDoesNotEraseTheMemory()
{
    Folders folders;
    QTreeView view;
    wire(view, folders.model);
    QVERIFY(view.isExpanded(folders.a));
    QVERIFY(view.isExpanded(folders.a1));

    view.collapse(folders.a1);
    QVERIFY(!folders.model.isExpanded(folders.a1));
    for (int round = 0; round < 2; ++round) {
        view.expandAll();
        QVERIFY(view.isExpanded(folders.a1));
        folders.model.updateExpandState();
        QVERIFY(view.isExpanded(folders.a));
        QVERIFY(!view.isExpanded(folders.a1));
        QVERIFY(!folders.model.isExpanded(folders.a1));
    }
}

void TestFolderModel::expansionByTheUserIsBelievedInTheNextTurn()
{
    Folders folders;
    QTreeView view;
    wire(view, folders.model);
    view.collapse(folders.a1);
    view.expand(folders.a1);
    QVERIFY(folders.model.isExpanded(folders.a1));
    QCoreApplication::processEvents();

    view.expandAll();
    folders.model.updateExpandState();
    QVERIFY(view.isExpanded(folders.a1));
    QVERIFY(folders.model.isExpanded(folders.a1));
}

void TestFolderModel::aSecondViewOpensAsTheFirstWasLeft()
{
    Folders folders;
    {
        QTreeView first;
        wire(first, folders.model);
        first.collapse(folders.a1);
        QCoreApplication::processEvents();
    }
    QTreeView second;
    wire(second, folders.model);
    QVERIFY(second.isExpanded(folders.a));
    QVERIFY(!second.isExpanded(folders.a1));
}

void TestFolderModel::folderOpensInTheViewWithItsFirstChild()
{
    Folders folders;
    QTreeView view;
    wire(view, folders.model);
    const QSignalSpy expand(&folders.model, SIGNAL(itemHasToBeExpanded(QModelIndex)));
    const QModelIndex added = folders.model.addFolder("D");
    QCOMPARE(expand.count(), 0);
    folders.model.addFolder("D1", added);
    folders.model.addFolder("D2", added);
    QCOMPARE(names(expand), QStringList{"D"});
    QVERIFY(view.isExpanded(added));

    folders.model.itemHasBeenCollasped(folders.c);
    folders.model.addFolder("C1", folders.c);
    folders.model.moveRows(folders.a, 1, 1, folders.b, 0);
    QCOMPARE(names(expand), (QStringList{"D", "B"}));
}

void TestFolderModel::expansionSurvivesAMove()
{
    Folders folders;
    folders.model.itemHasBeenCollasped(folders.a1);
    QVERIFY(folders.model.moveRows(folders.a, 0, 1, folders.b, 0));
    QVERIFY(!folders.model.isExpanded(folders.a1));
    QVERIFY(folders.model.isExpanded(folders.a));
}

void TestFolderModel::treeMayChangeWhileTheViewIsAsked()
{
    Folders folders;
    QStringList asked;
    connect(&folders.model, &FolderModel::itemHasToBeExpanded, this, [&](const QModelIndex &index) {
        asked.append(index.data().toString());
        folders.model.remove(folders.a1);
    });
    folders.model.updateExpandState();
    QCOMPARE(asked, QStringList{"A"});
}

void TestFolderModel::dropPolicy_data()
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

void TestFolderModel::dropPolicy()
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

void TestFolderModel::dropPolicyIgnoresWhatIsNotAFolder()
{
    Folders folders;
    QMimeData data;
    data.setText("queue entry");
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::MoveAction}) {
        QVERIFY(folders.model.isDropAllowed(folders.a, &data, action, FolderModel::OnItem));
    }
}

void TestFolderModel::dropPolicyWantsDataAndAMove()
{
    Folders folders;
    const auto data = folders.drag({folders.b});
    QVERIFY(!folders.model.isDropAllowed(folders.a, nullptr, Qt::MoveAction, FolderModel::OnItem));
    QVERIFY(
        folders.model.isDropAllowed(folders.a, data.get(), Qt::MoveAction, FolderModel::OnItem));
    QVERIFY(
        !folders.model.isDropAllowed(folders.a, data.get(), Qt::CopyAction, FolderModel::OnItem));
}

void TestFolderModel::dropPolicySeesThroughProxies()
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

void TestFolderModel::dropPolicyRefusesOtherForeignIndexes()
{
    Folders folders;
    QStandardItemModel other(1, 1);
    const auto data = folders.drag({folders.a});
    QVERIFY(!folders.model.isDropAllowed(other.index(0, 0), data.get(), Qt::MoveAction,
                                         FolderModel::OnItem));
}

void TestFolderModel::dragCarriesTextUnderOneFormat()
{
    Folders folders;
    const auto data = folders.drag({folders.b});
    QCOMPARE(data->formats(), folders.model.mimeTypes());
    const QByteArray bytes = data->data(data->formats().first());
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(QString::fromUtf8(bytes).toUtf8(), bytes);
}

void TestFolderModel::dragOfNothingIsNull()
{
    Folders folders;
    QVERIFY(!folders.drag({}));
    QVERIFY(!folders.drag({QModelIndex()}));
}

void TestFolderModel::dropMoves_data()
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

void TestFolderModel::dropMoves()
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

void TestFolderModel::dropOfChildWithItsParentMovesTheParentOnly()
{
    Folders folders;
    const auto data = folders.drag({folders.a1a, folders.a, folders.a1});
    folders.model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, folders.b);
    QCOMPARE(outline(folders.model), "B(A(A1(A1a) A2)) C");
}

void TestFolderModel::dropOfEqualNamesIsRefusedAsAWhole()
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

void TestFolderModel::dropOfAnotherModelOrDamagedDataIsRefused_data()
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

void TestFolderModel::dropOfAnotherModelOrDamagedDataIsRefused()
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

void TestFolderModel::dropSurvivesARemovalBetweenItsMoves_data()
{
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("left");
    QTest::newRow("what was to move next") << "B"
                                           << "A(A2) C(A1(A1a))";
    QTest::newRow("the destination") << "C"
                                     << "A(A2) B";
}

void TestFolderModel::dropSurvivesARemovalBetweenItsMoves()
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

void TestFolderModel::dropFromTheViewMovesAndIsNotTakenForARemoval()
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

void TestFolderModel::persistentIndexesFollowADrop()
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

void TestFolderModel::deepTreesAreDestroyedSafely()
{
    FolderModel model;
    QModelIndex index;
    for (int depth = 0; depth < 200'000; ++depth) {
        index = model.addFolder("deeper", index);
    }
    QVERIFY(index.isValid());
    QVERIFY(model.removeRows(0, 1));
    QVERIFY(model.addFolder("deeper").isValid());
}

void TestFolderModel::walkOverManySiblingsIsNotSquare()
{
    constexpr int kSiblings = 200'000;
    FolderModel model;
    const QModelIndex parent = model.addFolder("parent");
    for (int row = 0; row < kSiblings; ++row) {
        model.addFolder(QString::number(row), parent);
    }
    // At a cost of one step per sibling this would be 4 * 10^10 steps and hit the time limit.
    int right = 0;
    for (int row = 0; row < kSiblings; ++row) {
        const QModelIndex child = model.index(row, 0, parent);
        right += child.row() == row && child.parent() == parent ? 1 : 0;
    }
    QCOMPARE(right, kSiblings);
}

int main(int argc, char **argv)
{
    return runTest<TestFolderModel>(argc, argv);
}

#include "tst_FolderModel.moc"
