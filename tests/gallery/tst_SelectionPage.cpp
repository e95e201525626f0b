#include "SelectionPage.h"

#include "ColourPresetCollection.h"
#include "ColourPresetPanel.h"
#include "DialogDriver.h"
#include "EmissionList.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "PresetFiles.h"
#include "TestBase.h"

#include "SelectionBarOptions.h"
#include "SortedPresetBar.h"
#include "TXSelectionItemWidget.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <memory>

class TestSelectionPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab_data();
    void everyControlHasANameAndIsReachedByTab();
    void textsFollowTheLanguage();
    void firstStartShowsPresetsInTheUsersFolder();
    void presetsAreThereAtTheNextStart();
    void folderThatCannotBeMadeIsTold();
    void signalsAreListedBeforeWhatComesOfThem();
    void smallBarIsSortedAndInStep();
    void menuOfTheSmallBarWorks();
    void editingLocksOptionsAndTheSmallBar();
    void optionsChangeTheBar();
    void pictureShowsAnEdit();

protected:
    void prepare() override;
    void finish() override;

private:
    void openPage();
    void closePage();
    [[nodiscard]] ColourPresetPanel *panel() const;
    [[nodiscard]] TXSelectionItemWidget *barOf(const QWidget *parent) const;
    [[nodiscard]] QStringList listed() const;
    /// Opens the button's menu and clicks on an entry.
    static void chooseInMenu(QToolButton *button, int entry);

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
    GalleryPage *page = nullptr;
};

void TestSelectionPage::prepare()
{
    // The home of the test itself.
    QVERIFY(ColourPresetCollection::usualFolder().startsWith(qEnvironmentVariable("HOME")));
    openPage();
}

void TestSelectionPage::finish()
{
    closePage();
    QFile::remove(ColourPresetCollection::usualFolder());
    QDir(ColourPresetCollection::usualFolder()).removeRecursively();
    QLocale::setDefault(QLocale::system());
}

void TestSelectionPage::openPage()
{
    GallerySettings settings;
    settings.page = "selection";
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    page = window->currentPage();
    QVERIFY(qobject_cast<SelectionPage *>(page));
}

void TestSelectionPage::closePage()
{
    window.reset();
    languages.reset();
}

ColourPresetPanel *TestSelectionPage::panel() const
{
    return page->findChild<ColourPresetPanel *>();
}

TXSelectionItemWidget *TestSelectionPage::barOf(const QWidget *parent) const
{
    return parent->findChild<TXSelectionItemWidget *>();
}

QStringList TestSelectionPage::listed() const
{
    return page->findChild<EmissionList *>()->findChild<QPlainTextEdit *>()->toPlainText().split(
        '\n', Qt::SkipEmptyParts);
}

void TestSelectionPage::chooseInMenu(QToolButton *button, int entry)
{
    QTimer::singleShot(0, button, [entry] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QAction *action = menu->actions().at(entry);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    });
    button->showMenu();
}

void TestSelectionPage::pageFitsTheWindow()
{
    const QWidget *viewport = page->parentWidget();

    QVERIFY(page->width() <= viewport->width());
}

void TestSelectionPage::mnemonicsAreNotShared()
{
    QVERIFY(buttonOf(*window, "Cancel Edit"));
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestSelectionPage::everyControlHasANameAndIsReachedByTab_data()
{
    QTest::addColumn<bool>("isEditing");
    QTest::newRow("browsing") << false;
    QTest::newRow("editing") << true;
}

void TestSelectionPage::everyControlHasANameAndIsReachedByTab()
{
    QFETCH(bool, isEditing);
    if (isEditing) {
        barOf(panel())->startItemEdition();
    }

    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestSelectionPage::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*page, {"a*", "b*"}), QStringList());
    QVERIFY(barOf(panel())
                ->itemComboBox()
                ->itemData(0, Qt::ToolTipRole)
                .toString()
                .startsWith("RELATIVE"));
}

void TestSelectionPage::firstStartShowsPresetsInTheUsersFolder()
{
    QCOMPARE(filesIn(ColourPresetCollection::usualFolder()).size(), 3);
    QCOMPARE(barOf(panel())->getSelectedItemName(), "Coated paper");
}

void TestSelectionPage::presetsAreThereAtTheNextStart()
{
    panel()->duplicatePreset();
    closePage();
    openPage();

    QVERIFY(barOf(panel())->itemComboBox()->findText("Coated paper 2") >= 0);
}

void TestSelectionPage::folderThatCannotBeMadeIsTold()
{
    closePage();
    const QString folder = ColourPresetCollection::usualFolder();
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(QFile::link("/dev/null/none", folder));

    openPage();

    QVERIFY(allTexts(*page).contains("cannot be saved"));
    QCOMPARE(barOf(panel())->getSelectedItemName(), "No preset");
}

void TestSelectionPage::signalsAreListedBeforeWhatComesOfThem()
{
    page->findChild<EmissionList *>()->clear();

    DialogDriver::click(barOf(panel())->duplicateItemButton());

    const QStringList lines = listed();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), "duplicateItemHasBeenRequest");
    QCOMPARE(lines.at(1), "itemSelectionChanged(invalid)");
    QCOMPARE(lines.at(2), "itemSelectionChanged(" + panel()->shownPreset() + ')');

    barOf(panel())->startItemEdition();
    QTest::keyClick(barOf(panel())->itemComboBox()->lineEdit(), Qt::Key_N);
    QCOMPARE(listed().mid(3), QStringList({"editItemHasBeenRequest", "itemNameChanged(\"n\")"}));
}

void TestSelectionPage::smallBarIsSortedAndInStep()
{
    QComboBox *box = barOf(page->findChild<SortedPresetBar *>())->itemComboBox();
    QCOMPARE(box->itemText(0), "Coated paper");
    QCOMPARE(box->itemText(1), "Contract proof");
    QCOMPARE(box->itemText(2), "Newsprint");
    QCOMPARE(box->currentText(), "Coated paper");

    box->setCurrentIndex(1);
    QCOMPARE(barOf(panel())->getSelectedItemName(), "Contract proof");

    QComboBox *mainBox = barOf(panel())->itemComboBox();
    mainBox->setCurrentIndex(mainBox->findText("Newsprint"));
    QCOMPARE(box->currentText(), "Newsprint");
}

void TestSelectionPage::menuOfTheSmallBarWorks()
{
    const auto *small = page->findChild<SortedPresetBar *>();
    auto *button = small->findChild<QToolButton *>();
    QVERIFY(button->isVisible());
    QCOMPARE(button->menu()->actions().size(), 3);

    chooseInMenu(button, 1);
    QCOMPARE(barOf(panel())->getSelectedItemName(), "Coated paper 2");
    QCOMPARE(barOf(small)->getSelectedItemName(), "Coated paper 2");

    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });
    chooseInMenu(button, 2);

    chooseInMenu(button, 0);
    QVERIFY(panel()->isEditing());
}

void TestSelectionPage::editingLocksOptionsAndTheSmallBar()
{
    const auto *options = page->findChild<SelectionBarOptions *>();
    const auto *small = page->findChild<SortedPresetBar *>();

    barOf(panel())->startItemEdition();
    QVERIFY(!options->isEnabled());
    QVERIFY(!small->isEnabled());

    panel()->cancelEdit();
    QVERIFY(options->isEnabled());
    QVERIFY(small->isEnabled());
}

void TestSelectionPage::optionsChangeTheBar()
{
    TXSelectionItemWidget *bar = barOf(panel());
    auto *label = controlOf<QLineEdit>(*page, "Text of the label");
    label->selectAll();
    QTest::keyClicks(label, "Profile");
    QCOMPARE(bar->labelName(), "Profile");

    buttonOf(*page, "in a menu")->click();
    QVERIFY(!bar->addNewItemButton()->isVisible());
    buttonOf(*page, "in the box")->click();
    QVERIFY(bar->addNewItemButton()->isVisible());

    buttonOf(*page, "Names can be typed over")->click();
    bar->startItemEdition();
    QVERIFY(!bar->itemComboBox()->isEditable());
    QVERIFY(panel()->isEditing());
}

void TestSelectionPage::pictureShowsAnEdit()
{
    page->fillForPicture();

    QVERIFY(page->isReady());
    QVERIFY(panel()->isEditing());
    QVERIFY(!listed().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestSelectionPage>(argc, argv);
}

#include "tst_SelectionPage.moc"
