#include "BusyPageTest.h"

/// The page and its window may go at any moment of the work.
class TestBusyPageWorking : public BusyPageTest
{
    Q_OBJECT

private slots:
    void windowMayGoWhileThreadsWork();
    void windowMayGoOnceTheBarIsShown();
    void windowMayBeClosedWhileThreadsWork();

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
    QTRY_VERIFY(!bar()->isHidden());

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

int main(int argc, char **argv)
{
    return runTest<TestBusyPageWorking>(argc, argv);
}

#include "tst_BusyPageWorking.moc"
