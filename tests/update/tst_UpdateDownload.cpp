#include "UnfinishedDownloads.h"
#include "UpdateDownloadHelpers.h"

#include <QCoreApplication>

#include <limits>

class TestUpdateDownload : public DownloadTest
{
    Q_OBJECT

private slots:
    void installerArrivesWhole_data();
    void installerArrivesWhole();
    void installerIsUnfinishedUntilTheLastByte();
    void barFollowsTheTransfer();
    void barHasNoMaximumWithoutALength();
    void progressIsNarrowedWithoutScaling_data();
    void progressIsNarrowedWithoutScaling();
    void existingFileIsTakenWhateverItsSize();
    void unfinishedFileIsFetchedAnew();
    void unfinishedFileOfTheRightSizeIsNotOffered();
    void hiddenDialogComesBackAtTheEnd();
    void lateResultDoesNotStopTheTransfer();
    void answerOfAnEarlierCheckDoesNotStopTheTransfer();
    void hostWithoutANameDownloads();
    void whatTheUserPutsThereAfterAFailureIsHisOwn();
};

void TestUpdateDownload::installerArrivesWhole_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("tellsLength");
    QTest::addColumn<qint64>("pieceSize");
    QTest::addColumn<qint64>("recordSize");
    for (const bool tells : {true, false}) {
        const char *length = tells ? "length" : "no length";
        QTest::addRow("one byte, %s", length) << qint64(1) << tells << qint64(0) << qint64(1);
        QTest::addRow("tiny pieces, %s", length) << qint64(3000) << tells << qint64(1) << qint64(0);
        QTest::addRow("a buffer, %s", length)
            << kMegabyte << tells << qint64(0) << qint64(kMegabyte);
        QTest::addRow("a buffer and a byte, %s", length)
            << kMegabyte + 1 << tells << qint64(0) << qint64(0);
        QTest::addRow("large, %s", length)
            << 40 * kMegabyte + 7 << tells << qint64(0) << 40 * kMegabyte + 7;
        QTest::addRow("large in uneven pieces, %s", length)
            << 5 * kMegabyte << tells << qint64(77777) << std::numeric_limits<qint64>::min();
    }
}

void TestUpdateDownload::installerArrivesWhole()
{
    QFETCH(qint64, size);
    QFETCH(bool, tellsLength);
    QFETCH(qint64, pieceSize);
    QFETCH(qint64, recordSize);
    LocalWebReply reply = generated(size);
    reply.tellsLength = tellsLength;
    reply.pieceSize = pieceSize;
    service->setDownloadReply(reply);

    Widget dialog(nullptr, false);
    startDownload(dialog, recordSize);
    QCOMPARE(dialog.state(), Widget::Downloading);
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QVERIFY(bytesIn(installerPath()) == LocalUpdateService::generatedBytes(0, size));
    QVERIFY(!UnfinishedDownloads::contains(installerPath()));
}

void TestUpdateDownload::installerIsUnfinishedUntilTheLastByte()
{
    LocalWebReply reply = generated(1000);
    reply.holdAfter = 999;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    QVERIFY(!QFile::exists(installerPath()));
    QVERIFY(waitForSize(999));
    QVERIFY(UnfinishedDownloads::contains(installerPath()));
    service->release();
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QVERIFY(!UnfinishedDownloads::contains(installerPath()));
}

void TestUpdateDownload::barFollowsTheTransfer()
{
    LocalWebReply reply = generated(100000);
    reply.pieceSize = 10000;
    reply.pauseMilliseconds = 120;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    auto *bar = dialog.findChild<QProgressBar *>(QStringLiteral("downloadProgressBar"));
    QVERIFY(bar != nullptr);
    const QSignalSpy values(bar, SIGNAL(valueChanged(int)));
    startDownload(dialog);
    QVERIFY(waitForEnd(dialog));

    QCOMPARE(bar->maximum(), 100000);
    QCOMPARE(bar->value(), 100000);
    QVERIFY2(values.count() > 3, qPrintable(QString::number(values.count())));
    for (qsizetype index = 1; index < values.count(); ++index) {
        QVERIFY(values.at(index).at(0).toInt() > values.at(index - 1).at(0).toInt());
    }
}

void TestUpdateDownload::barHasNoMaximumWithoutALength()
{
    LocalWebReply reply = generated(5000);
    reply.tellsLength = false;
    reply.pieceSize = 1000;
    reply.pauseMilliseconds = 150;
    reply.holdAfter = 4000;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    const auto *bar = dialog.findChild<QProgressBar *>(QStringLiteral("downloadProgressBar"));
    startDownload(dialog);
    QVERIFY(waitForSize(4000));
    QTRY_COMPARE(bar->maximum(), -1);
    service->release();
    QVERIFY(waitForEnd(dialog));
    // Qt tells the length with the last byte.
    QCOMPARE(bar->maximum(), 5000);
    QCOMPARE(bar->value(), 5000);
}

void TestUpdateDownload::progressIsNarrowedWithoutScaling_data()
{
    QTest::addColumn<qint64>("read");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("maximum");
    QTest::newRow("small") << qint64(5) << qint64(10) << 10;
    QTest::newRow("largest int") << qint64(5) << qint64(std::numeric_limits<int>::max())
                                 << std::numeric_limits<int>::max();
    QTest::newRow("4 GiB and 9") << qint64(5) << (qint64(1) << 32) + 9 << 9;
    QTest::newRow("3 GiB") << qint64(5) << 3 * (qint64(1) << 30) << -1073741824;
}

void TestUpdateDownload::progressIsNarrowedWithoutScaling()
{
    QFETCH(qint64, read);
    QFETCH(qint64, total);
    QFETCH(int, maximum);
    Widget dialog(nullptr, false);
    dialog.updateDataTransferProgress(read, total);
    const auto *bar = dialog.findChild<QProgressBar *>(QStringLiteral("downloadProgressBar"));
    QCOMPARE(bar->maximum(), maximum);
}

void TestUpdateDownload::existingFileIsTakenWhateverItsSize()
{
    Widget dialog(nullptr, false);
    const QVariantHash record = offerOfSize(1000);
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::UpdateAvailable);
    writeFile(installerPath(), "theirs");
    dialog.updateState(Widget::DownloadStarting);

    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), QByteArray("theirs"));
    QVERIFY(service->requests().isEmpty());
}

void TestUpdateDownload::unfinishedFileIsFetchedAnew()
{
    service->setDownloadReply(generated(1000));
    Widget dialog(nullptr, false);
    const QVariantHash record = offerOfSize(1000);
    dialog.updateInfoReceived(record, record);
    writeFile(installerPath(), QByteArray(1000, 'x'));
    QVERIFY(UnfinishedDownloads::add(installerPath()));
    dialog.updateState(Widget::DownloadStarting);

    QCOMPARE(dialog.state(), Widget::Downloading);
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 1000));
}

void TestUpdateDownload::unfinishedFileOfTheRightSizeIsNotOffered()
{
    writeFile(installerPath(), QByteArray(1000, 'x'));
    QVERIFY(UnfinishedDownloads::add(installerPath()));
    Widget dialog(nullptr, false);
    const QVariantHash record = offerOfSize(1000);
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::UpdateAvailable);
    QVERIFY(!QFile::exists(installerPath()));
}

void TestUpdateDownload::hiddenDialogComesBackAtTheEnd()
{
    LocalWebReply reply = generated(3 * kMegabyte);
    reply.holdAfter = kMegabyte;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    QVERIFY(waitForSize(kMegabyte));
    dialog.close();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.state(), Widget::Downloading);
    service->release();
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QVERIFY(dialog.isVisible());
}

void TestUpdateDownload::lateResultDoesNotStopTheTransfer()
{
    LocalWebReply reply = generated(1000);
    reply.holdAfter = 500;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    QVERIFY(waitForSize(500));
    const QVariantHash nothingNewer = {{QStringLiteral("Revision"), 1}};
    dialog.updateInfoReceived(nothingNewer, nothingNewer);
    QCOMPARE(dialog.state(), Widget::UpToDate);
    service->release();

    QTRY_VERIFY(!UnfinishedDownloads::contains(installerPath()));
    QCOMPARE(dialog.state(), Widget::UpToDate);
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 1000));
}

void TestUpdateDownload::answerOfAnEarlierCheckDoesNotStopTheTransfer()
{
    LocalWebReply answer;
    answer.body = "{\"Revision\": 1}";
    answer.holdAfter = 0;
    service->setCheckReply(answer);
    LocalWebReply reply = generated(1000);
    reply.holdAfter = 500;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    dialog.tryCheckUpdate();
    QTRY_COMPARE(service->requests().size(), 1);
    startDownload(dialog);
    QVERIFY(waitForSize(500));
    QCOMPARE(dialog.state(), Widget::Downloading);
    service->release();

    QTRY_VERIFY(dialog.state() == Widget::UpToDate
                && !UnfinishedDownloads::contains(installerPath()));
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 1000));
}

void TestUpdateDownload::hostWithoutANameDownloads()
{
    service->setDownloadReply(generated(1000));
    const QString organisation = QCoreApplication::organizationName();
    QCoreApplication::setOrganizationName(QString());
    const bool isRemembered = UnfinishedDownloads::add(downloads->filePath(QStringLiteral("x")));
    Widget dialog(nullptr, false);
    startDownload(dialog, 1000);
    const bool isEnded = waitForEnd(dialog);
    QCoreApplication::setOrganizationName(organisation);

    QVERIFY(!isRemembered);
    QVERIFY(isEnded);
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 1000));
}

void TestUpdateDownload::whatTheUserPutsThereAfterAFailureIsHisOwn()
{
    LocalWebReply reply = generated(1000);
    reply.cutAfter = 500;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog, 1000);
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ServiceError);
    QVERIFY(UnfinishedDownloads::contains(installerPath()));
    QVERIFY(QFile::remove(installerPath()));
    const QVariantHash record = offerOfSize(1000);
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::UpdateAvailable);

    const QByteArray whole(1000, 'u');
    writeFile(installerPath(), whole);
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), whole);
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateDownload>(argc, argv);
}

#include "tst_UpdateDownload.moc"
