#include "DriveWindowTest.h"

#include <QPointer>
#include <QSignalSpy>

class TestAutoMountManagerMainWindowEditing : public DriveWindowTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        DriveWindowTest::prepare();
        addThreeDrives();
        open();
    }

private slots:
    void editorShowsTheSelectedDrive();
    void changeReachesTheRowAndIsStored();
    void unchangedDriveIsStoredToo();
    void selectedCellMayBeInAnyColumn_data();
    void selectedCellMayBeInAnyColumn();
    void activeStateIsKept_data();
    void activeStateIsKept();
    void buttonEdits();
    void nothingSelectedOpensNothing();
    void cancelledEditorChangesNothing();
    void onlyTheResultOneGoesOn();
    void driveOffersItsOwnTakenLetter();
    void withoutALetterTheUserIsTold();
    void driveThatMovedIsStillEdited();
    void driveThatIsGoneChangesNothing();
    void driveThatIsGoneBehindTheModelChangesNothing();
    void otherDriveInItsPlaceIsNotOverwritten();
    void windowMayGoWhileTheEditorIsOpen();
    void parentMayGoWhileTheEditorIsOpen();
    void windowMayGoWhileTheMessageIsOpen();

private:
    void edit(const QString &host);
};

/// Changes the host of the selected drive.
void TestAutoMountManagerMainWindowEditing::edit(const QString &host)
{
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        field(editor, "lineEditHost")->setText(host);
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });
    window->editAutomountNetworkDrive();
}

void TestAutoMountManagerMainWindowEditing::editorShowsTheSelectedDrive()
{
    select(1);
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        QCOMPARE(logLines(), QStringList("Edit an automount network drive"));
        QCOMPARE(editor.metaObject()->className(), "AutoMountNetworkDriveEditor");
        QCOMPARE(editor.windowTitle(), "Edit Network Drive Parameters");
        QCOMPARE(editor.parentWidget(), window.get());
        QVERIFY(editor.isModal());
        QCOMPARE(field(editor, "lineEditHost")->text(), "b");
        QCOMPARE(editor.findChild<QComboBox *>("comboBoxMountPoint")->currentText(), "L:/");
        editor.reject();
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(log()->rootItem()->children.first()->level, int(TXLogItem::Information));
    QVERIFY(window->findChildren<QDialog *>().isEmpty());
}

void TestAutoMountManagerMainWindowEditing::changeReachesTheRowAndIsStored()
{
    select(1);
    QSignalSpy changed(tree().model(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));

    edit(QStringLiteral("elsewhere"));

    QCOMPARE(hosts(), "a elsewhere c");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(stored().size(), 3);
    QVERIFY(stored().at(1).contains(QLatin1String("elsewhere")));
    QCOMPARE(selectedRows(), QList<int>{1});
    QCOMPARE(logLines(), QStringList("Edit an automount network drive"));
}

void TestAutoMountManagerMainWindowEditing::unchangedDriveIsStoredToo()
{
    select(1);
    const AutoMountNetworkDrive before = manager()->getDrive(1);
    DialogDriver driver;
    driver.expect([](QDialog &editor) { DialogDriver::click(editor, QDialogButtonBox::Ok); });

    window->editAutomountNetworkDrive();

    QVERIFY(manager()->getDrive(1) == before);
    QCOMPARE(manager()->getDrive(1).getUrl().password(), "s3cret");
    QCOMPARE(stored().size(), 3);
}

void TestAutoMountManagerMainWindowEditing::selectedCellMayBeInAnyColumn_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < 6; ++column) {
        QTest::addRow("column %d", column) << column;
    }
}

void TestAutoMountManagerMainWindowEditing::selectedCellMayBeInAnyColumn()
{
    QFETCH(int, column);
    // A host may let its users select single cells.
    tree().setSelectionBehavior(QAbstractItemView::SelectItems);
    tree().selectionModel()->select(tree().model()->index(2, column),
                                    QItemSelectionModel::ClearAndSelect);
    QCOMPARE(tree().selectionModel()->selectedIndexes().first().column(), column);

    edit(QStringLiteral("elsewhere"));

    QCOMPARE(hosts(), "a b elsewhere");
}

void TestAutoMountManagerMainWindowEditing::activeStateIsKept_data()
{
    QTest::addColumn<bool>("isActive");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void TestAutoMountManagerMainWindowEditing::activeStateIsKept()
{
    QFETCH(bool, isActive);
    AutoMountNetworkDrive drive = manager()->getDrive(0);
    drive.setActivated(isActive);
    manager()->replace(0, drive);
    select(0);

    edit(QStringLiteral("elsewhere"));

    QCOMPARE(hosts(), "elsewhere b c");
    QCOMPARE(manager()->getDrive(0).isActivated(), isActive);
}

void TestAutoMountManagerMainWindowEditing::buttonEdits()
{
    window->show();
    window->activate();
    select(0);
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    DialogDriver::click(editButton());

    QCOMPARE(hosts(), "elsewhere b c");
}

void TestAutoMountManagerMainWindowEditing::nothingSelectedOpensNothing()
{
    const DialogDriver driver;

    window->editAutomountNetworkDrive();

    QCOMPARE(logLines(), QStringList("Edit an automount network drive"));
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowEditing::cancelledEditorChangesNothing()
{
    select(1);
    QSignalSpy changed(tree().model(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)));
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Cancel);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QVERIFY(changed.isEmpty());
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowEditing::onlyTheResultOneGoesOn()
{
    select(1);
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        editor.done(2);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowEditing::driveOffersItsOwnTakenLetter()
{
    takeAllLetters();
    select(1);

    edit(QStringLiteral("elsewhere"));

    QCOMPARE(hosts(), "a elsewhere c");
    QCOMPARE(manager()->getDrive(1).getMountPoint(), "L:/");
}

void TestAutoMountManagerMainWindowEditing::withoutALetterTheUserIsTold()
{
    takeAllLetters();
    AutoMountNetworkDrive drive = manager()->getDrive(1);
    drive.setExtParameters({});
    manager()->replace(1, drive);
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), "Warning");
        box.reject();
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(logLines(),
             QStringList({"Edit an automount network drive",
                          "There is no Network Drive letter available."}));
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowEditing::driveThatMovedIsStillEdited()
{
    select(1);
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        QVERIFY(tree().model()->removeRows(0, 1));
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(hosts(), "elsewhere c");
}

void TestAutoMountManagerMainWindowEditing::driveThatIsGoneChangesNothing()
{
    select(1);
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        QVERIFY(tree().model()->removeRows(1, 1));
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(hosts(), "a c");
    QVERIFY(!isStored());
    QCOMPARE(logLines().last(), "The network drive has changed in the meantime.");
}

void TestAutoMountManagerMainWindowEditing::driveThatIsGoneBehindTheModelChangesNothing()
{
    select(2);
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        manager()->remove(2);
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b");
    QVERIFY(!isStored());
    QCOMPARE(logLines().last(), "The network drive has changed in the meantime.");
}

void TestAutoMountManagerMainWindowEditing::otherDriveInItsPlaceIsNotOverwritten()
{
    select(1);
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        manager()->remove(0);
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(hosts(), "b c");
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowEditing::windowMayGoWhileTheEditorIsOpen()
{
    select(1);
    QPointer<QDialog> opened;
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        opened = &editor;
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        window.reset();
    });

    window->editAutomountNetworkDrive();

    QVERIFY(!opened);
    QCOMPARE(hosts(), "a b c");
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowEditing::parentMayGoWhileTheEditorIsOpen()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<AutoMountManagerMainWindow> owned = new AutoMountManagerMainWindow(parent.get());
    auto *view = owned->findChild<QTreeView *>();
    view->setCurrentIndex(view->model()->index(0, 0));
    DialogDriver driver;
    driver.expect([&](QDialog &) { parent.reset(); });

    owned->editAutomountNetworkDrive();

    QVERIFY(!owned);
    QCOMPARE(hosts(), "a b c");
}

void TestAutoMountManagerMainWindowEditing::windowMayGoWhileTheMessageIsOpen()
{
    takeAllLetters();
    AutoMountNetworkDrive drive = manager()->getDrive(1);
    drive.setExtParameters({});
    manager()->replace(1, drive);
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &) { window.reset(); });

    window->editAutomountNetworkDrive();

    QVERIFY(!window);
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountManagerMainWindowEditing>(argc, argv);
}

#include "tst_AutoMountManagerMainWindowEditing.moc"
