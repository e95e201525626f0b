#include "DriveWindowTest.h"
#include "StandInGio.h"

// What the window does to drives that are connected.

class TestAutoMountManagerMainWindowConnections : public DriveWindowTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        DriveWindowTest::prepare();
        gio = std::make_unique<StandInGio>();
        addConnected(QStringLiteral("a"), u'K');
        manager()->start();
        QTRY_COMPARE(manager()->getDrive(0).getStatus(), NetworkDriveConnected);
        open();
        select(0);
    }

    void finish() override
    {
        DriveWindowTest::finish();
        // Or what still runs would find another gio.
        QTRY_VERIFY(QDir(gio->gvfs()).isEmpty());
        gio.reset();
    }

private slots:
    void unchangedDriveStaysConnectedAndIsSaved();
    void changedDriveIsDisconnectedAndTheNewOneConnected();
    void removedDriveIsDisconnected();
    void drivesStayConnectedWithoutAYes();
    void drivesComeAndGoWithTheBox();
    void drivesStayConnectedWithoutTheWindow();

private:
    /// Whether the first drive was connected once and never disconnected.
    [[nodiscard]] bool isUntouched() const
    {
        return gio->isMounted("smb://a/share") && gio->count("mount smb://a/share") == 1;
    }
    static void addConnected(const QString &host, QChar letter);
    void waitForAnotherDrive() const;

    std::unique_ptr<StandInGio> gio;
};

void TestAutoMountManagerMainWindowConnections::addConnected(const QString &host, QChar letter)
{
    AutoMountNetworkDrive drive = makeDrive(host, letter);
    // The editor spells these in another way.
    QUrl url = drive.getUrl();
    url.setUserName(QStringLiteral("mi%21a"), QUrl::StrictMode);
    url.setPassword(QStringLiteral("a%2Bb"), QUrl::StrictMode);
    drive.setUrl(url);
    drive.setActivated(true);
    manager()->add(drive);
}

/// When this is over, all that was asked before has been done too.
void TestAutoMountManagerMainWindowConnections::waitForAnotherDrive() const
{
    const int row = manager()->count();
    addConnected(QStringLiteral("another"), u'Y');
    QTRY_COMPARE(manager()->getDrive(row).getStatus(), NetworkDriveConnected);
}

void TestAutoMountManagerMainWindowConnections::unchangedDriveStaysConnectedAndIsSaved()
{
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        QCOMPARE(editor.findChild<QComboBox *>("comboBoxMountPoint")->currentText(), "K:/");
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->editAutomountNetworkDrive();
    waitForAnotherDrive();

    QVERIFY(isStored());
    QVERIFY(manager()->getDrive(0).isActivated());
    QCOMPARE(manager()->getDrive(0).getStatus(), NetworkDriveConnected);
    QVERIFY(isUntouched());
}

void TestAutoMountManagerMainWindowConnections::changedDriveIsDisconnectedAndTheNewOneConnected()
{
    DialogDriver driver;
    driver.expect([](QDialog &editor) {
        field(editor, "lineEditHost")->setText(QStringLiteral("elsewhere"));
        DialogDriver::click(editor, QDialogButtonBox::Ok);
    });

    window->editAutomountNetworkDrive();

    QCOMPARE(manager()->getDrive(0).getStatus(), NetworkDriveDisconnected);
    QTRY_VERIFY(!gio->isMounted("smb://a/share"));
    QTRY_COMPARE(manager()->getDrive(0).getStatus(), NetworkDriveConnected);
    QCOMPARE(NetworkDriveFolder::letters(), QList<QChar>{u'K'});
}

void TestAutoMountManagerMainWindowConnections::removedDriveIsDisconnected()
{
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box.button(QMessageBox::Yes)); });

    window->removeAutomountNetworkDrive();

    QTRY_VERIFY(!gio->isMounted("smb://a/share"));
    QTRY_VERIFY(NetworkDriveFolder::letters().isEmpty());
    QVERIFY(stored().isEmpty());
}

void TestAutoMountManagerMainWindowConnections::drivesStayConnectedWithoutAYes()
{
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box.button(QMessageBox::Cancel)); });

    window->removeAutomountNetworkDrive();
    waitForAnotherDrive();

    QCOMPARE(hosts(), "a another");
    QCOMPARE(manager()->getDrive(0).getStatus(), NetworkDriveConnected);
    QVERIFY(isUntouched());
}

void TestAutoMountManagerMainWindowConnections::drivesComeAndGoWithTheBox()
{
    window->show();

    QTest::keyClick(enabledBox(), Qt::Key_Space);
    QCOMPARE(manager()->getDrive(0).getStatus(), NetworkDriveDisconnected);
    QTRY_VERIFY(NetworkDriveFolder::letters().isEmpty());

    QTest::keyClick(enabledBox(), Qt::Key_Space);
    QTRY_COMPARE(manager()->getDrive(0).getStatus(), NetworkDriveConnected);
    QCOMPARE(NetworkDriveFolder::letters(), QList<QChar>{u'K'});
    QVERIFY(!isStored());
}

void TestAutoMountManagerMainWindowConnections::drivesStayConnectedWithoutTheWindow()
{
    window.reset();
    waitForAnotherDrive();

    QCOMPARE(manager()->getDrive(0).getStatus(), NetworkDriveConnected);
    QVERIFY(isUntouched());
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountManagerMainWindowConnections>(argc, argv);
}

#include "tst_AutoMountManagerMainWindowConnections.moc"
