#include "BusyPageTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>

/// What the page shows of its work.
class TestBusyPage : public BusyPageTest
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void textsFollowTheLanguage();
    void scanListsTheLargestFolders();
    void spinnerStandsOverTheListDuringAScan();
    void spinnerSizeMayChangeDuringAScan();
    void scanMayBeCancelled();
    void emptyFieldStartsNothing();
    void workersReadTheFiles();
    void numberOfThreadsIsChosen();
    void switchesChangeTheBar();
    void switchesStayWithANewDelegate();
    void exportWritesAllReports();
    void numberOfReportsIsChosen();
    void exportMayBeCancelled();
    void barShowsTheExport();
    void finishesAreCountedUntilTheTimerStops();
    void newDelegateCountsAgain();
    void delegateIsNotReplacedDuringATask();
    void pictureShowsWorkUnderWay();

private:
    [[nodiscard]] QString cell(int row, int column) const
    {
        return tableOf(finished())->topLevelItem(row)->text(column);
    }
    void scanToTheEnd();
    void readToTheEnd();
};

void TestBusyPage::scanToTheEnd()
{
    DialogDriver::click(buttonOf(*scan(), "Start Scan"));
    QTRY_VERIFY(!scan()->isRunning());
}

void TestBusyPage::readToTheEnd()
{
    DialogDriver::click(buttonOf(*workers(), "Read Files"));
    QTRY_VERIFY(!workers()->isRunning());
}

void TestBusyPage::pageFitsTheWindow()
{
    QVERIFY(page()->width() <= page()->parentWidget()->width());
}

void TestBusyPage::mnemonicsAreNotShared()
{
    QVERIFY(buttonOf(*window, "Start Scan"));
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestBusyPage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestBusyPage::textsFollowTheLanguage()
{
    scanToTheEnd();
    readToTheEnd();
    QTimer::singleShot(0, this, [this] { exports()->cancel(); });
    exports()->start();
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();

    // Units and messages that are over belong to others.
    const QStringList allowed = {barOf(exports())->findChild<QLabel *>()->text(),
                                 barOf(workers())->findChild<QLabel *>()->text()};
    const QStringList small = smallTexts(*page(), allowed).filter(QRegularExpression("[a-z]{3}"));
    QCOMPARE(small.filter(QRegularExpression("^(?!.*(kiB|KiB|MiB|GiB|bytes))")), QStringList());
    QCOMPARE(cell(0, 0), "SEVERAL WORKERS");
    QCOMPARE(cell(0, 1), "NONE");
    QCOMPARE(tableOf(scan())->headerItem()->text(1), "SIZE");
    QCOMPARE(scan()->findChild<QComboBox *>()->itemText(0), "24 PIXELS");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QVERIFY(buttonOf(*window, "Start Scan"));
}

void TestBusyPage::scanListsTheLargestFolders()
{
    scanToTheEnd();

    const QTreeWidget *list = tableOf(scan());
    QCOMPARE(list->topLevelItemCount(), 3);
    const QTreeWidgetItem *largest = list->topLevelItem(0);
    QCOMPARE(largest->text(0), QDir::toNativeSeparators(folder->filePath("inks/magenta")));
    QCOMPARE(largest->text(1), QLocale("en").formattedDataSize(8000));
    QCOMPARE(largest->text(2), "2");
    QCOMPARE(list->topLevelItem(1)->text(2), "1");
    QVERIFY(isRead(*scan(), "3 folders, 3 files, " + QLocale("en").formattedDataSize(11000)));
}

void TestBusyPage::spinnerStandsOverTheListDuringAScan()
{
    QVERIFY(spinners().isEmpty());
    DialogDriver::click(buttonOf(*scan(), "Start Scan"));

    QVERIFY(scan()->isRunning());
    QCOMPARE(spinners().size(), 1);
    const WaitWidget *spinner = spinners().constFirst();
    QVERIFY(spinner->isVisible());
    QCOMPARE(spinner->size(), QSize(96, 96));
    const QTreeWidget *list = tableOf(scan());
    const QPoint middle = spinner->mapTo(list, spinner->rect().center());
    QVERIFY((middle - list->rect().center()).manhattanLength() <= 2);

    QTRY_VERIFY(!scan()->isRunning());
    QVERIFY(spinners().isEmpty());
}

void TestBusyPage::spinnerSizeMayChangeDuringAScan()
{
    DialogDriver::click(buttonOf(*scan(), "Start Scan"));

    scan()->findChild<QComboBox *>()->setCurrentIndex(0);

    QVERIFY(scan()->isRunning());
    QCOMPARE(spinners().constLast()->size(), QSize(24, 24));
    QTRY_VERIFY(!scan()->isRunning());
    scan()->findChild<QComboBox *>()->setCurrentIndex(1);
    QTRY_VERIFY(spinners().isEmpty());
}

void TestBusyPage::scanMayBeCancelled()
{
    scan()->setFolders(QDir::rootPath());
    DialogDriver::click(buttonOf(*scan(), "Start Scan"));

    DialogDriver::click(buttonOf(*scan(), "Cancel"));

    QTRY_VERIFY(!scan()->isRunning());
    QVERIFY(allTexts(*scan()).contains("; cancelled"));
    QVERIFY(spinners().isEmpty());
}

void TestBusyPage::emptyFieldStartsNothing()
{
    scan()->setFolders(" ");
    workers()->setFolders(" ");

    DialogDriver::click(buttonOf(*scan(), "Start Scan"));
    DialogDriver::click(buttonOf(*workers(), "Read Files"));

    QVERIFY(!scan()->isRunning() && !workers()->isRunning());
    QVERIFY(!workers()->progress()->isTaskRunning());
    QVERIFY(spinners().isEmpty());
}

void TestBusyPage::workersReadTheFiles()
{
    readToTheEnd();

    QVERIFY(isRead(*workers(), "3"));
    const QString text = allTexts(*workers());
    QVERIFY2(text.contains(QLocale("en").formattedDataSize(11000) + " in "), qPrintable(text));
    QVERIFY2(text.contains("1 files are copies of others, 0 could not be read."), qPrintable(text));
    // The start and the end, each file's name, its block and its end.
    QCOMPARE(workers()->progress()->reports(), 2 + 1 + 3 * 3);
    QVERIFY(isRead(*workers(), QString::number(workers()->progress()->reports())));
    QTRY_VERIFY(barOf(workers())->isHidden());
}

void TestBusyPage::numberOfThreadsIsChosen()
{
    auto *box = workers()->findChild<QSpinBox *>();
    QCOMPARE(box->minimum(), 1);
    QCOMPARE(box->maximum(), 8);

    for (const int threads : {1, 8}) {
        box->setValue(threads);
        readToTheEnd();
        QVERIFY(box->isEnabled());
        QVERIFY(allTexts(*workers()).contains("1 files are copies"));
    }
}

void TestBusyPage::switchesChangeTheBar()
{
    const auto *bar = barOf(workers());
    const auto box = [this](const QString &text) {
        return buttonOf<QCheckBox>(*workers(), text);
    };
    QVERIFY(!box("Text from bottom to top")->isEnabled());

    box("Show text")->click();
    box("Inverted")->click();
    box("Upright")->click();
    box("Text from bottom to top")->click();
    auto *format = qobject_cast<QLineEdit *>(labelOf(*workers(), "Format:")->buddy());
    format->setText("%v of %m");

    QVERIFY(!bar->isTextVisible());
    QVERIFY(bar->invertedAppearance());
    QCOMPARE(bar->orientation(), Qt::Vertical);
    QCOMPARE(bar->textDirection(), QProgressBar::BottomToTop);
    QCOMPARE(bar->format(), "%v of %m");
    box("Upright")->click();
    QCOMPARE(bar->orientation(), Qt::Horizontal);
}

void TestBusyPage::switchesStayWithANewDelegate()
{
    buttonOf<QCheckBox>(*workers(), "Show text")->click();
    QVERIFY(!barOf(workers())->isTextVisible());

    DialogDriver::click(buttonOf(*finished(), "New Delegate"));

    QVERIFY(!barOf(workers())->isTextVisible());
}

void TestBusyPage::exportWritesAllReports()
{
    DialogDriver::click(buttonOf(*exports(), "Export PDFs"));

    QVERIFY(!exports()->isRunning());
    const QString text = allTexts(*exports());
    QVERIFY2(text.contains("36 files, "), qPrintable(text));
    QVERIFY(buttonOf(*exports(), "Export PDFs")->isEnabled());
    QVERIFY(!buttonOf(*exports(), "Cancel")->isEnabled());
    QTRY_VERIFY(barOf(exports())->isHidden());
}

void TestBusyPage::numberOfReportsIsChosen()
{
    const auto *label = labelOf(*exports(), "Kinds:");
    auto *box = qobject_cast<QSpinBox *>(label->buddy());
    QCOMPARE(box->minimum(), 1);
    QCOMPARE(box->maximum(), 36);
    box->setValue(2);
    const auto *bar = barOf(exports())->findChild<QProgressBar *>();
    QCOMPARE(bar->maximum(), 100);

    exports()->start();

    QVERIFY(allTexts(*exports()).contains("2 files, "));
    QVERIFY(box->isEnabled());
}

void TestBusyPage::exportMayBeCancelled()
{
    QTimer::singleShot(0, this, [this] {
        DialogDriver::click(buttonOf(*exports(), "Cancel"));
        // A second start is no further work.
        exports()->start();
    });

    DialogDriver::click(buttonOf(*exports(), "Export PDFs"));

    QVERIFY(allTexts(*exports()).contains("Cancelled after 0 files"));
    QVERIFY(buttonOf(*exports(), "Export PDFs")->hasFocus());
    QTRY_VERIFY(barOf(exports())->isHidden());
}

void TestBusyPage::barShowsTheExport()
{
    QString message;
    int value = 0;
    QObject context;
    auto *bar = barOf(exports())->findChild<QProgressBar *>();
    connect(bar, &QProgressBar::valueChanged, &context, [&](int now) {
        if (exports()->isRunning() && now < 100) {
            QTimer::singleShot(0, &context, [&] {
                value = bar->value();
                message = barOf(exports())->findChild<QLabel *>()->text();
                exports()->cancel();
            });
        }
    });

    exports()->start();

    QVERIFY(value < 100);
    QVERIFY2(QRegularExpression("^Report \\d+ of 36: Page \\d+ of \\d+$").match(message).hasMatch(),
             qPrintable(message));
}

void TestBusyPage::finishesAreCountedUntilTheTimerStops()
{
    QTRY_VERIFY(cell(1, 3).toInt() >= 2);
    tableOf(finished())->setCurrentItem(tableOf(finished())->topLevelItem(1));
    QCOMPARE(cell(1, 2), "runs");

    DialogDriver::click(buttonOf(*finished(), "Stop Timer"));

    const int stopped = cell(1, 3).toInt();
    const int other = cell(0, 3).toInt();
    QCOMPARE(cell(1, 2), "stopped");
    QVERIFY(!buttonOf(*finished(), "Stop Timer")->isEnabled());
    // The other one's goes on.
    QTRY_VERIFY(cell(0, 3).toInt() >= other + 2);
    QCOMPARE(cell(1, 3).toInt(), stopped);
}

void TestBusyPage::newDelegateCountsAgain()
{
    QTRY_VERIFY(cell(0, 3).toInt() >= 1);
    DialogDriver::click(buttonOf(*finished(), "Stop Timer"));

    DialogDriver::click(buttonOf(*finished(), "New Delegate"));

    QCOMPARE(cell(0, 3), "0");
    QCOMPARE(cell(0, 2), "runs");
    QTRY_VERIFY(cell(0, 3).toInt() >= 1);
}

void TestBusyPage::delegateIsNotReplacedDuringATask()
{
    DialogDriver::click(buttonOf(*workers(), "Read Files"));

    QCOMPARE(cell(0, 1), "runs");
    QVERIFY(!buttonOf(*finished(), "New Delegate")->isEnabled());

    QTRY_COMPARE(cell(0, 1), "none");
    QVERIFY(buttonOf(*finished(), "New Delegate")->isEnabled());
}

void TestBusyPage::pictureShowsWorkUnderWay()
{
    QSignalSpy ready(page(), SIGNAL(becameReady()));

    page()->fillForPicture();

    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 1, 30000);
    QVERIFY(page()->isReady());
    QVERIFY(allTexts(*exports()).contains("4 files, "));
    QVERIFY(scan()->hasResult());
    QVERIFY(workers()->isBarUnderWay() || !workers()->isRunning());
    // Another page in front ends it.
    window->showPage(0);
    QTRY_VERIFY(!scan()->isRunning() && !workers()->isRunning());
}

int main(int argc, char **argv)
{
    return runTest<TestBusyPage>(argc, argv);
}

#include "tst_BusyPage.moc"
