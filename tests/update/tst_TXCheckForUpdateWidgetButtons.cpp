#include "DialogDriver.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::installerPath;
using UpdateDialogTools::newRelease;
using UpdateDialogTools::newReleaseWith;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::useNoService;
using UpdateDialogTools::writeFile;

namespace {

/// The system's way to open a file, for as long as it lives: it takes the URL and does nothing.
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

void checkQuestion(const QMessageBox &box)
{
    QCOMPARE(box.windowTitle(), "Installing Update");
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.parent());
}

/// Answers the next question; NoButton closes it with the escape key.
void expectQuestion(DialogDriver &driver, const QString &text, QMessageBox::StandardButton answer)
{
    driver.expectMessageBox([text, answer](QMessageBox &box) {
        checkQuestion(box);
        QCOMPARE(box.text(), text);
        if (answer == QMessageBox::NoButton) {
            QTest::keyClick(&box, Qt::Key_Escape);
        } else {
            DialogDriver::click(box.button(answer));
        }
    });
}

const QString kInstallQuestion =
    QStringLiteral("Do you want to install this update?\nThe application will exit.");
const QString kDownloadQuestion = QStringLiteral(
    "Patch Reader 3.1 Beta 2 (rev 10453) will be installed on your computer.\n"
    "Please make sure to have administrator rights before attempting the software update.");

/// Chooses the folder in the next dialog, which has to be the one for folders.
void expectFolderDialog(DialogDriver &driver, Dialog &parent, const QString &folder)
{
    driver.expect([&parent, folder](QDialog &dialog) {
        auto *files = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(files);
        QCOMPARE(files->parentWidget(), &parent);
        QCOMPARE(files->windowTitle(), "Choose Download Directory");
        QVERIFY(files->testOption(QFileDialog::ShowDirsOnly));
        QCOMPARE(files->directory().absolutePath(), QFileInfo(installerPath()).absolutePath());
        if (folder.isEmpty()) {
            files->reject();
            return;
        }
        files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(folder);
        DialogDriver::click(*files, QDialogButtonBox::Open);
    });
}

} // namespace

class TestTXCheckForUpdateWidgetButtons : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

private slots:
    void cancelledFolderEndsTheDownload();
    void fileInTheChosenFolderIsTakenWhateverItsSize_data();
    void fileInTheChosenFolderIsTakenWhateverItsSize();
    void downloadBeginsIntoTheChosenFolder();
    void downloadAloneRunsNothing();
    void downloadAndInstallAsks_data();
    void downloadAndInstallAsks();
    void installAsks_data();
    void installAsks();
    void refusedInstallerLeavesTheDialogAsItIs();
    void startedInstallerClosesTheApplicationsWindowsLater();
    void embeddedDialogStaysWhenTheInstallerIsStarted();
    void dialogMayGoWhileItAsks_data();
    void dialogMayGoWhileItAsks();
    void dialogMayGoWhileTheResultOfACheckLeadsToTheQuestion();
    void downloadWithoutAnOfferEndsInTheErrorState();
    void cancelRejectsAndOkAccepts();
    void buttonsOfAnEmbeddedDialogLeaveItVisible();
};

void TestTXCheckForUpdateWidgetButtons::cancelledFolderEndsTheDownload()
{
    Dialog dialog;
    receive(dialog, newRelease());
    DialogDriver driver;
    expectFolderDialog(driver, dialog, QString());
    DialogDriver::click(part<QPushButton>(dialog, "downloadButton"));
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
}

void TestTXCheckForUpdateWidgetButtons::fileInTheChosenFolderIsTakenWhateverItsSize_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("folder") << QString();
    QTest::newRow("folder with a slash") << QStringLiteral("/");
}

void TestTXCheckForUpdateWidgetButtons::fileInTheChosenFolderIsTakenWhateverItsSize()
{
    QFETCH(QString, end);
    const QTemporaryDir folder;
    const QString path = folder.path() + QStringLiteral("/setup.exe");
    writeFile(path, "of another size");
    Opener opener;
    Dialog dialog;
    receive(dialog, newRelease());
    DialogDriver driver;
    expectFolderDialog(driver, dialog, folder.path() + end);
    DialogDriver::click(part<QPushButton>(dialog, "downloadButton"));
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
    QVERIFY(QFile::exists(path));

    expectQuestion(driver, kInstallQuestion, QMessageBox::Yes);
    DialogDriver::click(part<QPushButton>(dialog, "installButton"));
    QCOMPARE(opener.opened, (QList<QUrl>{QUrl::fromLocalFile(path)}));
}

void TestTXCheckForUpdateWidgetButtons::downloadBeginsIntoTheChosenFolder()
{
    const QTemporaryDir folder;
    Dialog dialog;
    receive(dialog, newReleaseWith("Filename", QStringLiteral("../../setup.exe")));
    QSignalSpy changed(&dialog, &Dialog::stateChanged);
    DialogDriver driver;
    expectFolderDialog(driver, dialog, folder.path());
    DialogDriver::click(part<QPushButton>(dialog, "downloadButton"));
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed[0][0].value<Dialog::State>(), Dialog::DownloadStarting);
    QCOMPARE(changed[1][0].value<Dialog::State>(), Dialog::Downloading);
    QTRY_COMPARE(dialog.state(), Dialog::ServiceError);
}

void TestTXCheckForUpdateWidgetButtons::downloadAloneRunsNothing()
{
    const QTemporaryDir folder;
    writeFile(folder.path() + QStringLiteral("/setup.exe"), "12345");
    const Opener opener;
    Dialog dialog;
    receive(dialog, newRelease());
    DialogDriver driver;
    expectFolderDialog(driver, dialog, folder.path());
    DialogDriver::click(part<QPushButton>(dialog, "downloadButton"));
    QVERIFY(opener.opened.isEmpty());
}

void TestTXCheckForUpdateWidgetButtons::downloadAndInstallAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<TXCheckForUpdateWidget::State>("state");
    QTest::newRow("yes") << int(QMessageBox::Yes) << Dialog::Downloading;
    QTest::newRow("no") << int(QMessageBox::No) << Dialog::UpdateAvailable;
    QTest::newRow("closed") << int(QMessageBox::NoButton) << Dialog::UpdateAvailable;
}

void TestTXCheckForUpdateWidgetButtons::downloadAndInstallAsks()
{
    QFETCH(int, answer);
    QFETCH(TXCheckForUpdateWidget::State, state);
    Dialog dialog;
    receive(dialog, newRelease());
    DialogDriver driver;
    expectQuestion(driver, kDownloadQuestion, static_cast<QMessageBox::StandardButton>(answer));
    DialogDriver::click(part<QPushButton>(dialog, "downloadAndInstallButton"));
    QCOMPARE(dialog.state(), state);

    // The wish to install counts when the file is there, and only after a Yes.
    if (answer == QMessageBox::Yes) {
        // Nobody is there to download from, which must not come up in the midst of the question.
        QTRY_COMPARE(dialog.state(), Dialog::ServiceError);
        expectQuestion(driver, kInstallQuestion, QMessageBox::No);
    }
    dialog.updateState(Dialog::ReadyToInstall);
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
}

void TestTXCheckForUpdateWidgetButtons::installAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("opens");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
    QTest::newRow("closed") << int(QMessageBox::NoButton) << false;
}

void TestTXCheckForUpdateWidgetButtons::installAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, opens);
    writeFile(installerPath(), "12345");
    const Opener opener;
    Dialog dialog;
    receive(dialog, newRelease());
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
    DialogDriver driver;
    expectQuestion(driver, kInstallQuestion, static_cast<QMessageBox::StandardButton>(answer));
    DialogDriver::click(part<QPushButton>(dialog, "installButton"));
    QCOMPARE(opener.opened.size(), opens ? 1 : 0);
    QCOMPARE(dialog.isVisible(), !opens);
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
}

void TestTXCheckForUpdateWidgetButtons::refusedInstallerLeavesTheDialogAsItIs()
{
    writeFile(installerPath(), "12345");
    Dialog dialog;
    receive(dialog, newRelease());
    QSignalSpy done(&dialog, SIGNAL(finished(int)));
    DialogDriver driver;
    expectQuestion(driver, kInstallQuestion, QMessageBox::Yes);
    // The offscreen platform opens nothing, and says so.
    DialogDriver::click(part<QPushButton>(dialog, "installButton"));
    QCoreApplication::processEvents();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
    QCOMPARE(done.size(), 0);
}

void TestTXCheckForUpdateWidgetButtons::startedInstallerClosesTheApplicationsWindowsLater()
{
    writeFile(installerPath(), "12345");
    const Opener opener;
    QWidget host;
    host.show();
    Dialog dialog;
    receive(dialog, newRelease());
    bool hostWasVisible = false;
    connect(&dialog, &QDialog::accepted, &host, [&] { hostWasVisible = host.isVisible(); });
    DialogDriver driver;
    expectQuestion(driver, kInstallQuestion, QMessageBox::Yes);
    dialog.on_installButton_clicked();
    QVERIFY(hostWasVisible);
    QVERIFY(host.isVisible());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QTRY_VERIFY(!host.isVisible());
}

void TestTXCheckForUpdateWidgetButtons::embeddedDialogStaysWhenTheInstallerIsStarted()
{
    writeFile(installerPath(), "12345");
    const Opener opener;
    QWidget host;
    QVBoxLayout layout(&host);
    auto *dialog = new Dialog(&host);
    QVERIFY(dialog->setAsWidget());
    layout.addWidget(dialog);
    host.show();
    receive(*dialog, newRelease());
    DialogDriver driver;
    expectQuestion(driver, kInstallQuestion, QMessageBox::Yes);
    DialogDriver::click(part<QPushButton>(*dialog, "installButton"));
    QVERIFY(dialog->isVisible());
    QTRY_VERIFY(!host.isVisible());
}

void TestTXCheckForUpdateWidgetButtons::dialogMayGoWhileItAsks_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("install") << QByteArray("on_installButton_clicked");
    QTest::newRow("download and install") << QByteArray("on_downloadAndInstallButton_clicked");
}

void TestTXCheckForUpdateWidgetButtons::dialogMayGoWhileItAsks()
{
    QFETCH(QByteArray, slot);
    const Opener opener;
    auto dialog = std::make_unique<Dialog>();
    receive(*dialog, newRelease());
    DialogDriver driver;
    driver.expectMessageBox([&](QMessageBox &box) {
        dialog.reset();
        DialogDriver::click(box.button(QMessageBox::Yes));
    });
    QVERIFY(QMetaObject::invokeMethod(dialog.get(), slot.constData()));
    QVERIFY(!dialog);
    QVERIFY(opener.opened.isEmpty());
}

void TestTXCheckForUpdateWidgetButtons::dialogMayGoWhileTheResultOfACheckLeadsToTheQuestion()
{
    auto dialog = std::make_unique<Dialog>();
    receive(*dialog, newRelease());
    DialogDriver driver;
    expectQuestion(driver, kDownloadQuestion, QMessageBox::Yes);
    dialog->on_downloadAndInstallButton_clicked();
    QCOMPARE(dialog->state(), Dialog::Downloading);
    writeFile(installerPath(), "12345");
    driver.expectMessageBox([&](QMessageBox &box) {
        dialog.reset();
        DialogDriver::click(box.button(QMessageBox::No));
    });
    // A late result of another check.
    receive(*dialog, newRelease());
    QVERIFY(!dialog);
}

void TestTXCheckForUpdateWidgetButtons::downloadWithoutAnOfferEndsInTheErrorState()
{
    Dialog dialog;
    dialog.updateState(Dialog::DownloadStarting);
    QTRY_COMPARE(dialog.state(), Dialog::ServiceError);
}

void TestTXCheckForUpdateWidgetButtons::cancelRejectsAndOkAccepts()
{
    Dialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    receive(dialog, newRelease());
    DialogDriver::click(part<QPushButton>(dialog, "cancelButton"));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.size(), 1);
    dialog.checkUpdate();
    dialog.updateState(Dialog::UpToDate);
    DialogDriver::click(part<QPushButton>(dialog, "okButton"));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(accepted.size(), 1);
}

void TestTXCheckForUpdateWidgetButtons::buttonsOfAnEmbeddedDialogLeaveItVisible()
{
    QWidget host;
    QVBoxLayout layout(&host);
    auto *dialog = new Dialog(&host);
    QVERIFY(dialog->setAsWidget());
    layout.addWidget(dialog);
    host.show();
    receive(*dialog, newRelease());
    DialogDriver::click(part<QPushButton>(*dialog, "cancelButton"));
    QVERIFY(dialog->isVisible());
    dialog->updateState(Dialog::UpToDate);
    DialogDriver::click(part<QPushButton>(*dialog, "okButton"));
    QVERIFY(dialog->isVisible());
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetButtons>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetButtons.moc"
