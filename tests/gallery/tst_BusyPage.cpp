#include "BusyPage.h"
#include "DialogDriver.h"
#include "FolderScanPanel.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "WorkersPanel.h"

#include "TXProgressBar.h"
#include "WaitWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <memory>

/// What the page shows of its work. Each test finds it open in the gallery's window, and a folder
/// with a few files.
class TestBusyPage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        QLocale::setDefault(QLocale("en"));
        folder = std::make_unique<QTemporaryDir>();
        write("inks/cyan/a", QByteArray(3000, 'c'));
        write("inks/magenta/b", QByteArray(5000, 'm'));
        write("inks/magenta/c", QByteArray(3000, 'c'));
        GallerySettings settings;
        settings.page = "busy";
        languages = std::make_unique<GalleryLanguages>(QString());
        window = std::make_unique<GalleryWindow>(*languages, settings);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QVERIFY(page());
        scan()->setFolders(folder->filePath("inks"));
        workers()->setFolders(folder->filePath("inks"));
    }

    void finish() override
    {
        window.reset();
        languages.reset();
        folder.reset();
        QLocale::setDefault(QLocale::system());
    }

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
    void windowMayGoWhileThreadsWork();
    void windowMayGoOnceTheBarIsShown();
    void windowMayBeClosedWhileThreadsWork();

private:
    void scanToTheEnd();
    void readToTheEnd();
    /// Starts all that has threads, on more than is done in a moment.
    void startThreads()
    {
        scan()->setFolders(QDir::rootPath());
        workers()->setFolders("/usr");
        DialogDriver::click(buttonOf(*scan(), "Start Scan"));
        DialogDriver::click(buttonOf(*workers(), "Read Files"));
        QVERIFY(scan()->isRunning() && workers()->isRunning());
    }

    void write(const QString &name, const QByteArray &content) const
    {
        const QString path = folder->filePath(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    [[nodiscard]] BusyPage *page() const { return qobject_cast<BusyPage *>(window->currentPage()); }
    [[nodiscard]] FolderScanPanel *scan() const { return window->findChild<FolderScanPanel *>(); }
    [[nodiscard]] WorkersPanel *workers() const { return window->findChild<WorkersPanel *>(); }
    [[nodiscard]] QList<WaitWidget *> spinners() const
    {
        return scan()->findChildren<WaitWidget *>();
    }
    [[nodiscard]] TXProgressBar *bar() const { return workers()->findChild<TXProgressBar *>(); }
    [[nodiscard]] QTreeWidget *list() const { return scan()->findChild<QTreeWidget *>(); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
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

void TestBusyPage::windowMayGoWhileThreadsWork()
{
    startThreads();

    window.reset();

    QVERIFY(!window);
}

void TestBusyPage::windowMayGoOnceTheBarIsShown()
{
    startThreads();
    QTRY_VERIFY(!bar()->isHidden());

    window.reset();

    QVERIFY(!window);
}

void TestBusyPage::windowMayBeClosedWhileThreadsWork()
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
    return runTest<TestBusyPage>(argc, argv);
}

#include "tst_BusyPage.moc"
