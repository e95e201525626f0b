#include "DriveWindowTest.h"

#include <QPointer>
#include <QSignalSpy>

namespace {

const auto kLogLine = "Remove an automount Network Drive";

void clickYes(QMessageBox &box)
{
    DialogDriver::click(box.button(QMessageBox::Yes));
}

} // namespace

class TestAutoMountManagerMainWindowRemoving : public DriveWindowTest
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
    void questionIsAsDesigned();
    void confirmedDriveIsRemovedAndTheListStored();
    void buttonRemoves();
    void onlyYesRemoves_data();
    void onlyYesRemoves();
    void nothingSelectedIsAskedAndRemovesNothing();
    void selectedCellMayBeInAnyColumn();
    void lastDriveLeavesAnEmptyStoredList();
    void selectionThatWentMeanwhileRemovesNothing();
    void otherSelectionMeanwhileRemovesNothing();
    void driveThatCannotBeComparedIsRemoved();
    void driveThatIsGoneTakesNoOtherWithIt();
    void driveThatMovedIsStillRemoved();
    void otherDriveInItsPlaceStays();
    void driveThatIsGoneBehindTheModelRemovesNothing();
    void secondWindowMayRemoveItMeanwhile();
    void windowMayGoWhileTheQuestionIsOpen();
    void parentMayGoWhileTheQuestionIsOpen();
    void questionMayGoByItself();
    void buttonsFollowWhatIsSelectedAfterwards();
};

void TestAutoMountManagerMainWindowRemoving::questionIsAsDesigned()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.windowTitle(), "Warning: Network Drive Delete?");
        QCOMPARE(box.text(), "Do you want to remove selected Network Drive?");
        QCOMPARE(box.informativeText(), QString());
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::Cancel);
        QVERIFY(!box.defaultButton());
        QCOMPARE(box.parentWidget(), window.get());
        QCOMPARE(box.windowModality(), Qt::WindowModal);
        const Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;
        QCOMPARE(box.windowFlags() & flags, flags);
        QVERIFY(logLines().isEmpty());
        DialogDriver::click(box.button(QMessageBox::Cancel));
    });

    window->removeAutomountNetworkDrive();

    QVERIFY(window->findChildren<QDialog *>().isEmpty());
}

void TestAutoMountManagerMainWindowRemoving::confirmedDriveIsRemovedAndTheListStored()
{
    select(1);
    QSignalSpy removed(tree().model(), SIGNAL(rowsRemoved(QModelIndex, int, int)));
    DialogDriver driver;
    driver.expectMessageBox(clickYes);

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a c");
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.first().at(1).toInt(), 1);
    QCOMPARE(stored().size(), 2);
    QVERIFY(stored().at(1).contains(QLatin1String("\"c\"")));
    QCOMPARE(logLines(), QStringList(kLogLine));
    QCOMPARE(log()->rootItem()->children.first()->level, int(TXLogItem::Information));
}

void TestAutoMountManagerMainWindowRemoving::buttonRemoves()
{
    window->show();
    window->activate();
    select(0);
    DialogDriver driver;
    driver.expectMessageBox(clickYes);

    DialogDriver::click(removeButton());

    QCOMPARE(hosts(), "b c");
}

void TestAutoMountManagerMainWindowRemoving::onlyYesRemoves_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("Cancel") << QByteArray("Cancel");
    QTest::newRow("Escape") << QByteArray("Escape");
    QTest::newRow("closed") << QByteArray("closed");
}

void TestAutoMountManagerMainWindowRemoving::onlyYesRemoves()
{
    QFETCH(QByteArray, way);
    manager()->setDriveStatus(1, NetworkDriveConnected);
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        if (way == "Cancel") {
            DialogDriver::click(box.button(QMessageBox::Cancel));
        } else if (way == "Escape") {
            QTest::keyClick(&box, Qt::Key_Escape);
        } else {
            box.close();
        }
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QCOMPARE(manager()->getDrive(1).getStatus(), NetworkDriveConnected);
    QVERIFY(!isStored());
    QVERIFY(logLines().isEmpty());
}

void TestAutoMountManagerMainWindowRemoving::nothingSelectedIsAskedAndRemovesNothing()
{
    DialogDriver driver;
    driver.expectMessageBox(clickYes);

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QCOMPARE(logLines(), QStringList(kLogLine));
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowRemoving::selectedCellMayBeInAnyColumn()
{
    tree().setSelectionBehavior(QAbstractItemView::SelectItems);
    tree().selectionModel()->select(tree().model()->index(2, 4),
                                    QItemSelectionModel::ClearAndSelect);
    DialogDriver driver;
    driver.expectMessageBox(clickYes);

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b");
}

void TestAutoMountManagerMainWindowRemoving::lastDriveLeavesAnEmptyStoredList()
{
    QVERIFY(tree().model()->removeRows(1, 2));
    manager()->saveDriveList();
    QCOMPARE(stored().size(), 1);
    select(0);
    DialogDriver driver;
    driver.expectMessageBox(clickYes);

    window->removeAutomountNetworkDrive();

    QCOMPARE(manager()->count(), 0);
    QVERIFY(stored().isEmpty());
}

void TestAutoMountManagerMainWindowRemoving::selectionThatWentMeanwhileRemovesNothing()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        tree().clearSelection();
        clickYes(box);
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QCOMPARE(logLines(), QStringList({kLogLine, "The selection has changed in the meantime."}));
}

void TestAutoMountManagerMainWindowRemoving::otherSelectionMeanwhileRemovesNothing()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        select(2);
        clickYes(box);
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QVERIFY(!isStored());
    QCOMPARE(logLines(), QStringList({kLogLine, "The selection has changed in the meantime."}));
}

void TestAutoMountManagerMainWindowRemoving::driveThatIsGoneTakesNoOtherWithIt()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QVERIFY(tree().model()->removeRows(1, 1));
        clickYes(box);
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a c");
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowRemoving::driveThatCannotBeComparedIsRemoved()
{
    AutoMountNetworkDrive drive = manager()->getDrive(1);
    drive.setExtParameters({{QStringLiteral("Own"), qQNaN()}});
    manager()->replace(1, drive);
    select(1);
    DialogDriver driver;
    driver.expectMessageBox(clickYes);

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a c");
}

void TestAutoMountManagerMainWindowRemoving::driveThatMovedIsStillRemoved()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QVERIFY(tree().model()->removeRows(0, 1));
        clickYes(box);
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "c");
}

void TestAutoMountManagerMainWindowRemoving::otherDriveInItsPlaceStays()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        manager()->remove(0);
        clickYes(box);
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "b c");
    QVERIFY(!isStored());
    QCOMPARE(logLines(), QStringList({kLogLine, "The network drive has changed in the meantime."}));
}

void TestAutoMountManagerMainWindowRemoving::driveThatIsGoneBehindTheModelRemovesNothing()
{
    select(2);
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        manager()->remove(2);
        clickYes(box);
    });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b");
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowRemoving::secondWindowMayRemoveItMeanwhile()
{
    AutoMountManagerMainWindow other;
    auto *otherView = other.findChild<QTreeView *>();
    otherView->setCurrentIndex(otherView->model()->index(1, 0));
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        driver.expectMessageBox(clickYes);
        other.removeAutomountNetworkDrive();
        clickYes(box);
    });
    window->show();
    other.show();

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a c");
    // This one was not told of the row that has gone, and shows it empty.
    QVERIFY(!window->grab().isNull());
    QCOMPARE(tree().model()->index(2, 3).data().toString(), QString());
}

void TestAutoMountManagerMainWindowRemoving::windowMayGoWhileTheQuestionIsOpen()
{
    select(1);
    QPointer<QMessageBox> opened;
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        opened = &box;
        window.reset();
    });

    window->removeAutomountNetworkDrive();

    QVERIFY(!opened);
    QCOMPARE(hosts(), "a b c");
    QVERIFY(logLines().isEmpty());
}

void TestAutoMountManagerMainWindowRemoving::parentMayGoWhileTheQuestionIsOpen()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<AutoMountManagerMainWindow> owned = new AutoMountManagerMainWindow(parent.get());
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &) { parent.reset(); });

    owned->removeAutomountNetworkDrive();

    QVERIFY(!owned);
    QVERIFY(logLines().isEmpty());
}

void TestAutoMountManagerMainWindowRemoving::questionMayGoByItself()
{
    select(1);
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) { delete &box; });

    window->removeAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
}

void TestAutoMountManagerMainWindowRemoving::buttonsFollowWhatIsSelectedAfterwards()
{
    window->activate();
    select(0);
    for (int left = 2; left >= 0; --left) {
        DialogDriver driver;
        driver.expectMessageBox(clickYes);
        select(0);
        window->removeAutomountNetworkDrive();
        QCOMPARE(manager()->count(), left);
        QCOMPARE(removeButton()->isEnabled(), !selectedRows().isEmpty());
        QCOMPARE(editButton()->isEnabled(), !selectedRows().isEmpty());
    }
    QVERIFY(!removeButton()->isEnabled());
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountManagerMainWindowRemoving>(argc, argv);
}

#include "tst_AutoMountManagerMainWindowRemoving.moc"
