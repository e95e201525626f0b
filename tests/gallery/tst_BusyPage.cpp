#include "BusyPageTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>

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
    void pictureShowsWorkUnderWay();

private:
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
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();

    // Units and messages that are over belong to others.
    const QStringList allowed = {bar()->findChild<QLabel *>()->text()};
    const QStringList small = smallTexts(*page(), allowed).filter(QRegularExpression("[a-z]{3}"));
    QCOMPARE(small.filter(QRegularExpression("^(?!.*(kiB|KiB|MiB|GiB|bytes))")), QStringList());
    QCOMPARE(list()->headerItem()->text(1), "SIZE");
    QCOMPARE(scan()->findChild<QComboBox *>()->itemText(0), "24 PIXELS");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QVERIFY(buttonOf(*window, "Start Scan"));
}

void TestBusyPage::scanListsTheLargestFolders()
{
    scanToTheEnd();

    QCOMPARE(list()->topLevelItemCount(), 3);
    const QTreeWidgetItem *largest = list()->topLevelItem(0);
    QCOMPARE(largest->text(0), QDir::toNativeSeparators(folder->filePath("inks/magenta")));
    QCOMPARE(largest->text(1), QLocale("en").formattedDataSize(8000));
    QCOMPARE(largest->text(2), "2");
    QCOMPARE(list()->topLevelItem(1)->text(2), "1");
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
    const QPoint middle = spinner->mapTo(list(), spinner->rect().center());
    QVERIFY((middle - list()->rect().center()).manhattanLength() <= 2);

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
    QVERIFY(spinners().isEmpty());
}

void TestBusyPage::workersReadTheFiles()
{
    readToTheEnd();

    QVERIFY(isRead(*workers(), "3"));
    const QString text = allTexts(*workers());
    QVERIFY2(text.contains(QLocale("en").formattedDataSize(11000) + " in "), qPrintable(text));
    QVERIFY2(text.contains("copies of other files: 1, not readable: 0."), qPrintable(text));
    // The start and the end, each file's name, its block and its end.
    QVERIFY(isRead(*workers(), QString::number(2 + 1 + 3 * 3)));
    QTRY_VERIFY(bar()->isHidden());
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
        QVERIFY(allTexts(*workers()).contains("copies of other files: 1"));
    }
}

void TestBusyPage::switchesChangeTheBar()
{
    const auto box = [this](const QString &text) {
        return buttonOf<QCheckBox>(*workers(), text);
    };
    box("Show text")->click();
    box("Inverted")->click();
    box("Upright")->click();
    auto *format = qobject_cast<QLineEdit *>(labelOf(*workers(), "Format:")->buddy());
    format->setText("%v of %m");

    QVERIFY(!bar()->isTextVisible());
    QVERIFY(bar()->invertedAppearance());
    QCOMPARE(bar()->orientation(), Qt::Vertical);
    QCOMPARE(bar()->format(), "%v of %m");
    box("Upright")->click();
    QCOMPARE(bar()->orientation(), Qt::Horizontal);
}

void TestBusyPage::pictureShowsWorkUnderWay()
{
    QSignalSpy ready(page(), SIGNAL(becameReady()));

    page()->fillForPicture();

    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 1, 30000);
    QVERIFY(page()->isReady());
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
