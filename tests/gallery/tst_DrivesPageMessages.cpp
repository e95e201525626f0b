#include "DrivesPageTest.h"

#include "AutoMountNetworkDriveEditor.h"

#include <QDir>
#include <QTreeView>

/// What the page tells of the drives that are added, and of those that are edited in its window.
class TestDrivesPageMessages : public DrivesPageTest
{
    Q_OBJECT

private:
    [[nodiscard]] QAbstractItemModel &model() const
    {
        return *page->findChild<QTreeView *>("treeView")->model();
    }

private slots:
    void fullListOfLettersIsTold();
    void messageTellsWhatIsLeftToDo();
    void messageGoesWithItsDrive();
    void editedDriveIsToldToBeTheUsers();
    void missingFolderIsTold();
};

void TestDrivesPageMessages::fullListOfLettersIsTold()
{
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        AutoMountNetworkDrive drive = driveOfTheUser();
        drive.setExtParameters({{"NetworkDriveMountPoint", QString(QLatin1Char(letter)) + ":/"}});
        manager->add(drive);
    }
    switchOn();

    add();

    QCOMPARE(manager->count(), 26);
    QVERIFY(isRead(*page, "All drive letters are taken."));
}

void TestDrivesPageMessages::messageTellsWhatIsLeftToDo()
{
    switchOn();
    manager->start();
    add();
    QVERIFY(isRead(*page, "Added: N:/."));

    manager->stop();
    QVERIFY(isRead(*page, "Added: N:/. Check \"Enabled\" to have it connected."));

    manager->start();
    QVERIFY(isRead(*page, "Added: N:/."));
}

void TestDrivesPageMessages::messageGoesWithItsDrive()
{
    switchOn();
    add();
    add();
    QVERIFY(allTexts(*page).contains("Added: O:/"));

    // As the window's "-" does it.
    model().removeRows(0, 1);
    QVERIFY(allTexts(*page).contains("Added: O:/"));
    model().removeRows(0, 1);

    QVERIFY(!allTexts(*page).contains("Added: O:/"));
}

void TestDrivesPageMessages::editedDriveIsToldToBeTheUsers()
{
    const QString text = "N:/ is yours now, and leads to port 445: the editor knows no port. "
                         "Remove it with \"-\".";
    switchOn();
    add();
    QVERIFY(model().setData(model().index(0, 1), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(allTexts(*page).contains("Added: N:/"));

    const AutoMountNetworkDriveEditor editor(lastDrive());
    QVERIFY(model().setData(model().index(0, 0), QVariant::fromValue(editor.networkDrive())));

    QVERIFY2(isRead(*page, text), qPrintable(allTexts(*page)));
    QVERIFY(!buttonOf(*page, "Remove Added Drives")->isEnabled());
    model().removeRows(0, 1);
    QVERIFY(!isRead(*page, text));
}

void TestDrivesPageMessages::missingFolderIsTold()
{
    QVERIFY(!QDir(QDir::homePath() + "/Network Drives").exists());

    DialogDriver::click(buttonOf(*page, "Show Folder"));

    QVERIFY(allTexts(*page).contains("No drive has been connected yet"));
    QVERIFY(!QDir(QDir::homePath() + "/Network Drives").exists());
}

int main(int argc, char **argv)
{
    return runTest<TestDrivesPageMessages>(argc, argv);
}

#include "tst_DrivesPageMessages.moc"
