#include "TreeComboTest.h"

#include <QFileSystemModel>
#include <QListView>
#include <QPointer>
#include <QScrollBar>
#include <QStringListModel>

namespace {

constexpr int kManyBranches = 100;
constexpr int kLeavesPerBranch = 100;

} // namespace

/// TXTreeComboBox over models that change, vanish or are replaced, and with other views.
class TestTXTreeComboBoxModels : public TreeComboTest
{
    Q_OBJECT

private slots:
    void invalidIndexChoosesNothing();
    void indexOfAnotherModelChoosesNothing();
    void removedItemIsNoLongerShown();
    void removedParentTakesTheRootWithIt();
    void modelShrinksWhileTheListIsOpen();
    void modelIsResetAfterThePress();
    void modelVanishesWhileTheListIsOpen();
    void modelIsReplacedWhileTheListIsOpen();
    void modelIsReplacedAfterADeepChoice();
    void emptyModelOpensNoList();
    void slotMayRemoveTheItemThatIsChosen();
    void slotMayReplaceTheModelThatIsChosenFrom();
    void boxMayBeDeletedWhileTheListIsOpen();
    void treeIsDeletedOnceWithTheBox();
    void otherViewTakesThePlaceOfTheTree_data();
    void otherViewTakesThePlaceOfTheTree();
    void pressIsForgottenWithTheTree();
    void manyEntriesAreShownAndChosen();
    void markupIsKeptAsItIs();
    void separatorIsNotChosen();
    void branchThatCannotBeChosenIsOpened();
    void furtherColumnsChooseTheRow();
};

void TestTXTreeComboBoxModels::invalidIndexChoosesNothing()
{
    combo->setCurrentModelIndex(matte->index());

    combo->setCurrentModelIndex(QModelIndex());

    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    QCOMPARE(tree()->currentIndex(), QModelIndex());
}

void TestTXTreeComboBoxModels::indexOfAnotherModelChoosesNothing()
{
    const QFileSystemModel files;
    QStringListModel other({"a", "b"});
    for (const QModelIndex &index : {other.index(1), files.index(QDir::rootPath())}) {
        combo->setCurrentModelIndex(matte->index());
        QVERIFY(index.isValid());

        combo->setCurrentModelIndex(index);

        QCOMPARE(combo->currentIndex(), -1);
        QCOMPARE(combo->rootModelIndex(), QModelIndex());
    }
}

void TestTXTreeComboBoxModels::removedItemIsNoLongerShown()
{
    combo->setCurrentModelIndex(matte->index());

    coated->removeRow(1);
    QCOMPARE(combo->currentText(), "Glossy");
    QCOMPARE(combo->rootModelIndex(), coated->index());

    coated->removeRow(0);
    QCOMPARE(combo->currentIndex(), -1);
    open();
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    combo->hidePopup();
}

void TestTXTreeComboBoxModels::removedParentTakesTheRootWithIt()
{
    combo->setCurrentModelIndex(matte->index());

    papers->removeRow(0);

    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    QCOMPARE(combo->count(), 2);
    combo->setCurrentModelIndex(uncoated->index());
    QCOMPARE(combo->currentText(), "Uncoated");
}

void TestTXTreeComboBoxModels::modelShrinksWhileTheListIsOpen()
{
    open();
    tree()->expandAll();
    tree()->setCurrentIndex(glossy->index());
    press(arrowOf(papers));

    model->removeRow(0);
    combo->hidePopup();

    QVERIFY(isOpen());
    QCOMPARE(combo->rootModelIndex(), tree()->currentIndex().parent());
    QCOMPARE(combo->currentIndex(), tree()->currentIndex().row());
    model->removeRow(0);
    combo->hidePopup();
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->count(), 0);
}

void TestTXTreeComboBoxModels::modelIsResetAfterThePress()
{
    open();
    press(arrowOf(papers));

    model->clear();
    combo->hidePopup();

    QVERIFY(isOpen());
    QCOMPARE(combo->currentIndex(), -1);
    combo->hidePopup();
    QTRY_VERIFY(!isOpen());
}

void TestTXTreeComboBoxModels::modelVanishesWhileTheListIsOpen()
{
    open();
    press(arrowOf(papers));

    tester.reset();
    model.reset();
    combo->hidePopup();
    combo->hidePopup();

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->count(), 0);
    combo->setCurrentModelIndex(QModelIndex());
    combo->showPopup();
    QVERIFY(!isOpen());
}

void TestTXTreeComboBoxModels::modelIsReplacedWhileTheListIsOpen()
{
    QStandardItemModel other;
    QStandardItem *gamut = addItem(other.invisibleRootItem(), "Gamut");
    QStandardItem *volume = addItem(gamut, "Volume");
    open();
    press(arrowOf(papers));

    combo->setModel(&other);
    QCOMPARE(tree()->model(), &other);
    combo->hidePopup();
    combo->hidePopup();
    QTRY_VERIFY(!isOpen());

    combo->setCurrentModelIndex(volume->index());
    QCOMPARE(combo->currentText(), "Volume");
    open();
    QVERIFY(!tree()->visualRect(gamut->index()).isEmpty());
    combo->hidePopup();
    combo->setModel(model.get());
}

void TestTXTreeComboBoxModels::modelIsReplacedAfterADeepChoice()
{
    QStandardItemModel other;
    addItem(other.invisibleRootItem(), "Gamut");
    combo->setCurrentModelIndex(matte->index());

    combo->setModel(&other);
    QCOMPARE(combo->currentText(), "Gamut");
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    QCOMPARE(combo->count(), 1);
    QCOMPARE(tree()->rootIndex(), QModelIndex());

    // Those of the model that went away choose nothing.
    combo->setCurrentModelIndex(matte->index());
    QCOMPARE(combo->currentIndex(), -1);
    combo->setModel(model.get());
    QCOMPARE(combo->currentText(), "Papers");
}

void TestTXTreeComboBoxModels::emptyModelOpensNoList()
{
    model->clear();

    combo->showPopup();

    QVERIFY(!isOpen());
}

void TestTXTreeComboBoxModels::slotMayRemoveTheItemThatIsChosen()
{
    connect(tree()->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { model->removeRows(0, model->rowCount()); });

    combo->setCurrentModelIndex(matte->index());

    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
}

void TestTXTreeComboBoxModels::slotMayReplaceTheModelThatIsChosenFrom()
{
    QStandardItemModel other;
    addItem(other.invisibleRootItem(), "Gamut");
    connect(tree()->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, &other] { combo->setModel(&other); });

    combo->setCurrentModelIndex(matte->index());

    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    QCOMPARE(combo->count(), 1);
    combo->setModel(model.get());
}

void TestTXTreeComboBoxModels::boxMayBeDeletedWhileTheListIsOpen()
{
    open();
    press(arrowOf(papers));
    const QPointer<QTreeView> view = tree();

    combo.reset();

    QVERIFY(!view);
}

void TestTXTreeComboBoxModels::treeIsDeletedOnceWithTheBox()
{
    const QSignalSpy destroyed(tree(), SIGNAL(destroyed(QObject *)));

    combo.reset();

    QCOMPARE(destroyed.count(), 1);
}

void TestTXTreeComboBoxModels::otherViewTakesThePlaceOfTheTree_data()
{
    QTest::addColumn<bool>("isTree");

    QTest::newRow("list") << false;
    QTest::newRow("tree") << true;
}

void TestTXTreeComboBoxModels::otherViewTakesThePlaceOfTheTree()
{
    QFETCH(const bool, isTree);
    const QPointer<QTreeView> replaced = tree();
    QAbstractItemView *other = nullptr;
    if (isTree) {
        other = new QTreeView(combo.get());
    } else {
        other = new QListView(combo.get());
    }

    combo->setView(other);

    QVERIFY(!replaced);
    QCOMPARE(combo->treeView(), nullptr);
    combo->setCurrentModelIndex(cyan->index());
    QCOMPARE(combo->currentText(), "Cyan");
    combo->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(other->window()));
    const QPoint place = other->visualRect(papers->index()).center();
    QTest::mouseMove(other->viewport(), place);
    QTest::mouseClick(other->viewport(), Qt::LeftButton, {}, place);
    QTRY_VERIFY(!other->isVisible());
    QCOMPARE(combo->currentText(), "Papers");
}

void TestTXTreeComboBoxModels::pressIsForgottenWithTheTree()
{
    open();
    press(arrowOf(papers));
    combo->setView(new QListView(combo.get()));
    combo->showPopup();
    QTRY_VERIFY(isOpen());

    combo->hidePopup();

    QTRY_VERIFY(!isOpen());
}

void TestTXTreeComboBoxModels::manyEntriesAreShownAndChosen()
{
    tester.reset();
    model->clear();
    for (int i = 0; i < kManyBranches; ++i) {
        QStandardItem *branch = addItem(model->invisibleRootItem(), QString("Branch %1").arg(i));
        for (int j = 0; j < kLeavesPerBranch; ++j) {
            addItem(branch, QString("Leaf %1/%2").arg(i).arg(j));
        }
    }
    tree()->expandAll();
    const QStandardItem *last = model->item(kManyBranches - 1)->child(kLeavesPerBranch - 1);

    combo->setCurrentModelIndex(last->index());
    QCOMPARE(combo->currentText(), "Leaf 99/99");
    open();
    QVERIFY(tree()->verticalScrollBar()->value() > kManyBranches * (kLeavesPerBranch - 2));

    const QStandardItem *other = model->item(kManyBranches - 1)->child(kLeavesPerBranch / 2);
    tree()->scrollTo(other->index(), QAbstractItemView::PositionAtCenter);
    click(placeOf(other));
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Leaf 99/50");
}

void TestTXTreeComboBoxModels::markupIsKeptAsItIs()
{
    const QString name = "<b>Bold</b> &amp; \"quoted\"\nsecond line";
    const QStandardItem *item = addItem(coated, name);

    combo->setCurrentModelIndex(item->index());

    QCOMPARE(combo->currentText(), name);
}

void TestTXTreeComboBoxModels::separatorIsNotChosen()
{
    combo->insertSeparator(1);
    const QStandardItem *separator = model->item(1);
    open();

    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, placeOf(separator));

    QCOMPARE(combo->currentText(), "Papers");
    combo->hidePopup();
    combo->hidePopup();
}

void TestTXTreeComboBoxModels::branchThatCannotBeChosenIsOpened()
{
    papers->setSelectable(false);
    combo->setCurrentModelIndex(cyan->index());
    open();

    click(arrowOf(papers));

    QVERIFY(tree()->isExpanded(papers->index()));
    QVERIFY(isOpen());
    // That click hid nothing, so the press still waits for a call.
    click(placeOf(coated));
    QVERIFY(isOpen());
    QCOMPARE(combo->currentText(), "Coated");
    click(placeOf(coated));
    QTRY_VERIFY(!isOpen());
}

void TestTXTreeComboBoxModels::furtherColumnsChooseTheRow()
{
    model->setHorizontalHeaderLabels({"Medium", "White"});
    coated->setChild(1, 1, new QStandardItem("95.0"));
    tree()->expandAll();
    open();
    const QModelIndex white = matte->index().siblingAtColumn(1);
    QVERIFY(!tree()->visualRect(white).isEmpty());

    click(tree()->visualRect(white).center());

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Matte");
    combo->setCurrentModelIndex(white);
    QCOMPARE(combo->currentText(), "Matte");
    QCOMPARE(combo->rootModelIndex(), coated->index());
}

int main(int argc, char **argv)
{
    return runTest<TestTXTreeComboBoxModels>(argc, argv);
}

#include "tst_TXTreeComboBoxModels.moc"
