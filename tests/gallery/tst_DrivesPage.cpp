#include "ClosedPort.h"
#include "DrivesPageTest.h"
#include "LocalSambaServer.h"
#include "PageInWindow.h"

#include "TXLogItem.h"
#include "TXLogPrint.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QSettings>
#include <QTreeView>
#include <QWheelEvent>

#include <csignal>
#include <unistd.h>

Q_DECLARE_METATYPE(SambaServerPanel::Trouble)

namespace {

constexpr int kWheelStep = 120;

const QString kOtherPort =
    QStringLiteral("The server has another port now: drives added before do not lead to it.");

/// The fields of a process behind its name, from its state on; see proc(5).
QList<QByteArray> statusOf(const QString &process)
{
    QFile file("/proc/" + process + "/stat");
    const QByteArray text = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    return text.mid(text.lastIndexOf(')') + 2).split(' ');
}

bool isDescendant(QString process)
{
    while (process.toInt() > 1) {
        process = QString::fromLatin1(statusOf(process).value(1));
        if (process.toLongLong() == ::getpid()) {
            return true;
        }
    }
    return false;
}

/// The states of all file server processes that this program has started: "T" is stopped.
QByteArrayList statesOfServers()
{
    QByteArrayList states;
    const QStringList processes = QDir("/proc").entryList(QDir::Dirs);
    for (const QString &process : processes) {
        QFile file("/proc/" + process + "/comm");
        if (process.toInt() > 0 && file.open(QFile::ReadOnly) && file.readAll().startsWith("smbd")
            && isDescendant(process)) {
            states.append(statusOf(process).value(0));
        }
    }
    // Some have ended, and a server that is stopped takes no notice of it.
    states.removeAll("Z");
    return states;
}

} // namespace

/// The page with its server, the list of drives, and what all pages have to keep.
class TestDrivesPage : public DrivesPageTest
{
    Q_OBJECT

protected:
    void finish() override
    {
        DrivesPageTest::finish();
        QVERIFY(statesOfServers().isEmpty());
    }

private slots:
    void serverIsNeededForItsDrives();
    void serverThatEndsIsNotOffered();
    void driveHasTheAddressOfTheTrouble_data();
    void driveHasTheAddressOfTheTrouble();
    void silentServerIsSilentAtOnce();
    void chosenShareIsThatOfTheNextDrive();
    void drivesGoByTheButton();
    void drivesGoWithThePage();
    void drivesOfAnEarlierRunGo();
    void managerIsLeftToTheUser();
    void portIsKeptOverTheSwitch();
    void otherPortIsTold();
    void folderIsNotLeftEmpty();
    void folderThatWasThereStays();
    void headingsAreNotCut();
    void logAndSignalsAreListed();
    void wheelLeavesTheShareAlone();
    void textsFollowTheLanguage();
    void mnemonicsAreDistinct();
    void everyControlIsNamedAndReached();
    void pageIsNotTooWide();
};

void TestDrivesPage::serverIsNeededForItsDrives()
{
    const auto *addButton = buttonOf(*page, "Add Drive");
    const auto *browseButton = buttonOf(*page, "Browse This Server...");
    QVERIFY(!addButton->isEnabled());
    QVERIFY(!browseButton->isEnabled());
    QVERIFY(server->serverUrl().isEmpty());
    QVERIFY(server->shareUrl("pictures").isEmpty());

    switchOn();
    QVERIFY(addButton->isEnabled());
    QVERIFY(browseButton->isEnabled());
    server->restart();
    QVERIFY(addButton->isEnabled());

    server->setRunning(false);
    QVERIFY(!addButton->isEnabled());
    QVERIFY(!browseButton->isEnabled());
}

void TestDrivesPage::serverThatEndsIsNotOffered()
{
    switchOn();

    const QStringList processes = QDir("/proc").entryList(QDir::Dirs);
    for (const QString &process : processes) {
        if (process.toInt() > 0 && statusOf(process).value(1).toLongLong() == ::getpid()) {
            ::kill(process.toInt(), SIGKILL);
        }
    }

    QTRY_VERIFY_WITH_TIMEOUT(!server->isRunning(), kPatienceMilliseconds);
    QTRY_VERIFY(!buttonOf(*page, "Add Drive")->isEnabled());
    QVERIFY(!server->error().isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(statesOfServers().isEmpty(), kPatienceMilliseconds);
}

void TestDrivesPage::driveHasTheAddressOfTheTrouble_data()
{
    QTest::addColumn<Trouble>("trouble");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("path");
    QTest::newRow("none") << Trouble::None << "s3cret"
                          << "/pictures";
    QTest::newRow("wrong password") << Trouble::WrongPassword << "forgotten"
                                    << "/pictures";
    QTest::newRow("unknown share") << Trouble::UnknownShare << "s3cret"
                                   << "/archive";
    QTest::newRow("silent") << Trouble::Silent << "s3cret"
                            << "/pictures";
    QTest::newRow("nobody") << Trouble::NobodyThere << "s3cret"
                            << "/pictures";
}

void TestDrivesPage::driveHasTheAddressOfTheTrouble()
{
    QFETCH(Trouble, trouble);
    QFETCH(QString, password);
    QFETCH(QString, path);
    switchOn();

    server->setTrouble(trouble);
    add();

    QCOMPARE(manager->count(), 1);
    const QUrl address = lastDrive().getUrl();
    const int port = trouble == Trouble::NobodyThere ? closedPort() : server->port();
    QCOMPARE(address.scheme(), "smb");
    QCOMPARE(address.host(), "127.0.0.1");
    QCOMPARE(address.port(), port);
    QCOMPARE(address.userName(), "mia");
    QCOMPARE(address.password(), password);
    QCOMPARE(address.path(), path);
    QCOMPARE(lastDrive().getMountPoint(), "N:/");
    QVERIFY(lastDrive().isActivated());
    QVERIFY(isRead(*page, "Added: N:/. Check \"Enabled\" to have it connected."));
    QVERIFY(!allTexts(*page).contains(password));
}

void TestDrivesPage::silentServerIsSilentAtOnce()
{
    switchOn();
    QVERIFY(!statesOfServers().isEmpty());
    QVERIFY(!statesOfServers().contains("T"));

    server->setTrouble(Trouble::Silent);
    QTRY_COMPARE(statesOfServers().count("T"), statesOfServers().size());
    server->setTrouble(Trouble::None);
    QTRY_VERIFY(!statesOfServers().contains("T"));

    server->setTrouble(Trouble::Silent);
    server->restart();
    QTRY_COMPARE(statesOfServers().count("T"), statesOfServers().size());
    QVERIFY(server->isRunning());
}

void TestDrivesPage::chosenShareIsThatOfTheNextDrive()
{
    switchOn();
    QCOMPARE(shareBox().currentText(), "pictures");

    shareBox().setCurrentText("proofs");
    add();

    QCOMPARE(lastDrive().getUrl().path(), "/proofs");
}

void TestDrivesPage::drivesGoByTheButton()
{
    manager->add(driveOfTheUser());
    const auto *button = buttonOf(*page, "Remove Added Drives");
    QVERIFY(!button->isEnabled());
    switchOn();
    add();
    add();
    QCOMPARE(manager->count(), 3);
    QVERIFY(button->isEnabled());

    DialogDriver::click(buttonOf(*page, "Remove Added Drives"));

    QVERIFY(!button->isEnabled());
    QCOMPARE(manager->count(), 1);
    QCOMPARE(lastDrive(), driveOfTheUser());
}

void TestDrivesPage::drivesGoWithThePage()
{
    manager->add(driveOfTheUser());
    switchOn();
    add();
    // The window saves the list at each change.
    QCOMPARE(QSettings().value("NetworkDrives").toStringList().size(), 2);

    page.reset();

    QCOMPARE(manager->count(), 1);
    QCOMPARE(lastDrive(), driveOfTheUser());
    const QStringList saved = QSettings().value("NetworkDrives").toStringList();
    QCOMPARE(saved.size(), 1);
    QVERIFY(saved.first().contains("nas.invalid"));
}

void TestDrivesPage::drivesOfAnEarlierRunGo()
{
    switchOn();
    add();
    const AutoMountNetworkDrive left(lastDrive().toVariantHash());
    page.reset();
    manager->add(left);
    manager->add(driveOfTheUser());

    page = std::make_unique<DrivesPage>();

    QCOMPARE(manager->count(), 1);
    QCOMPARE(lastDrive(), driveOfTheUser());
    QCOMPARE(page->findChild<QTreeView *>("treeView")->model()->rowCount(), 1);
}

void TestDrivesPage::managerIsLeftToTheUser()
{
    auto *enabledBox = page->findChild<QCheckBox *>("checkBoxEnabled");
    switchOn();
    add();
    QVERIFY(!manager->isRunning());
    QVERIFY(!enabledBox->isChecked());

    // The box is wider than what a click on it counts for.
    QTest::keyClick(enabledBox, Qt::Key_Space);
    QVERIFY(manager->isRunning());
    page.reset();

    QVERIFY(manager->isRunning());
}

void TestDrivesPage::portIsKeptOverTheSwitch()
{
    switchOn();
    const quint16 port = server->port();

    server->setRunning(false);
    switchOn();

    QCOMPARE(server->port(), port);
    QVERIFY(!isRead(*page, kOtherPort));
}

void TestDrivesPage::otherPortIsTold()
{
    switchOn();
    const quint16 port = server->port();
    server->setRunning(false);
    LocalSambaServer other;
    other.setWantedPort(port);
    QVERIFY2(other.start(), qPrintable(other.error()));
    QCOMPARE(other.port(), port);

    switchOn();

    QVERIFY(server->port() != port);
    QVERIFY(isRead(*page, kOtherPort));
    server->restart();
    QVERIFY(!isRead(*page, kOtherPort));
}

void TestDrivesPage::folderIsNotLeftEmpty()
{
    const QString folder = QDir::homePath() + "/Network Drives";
    QVERIFY(QDir().mkdir(folder));

    page.reset();
    QVERIFY(!QDir(folder).exists());

    // Somebody else's drives stay.
    page = std::make_unique<DrivesPage>();
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(QFile::link("/nowhere", folder + "/C"));
    page.reset();
    QVERIFY(QFile::remove(folder + "/C"));
    QVERIFY(QDir().rmdir(folder));
}

void TestDrivesPage::folderThatWasThereStays()
{
    const QString folder = QDir::homePath() + "/Network Drives";
    page.reset();
    QVERIFY(QDir().mkdir(folder));

    page = std::make_unique<DrivesPage>();
    page.reset();

    QVERIFY(QDir().rmdir(folder));
}

void TestDrivesPage::headingsAreNotCut()
{
    const auto *header = page->findChild<QTreeView *>("treeView")->header();
    for (int column = 0; column < header->count(); ++column) {
        QVERIFY2(header->sectionSize(column) >= header->sectionSizeHint(column),
                 qPrintable(QString::number(column)));
    }
}

void TestDrivesPage::logAndSignalsAreListed()
{
    TXLogPrint("The drive X:/ is out for lunch.", TXLogItem::Warning);
    TXLogPrint("Something else.", TXLogItem::Information);
    QTRY_VERIFY(lines("Log of the drives:").contains("out for lunch"));
    QVERIFY(!lines("Log of the drives:").contains("Something else"));

    manager->start();
    manager->stop();
    QVERIFY2(lines("Signals of the manager:").startsWith("started()"),
             qPrintable(lines("Signals of the manager:")));
    QVERIFY(lines("Signals of the manager:").contains("stopped()"));

    emit manager->statusNetworkDriveChanged(NetworkDriveLetterTaken, driveOfTheUser());
    QVERIFY(lines("Signals of the manager:")
                .endsWith("statusNetworkDriveChanged(NetworkDriveLetterTaken, C:/)"));
}

void TestDrivesPage::wheelLeavesTheShareAlone()
{
    const QPointF place(5, 5);
    QWheelEvent event(place, shareBox().mapToGlobal(place), {}, {0, -kWheelStep}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&shareBox(), &event);

    QVERIFY(!event.isAccepted());
    QCOMPARE(shareBox().currentText(), "pictures");
}

void TestDrivesPage::textsFollowTheLanguage()
{
    switchOn();
    add();
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    const QStringList allowed = {QStringLiteral("ON, AT 127.0.0.1:%1").arg(server->port())};
    QStringList small = smallTexts(*page, allowed);
    // The folder of the user stands in it as it is.
    small.removeIf([](const QString &text) { return text.contains("Network Drives\""); });
    QCOMPARE(small.join("|"), QString());

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Add Drive"));
    QVERIFY(isRead(*page, "Added: N:/. Check \"Enabled\" to have it connected."));
}

void TestDrivesPage::mnemonicsAreDistinct()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("drives")), QStringList());
}

void TestDrivesPage::everyControlIsNamedAndReached()
{
    switchOn();
    add();
    manager->start();
    QCOMPARE(namelessControls(*page), QStringList());
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    buttonOf(*page, "Add Drive")->setFocus();
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestDrivesPage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestDrivesPage>(argc, argv);
}

#include "tst_DrivesPage.moc"
