#include "ControlsPage.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "TestBase.h"

#include <QPushButton>

#include <memory>

class TestControlsPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();

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

int main(int argc, char **argv)
{
    return runTest<TestControlsPage>(argc, argv);
}

#include "tst_ControlsPage.moc"
