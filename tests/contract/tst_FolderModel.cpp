#include "FolderModel.h"

#include "FolderModelHelpers.h"
#include "TestBase.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTreeView>

using FolderTest::Folders;
using FolderTest::outline;

namespace {

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

} // namespace

/// The tree of folders, and which of them are expanded.
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
