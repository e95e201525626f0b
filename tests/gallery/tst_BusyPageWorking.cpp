#include "BusyPageTest.h"

#include <QProgressBar>
#include <QTimer>

/// The page and its window may go at any moment of the work.
class TestBusyPageWorking : public BusyPageTest
{
    Q_OBJECT

private slots:
    void windowMayGoWhileThreadsWork();
    void windowMayGoOnceTheBarIsShown();
    void windowMayBeClosedWhileThreadsWork();
    void windowMayGoDuringAnExport_data();
    void windowMayGoDuringAnExport();
    void panelMayGoByItselfDuringAnExport();
    void windowClosedDuringAnExportEndsIt();
    void timerMayStopDuringATask();
    void otherWorkGoesOnDuringAnExport();

private:
    /// Starts all that has threads, on more than is done in a moment.
    void startThreads()
    {
        scan()->setFolders(QDir::rootPath());
        workers()->setFolders("/usr");
        DialogDriver::click(buttonOf(*scan(), "Start Scan"));
        DialogDriver::click(buttonOf(*workers(), "Read Files"));
        QVERIFY(scan()->isRunning() && workers()->isRunning());
    }
};

void TestBusyPageWorking::windowMayGoWhileThreadsWork()
{
    startThreads();

    window.reset();

    QVERIFY(!window);
}

void TestBusyPageWorking::windowMayGoOnceTheBarIsShown()
{
    startThreads();
    QTRY_VERIFY(!barOf(workers())->isHidden());

    window.reset();

    QVERIFY(!window);
}

void TestBusyPageWorking::windowMayBeClosedWhileThreadsWork()
{
    startThreads();

    window->close();
    QVERIFY(!window->isVisible());
    QCoreApplication::processEvents();
    window.reset();

    QVERIFY(!window);
}

void TestBusyPageWorking::windowMayGoDuringAnExport_data()
{
    QTest::addColumn<bool>("isThreadsWork");
    QTest::newRow("alone") << false;
    QTest::newRow("with threads at work") << true;
}

void TestBusyPageWorking::windowMayGoDuringAnExport()
{
    QFETCH(bool, isThreadsWork);
    if (isThreadsWork) {
        startThreads();
    }
    QTimer::singleShot(0, this, [this] { window.reset(); });

    exports()->start();

    QVERIFY(!window);
}

void TestBusyPageWorking::panelMayGoByItselfDuringAnExport()
{
    auto panel = std::make_unique<ReportExportPanel>();
    QTimer::singleShot(0, panel.get(), [&panel] { panel.reset(); });

    panel->start();

    QVERIFY(!panel);
}

void TestBusyPageWorking::windowClosedDuringAnExportEndsIt()
{
    QTimer::singleShot(0, this, [this] { window->close(); });

    exports()->start();

    QVERIFY(!exports()->isRunning());
    QVERIFY(allTexts(*exports()).contains("Cancelled after "));
}

void TestBusyPageWorking::timerMayStopDuringATask()
{
    startThreads();
    DialogDriver::click(buttonOf(*finished(), "Stop Timer"));

    DialogDriver::click(buttonOf(*workers(), "Cancel"));

    QTRY_VERIFY(!workers()->isRunning());
    QVERIFY(barOf(workers())->isHidden());
    QVERIFY(!workers()->progress()->isTimerRunning());
}

void TestBusyPageWorking::otherWorkGoesOnDuringAnExport()
{
    DialogDriver::click(buttonOf(*scan(), "Start Scan"));
    DialogDriver::click(buttonOf(*workers(), "Read Files"));

    exports()->setKinds(9);
    exports()->start();

    QTRY_VERIFY(!scan()->isRunning() && !workers()->isRunning());
    QVERIFY(scan()->hasResult());
    QVERIFY(allTexts(*exports()).contains("9 files, "));
}

int main(int argc, char **argv)
{
    return runTest<TestBusyPageWorking>(argc, argv);
}

#include "tst_BusyPageWorking.moc"
