#include "TreeViewDragAndDrop.h"

#include "TestBase.h"
#include "TreeDropHelpers.h"

#include <QIdentityProxyModel>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <memory>

namespace {

using Folders = ProfileFolders<>;

/// A view of the folders, as they are or behind a sorting proxy, after it has opened.
struct CoupledTree
{
    Folders folders;
    QSortFilterProxyModel proxy;
    DropTree view;

    explicit CoupledTree(bool hasProxy)
    {
        proxy.setSourceModel(&folders.model);
        proxy.sort(0, Qt::DescendingOrder);
        view.setModel(hasProxy ? static_cast<QAbstractItemModel *>(&proxy) : &folders.model);
        QCoreApplication::processEvents();
    }

    [[nodiscard]] bool isOpen(const QModelIndex &folder) const
    {
        return view.isExpanded(view.toProxyIndex(folder));
    }
    void setOpen(const QModelIndex &folder, bool isOpen)
    {
        view.setExpanded(view.toProxyIndex(folder), isOpen);
        // A report of an expansion is believed with the next turn of the event loop.
        QCoreApplication::processEvents();
    }
};

struct CoupledSpies
{
    QSignalSpy hasBeenCollapsed;
    QSignalSpy hasBeenExpanded;
    QSignalSpy hasToBeCollapsed;
    QSignalSpy hasToBeExpanded;

    explicit CoupledSpies(const TreeViewDragAndDrop &view)
        : hasBeenCollapsed(&view, SIGNAL(hasBeenCollapsed(QModelIndex)))
        , hasBeenExpanded(&view, SIGNAL(hasBeenExpanded(QModelIndex)))
        , hasToBeCollapsed(&view, SIGNAL(hasToBeCollasped(QModelIndex)))
        , hasToBeExpanded(&view, SIGNAL(hasToBeExpanded(QModelIndex)))
    { }

    [[nodiscard]] QList<qsizetype> counts() const
    {
        return {hasBeenCollapsed.size(), hasBeenExpanded.size(), hasToBeCollapsed.size(),
                hasToBeExpanded.size()};
    }
};

} // namespace

/// Deletes the view when the first folder opens.
class OpeningRemover : public QObject
{
    Q_OBJECT

public:
    std::unique_ptr<DropTree> view = std::make_unique<DropTree>();

public slots:
    void remove() { view.reset(); }
};

class TestTreeViewDragAndDropModels : public TestBase
{
    Q_OBJECT

private slots:
    void wholeTreeOpensWithTheNextTurn_data();
    void wholeTreeOpensWithTheNextTurn();
    void rememberedFoldersStayClosed();
    void whatTheUserDoesIsRemembered_data();
    void whatTheUserDoesIsRemembered();
    void whatTheModelAsksForIsDone_data();
    void whatTheModelAsksForIsDone();
    void filteredFolderIsAskedForWithoutHarm();
    void filteredFolderKeepsItsMemory();
    void twoViewsAreKeptInStepByTheirOwnSlots();
    void sameModelTwiceSignalsTwice();
    void otherModelsAreNotCoupled_data();
    void otherModelsAreNotCoupled();
    void nullIsNoModel();
    void formerFolderModelIsNoLongerHeard_data();
    void formerFolderModelIsNoLongerHeard();
    void hostsOwnConnectionsToTheFormerModelStay();
    void formerModelBelowAnotherProxyIsHeardOnce();
    void exchangedSourceIsNoHarm();
    void translationIsThatOfTheProxy();
    void withoutProxyTranslationChangesNothing();
    void foreignIndexesAreNotTranslated();
    void viewMayDieBeforeItOpens();
    void modelMayDieBeforeTheViewOpens_data();
    void modelMayDieBeforeTheViewOpens();
    void viewMayDieWhileItOpens();
};

namespace {

void addProxyRows()
{
    QTest::addColumn<bool>("hasProxy");

    QTest::newRow("the folder model") << false;
    QTest::newRow("a proxy over it") << true;
}

} // namespace

void TestTreeViewDragAndDropModels::wholeTreeOpensWithTheNextTurn_data()
{
    addProxyRows();
}

void TestTreeViewDragAndDropModels::wholeTreeOpensWithTheNextTurn()
{
    QFETCH(const bool, hasProxy);
    Folders folders;
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&folders.model);
    DropTree view;

    view.setModel(hasProxy ? static_cast<QAbstractItemModel *>(&proxy) : &folders.model);
    QVERIFY(!view.isExpanded(view.toProxyIndex(folders.printing)));
    QCoreApplication::processEvents();

    QVERIFY(view.isExpanded(view.toProxyIndex(folders.printing)));
    QVERIFY(view.isExpanded(view.toProxyIndex(folders.coated)));
}

void TestTreeViewDragAndDropModels::rememberedFoldersStayClosed()
{
    CoupledTree tree(true);
    tree.folders.model.itemHasBeenCollasped(tree.folders.coated);
    DropTree second;

    second.setModel(&tree.folders.model);
    QCoreApplication::processEvents();

    QVERIFY(second.isExpanded(tree.folders.printing));
    QVERIFY(!second.isExpanded(tree.folders.coated));
    QVERIFY(!tree.folders.model.isExpanded(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::whatTheUserDoesIsRemembered_data()
{
    addProxyRows();
}

void TestTreeViewDragAndDropModels::whatTheUserDoesIsRemembered()
{
    QFETCH(const bool, hasProxy);
    CoupledTree tree(hasProxy);
    const CoupledSpies spies(tree.view);

    tree.setOpen(tree.folders.coated, false);
    QVERIFY(!tree.folders.model.isExpanded(tree.folders.coated));
    tree.setOpen(tree.folders.coated, true);
    QVERIFY(tree.folders.model.isExpanded(tree.folders.coated));

    QCOMPARE(spies.counts(), (QList<qsizetype>{1, 1, 0, 0}));
    for (const QSignalSpy *spy : {&spies.hasBeenCollapsed, &spies.hasBeenExpanded}) {
        QCOMPARE(spy->first().first().toModelIndex(), QModelIndex(tree.folders.coated));
    }
}

void TestTreeViewDragAndDropModels::whatTheModelAsksForIsDone_data()
{
    addProxyRows();
}

void TestTreeViewDragAndDropModels::whatTheModelAsksForIsDone()
{
    QFETCH(const bool, hasProxy);
    CoupledTree tree(hasProxy);
    const CoupledSpies spies(tree.view);
    tree.folders.model.itemHasBeenCollasped(tree.folders.coated);
    QVERIFY(tree.isOpen(tree.folders.coated));

    tree.folders.model.updateExpandState();

    QVERIFY(tree.isOpen(tree.folders.printing));
    QVERIFY(!tree.isOpen(tree.folders.coated));
    QCOMPARE(namesIn(spies.hasToBeCollapsed), QStringList{"Coated"});
    QCOMPARE(namesIn(spies.hasToBeExpanded), QStringList{"Printing"});
    QCOMPARE(spies.hasToBeCollapsed.first().first().toModelIndex(),
             tree.view.toProxyIndex(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::filteredFolderIsAskedForWithoutHarm()
{
    CoupledTree tree(true);
    tree.proxy.setFilterFixedString("Screens");
    const CoupledSpies spies(tree.view);

    tree.folders.model.updateExpandState();

    QCOMPARE(namesIn(spies.hasToBeExpanded), (QStringList{"-", "-"}));
    QVERIFY(tree.folders.model.isExpanded(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::filteredFolderKeepsItsMemory()
{
    CoupledTree tree(true);
    tree.setOpen(tree.folders.coated, false);
    tree.proxy.setFilterFixedString("Screens");
    QCoreApplication::processEvents();
    tree.proxy.setFilterFixedString(QString());
    QCoreApplication::processEvents();

    tree.view.expandAllItems();

    QVERIFY(tree.isOpen(tree.folders.printing));
    QVERIFY(!tree.isOpen(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::twoViewsAreKeptInStepByTheirOwnSlots()
{
    CoupledTree tree(true);
    DropTree second;
    second.setModel(&tree.folders.model);
    QCoreApplication::processEvents();
    connect(&tree.view, SIGNAL(hasBeenCollapsed(QModelIndex)), &second,
            SLOT(itemHasToBeCollapsed(QModelIndex)));
    connect(&second, SIGNAL(hasBeenExpanded(QModelIndex)), &tree.view,
            SLOT(itemHasToBeExpanded(QModelIndex)));

    tree.setOpen(tree.folders.coated, false);
    QVERIFY(!second.isExpanded(tree.folders.coated));
    second.expand(tree.folders.coated);

    QVERIFY(tree.isOpen(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::sameModelTwiceSignalsTwice()
{
    CoupledTree tree(false);
    tree.view.setModel(&tree.folders.model);
    QCoreApplication::processEvents();
    const CoupledSpies spies(tree.view);

    tree.setOpen(tree.folders.coated, false);
    QCOMPARE(spies.counts(), (QList<qsizetype>{2, 0, 0, 0}));
    tree.setOpen(tree.folders.coated, true);
    QCOMPARE(spies.counts(), (QList<qsizetype>{2, 2, 0, 0}));
    tree.folders.model.itemHasBeenCollasped(tree.folders.coated);
    tree.folders.model.updateExpandState();

    QCOMPARE(spies.hasToBeCollapsed.size(), 2);
    QCOMPARE(spies.hasToBeExpanded.size(), 2);
}

void TestTreeViewDragAndDropModels::otherModelsAreNotCoupled_data()
{
    QTest::addColumn<int>("proxies");

    QTest::newRow("a plain model") << 0;
    QTest::newRow("a proxy over a plain model") << 1;
    QTest::newRow("two proxies over a folder model") << 2;
}

void TestTreeViewDragAndDropModels::otherModelsAreNotCoupled()
{
    QFETCH(const int, proxies);
    QStandardItemModel plain;
    plain.appendRow(new QStandardItem("A"));
    plain.item(0)->appendRow(new QStandardItem("A1"));
    Folders folders;
    QIdentityProxyModel first;
    QIdentityProxyModel second;
    first.setSourceModel(proxies == 2 ? static_cast<QAbstractItemModel *>(&folders.model) : &plain);
    second.setSourceModel(&first);
    DropTree view;
    const CoupledSpies spies(view);
    const QList<QAbstractItemModel *> models{&plain, &first, &second};

    view.setModel(models[proxies]);
    QCoreApplication::processEvents();
    QVERIFY(!view.isExpanded(view.model()->index(0, 0)));
    view.expandAllItems();
    view.collapseAll();

    QCOMPARE(spies.counts(), (QList<qsizetype>{0, 0, 0, 0}));
}

void TestTreeViewDragAndDropModels::nullIsNoModel()
{
    CoupledTree tree(true);
    const CoupledSpies spies(tree.view);

    tree.view.setModel(nullptr);
    QCoreApplication::processEvents();
    tree.folders.model.updateExpandState();
    tree.view.expandAllItems();

    QCOMPARE(tree.view.model(), nullptr);
    QCOMPARE(spies.counts(), (QList<qsizetype>{0, 0, 0, 0}));
    QCOMPARE(tree.view.toProxyIndex(tree.folders.coated), QModelIndex(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::formerFolderModelIsNoLongerHeard_data()
{
    addProxyRows();
}

void TestTreeViewDragAndDropModels::formerFolderModelIsNoLongerHeard()
{
    QFETCH(const bool, hasProxy);
    CoupledTree tree(hasProxy);
    Folders others;
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&others.model);
    tree.view.setModel(&proxy);
    QCoreApplication::processEvents();
    const CoupledSpies spies(tree.view);

    tree.folders.model.updateExpandState();
    QCOMPARE(spies.counts(), (QList<qsizetype>{0, 0, 0, 0}));
    others.model.updateExpandState();
    QCOMPARE(namesIn(spies.hasToBeExpanded), (QStringList{"Printing", "Coated"}));

    tree.view.setExpanded(proxy.mapFromSource(others.coated), false);
    QVERIFY(!others.model.isExpanded(others.coated));
    QVERIFY(tree.folders.model.isExpanded(tree.folders.coated));
}

void TestTreeViewDragAndDropModels::hostsOwnConnectionsToTheFormerModelStay()
{
    CoupledTree tree(false);
    connect(&tree.folders.model, SIGNAL(modelReset()), &tree.view, SLOT(clearSelection()));

    tree.view.setModel(nullptr);

    QVERIFY(
        disconnect(&tree.folders.model, SIGNAL(modelReset()), &tree.view, SLOT(clearSelection())));
}

void TestTreeViewDragAndDropModels::formerModelBelowAnotherProxyIsHeardOnce()
{
    CoupledTree tree(false);
    Folders others;
    tree.view.setModel(&others.model);
    tree.view.setModel(&tree.proxy);
    QCoreApplication::processEvents();
    const CoupledSpies spies(tree.view);

    tree.folders.model.updateExpandState();

    QCOMPARE(namesIn(spies.hasToBeExpanded).size(), 2);
}

void TestTreeViewDragAndDropModels::exchangedSourceIsNoHarm()
{
    CoupledTree tree(true);
    Folders others;

    tree.proxy.setSourceModel(&others.model);
    tree.folders.model.updateExpandState();
    tree.view.expandAllItems();
    tree.view.collapse(tree.proxy.mapFromSource(others.coated));
    QVERIFY(tree.folders.model.isExpanded(tree.folders.coated));

    // From now on the new source is the one that is coupled.
    tree.view.setModel(&tree.proxy);
    QCoreApplication::processEvents();
    const CoupledSpies spies(tree.view);
    tree.folders.model.updateExpandState();
    QCOMPARE(spies.counts(), (QList<qsizetype>{0, 0, 0, 0}));
    others.model.updateExpandState();
    QVERIFY(!spies.hasToBeExpanded.isEmpty());

    tree.proxy.setSourceModel(nullptr);
    others.model.updateExpandState();
    tree.view.expandAllItems();
}

void TestTreeViewDragAndDropModels::translationIsThatOfTheProxy()
{
    const CoupledTree tree(true);
    const QModelIndex shown = tree.proxy.index(0, 0);

    QCOMPARE(shown.data().toString(), QString("Screens"));
    QCOMPARE(tree.view.fromProxyIndex(shown), QModelIndex(tree.folders.screens));
    QCOMPARE(tree.view.toProxyIndex(tree.folders.screens), shown);
    QVERIFY(!tree.view.fromProxyIndex({}).isValid());
    QVERIFY(!tree.view.toProxyIndex({}).isValid());
}

void TestTreeViewDragAndDropModels::withoutProxyTranslationChangesNothing()
{
    const CoupledTree tree(false);
    const Folders others;

    for (const QModelIndex &index :
         {QModelIndex(tree.folders.coated), QModelIndex(others.coated), QModelIndex()}) {
        QCOMPARE(tree.view.fromProxyIndex(index), index);
        QCOMPARE(tree.view.toProxyIndex(index), index);
    }
}

void TestTreeViewDragAndDropModels::foreignIndexesAreNotTranslated()
{
    const CoupledTree tree(true);
    const Folders others;

    QVERIFY(!tree.view.fromProxyIndex(others.coated).isValid());
    QVERIFY(!tree.view.fromProxyIndex(tree.folders.coated).isValid());
    QVERIFY(!tree.view.toProxyIndex(others.coated).isValid());
    QVERIFY(!tree.view.toProxyIndex(tree.proxy.index(0, 0)).isValid());
}

void TestTreeViewDragAndDropModels::viewMayDieBeforeItOpens()
{
    Folders folders;
    auto view = std::make_unique<DropTree>();
    view->setModel(&folders.model);

    view.reset();
    QCoreApplication::processEvents();

    QVERIFY(folders.model.isExpanded(folders.coated));
}

void TestTreeViewDragAndDropModels::modelMayDieBeforeTheViewOpens_data()
{
    QTest::addColumn<bool>("hasProxy");
    QTest::addColumn<bool>("proxyDies");

    QTest::newRow("the folder model") << false << false;
    QTest::newRow("the folder model below a proxy") << true << false;
    QTest::newRow("the proxy") << true << true;
}

void TestTreeViewDragAndDropModels::modelMayDieBeforeTheViewOpens()
{
    QFETCH(const bool, hasProxy);
    QFETCH(const bool, proxyDies);
    auto folders = std::make_unique<Folders>();
    auto proxy = std::make_unique<QSortFilterProxyModel>();
    proxy->setSourceModel(&folders->model);
    DropTree view;
    view.setModel(hasProxy ? static_cast<QAbstractItemModel *>(proxy.get()) : &folders->model);

    if (proxyDies) {
        proxy.reset();
    } else {
        folders.reset();
    }
    QCoreApplication::processEvents();

    QVERIFY(!view.model() || view.model()->rowCount() == 0);
}

void TestTreeViewDragAndDropModels::viewMayDieWhileItOpens()
{
    Folders folders;
    OpeningRemover remover;
    remover.view->setModel(&folders.model);
    connect(remover.view.get(), SIGNAL(hasToBeExpanded(QModelIndex)), &remover, SLOT(remove()));

    QCoreApplication::processEvents();

    QVERIFY(!remover.view);
}

int main(int argc, char **argv)
{
    return runTest<TestTreeViewDragAndDropModels>(argc, argv);
}

#include "tst_TreeViewDragAndDropModels.moc"
