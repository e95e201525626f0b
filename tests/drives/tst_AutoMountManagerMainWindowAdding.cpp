#include "DriveWindowTest.h"

#include <QPointer>
#include <QSignalSpy>

class TestAutoMountManagerMainWindowAdding : public DriveWindowTest
{
    Q_OBJECT

private slots:
    void confirmedDriveIsAddedAtTheEndSwitchedOn();
    void addedDriveIsStored();
    void editorIsEmptyAndModalAndOfTheWindow();
    void buttonAdds();
    void cancelledEditorAddsNothing_data();
    void cancelledEditorAddsNothing();
    void everyResultButZeroAdds();
    void logLineIsThereBeforeTheEditor();
    void withoutALetterTheUserIsTold();
    void lastFreeLetterCanBeUsed();
    void messageIsLoggedAndShown();
    void addingWorksWhileTheManagerIsStopped();
    void drivesThatCameMeanwhileStayBeforeTheNewOne();
    void windowMayGoWhileTheEditorIsOpen();
    void parentMayGoWhileTheEditorIsOpen();
    void editorMayGoByItself();
    void windowMayGoWhileTheMessageIsOpen();
    void windowMayGoBetweenClickAndEditorsEnd();
};

void TestAutoMountManagerMainWindowAdding::confirmedDriveIsAddedAtTheEndSwitchedOn()
{
    addThreeDrives();
    open();
    select(0);
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c new");
    const AutoMountNetworkDrive drive = manager()->getDrive(3);
    QVERIFY(drive.isActivated());
    QCOMPARE(drive.getUrl().userName(), "mia");
    QCOMPARE(drive.getUrl().path(), "/share");
    QCOMPARE(drive.getMountPoint(), "A:/");
    QCOMPARE(tree().model()->rowCount(), 4);
    QCOMPARE(tree().model()->index(3, 3).data().toString(), "new");
    QCOMPARE(selectedRows(), QList<int>{0});
}

void TestAutoMountManagerMainWindowAdding::addedDriveIsStored()
{
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(stored().size(), 1);
    QVERIFY(stored().first().contains(QLatin1String("\"new\"")));
}

void TestAutoMountManagerMainWindowAdding::editorIsEmptyAndModalAndOfTheWindow()
{
    open();
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        QCOMPARE(editor.metaObject()->className(), "AutoMountNetworkDriveEditor");
        QCOMPARE(editor.windowTitle(), "Add Network Drive");
        QCOMPARE(editor.parentWidget(), window.get());
        QVERIFY(editor.isModal());
        QCOMPARE(field(editor, "lineEditHost")->text(), QString());
        editor.reject();
    });

    window->addAutomountNetworkDrive();

    QVERIFY(window->findChildren<QDialog *>().isEmpty());
}

void TestAutoMountManagerMainWindowAdding::buttonAdds()
{
    manager()->start();
    open();
    window->show();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        // The manager would try to reach the host.
        manager()->stop();
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    DialogDriver::click(addButton());

    QCOMPARE(hosts(), "new");
    QVERIFY(!enabledBox()->isChecked());
}

void TestAutoMountManagerMainWindowAdding::cancelledEditorAddsNothing_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("button") << QByteArray("button");
    QTest::newRow("Escape") << QByteArray("Escape");
    QTest::newRow("closed") << QByteArray("closed");
}

void TestAutoMountManagerMainWindowAdding::cancelledEditorAddsNothing()
{
    QFETCH(QByteArray, way);
    addThreeDrives();
    open();
    QSignalSpy inserted(tree().model(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        if (way == "button") {
            DialogDriver::click(editor, QDialogButtonBox::Cancel);
        } else if (way == "Escape") {
            QTest::keyClick(&editor, Qt::Key_Escape);
        } else {
            editor.close();
        }
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(hosts(), "a b c");
    QVERIFY(inserted.isEmpty());
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowAdding::everyResultButZeroAdds()
{
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        editor.done(2);
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(hosts(), "new");
}

void TestAutoMountManagerMainWindowAdding::logLineIsThereBeforeTheEditor()
{
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        QCOMPARE(logLines(), QStringList("Add an automount Network drive"));
        editor.reject();
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(log()->rootItem()->children.first()->level, int(TXLogItem::Information));
    QCOMPARE(logLines(), QStringList("Add an automount Network drive"));
}

void TestAutoMountManagerMainWindowAdding::withoutALetterTheUserIsTold()
{
    takeAllLetters();
    open();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(box.parentWidget(), window.get());
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(logLines(),
             QStringList({"Add an automount Network drive",
                          "There is no Network Drive letter available."}));
    QCOMPARE(manager()->count(), 0);
    QVERIFY(!isStored());
    QVERIFY(window->findChildren<QDialog *>().isEmpty());
}

void TestAutoMountManagerMainWindowAdding::lastFreeLetterCanBeUsed()
{
    takeLettersExcept(u'Q');
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(manager()->getDrive(0).getMountPoint(), "Q:/");
}

void TestAutoMountManagerMainWindowAdding::messageIsLoggedAndShown()
{
    open();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        QCOMPARE(logLines(), QStringList("There is no Network Drive letter available."));
        QCOMPARE(box.parentWidget(), window.get());
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.windowTitle(), "Warning");
        QCOMPARE(box.text(),
                 "There is no Network Drive letter available.\n"
                 "Please disconnect a network Network Drive and retry.");
        QCOMPARE(box.informativeText(), QString());
        QCOMPARE(box.standardButtons(), QMessageBox::Ok);
        QVERIFY(box.isModal());
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    window->messageNoMoreNetworkDriveLetterAvailable();

    QCOMPARE(log()->rootItem()->children.first()->level, int(TXLogItem::Information));
    QVERIFY(window->findChildren<QDialog *>().isEmpty());
}

void TestAutoMountManagerMainWindowAdding::addingWorksWhileTheManagerIsStopped()
{
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->addAutomountNetworkDrive();

    QVERIFY(!manager()->isRunning());
    QVERIFY(manager()->getDrive(0).isActivated());
}

void TestAutoMountManagerMainWindowAdding::drivesThatCameMeanwhileStayBeforeTheNewOne()
{
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        fillIn(editor, QStringLiteral("new"));
        manager()->add(makeDrive(QStringLiteral("other"), u'Z'));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->addAutomountNetworkDrive();

    QCOMPARE(hosts(), "other new");
    QVERIFY(!manager()->getDrive(0).isActivated());
    QVERIFY(manager()->getDrive(1).isActivated());
}

void TestAutoMountManagerMainWindowAdding::windowMayGoWhileTheEditorIsOpen()
{
    open();
    QPointer<QDialog> opened;
    DialogDriver driver;
    driver.expect([&](QDialog &editor) {
        opened = &editor;
        fillIn(editor, QStringLiteral("new"));
        window.reset();
    });

    window->addAutomountNetworkDrive();

    QVERIFY(!opened);
    QCOMPARE(manager()->count(), 0);
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowAdding::parentMayGoWhileTheEditorIsOpen()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<AutoMountManagerMainWindow> owned = new AutoMountManagerMainWindow(parent.get());
    DialogDriver driver;
    driver.expect([&](QDialog &) { parent.reset(); });

    owned->addAutomountNetworkDrive();

    QVERIFY(!owned);
    QCOMPARE(manager()->count(), 0);
}

void TestAutoMountManagerMainWindowAdding::editorMayGoByItself()
{
    open();
    DialogDriver driver;
    driver.expect([](QDialog &editor) { delete &editor; });

    window->addAutomountNetworkDrive();

    QCOMPARE(manager()->count(), 0);
}

void TestAutoMountManagerMainWindowAdding::windowMayGoWhileTheMessageIsOpen()
{
    takeAllLetters();
    open();
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &) { window.reset(); });

    window->addAutomountNetworkDrive();

    QVERIFY(!window);
    QCOMPARE(manager()->count(), 0);
}

void TestAutoMountManagerMainWindowAdding::windowMayGoBetweenClickAndEditorsEnd()
{
    open();
    window->show();
    window->activate();
    DialogDriver driver;
    driver.expect([&](QDialog &) { window.reset(); });

    DialogDriver::click(addButton());

    QCOMPARE(manager()->count(), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountManagerMainWindowAdding>(argc, argv);
}

#include "tst_AutoMountManagerMainWindowAdding.moc"
