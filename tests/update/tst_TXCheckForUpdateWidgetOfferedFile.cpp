#include "DialogDriver.h"
#include "TestBase.h"
#include "UnfinishedDownloads.h"
#include "UpdateDialogTools.h"

#include <QFileInfo>
#include <QPushButton>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::installerPath;
using UpdateDialogTools::newRelease;
using UpdateDialogTools::newReleaseWith;
using UpdateDialogTools::part;
using UpdateDialogTools::receive;
using UpdateDialogTools::shownWidgets;
using UpdateDialogTools::useNoService;
using UpdateDialogTools::writeFile;

class TestTXCheckForUpdateWidgetOfferedFile : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
    }

private slots:
    void completeFileIsReadyWithoutTheOffer();
    void fileOfAnotherSizeIsDeletedAndOffered_data();
    void fileOfAnotherSizeIsDeletedAndOffered();
    void emptyFileIsCompleteWithoutAFilesize();
    void unfinishedFileNeverCountsAsComplete();
    void folderInTheWayIsLeftAlone();
    void completeFileAsksToInstallWhenThatWasWanted();
};

void TestTXCheckForUpdateWidgetOfferedFile::completeFileIsReadyWithoutTheOffer()
{
    writeFile(installerPath(), "12345");
    Dialog dialog;
    QList<QPair<Dialog::State, bool>> seen;
    connect(&dialog, &Dialog::stateChanged, &dialog, [&](Dialog::State next) {
        seen.append({next, dialog.isVisible()});
    });
    receive(dialog, newRelease());
    QCOMPARE(seen,
             (QList<QPair<Dialog::State, bool>>{{Dialog::UpdateAvailable, false},
                                                {Dialog::ReadyToInstall, false}}));
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
    QCOMPARE(shownWidgets(dialog), QByteArray("ssshhsshh"));
    QVERIFY(dialog.isVisible());
    QVERIFY(QFile::exists(installerPath()));
}

void TestTXCheckForUpdateWidgetOfferedFile::fileOfAnotherSizeIsDeletedAndOffered_data()
{
    QTest::addColumn<QVariant>("fileSize");
    QTest::newRow("larger") << QVariant(6);
    QTest::newRow("smaller") << QVariant(4);
    QTest::newRow("missing") << QVariant();
    QTest::newRow("negative") << QVariant(-5);
    QTest::newRow("text") << QVariant(QStringLiteral("five"));
    QTest::newRow("beyond 32 bits") << QVariant(Q_INT64_C(4294967301));
}

void TestTXCheckForUpdateWidgetOfferedFile::fileOfAnotherSizeIsDeletedAndOffered()
{
    QFETCH(QVariant, fileSize);
    writeFile(installerPath(), "12345");
    Dialog dialog;
    receive(dialog, newReleaseWith("Filesize", fileSize));
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
    QVERIFY(!QFile::exists(installerPath()));
    QVERIFY(dialog.isVisible());
}

void TestTXCheckForUpdateWidgetOfferedFile::emptyFileIsCompleteWithoutAFilesize()
{
    writeFile(installerPath(), "");
    QVariantHash release = newRelease();
    release.remove(QStringLiteral("Filesize"));
    Dialog dialog;
    receive(dialog, release);
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
}

void TestTXCheckForUpdateWidgetOfferedFile::unfinishedFileNeverCountsAsComplete()
{
    writeFile(installerPath(), "12345");
    QVERIFY(UnfinishedDownloads::add(installerPath()));
    Dialog dialog;
    receive(dialog, newRelease());
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
    QVERIFY(!QFile::exists(installerPath()));

    // What the user puts there himself afterwards is another file.
    writeFile(installerPath(), "12345");
    receive(dialog, newRelease());
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
}

void TestTXCheckForUpdateWidgetOfferedFile::folderInTheWayIsLeftAlone()
{
    QVERIFY(QDir().mkpath(installerPath()));
    Dialog dialog;
    receive(dialog, newRelease());
    QCOMPARE(dialog.state(), Dialog::UpdateAvailable);
    QVERIFY(QFileInfo(installerPath()).isDir());
    QVERIFY(dialog.isVisible());
}

void TestTXCheckForUpdateWidgetOfferedFile::completeFileAsksToInstallWhenThatWasWanted()
{
    Dialog dialog;
    receive(dialog, newRelease());
    writeFile(installerPath(), "12345");
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box.button(QMessageBox::Yes)); });
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().startsWith(u"Do you want to install"));
        DialogDriver::click(box.button(QMessageBox::No));
    });
    part<QPushButton>(dialog, "downloadAndInstallButton")->click();
    QCOMPARE(dialog.state(), Dialog::ReadyToInstall);
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetOfferedFile>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetOfferedFile.moc"
