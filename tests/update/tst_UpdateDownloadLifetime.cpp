#include "DialogDriver.h"
#include "UnfinishedDownloads.h"
#include "UpdateDownloadHelpers.h"

#include <QEvent>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>

#include <memory>

namespace {

/// Deletes a dialog in the slot of one of its signals.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(TXCheckForUpdateWidget *victim)
        : dialog(victim)
    { }

public slots:
    void deleteDialog() { delete dialog; }

private:
    QPointer<TXCheckForUpdateWidget> dialog;
};

} // namespace

class TestUpdateDownloadLifetime : public DownloadTest
{
    Q_OBJECT

private slots:
    void destroyedDialogLeavesAnUnfinishedFile();
    void dialogMayBeDestroyedBeforeTheFirstByte();
    void dialogMayBeDestroyedByItsOwnSignals_data();
    void dialogMayBeDestroyedByItsOwnSignals();
    void dialogMayBeDestroyedWhenASecondTransferStarts();
    void dialogMayBeDestroyedWhileItWaitsForTheFile();
    void dialogMayBeDestroyedWhileTheEndOfATransferAsks();
};

void TestUpdateDownloadLifetime::destroyedDialogLeavesAnUnfinishedFile()
{
    LocalWebReply reply = generated(9000);
    reply.holdAfter = 5000;
    service->setDownloadReply(reply);
    auto dialog = std::make_unique<Widget>(nullptr, false);
    startDownload(*dialog);
    QVERIFY(waitForSize(5000));
    const QPointer<QNetworkAccessManager> manager = dialog->findChild<QNetworkAccessManager *>();
    const QSignalSpy states(dialog.get(), SIGNAL(stateChanged(State)));
    const QSignalSpy refreshed(dialog.get(), SIGNAL(updateRefreshed(QVariantHash)));
    dialog.reset();

    QVERIFY(!manager);
    QCOMPARE(states.count(), 0);
    QCOMPARE(refreshed.count(), 0);
    QCOMPARE(QFileInfo(installerPath()).size(), 5000);
    QVERIFY(UnfinishedDownloads::contains(installerPath()));
}

void TestUpdateDownloadLifetime::dialogMayBeDestroyedBeforeTheFirstByte()
{
    LocalWebReply reply;
    reply.isSilent = true;
    service->setDownloadReply(reply);
    auto dialog = std::make_unique<Widget>(nullptr, false);
    startDownload(*dialog);
    QTRY_VERIFY(service->isSilent());
    dialog.reset();
    QVERIFY(!QFile::exists(installerPath()));
}

void TestUpdateDownloadLifetime::dialogMayBeDestroyedByItsOwnSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<qint64>("cutAfter");
    QTest::addColumn<bool>("isFileDeleted");
    const QByteArray state = SIGNAL(stateChanged(State));
    const QByteArray refreshed = SIGNAL(updateRefreshed(QVariantHash));
    QTest::newRow("end, state") << state << qint64(-1) << false;
    QTest::newRow("error of the network, state") << state << qint64(7000) << false;
    QTest::newRow("error of the network, record") << refreshed << qint64(7000) << false;
    QTest::newRow("error of the file, state") << state << qint64(-1) << true;
    QTest::newRow("error of the file, record") << refreshed << qint64(-1) << true;
}

void TestUpdateDownloadLifetime::dialogMayBeDestroyedByItsOwnSignals()
{
    QFETCH(QByteArray, signal);
    QFETCH(qint64, cutAfter);
    QFETCH(bool, isFileDeleted);
    LocalWebReply reply = generated(9000);
    reply.holdAfter = 5000;
    reply.cutAfter = cutAfter;
    service->setDownloadReply(reply);
    const QPointer<Widget> dialog(new Widget(nullptr, false));
    startDownload(*dialog);
    QVERIFY(waitForSize(5000));
    Deleter deleter(dialog);
    connect(dialog, signal.constData(), &deleter, SLOT(deleteDialog()));
    const QPointer<QNetworkAccessManager> manager = dialog->findChild<QNetworkAccessManager *>();
    if (isFileDeleted) {
        QVERIFY(QFile::remove(installerPath()));
    }
    service->release();
    QTRY_VERIFY(!dialog);
    QTRY_VERIFY(!manager);
}

void TestUpdateDownloadLifetime::dialogMayBeDestroyedWhenASecondTransferStarts()
{
    LocalWebReply reply = generated(9000);
    reply.holdAfter = 5000;
    service->setDownloadReply(reply);
    const QPointer<Widget> dialog(new Widget(nullptr, false));
    startDownload(*dialog);
    QVERIFY(waitForSize(5000));
    Deleter deleter(dialog);
    connect(dialog, SIGNAL(updateRefreshed(QVariantHash)), &deleter, SLOT(deleteDialog()));
    dialog->updateState(Widget::DownloadStarting);
    QVERIFY(!dialog);
}

void TestUpdateDownloadLifetime::dialogMayBeDestroyedWhileItWaitsForTheFile()
{
    setDownloadFolder(downloads->filePath(QStringLiteral("missing")));
    service->setDownloadReply(generated(20 * kMegabyte));
    auto dialog = std::make_unique<Widget>(nullptr, false);
    startDownload(*dialog);
    const auto *reply = dialog->findChild<QNetworkReply *>();
    QTRY_VERIFY(reply->bytesAvailable() > 0);
    dialog.reset();
}

void TestUpdateDownloadLifetime::dialogMayBeDestroyedWhileTheEndOfATransferAsks()
{
    service->setDownloadReply(generated(9000));
    const QPointer<Widget> dialog(new Widget(nullptr, false));
    const QPointer<QNetworkAccessManager> manager = dialog->findChild<QNetworkAccessManager *>();
    const QVariantHash record = offerOfSize(9000);
    dialog->updateInfoReceived(record, record);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box.button(QMessageBox::Yes)); });
    bool didManagerStay = false;
    driver.expectMessageBox([&](QMessageBox &box) {
        delete dialog;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        didManagerStay = !manager.isNull();
        DialogDriver::click(box.button(QMessageBox::No));
    });
    dialog->on_downloadAndInstallButton_clicked();

    QTRY_VERIFY(!dialog);
    QTRY_VERIFY(!manager);
    // It was telling of the end of the transfer all the while.
    QVERIFY(didManagerStay);
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateDownloadLifetime>(argc, argv);
}

#include "tst_UpdateDownloadLifetime.moc"
