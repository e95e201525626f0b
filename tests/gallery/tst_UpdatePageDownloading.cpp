#include "UpdatePageTest.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>

namespace {

/// Takes what the desktop would open.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

/// A desktop without any program but, once installed, one that shows folders: it writes down which.
class FolderShower
{
public:
    FolderShower() { qputenv("PATH", QFile::encodeName(folder.path())); }
    ~FolderShower() { qputenv("PATH", path); }
    Q_DISABLE_COPY_MOVE(FolderShower)

    [[nodiscard]] bool install()
    {
        const QString script =
            QStringLiteral("#!/bin/sh\nprintf '%s\\n' \"$@\" >>'%1'\n").arg(record());
        QFile file(folder.filePath("xdg-open"));
        return file.open(QFile::WriteOnly) && file.write(script.toUtf8()) > 0
            && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QString shown() const
    {
        QFile file(record());
        return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    [[nodiscard]] QString record() const { return folder.filePath("record"); }

    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
};

} // namespace

/// The way of a file from the service to the user's folder, and what is done with it there.
class TestUpdatePageDownloading : public UpdatePageTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void checkMakesTheFolderForDownloads();
    void downloadEndsWithInstalling();
    void slowDownloadShowsItsProgress();
    void brokenDownloadIsAFailure();
    void pageMayGoDuringADownload();
    void folderIsShown();
    void folderOfTheFileIsShown();
    void folderThatNoProgramShowsIsTold();
    void folderOfTheFileThatNoProgramShowsIsTold();
    void missingFolderIsTold();

private:
    void download();
    void showInFolderFails(const QString &reason);
};

void TestUpdatePageDownloading::initTestCase()
{
    // Without a bus the folders are shown by the program alone.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/there is no bus");
}

/// Leaves the file of the newer release in the folder for downloads.
void TestUpdatePageDownloading::download()
{
    check(UpdateOffer::Newer);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::No); });
    DialogDriver::click(inDialog("downloadAndInstallButton"));
    QTRY_COMPARE_WITH_TIMEOUT(int(dialog->state()), int(State::ReadyToInstall),
                              kPatienceMilliseconds);
    QCOMPARE(downloadedFiles(), QStringList("TXGallery-2.0.txt"));
}

/// Clicks "Show in Folder", which ends in a message with this reason.
void TestUpdatePageDownloading::showInFolderFails(const QString &reason)
{
    DialogDriver driver;
    driver.expectMessageBox([&reason](QMessageBox &box) {
        const QString text = box.text() + box.informativeText();
        QVERIFY2(text.contains(reason), qPrintable(text));
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });
    DialogDriver::click(buttonOf(*page, "Show in Folder"));
}

void TestUpdatePageDownloading::checkMakesTheFolderForDownloads()
{
    const QList<QLabel *> labels = page->findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text().contains(downloads() + "\", which a check makes");
    }));
    switchOn();
    QVERIFY(!QDir(downloads()).exists());

    check(UpdateOffer::Same);

    QVERIFY(QDir(downloads()).exists());
}

void TestUpdatePageDownloading::downloadEndsWithInstalling()
{
    Desktop desktop;
    check(UpdateOffer::Newer);
    QCOMPARE(int(dialog->state()), int(State::UpdateAvailable));
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().contains("The application will exit."));
        DialogDriver::click(box, QDialogButtonBox::Yes);
    });

    DialogDriver::click(inDialog("downloadAndInstallButton"));

    QTRY_COMPARE_WITH_TIMEOUT(desktop.opened.size(), 1, kPatienceMilliseconds);
    QCOMPARE(downloadedFiles(), QStringList("TXGallery-2.0.txt"));
    const QString path = downloads() + "/TXGallery-2.0.txt";
    QCOMPARE(desktop.opened.first(), QUrl::fromLocalFile(path));
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(file.readAll().contains("harmless"));
    // All windows close after it.
    QTRY_VERIFY(!page->isVisible());
    QVERIFY(!dialog->isVisible());
    QVERIFY(emissions().contains("stateChanged(Downloading)\nstateChanged(ReadyToInstall)"));
}

void TestUpdatePageDownloading::slowDownloadShowsItsProgress()
{
    check(UpdateOffer::Slow);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::No); });
    auto *bar = dialog->findChild<QProgressBar *>("downloadProgressBar");
    QSignalSpy moved(bar, SIGNAL(valueChanged(int)));

    DialogDriver::click(inDialog("downloadAndInstallButton"));
    QTRY_COMPARE_WITH_TIMEOUT(int(dialog->state()), int(State::ReadyToInstall),
                              kPatienceMilliseconds);

    QVERIFY2(moved.count() > 5, qPrintable(QString::number(moved.count())));
    QCOMPARE(QFileInfo(downloads() + "/TXGallery-2.0-slow.txt").size(),
             valueOf("Filesize").toLongLong());
    QTRY_VERIFY(inDialog("installButton")->isVisible());
}

void TestUpdatePageDownloading::brokenDownloadIsAFailure()
{
    check(UpdateOffer::Broken);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });

    DialogDriver::click(inDialog("downloadAndInstallButton"));

    QTRY_COMPARE_WITH_TIMEOUT(int(dialog->state()), int(State::ServiceError),
                              kPatienceMilliseconds);
    QTRY_VERIFY(emissions().endsWith("updateRefreshed({})"));
}

void TestUpdatePageDownloading::pageMayGoDuringADownload()
{
    check(UpdateOffer::Slow);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    DialogDriver::click(inDialog("downloadAndInstallButton"));
    QCOMPARE(int(dialog->state()), int(State::Downloading));

    page.reset();
}

void TestUpdatePageDownloading::folderIsShown()
{
    QVERIFY(QDir().mkpath(downloads()));
    FolderShower shower;
    QVERIFY(shower.install());

    DialogDriver::click(buttonOf(*page, "Show in Folder"));

    QTRY_COMPARE(shower.shown(), downloads() + u'\n');
}

void TestUpdatePageDownloading::folderOfTheFileIsShown()
{
    download();
    FolderShower shower;
    QVERIFY(shower.install());

    DialogDriver::click(buttonOf(*page, "Show in Folder"));

    QTRY_COMPARE(shower.shown(), downloads() + u'\n');
}

void TestUpdatePageDownloading::folderThatNoProgramShowsIsTold()
{
    QVERIFY(QDir().mkpath(downloads()));
    const FolderShower notInstalled;

    showInFolderFails(QStringLiteral("No program shows the folder \"%1\".").arg(downloads()));
}

void TestUpdatePageDownloading::folderOfTheFileThatNoProgramShowsIsTold()
{
    download();
    const FolderShower notInstalled;

    showInFolderFails(QStringLiteral("No program shows the folder \"%1\".").arg(downloads()));
}

void TestUpdatePageDownloading::missingFolderIsTold()
{
    const FolderShower notInstalled;

    showInFolderFails(QStringLiteral("There is no folder \"%1\".").arg(downloads()));
}

int main(int argc, char **argv)
{
    return runTest<TestUpdatePageDownloading>(argc, argv);
}

#include "tst_UpdatePageDownloading.moc"
