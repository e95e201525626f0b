#include "UnfinishedDownloads.h"
#include "UpdateDownloadHelpers.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <csignal>

#include <sys/resource.h>

class TestUpdateDownloadFailures : public DownloadTest
{
    Q_OBJECT

private slots:
    void brokenTransferIsAnError_data();
    void brokenTransferIsAnError();
    void errorIsToldOnceWithAnEmptyRecord();
    void unopenableFileIsAnError_data();
    void unopenableFileIsAnError();
    void unopenableFileHoldsTheNetworkBack();
    void fileThatCanBeOpenedLaterArrivesWhole();
    void fullDiskEndsTheTransferAtOnce();
    void changedFileEndsTheTransfer_data();
    void changedFileEndsTheTransfer();
    void lateOfferThatDeletesTheFileEndsTheTransfer();
    void secondTransferTakesNothingOfTheFirst();
    void undeletableUnfinishedFileIsAnError();
    void recordWithoutAPathIsAnError();

private:
    void expectFailure(Widget &dialog);
};

void TestUpdateDownloadFailures::expectFailure(Widget &dialog)
{
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ServiceError);
}

void TestUpdateDownloadFailures::brokenTransferIsAnError_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("tellsLength");
    QTest::addColumn<qint64>("cutAfter");
    QTest::addColumn<qint64>("recordSize");
    QTest::addColumn<bool>("leavesFile");
    QTest::newRow("cut, length told")
        << 200 << qint64(9000) << true << qint64(5000) << qint64(0) << true;
    QTest::newRow("cut where the record's size ends")
        << 200 << qint64(9000) << true << qint64(5000) << qint64(5000) << true;
    QTest::newRow("cut before the body")
        << 200 << qint64(9000) << true << qint64(0) << qint64(0) << false;
    QTest::newRow("ends early, length not told")
        << 200 << qint64(5000) << false << qint64(-1) << qint64(9000) << true;
    QTest::newRow("shorter than the record says")
        << 200 << qint64(8999) << true << qint64(-1) << qint64(9000) << true;
    QTest::newRow("record of an absurd size")
        << 200 << qint64(9000) << true << qint64(-1) << std::numeric_limits<qint64>::max() << true;
    QTest::newRow("empty body") << 200 << qint64(0) << true << qint64(-1) << qint64(1) << false;
    QTest::newRow("404 with a body")
        << 404 << qint64(300) << true << qint64(-1) << qint64(300) << true;
    QTest::newRow("500 with a body")
        << 500 << qint64(300) << true << qint64(-1) << qint64(300) << true;
    QTest::newRow("404 without") << 404 << qint64(0) << true << qint64(-1) << qint64(0) << false;
}

void TestUpdateDownloadFailures::brokenTransferIsAnError()
{
    QFETCH(int, status);
    QFETCH(qint64, size);
    QFETCH(bool, tellsLength);
    QFETCH(qint64, cutAfter);
    QFETCH(qint64, recordSize);
    QFETCH(bool, leavesFile);
    LocalWebReply reply = generated(size);
    reply.status = status;
    reply.tellsLength = tellsLength;
    reply.cutAfter = cutAfter;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog, recordSize);
    expectFailure(dialog);
    QCOMPARE(QFile::exists(installerPath()), leavesFile);
    QCOMPARE(UnfinishedDownloads::contains(installerPath()), leavesFile);

    // Neither an offer nor the start of a download takes what is left for the installer.
    const QByteArray left = bytesIn(installerPath());
    const QVariantHash record = offerOfSize(left.size());
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::UpdateAvailable);
    QVERIFY(!QFile::exists(installerPath()));
    service->setDownloadReply(generated(9000));
    dialog.updateState(Widget::DownloadStarting);
    QCOMPARE(dialog.state(), Widget::Downloading);
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 9000));
}

void TestUpdateDownloadFailures::errorIsToldOnceWithAnEmptyRecord()
{
    LocalWebReply reply = generated(9000);
    reply.cutAfter = 5000;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    const QSignalSpy refreshed(&dialog, SIGNAL(updateRefreshed(QVariantHash)));
    expectFailure(dialog);
    QVERIFY(waitForSize(5000));
    QCOMPARE(refreshed.count(), 1);
    QCOMPARE(refreshed.at(0).at(0).toHash(), QVariantHash());
}

void TestUpdateDownloadFailures::unopenableFileIsAnError_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<qint64>("size");
    for (const char *place : {"missing", "file", "folder", "link"}) {
        QTest::addRow("%s, small", place) << place << qint64(100);
        QTest::addRow("%s, large", place) << place << 20 * kMegabyte;
    }
}

void TestUpdateDownloadFailures::unopenableFileIsAnError()
{
    QFETCH(QString, place);
    QFETCH(qint64, size);
    if (place == QLatin1String("missing")) {
        setDownloadFolder(downloads->filePath(QStringLiteral("missing")));
    } else if (place == QLatin1String("file")) {
        writeFile(downloads->filePath(QStringLiteral("plain")), "x");
        setDownloadFolder(downloads->filePath(QStringLiteral("plain")));
    } else if (place == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(installerPath()));
    } else {
        QVERIFY(QFile::link(downloads->filePath(QStringLiteral("target")), installerPath()));
    }
    service->setDownloadReply(generated(size));
    Widget dialog(nullptr, false);
    startDownload(dialog, size);
    QCOMPARE(dialog.state(), Widget::Downloading);
    expectFailure(dialog);
    QVERIFY(!QFile::exists(downloads->filePath(QStringLiteral("target"))));
}

void TestUpdateDownloadFailures::unopenableFileHoldsTheNetworkBack()
{
    setDownloadFolder(downloads->filePath(QStringLiteral("missing")));
    service->setDownloadReply(generated(1024 * kMegabyte));
    Widget dialog(nullptr, false);
    startDownload(dialog);
    const auto *reply = dialog.findChild<QNetworkReply *>();
    QVERIFY(reply != nullptr);
    qint64 largest = 0;
    QVERIFY(QTest::qWaitFor(
        [&] {
            largest =
                qMax(largest, dialog.state() == Widget::Downloading ? reply->bytesAvailable() : 0);
            return dialog.state() != Widget::Downloading;
        },
        kTransferMilliseconds));
    QCOMPARE(dialog.state(), Widget::ServiceError);
    QVERIFY(largest > 0);
    QVERIFY2(largest <= 2 * kMegabyte, qPrintable(QString::number(largest)));
}

void TestUpdateDownloadFailures::fileThatCanBeOpenedLaterArrivesWhole()
{
    constexpr qint64 kSize = 20 * kMegabyte;
    const QString folder = downloads->filePath(QStringLiteral("later"));
    setDownloadFolder(folder);
    service->setDownloadReply(generated(kSize));
    Widget dialog(nullptr, false);
    startDownload(dialog, kSize);
    const auto *reply = dialog.findChild<QNetworkReply *>();
    QTRY_VERIFY(reply->bytesAvailable() >= kMegabyte / 4);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
    QVERIFY(bytesIn(folder + u'/' + kInstallerName)
            == LocalUpdateService::generatedBytes(0, kSize));
}

void TestUpdateDownloadFailures::fullDiskEndsTheTransferAtOnce()
{
    constexpr qint64 kRoom = 3 * kMegabyte;
    LocalWebReply endless;
    endless.body = QByteArray(1000, 'x');
    endless.endless = true;
    service->setDownloadReply(endless);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small = {kRoom, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    const QSignalSpy refreshed(&dialog, SIGNAL(updateRefreshed(QVariantHash)));
    const bool isEnded = waitForEnd(dialog);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);

    QVERIFY(isEnded);
    QCOMPARE(dialog.state(), Widget::ServiceError);
    QCOMPARE(refreshed.count(), 1);
    QCOMPARE(QFileInfo(installerPath()).size(), kRoom);
    QVERIFY(UnfinishedDownloads::contains(installerPath()));
}

void TestUpdateDownloadFailures::changedFileEndsTheTransfer_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QByteArray>("left");
    QTest::newRow("deleted") << "deleted" << QByteArray();
    QTest::newRow("replaced") << "replaced" << QByteArray("other");
    QTest::newRow("cut") << "cut" << LocalUpdateService::generatedBytes(0, 100);
}

void TestUpdateDownloadFailures::changedFileEndsTheTransfer()
{
    QFETCH(QString, change);
    QFETCH(QByteArray, left);
    LocalWebReply reply = generated(9000);
    reply.holdAfter = 5000;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog);
    QVERIFY(waitForSize(5000));
    if (change == QLatin1String("cut")) {
        QVERIFY(QFile::resize(installerPath(), 100));
    } else {
        QVERIFY(QFile::remove(installerPath()));
    }
    if (change == QLatin1String("replaced")) {
        writeFile(installerPath(), left);
    }
    service->release();
    expectFailure(dialog);
    QCOMPARE(QFile::exists(installerPath()), change != QLatin1String("deleted"));
    QCOMPARE(bytesIn(installerPath()), left);
}

void TestUpdateDownloadFailures::lateOfferThatDeletesTheFileEndsTheTransfer()
{
    LocalWebReply reply = generated(9000);
    reply.holdAfter = 5000;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog, 9000);
    QVERIFY(waitForSize(5000));
    const QVariantHash record = offerOfSize(5000);
    dialog.updateInfoReceived(record, record);
    QCOMPARE(dialog.state(), Widget::UpdateAvailable);
    service->release();
    QTRY_COMPARE(dialog.state(), Widget::ServiceError);
    QVERIFY(!QFile::exists(installerPath()));
}

void TestUpdateDownloadFailures::secondTransferTakesNothingOfTheFirst()
{
    LocalWebReply reply = generated(9000);
    reply.holdAfter = 5000;
    service->setDownloadReply(reply);
    Widget dialog(nullptr, false);
    startDownload(dialog, 9000);
    QVERIFY(waitForSize(5000));
    QVariantHash other = offerOfSize(0);
    other.insert(QStringLiteral("Filename"), QStringLiteral("other.bin"));
    dialog.updateInfoReceived(other, other);
    dialog.updateState(Widget::DownloadStarting);
    service->release();
    expectFailure(dialog);
    QVERIFY(!QFile::exists(downloads->filePath(QStringLiteral("other.bin"))));
    QCOMPARE(bytesIn(installerPath()), LocalUpdateService::generatedBytes(0, 5000));
    QVERIFY(UnfinishedDownloads::contains(installerPath()));

    service->setDownloadReply(generated(700));
    startDownload(dialog, 700);
    QVERIFY(waitForEnd(dialog));
    QCOMPARE(dialog.state(), Widget::ReadyToInstall);
}

void TestUpdateDownloadFailures::undeletableUnfinishedFileIsAnError()
{
    // A file that nobody can delete, not even the administrator.
    const QString folder = QStringLiteral("/proc/self");
    setDownloadFolder(folder);
    QVERIFY(UnfinishedDownloads::add(folder + QStringLiteral("/status")));
    QVariantHash record = offerOfSize(0);
    record.insert(QStringLiteral("Filename"), QStringLiteral("status"));
    Widget dialog(nullptr, false);
    dialog.updateInfoReceived(record, record);
    const QSignalSpy refreshed(&dialog, SIGNAL(updateRefreshed(QVariantHash)));
    dialog.updateState(Widget::DownloadStarting);
    QCOMPARE(dialog.state(), Widget::ServiceError);
    QCOMPARE(refreshed.count(), 1);
    QVERIFY(service->requests().isEmpty());
}

void TestUpdateDownloadFailures::recordWithoutAPathIsAnError()
{
    service->setDownloadReply(generated(100));
    QVariantHash record = offerOfSize(0);
    record.remove(QStringLiteral("Filename"));
    Widget dialog(nullptr, false);
    dialog.updateInfoReceived(record, record);
    dialog.updateState(Widget::DownloadStarting);
    expectFailure(dialog);
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateDownloadFailures>(argc, argv);
}

#include "tst_UpdateDownloadFailures.moc"
