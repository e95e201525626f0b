#include "ShareBrowser.h"

#include "FindingThread.h"
#include "ShareBrowserHelpers.h"
#include "StandInProgram.h"
#include "TestBase.h"

#include <QEventLoop>
#include <QListWidget>
#include <QProgressBar>
#include <QTimer>

#include <memory>

using ShareBrowserTest::barOf;
using ShareBrowserTest::listOf;
using ShareBrowserTest::nowhere;

namespace {

constexpr int kManyFinds = 10'000;

/// How many rows came in one turn of the event loop at most, while the thread runs.
int mostRowsInATurn(FindingThread &thread, const QListWidget &list)
{
    int most = 0;
    int before = 0;
    QTimer turn;
    QObject::connect(&turn, &QTimer::timeout, &turn, [&] {
        most = qMax(most, list.count() - before);
        before = list.count();
    });
    turn.start(0);
    QEventLoop loop;
    QObject::connect(&thread, SIGNAL(finished()), &loop, SLOT(quit()));
    thread.start({});
    loop.exec();
    return qMax(most, list.count() - before);
}

} // namespace

class TestShareBrowserManyFinds : public TestBase
{
    Q_OBJECT

private slots:
    void eachFindAddsOneRowInOrder();
    void floodLeavesTheEventLoopTurns();
    void selectionAndPlaceStayWhileRowsArrive();
    void searchThatFindsTenThousandSharesEndsWithAllOfThem();
    void destroyingItInMidSearchAThousandTimes_data();
    void destroyingItInMidSearchAThousandTimes();
};

void TestShareBrowserManyFinds::eachFindAddsOneRowInOrder()
{
    ShareBrowser browser(nowhere());
    FindingThread thread(kManyFinds);
    connect(&thread, SIGNAL(newShare(QUrl)), &browser, SLOT(newShare(QUrl)));
    browser.show();
    QListWidget *list = listOf(browser);
    thread.start({});
    QTRY_COMPARE_WITH_TIMEOUT(list->count(), kManyFinds, 30'000);
    for (int i = 0; i < kManyFinds; ++i) {
        QCOMPARE(list->item(i)->data(Qt::UserRole).toUrl(), FindingThread::share(i));
    }
}

void TestShareBrowserManyFinds::floodLeavesTheEventLoopTurns()
{
    ShareBrowser browser(nowhere());
    FindingThread thread(kManyFinds);
    connect(&thread, SIGNAL(newShare(QUrl)), &browser, SLOT(newShare(QUrl)));
    browser.show();
    QListWidget *list = listOf(browser);
    // A timer waits for what was sent before and while it was about to fire.
    const int most = mostRowsInATurn(thread, *list);
    QVERIFY2(most <= kManyFinds / 10, qPrintable(QString::number(most)));
    QCOMPARE(list->count(), kManyFinds);
}

void TestShareBrowserManyFinds::selectionAndPlaceStayWhileRowsArrive()
{
    ShareBrowser browser(nowhere());
    browser.show();
    QListWidget *list = listOf(browser);
    for (int i = 0; i < 100; ++i) {
        browser.newShare(FindingThread::share(i));
    }
    list->setCurrentRow(50);
    const QRect place = list->visualItemRect(list->item(50));
    for (int i = 100; i < kManyFinds; ++i) {
        browser.newShare(FindingThread::share(i));
    }
    QCOMPARE(list->count(), kManyFinds);
    QCOMPARE(list->visualItemRect(list->item(50)), place);
    QCOMPARE(browser.selectedUrl(), FindingThread::share(50));
}

void TestShareBrowserManyFinds::searchThatFindsTenThousandSharesEndsWithAllOfThem()
{
    const StandInProgram program(
        QStringLiteral("smbclient"),
        "i=0; while [ $i -lt 10000 ]; do echo \"Disk|$i|\"; i=$((i+1)); done\n");
    QVERIFY(program.isReady());
    ShareBrowser browser(QUrl(QStringLiteral("smb://nas")));
    browser.show();
    QVERIFY(!barOf(browser)->isHidden());
    QTRY_VERIFY_WITH_TIMEOUT(barOf(browser)->isHidden(), 30'000);
    QListWidget *list = listOf(browser);
    QCOMPARE(list->count(), kManyFinds);
    QCOMPARE(list->item(0)->text(), QStringLiteral("nas - /0"));
    QCOMPARE(list->item(kManyFinds - 1)->text(), QStringLiteral("nas - /9999"));
}

void TestShareBrowserManyFinds::destroyingItInMidSearchAThousandTimes_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("mute") << QByteArray("echo 'Disk|first|'\nexec /bin/sleep 1000\n");
    QTest::newRow("flood") << QByteArray("while :; do echo 'Disk|again|'; done\n");
}

void TestShareBrowserManyFinds::destroyingItInMidSearchAThousandTimes()
{
    QFETCH(QByteArray, script);
    const StandInProgram program(QStringLiteral("smbclient"), script);
    QVERIFY(program.isReady());
    for (int i = 0; i < 1000; ++i) {
        const ShareBrowser browser(QUrl(QStringLiteral("smb://nas")));
        if (i % 20 == 0) {
            // Now and then when finds have come and others are under way.
            QTRY_VERIFY(listOf(browser)->count() > 0);
        }
        QVERIFY(!barOf(browser)->isHidden());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestShareBrowserManyFinds>(argc, argv);
}

#include "tst_ShareBrowserManyFinds.moc"
