#include "ForeignReply.h"
#include "UnfinishedDownloads.h"
#include "UpdateDownloadHelpers.h"

#include <QNetworkReply>
#include <QPointer>
#include <QTimer>

class TestUpdateDownloadForeignReply : public DownloadTest
{
    Q_OBJECT

private slots:
    void endOfAnotherReplyEndsNothing();
    void readyReadOfAnotherReplyIsLeftInIt();
    void endWithoutATransferFollowsTheState_data();
    void endWithoutATransferFollowsTheState();
    void replyOfTheHostContinuesTheFile();
    void replyOfTheHostMakesTheFile();
    void replyWithoutAByteLeavesTheFile();
    void falselyToldBytesAreAnError();
    void retryOfOneReplyIsNoneOfTheNext();
    void oddCallsDoNoHarm();

private:
    void prepareInstaller(Widget &dialog, const QByteArray &bytes) const;
};

/// Leads the dialog to a whole installer on disk, and on to a transfer without a reply.
void TestUpdateDownloadForeignReply::prepareInstaller(Widget &dialog, const QByteArray &bytes) const
{
    writeFile(installerPath(), bytes);
    const QVariantHash record = offerOfSize(bytes.size());
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    dialog.updateState(Widget::Downloading);
}

void TestUpdateDownloadForeignReply::endOfAnotherReplyEndsNothing()
{
    LocalWebReply reply = generated(1000);
    reply.holdAfter = 500;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    QVERIFY(waitForSize(500));
    const QPointer<ForeignReply> foreign(new ForeignReply(this));
    dialog.finished(foreign);
    QTRY_VERIFY(!foreign);
    QCOMPARE(dialog.state(), Widget::Downloading);
    service->release();
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 1000));
}

void TestUpdateDownloadForeignReply::readyReadOfAnotherReplyIsLeftInIt()
{
    LocalWebReply reply = generated(1000);
    reply.holdAfter = 500;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    QVERIFY(waitForSize(500));
    ForeignReply foreign(nullptr);
    connect(&foreign, SIGNAL(readyRead()), &dialog, SLOT(downloading()));
    emit foreign.readyRead();
    QCOMPARE(foreign.bytesAvailable(), 7);
    QCOMPARE(QFileInfo(installerPath()).size(), 500);
}

void TestUpdateDownloadForeignReply::endWithoutATransferFollowsTheState_data()
{
    QTest::addColumn<Widget::State>("before");
    QTest::addColumn<bool>("isFailed");
    QTest::addColumn<Widget::State>("after");
    for (const auto state : {Widget::UpToDate, Widget::Downloading, Widget::ServiceError}) {
        const auto good = state == Widget::Downloading ? Widget::ReadyToInstall : state;
        QTest::addRow("%d, good", state) << state << false << good;
        QTest::addRow("%d, failed", state) << state << true << Widget::ServiceError;
    }
}

void TestUpdateDownloadForeignReply::endWithoutATransferFollowsTheState()
{
    QFETCH(Widget::State, before);
    QFETCH(bool, isFailed);
    QFETCH(Widget::State, after);
    Widget dialog(nullptr, false);
    dialog.updateState(before);
    const auto error = isFailed ? QNetworkReply::HostNotFoundError : QNetworkReply::NoError;
    const QPointer<ForeignReply> reply(new ForeignReply(this, error));
    dialog.finished(reply);
    QCOMPARE(dialog.state(), after);
    QTRY_VERIFY(!reply);
}

void TestUpdateDownloadForeignReply::replyOfTheHostContinuesTheFile()
{
    Widget dialog(nullptr, false);
    prepareInstaller(dialog, "12345");
    auto *reply = new ForeignReply(this, QNetworkReply::NoError, "abc");
    dialog.setCurrentReply(reply);
    connect(reply, SIGNAL(readyRead()), &dialog, SLOT(downloading()));
    emit reply->readyRead();
    QCOMPARE(bytesIn(installerPath()), QByteArray("12345abc"));
    QVERIFY(!UnfinishedDownloads::contains(installerPath()));

    reply->content = "de";
    dialog.finished(reply);
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), QByteArray("12345abcde"));
}

void TestUpdateDownloadForeignReply::replyOfTheHostMakesTheFile()
{
    Widget dialog(nullptr, false);
    prepareInstaller(dialog, "12345");
    QVERIFY(QFile::remove(installerPath()));
    auto *reply = new ForeignReply(this);
    dialog.setCurrentReply(reply);
    dialog.finished(reply);
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), QByteArray("foreign"));
}

void TestUpdateDownloadForeignReply::replyWithoutAByteLeavesTheFile()
{
    Widget dialog(nullptr, false);
    prepareInstaller(dialog, "12345");
    auto *reply = new ForeignReply(this, QNetworkReply::NoError, QByteArray());
    dialog.setCurrentReply(reply);
    dialog.finished(reply);
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), QByteArray("12345"));
}

void TestUpdateDownloadForeignReply::falselyToldBytesAreAnError()
{
    Widget dialog(nullptr, false);
    prepareInstaller(dialog, "12345");
    auto *reply = new ForeignReply(this, QNetworkReply::NoError, "abc");
    reply->falselyTold = 1;
    dialog.setCurrentReply(reply);
    connect(reply, SIGNAL(readyRead()), &dialog, SLOT(downloading()));
    emit reply->readyRead();
    emit reply->readyRead();
    // They may still come.
    QCOMPARE(dialog.state(), Widget::Downloading);
    QCOMPARE(reply->abortCount, 0);
    dialog.finished(reply);
    QCOMPARE(dialog.state(), Widget::ServiceError);
}

void TestUpdateDownloadForeignReply::retryOfOneReplyIsNoneOfTheNext()
{
    setDownloadFolder(downloads->filePath(QStringLiteral("missing")));
    service->setDownloadReply(generated(20 * kMegabyte));
    Widget dialog(nullptr, false);
    startDownload(dialog);
    const auto *first = dialog.findChild<QNetworkReply *>();
    QTRY_VERIFY(first->bytesAvailable() > 0);
    ForeignReply next(nullptr);
    dialog.setCurrentReply(&next);

    // What the first one has to wait for would be over when this is.
    QTimer longer;
    longer.setSingleShot(true);
    QSignalSpy isOver(&longer, &QTimer::timeout);
    longer.start(250);
    QVERIFY(isOver.wait());
    QCOMPARE(next.bytesAvailable(), 7);
    QCOMPARE(next.abortCount, 0);
    dialog.setCurrentReply(nullptr);
}

void TestUpdateDownloadForeignReply::oddCallsDoNoHarm()
{
    Widget dialog(nullptr, false);
    dialog.updateState(Widget::UpToDate);
    dialog.downloading();
    dialog.finished(nullptr);
    dialog.setCurrentReply(nullptr);
    QCOMPARE(dialog.state(), Widget::UpToDate);

    // Bytes that have no file to go to end in the error, and not in a loop.
    dialog.updateState(Widget::Downloading);
    auto *foreign = new ForeignReply(this);
    dialog.setCurrentReply(foreign);
    dialog.finished(foreign);
    QCOMPARE(dialog.state(), Widget::ServiceError);

    // A reply that its owner has deleted is no reply any more.
    auto *deleted = new ForeignReply(this);
    dialog.setCurrentReply(deleted);
    delete deleted;
    ForeignReply other(nullptr);
    dialog.setCurrentReply(&other);
    dialog.setCurrentReply(nullptr);
    QCOMPARE(other.abortCount, 1);
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateDownloadForeignReply>(argc, argv);
}

#include "tst_UpdateDownloadForeignReply.moc"
