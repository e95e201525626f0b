#include "TreeComboTest.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWindow>

class TestTXTreeComboBox : public TreeComboTest
{
    Q_OBJECT

private slots:
    void noMethodOfItsOwn();
    void treeIsSetUpAsAList();
    void arrowOpensTheBranchAndLeavesTheListOpen();
    void itemIsChosenByAClick();
    void deepItemIsChosenByAClick();
    void arrowOfADeepBranchMakesItsParentTheRoot();
    void nextHidingUsesThePressUp();
    void pressOnAnItemDoesNotTakeThePressBack();
    void doubleClickOnAnArrowOpensTheBranchAndChoosesIt();
    void wheelOverTheOpenListChoosesNothing();
    void onlyAPressBesideAllItemsCounts_data();
    void onlyAPressBesideAllItemsCounts();
    void placeIsRounded_data();
    void placeIsRounded();
    void pressElsewhereDoesNotCount();
    void filterHoldsNothingBack();
    void hidingWithoutACurrentItemShowsNone();
    void slotMayHideTheListAgain();
    void deepIndexIsShownUntilTheListOpens();
    void indexOfAnyLevelIsShown_data();
    void indexOfAnyLevelIsShown();
    void keysOnTheClosedBoxLeaveTheTreeBehind();
    void keysOpenAndCloseBranches();
    void keysOpenAndCloseTheList_data();
    void keysOpenAndCloseTheList();
    void returnInTheListChooses();
    void escapeClosesTheListAfterAnArrowToo();
    void returnAfterAnArrowShowsTheItemAndThenCloses();
};

void TestTXTreeComboBox::noMethodOfItsOwn()
{
    const QMetaObject &meta = TXTreeComboBox::staticMetaObject;

    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void TestTXTreeComboBox::treeIsSetUpAsAList()
{
    QCOMPARE(combo->view(), tree());
    QVERIFY(combo->isAncestorOf(tree()) || tree()->window()->parent() == combo.get());
    QCOMPARE(tree()->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(tree()->allColumnsShowFocus(), true);
    QCOMPARE(tree()->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(tree()->model(), model.get());
    QCOMPARE(combo->currentText(), "Papers");
}

void TestTXTreeComboBox::arrowOpensTheBranchAndLeavesTheListOpen()
{
    open();

    click(arrowOf(papers));
    QVERIFY(tree()->isExpanded(papers->index()));
    QVERIFY(isOpen());

    click(arrowOf(papers));
    QVERIFY(!tree()->isExpanded(papers->index()));
    QVERIFY(isOpen());
    QCOMPARE(combo->currentText(), "Papers");
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
}

void TestTXTreeComboBox::itemIsChosenByAClick()
{
    const QSignalSpy activated(combo.get(), SIGNAL(activated(int)));
    open();

    click(placeOf(ink));

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Ink");
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(activated, QList<QVariantList>{{1}});
}

void TestTXTreeComboBox::deepItemIsChosenByAClick()
{
    // The list is as high as what is expanded when it opens.
    tree()->expandAll();
    open();

    click(placeOf(matte));

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Matte");
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(tree()->currentIndex(), matte->index());
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
}

void TestTXTreeComboBox::arrowOfADeepBranchMakesItsParentTheRoot()
{
    open();
    tree()->expand(papers->index());

    click(arrowOf(coated));

    QVERIFY(isOpen());
    QVERIFY(tree()->isExpanded(coated->index()));
    QCOMPARE(combo->rootModelIndex(), papers->index());
    QCOMPARE(tree()->rootIndex(), papers->index());
    QCOMPARE(combo->currentText(), "Coated");

    click(placeOf(glossy));
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Glossy");
    open();
    QCOMPARE(tree()->rootIndex(), QModelIndex());
    combo->hidePopup();
}

void TestTXTreeComboBox::nextHidingUsesThePressUp()
{
    open();
    tree()->setCurrentIndex(ink->index());
    press(arrowOf(papers));

    combo->hidePopup();
    QVERIFY(isOpen());
    QCOMPARE(combo->currentText(), "Ink");

    combo->hidePopup();
    QTRY_VERIFY(!isOpen());
}

void TestTXTreeComboBox::pressOnAnItemDoesNotTakeThePressBack()
{
    open();
    press(arrowOf(papers));
    press(placeOf(ink));

    combo->hidePopup();
    QVERIFY(isOpen());
    combo->hidePopup();
    QTRY_VERIFY(!isOpen());
}

void TestTXTreeComboBox::doubleClickOnAnArrowOpensTheBranchAndChoosesIt()
{
    open();
    QTest::mouseMove(tree()->viewport(), arrowOf(papers));
    QTRY_COMPARE(tree()->currentIndex(), papers->index());
    QWidget *list = tree()->window();

    // The second press comes as another event, and neither the tree nor the box takes it for one.
    QTest::mouseDClick(list->windowHandle(), Qt::LeftButton, {},
                       tree()->viewport()->mapTo(list, arrowOf(papers)));

    QTRY_VERIFY(!isOpen());
    QVERIFY(tree()->isExpanded(papers->index()));
    QCOMPARE(combo->currentText(), "Papers");
}

void TestTXTreeComboBox::wheelOverTheOpenListChoosesNothing()
{
    combo->setCurrentModelIndex(ink->index());
    open();

    for (QWidget *below : {tree()->viewport(), static_cast<QWidget *>(combo.get())}) {
        for (const int turn : {-120, 120}) {
            const QPointF place = below->rect().center();
            QWheelEvent event(place, below->mapToGlobal(place), {}, {0, turn}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(below, &event);
            QVERIFY(isOpen());
            QCOMPARE(combo->currentText(), "Ink");
        }
    }
    combo->hidePopup();
}

void TestTXTreeComboBox::onlyAPressBesideAllItemsCounts_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<bool>("isLeftOpen");

    QTest::newRow("item") << "item" << false;
    QTest::newRow("first pixel of an item") << "first" << false;
    QTest::newRow("last pixel before an item") << "before" << true;
    QTest::newRow("arrow") << "arrow" << true;
    QTest::newRow("empty room") << "empty" << true;
}

void TestTXTreeComboBox::onlyAPressBesideAllItemsCounts()
{
    QFETCH(const QString, place);
    QFETCH(const bool, isLeftOpen);
    open();
    const QRect rect = tree()->visualRect(ink->index());
    const QHash<QString, QPoint> places = {
        {"item", rect.center()},
        {"first", rect.topLeft()},
        {"before", rect.topLeft() - QPoint(1, 0)},
        {"arrow", arrowOf(ink)},
        {"empty", rect.bottomLeft() + QPoint(0, 1)},
    };
    if (place == "empty") {
        tree()->window()->resize(tree()->window()->size() + QSize(0, 60));
        QTRY_VERIFY(tree()->viewport()->rect().contains(places[place]));
    }

    QMouseEvent event(QEvent::MouseButtonPress, places[place],
                      tree()->viewport()->mapToGlobal(places[place]), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!combo->eventFilter(tree()->viewport(), &event));
    combo->hidePopup();

    QCOMPARE(isOpen(), isLeftOpen);
    combo->hidePopup();
}

void TestTXTreeComboBox::placeIsRounded_data()
{
    QTest::addColumn<double>("offset");
    QTest::addColumn<bool>("isLeftOpen");

    QTest::newRow("nearer to the item") << -0.4 << false;
    QTest::newRow("nearer to the arrow") << -0.6 << true;
}

void TestTXTreeComboBox::placeIsRounded()
{
    QFETCH(const double, offset);
    QFETCH(const bool, isLeftOpen);
    open();
    const QRect rect = tree()->visualRect(ink->index());
    const QPointF place(rect.left() + offset, rect.center().y());

    QMouseEvent event(QEvent::MouseButtonPress, place, tree()->viewport()->mapToGlobal(place),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree()->viewport(), &event);
    combo->hidePopup();

    QCOMPARE(isOpen(), isLeftOpen);
    combo->hidePopup();
}

void TestTXTreeComboBox::pressElsewhereDoesNotCount()
{
    open();
    const QPoint place = arrowOf(papers);
    QWidget *others[] = {tree(), tree()->header()->viewport(), combo.get()};
    for (QWidget *other : others) {
        QMouseEvent event(QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QVERIFY(!combo->eventFilter(other, &event));
    }
    QMouseEvent release(QEvent::MouseButtonRelease, place, place, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QVERIFY(!combo->eventFilter(tree()->viewport(), &release));

    combo->hidePopup();

    QTRY_VERIFY(!isOpen());
}

void TestTXTreeComboBox::filterHoldsNothingBack()
{
    open();
    const QSignalSpy pressed(tree(), SIGNAL(pressed(QModelIndex)));

    press(placeOf(ink));

    QCOMPARE(pressed.count(), 1);
    QCOMPARE(tree()->currentIndex(), ink->index());
    combo->hidePopup();
}

void TestTXTreeComboBox::hidingWithoutACurrentItemShowsNone()
{
    open();
    press(arrowOf(papers));
    tree()->setCurrentIndex(QModelIndex());

    combo->hidePopup();

    QVERIFY(isOpen());
    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->currentText(), QString());
    combo->hidePopup();
}

void TestTXTreeComboBox::slotMayHideTheListAgain()
{
    open();
    combo->setCurrentIndex(1);
    tree()->setCurrentIndex(papers->index());
    // A host that does not want branches: it goes back and closes the list.
    connect(combo.get(), &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index == 0) {
            combo->setCurrentIndex(1);
            combo->hidePopup();
        }
    });
    press(arrowOf(papers));

    combo->hidePopup();

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Ink");
}

void TestTXTreeComboBox::deepIndexIsShownUntilTheListOpens()
{
    combo->setCurrentModelIndex(matte->index());
    QCOMPARE(combo->currentText(), "Matte");
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(combo->rootModelIndex(), coated->index());
    QCOMPARE(tree()->currentIndex(), matte->index());

    open();
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    QCOMPARE(tree()->rootIndex(), QModelIndex());
    QCOMPARE(combo->currentText(), "Matte");
    QCOMPARE(tree()->currentIndex(), matte->index());

    combo->hidePopup();
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    QCOMPARE(combo->currentText(), "Matte");
}

void TestTXTreeComboBox::indexOfAnyLevelIsShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isEnabled");

    for (const char *name : {"Papers", "Coated", "Glossy", "Uncoated", "Ink", "Cyan"}) {
        QTest::newRow(name) << name << true;
        QTest::addRow("%s, disabled", name) << name << false;
    }
}

void TestTXTreeComboBox::indexOfAnyLevelIsShown()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isEnabled);
    combo->setCurrentModelIndex(matte->index());
    QStandardItem *item = model->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).first();
    item->setEnabled(isEnabled);

    combo->setCurrentModelIndex(item->index());

    QCOMPARE(combo->currentText(), name);
    QCOMPARE(combo->currentIndex(), item->row());
    QCOMPARE(combo->rootModelIndex(), item->index().parent());
    QCOMPARE(tree()->currentIndex(), item->index());
}

void TestTXTreeComboBox::keysOnTheClosedBoxLeaveTheTreeBehind()
{
    matte->setData("matte.icc", Qt::UserRole);
    combo->setCurrentModelIndex(glossy->index());

    QTest::keyClick(combo.get(), Qt::Key_Down);

    QCOMPARE(combo->currentText(), "Matte");
    QCOMPARE(combo->currentData(), "matte.icc");
    QCOMPARE(combo->rootModelIndex(), coated->index());
    QCOMPARE(tree()->currentIndex(), glossy->index());
    open();
    QCOMPARE(tree()->currentIndex(), matte->index());
    combo->hidePopup();
}

void TestTXTreeComboBox::keysOpenAndCloseBranches()
{
    open();

    QTest::keyClick(tree(), Qt::Key_Right);
    QVERIFY(tree()->isExpanded(papers->index()));
    QTest::keyClick(tree(), Qt::Key_Right);
    QTest::keyClick(tree(), Qt::Key_Down);
    QCOMPARE(tree()->currentIndex(), uncoated->index());
    QTest::keyClick(tree(), Qt::Key_Left);
    QTest::keyClick(tree(), Qt::Key_Left);
    QVERIFY(!tree()->isExpanded(papers->index()));

    QVERIFY(isOpen());
    QCOMPARE(combo->rootModelIndex(), QModelIndex());
    combo->hidePopup();
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Papers");
}

void TestTXTreeComboBox::keysOpenAndCloseTheList_data()
{
    QTest::addColumn<int>("openKey");
    QTest::addColumn<int>("openModifier");
    QTest::addColumn<int>("closeKey");
    QTest::addColumn<int>("closeModifier");

    QTest::newRow("Alt+Down, Escape")
        << int(Qt::Key_Down) << int(Qt::AltModifier) << int(Qt::Key_Escape) << 0;
    QTest::newRow("F4, F4") << int(Qt::Key_F4) << 0 << int(Qt::Key_F4) << 0;
    QTest::newRow("Space, Alt+Down")
        << int(Qt::Key_Space) << 0 << int(Qt::Key_Down) << int(Qt::AltModifier);
}

void TestTXTreeComboBox::keysOpenAndCloseTheList()
{
    QFETCH(const int, openKey);
    QFETCH(const int, openModifier);
    QFETCH(const int, closeKey);
    QFETCH(const int, closeModifier);

    QTest::keyClick(combo.get(), Qt::Key(openKey), Qt::KeyboardModifier(openModifier));
    QTRY_VERIFY(isOpen());
    QTest::keyClick(tree(), Qt::Key_Down);
    QTest::keyClick(tree(), Qt::Key(closeKey), Qt::KeyboardModifier(closeModifier));

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Papers");
}

void TestTXTreeComboBox::returnInTheListChooses()
{
    open();
    QTest::keyClick(tree(), Qt::Key_Right);
    QTest::keyClick(tree(), Qt::Key_Down);
    QTest::keyClick(tree(), Qt::Key_Return);

    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Coated");

    QTest::keyClick(combo.get(), Qt::Key_F4);
    QTRY_VERIFY(isOpen());
    QTest::keyClick(tree(), Qt::Key_Down);
    QTest::keyClick(tree(), Qt::Key_Enter);
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Uncoated");
}

void TestTXTreeComboBox::escapeClosesTheListAfterAnArrowToo()
{
    open();
    press(arrowOf(papers));

    QTest::keyClick(tree(), Qt::Key_Escape);

    // The call for the key was used up, but the list is a popup, which closes by this key anyway.
    QTRY_VERIFY(!isOpen());
    open();
    click(placeOf(ink));
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Ink");
}

void TestTXTreeComboBox::returnAfterAnArrowShowsTheItemAndThenCloses()
{
    open();
    press(arrowOf(papers));
    QTest::keyClick(tree(), Qt::Key_Down);

    QTest::keyClick(tree(), Qt::Key_Return);
    QVERIFY(isOpen());
    QCOMPARE(combo->currentText(), "Coated");
    QCOMPARE(combo->rootModelIndex(), papers->index());

    QTest::keyClick(tree(), Qt::Key_Return);
    QTRY_VERIFY(!isOpen());
    QCOMPARE(combo->currentText(), "Coated");
}

int main(int argc, char **argv)
{
    return runTest<TestTXTreeComboBox>(argc, argv);
}

#include "tst_TXTreeComboBox.moc"
