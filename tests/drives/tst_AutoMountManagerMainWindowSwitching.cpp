#include "DriveWindowTest.h"

#include <QKeyEvent>
#include <QSignalSpy>

namespace {

/// The place of a check box in its cell.
QPoint checkBoxPlace(const QTreeView &tree, int row)
{
    const QRect cell = tree.visualRect(tree.model()->index(row, 1));
    return {cell.left() + 10, cell.center().y()};
}

} // namespace

class TestAutoMountManagerMainWindowSwitching : public DriveWindowTest
{
    Q_OBJECT

private slots:
    void stoppedManagerShowsAllButTheBoxDisabled();
    void runningManagerShowsListAndAddingEnabled();
    void windowFollowsTheManager();
    void boxStartsAndStopsTheManager();
    void boxTouchesNoControlItself();
    void programsCheckMarkStartsNothing();
    void startEnablesTheButtonsWithoutASelection();
    void openingAndClosingChangesNothing();
    void buttonsFollowTheSelection();
    void rowsAreChosenByKeyboard();
    void drivesAreSwitchedByKeyboard();
    void heldSpaceBarSwitchesOnce();
    void doubleClickOpensNothing_data();
    void doubleClickOpensNothing();
    void clickOnActiveSwitchesTheDriveAndSaves();
    void statusChangeIsShownAndNotSaved();
    void changeIsSavedUnlessItEndsInTheFirstColumn_data();
    void changeIsSavedUnlessItEndsInTheFirstColumn();

private:
    [[nodiscard]] QList<QWidget *> switchedControls() const
    {
        return {&tree(), addButton(), removeButton(), editButton()};
    }
};

void TestAutoMountManagerMainWindowSwitching::stoppedManagerShowsAllButTheBoxDisabled()
{
    addThreeDrives();
    open();

    QVERIFY(!enabledBox()->isChecked());
    QVERIFY(enabledBox()->isEnabled());
    for (const QWidget *control : switchedControls()) {
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    }
    QCOMPARE(tree().model()->rowCount(), 3);
}

void TestAutoMountManagerMainWindowSwitching::runningManagerShowsListAndAddingEnabled()
{
    manager()->start();
    open();

    QVERIFY(enabledBox()->isChecked());
    QVERIFY(tree().isEnabled());
    QVERIFY(addButton()->isEnabled());
    QVERIFY(!removeButton()->isEnabled());
    QVERIFY(!editButton()->isEnabled());
}

void TestAutoMountManagerMainWindowSwitching::windowFollowsTheManager()
{
    open();

    manager()->start();
    QVERIFY(enabledBox()->isChecked());
    for (const QWidget *control : switchedControls()) {
        QVERIFY2(control->isEnabled(), qPrintable(control->objectName()));
    }

    manager()->stop();
    QVERIFY(!enabledBox()->isChecked());
    QVERIFY(enabledBox()->isEnabled());
    for (const QWidget *control : switchedControls()) {
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    }
}

void TestAutoMountManagerMainWindowSwitching::boxStartsAndStopsTheManager()
{
    open();
    window->show();

    QTest::mouseClick(enabledBox(), Qt::LeftButton, {}, {8, enabledBox()->height() / 2});
    QVERIFY(manager()->isRunning());
    QVERIFY(enabledBox()->isChecked());
    QVERIFY(tree().isEnabled());

    QTest::keyClick(enabledBox(), Qt::Key_Space);
    QVERIFY(!manager()->isRunning());
    QVERIFY(!enabledBox()->isChecked());
    QVERIFY(!tree().isEnabled());
}

// The manager runs already, so it gives no signal.
void TestAutoMountManagerMainWindowSwitching::boxTouchesNoControlItself()
{
    manager()->start();
    open();
    window->deactivate();

    window->on_checkBoxEnabled_clicked(true);

    QVERIFY(!enabledBox()->isChecked());
    QVERIFY(!tree().isEnabled());
}

void TestAutoMountManagerMainWindowSwitching::programsCheckMarkStartsNothing()
{
    open();

    enabledBox()->setChecked(true);
    window->activate();

    QVERIFY(!manager()->isRunning());
}

void TestAutoMountManagerMainWindowSwitching::startEnablesTheButtonsWithoutASelection()
{
    addThreeDrives();
    open();
    QVERIFY(selectedRows().isEmpty());

    window->activate();
    QVERIFY(removeButton()->isEnabled());
    QVERIFY(editButton()->isEnabled());

    select(1);
    tree().clearSelection();
    QVERIFY(!removeButton()->isEnabled());
    QVERIFY(!editButton()->isEnabled());
}

void TestAutoMountManagerMainWindowSwitching::openingAndClosingChangesNothing()
{
    manager()->start();
    open();
    window->show();
    window->close();
    window.reset();

    QVERIFY(manager()->isRunning());
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowSwitching::buttonsFollowTheSelection()
{
    addThreeDrives();
    open();
    for (const int row : {0, 2}) {
        select(row);
        QVERIFY(removeButton()->isEnabled());
        QVERIFY(editButton()->isEnabled());
        tree().clearSelection();
        QVERIFY(!removeButton()->isEnabled());
        QVERIFY(!editButton()->isEnabled());
    }
    QVERIFY(!addButton()->isEnabled());
}

void TestAutoMountManagerMainWindowSwitching::rowsAreChosenByKeyboard()
{
    addThreeDrives();
    open();
    window->activate();
    window->updateButtonState();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    tree().setFocus(Qt::TabFocusReason);

    QTest::keyClick(&tree(), Qt::Key_End);
    QCOMPARE(selectedRows(), QList<int>{2});
    QVERIFY(editButton()->isEnabled());
    QTest::keyClick(&tree(), Qt::Key_Up);
    QCOMPARE(selectedRows(), QList<int>{1});
}

void TestAutoMountManagerMainWindowSwitching::drivesAreSwitchedByKeyboard()
{
    addThreeDrives();
    open();
    window->activate();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    enabledBox()->setFocus();

    QTest::keyClick(enabledBox(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &tree());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(selectedRows(), QList<int>{0});
    QVERIFY(!manager()->getDrive(0).isActivated());
    QVERIFY(!isStored());

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(manager()->getDrive(0).isActivated());
    QVERIFY(stored().at(0).contains(QLatin1String("\"NetworkDriveActivated\":true")));
    QCOMPARE(selectedRows(), QList<int>{0});

    QTest::keyClick(&tree(), Qt::Key_Down);
    QTest::keyClick(&tree(), Qt::Key_Space);
    QTest::keyClick(&tree(), Qt::Key_Space);
    QVERIFY(!manager()->getDrive(1).isActivated());
    QTest::keyClick(&tree(), Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!manager()->getDrive(1).isActivated());
    QVERIFY(selectedRows().isEmpty() || selectedRows() == QList<int>{1});
}

void TestAutoMountManagerMainWindowSwitching::heldSpaceBarSwitchesOnce()
{
    addThreeDrives();
    open();
    window->activate();
    select(1);

    for (const bool isRepeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "),
                        isRepeated);
        QCoreApplication::sendEvent(&tree(), &press);
        QVERIFY(manager()->getDrive(1).isActivated());
    }
}

void TestAutoMountManagerMainWindowSwitching::doubleClickOpensNothing_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < 6; ++column) {
        QTest::addRow("column %d", column) << column;
    }
}

void TestAutoMountManagerMainWindowSwitching::doubleClickOpensNothing()
{
    QFETCH(int, column);
    addThreeDrives();
    open();
    window->activate();
    window->show();
    const QPoint place = tree().visualRect(tree().model()->index(1, column)).center();

    // A view takes a double click as one only on the row that was pressed before.
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, place);
    QTest::keyClick(&tree(), Qt::Key_F2);

    QVERIFY(!tree().viewport()->findChild<QWidget *>());
    QCOMPARE(selectedRows(), QList<int>{1});
    QCOMPARE(hosts(), "a b c");
    QVERIFY(logLines().isEmpty());
}

void TestAutoMountManagerMainWindowSwitching::clickOnActiveSwitchesTheDriveAndSaves()
{
    addThreeDrives();
    open();
    window->activate();
    window->show();

    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, checkBoxPlace(tree(), 1));
    QVERIFY(manager()->getDrive(1).isActivated());
    QVERIFY(stored().at(1).contains(QLatin1String("\"NetworkDriveActivated\":true")));

    forgetStored();
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, checkBoxPlace(tree(), 1));
    QVERIFY(!manager()->getDrive(1).isActivated());
    QVERIFY(stored().at(1).contains(QLatin1String("\"NetworkDriveActivated\":false")));
    QVERIFY(!manager()->getDrive(0).isActivated());
}

void TestAutoMountManagerMainWindowSwitching::statusChangeIsShownAndNotSaved()
{
    addThreeDrives();
    open();
    QSignalSpy changed(tree().model(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));

    manager()->setDriveStatus(1, NetworkDriveConnected);

    QCOMPARE(changed.size(), 1);
    QCOMPARE(tree().model()->index(1, 0).data(Qt::ToolTipRole).toString(),
             "This Network Drive is connected");
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowSwitching::changeIsSavedUnlessItEndsInTheFirstColumn_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("state") << 0 << 0 << false;
    QTest::newRow("active") << 1 << 1 << true;
    QTest::newRow("whole row") << 0 << 5 << true;
}

void TestAutoMountManagerMainWindowSwitching::changeIsSavedUnlessItEndsInTheFirstColumn()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(bool, isSaved);
    addThreeDrives();
    open();
    const QAbstractItemModel &model = *tree().model();

    window->onEdition(model.index(1, first), model.index(1, last), {});

    QCOMPARE(isStored(), isSaved);
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountManagerMainWindowSwitching>(argc, argv);
}

#include "tst_AutoMountManagerMainWindowSwitching.moc"
