#include "ControlsPage.h"
#include "EmissionList.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "TestBase.h"
#include "WidgetStateTree.h"

#include <QPushButton>

#include <memory>

class TestControlsPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void pictureShowsEmissionsAndAKeptState();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
};

void TestControlsPage::prepare()
{
    GallerySettings settings;
    settings.page = "controls";
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    QVERIFY(qobject_cast<ControlsPage *>(window->currentPage()));
}

void TestControlsPage::finish()
{
    window.reset();
    languages.reset();
    QLocale::setDefault(QLocale::system());
}

void TestControlsPage::pageFitsTheWindow()
{
    const QWidget *viewport = window->currentPage()->parentWidget();

    QVERIFY(window->currentPage()->width() <= viewport->width());
}

void TestControlsPage::mnemonicsAreNotShared()
{
    QVERIFY(buttonOf(*window, "Turn All On"));
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestControlsPage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestControlsPage::pictureShowsEmissionsAndAKeptState()
{
    GalleryPage *page = window->currentPage();

    page->fillForPicture();

    QVERIFY(page->isReady());
    QVERIFY(page->findChild<EmissionList *>()->count() > 0);
    QCOMPARE(page->findChild<WidgetStateTree *>()->topLevelItemCount(), 1);
    const auto windows = page->furtherWindows();
    QCOMPARE(windows.size(), 1);
    QVERIFY(windows.first().window->isVisible());
}

int main(int argc, char **argv)
{
    return runTest<TestControlsPage>(argc, argv);
}

#include "tst_ControlsPage.moc"
