#include "DialogDriver.h"
#include "DictionaryView.h"
#include "LabColourDialog.h"
#include "Mnemonics.h"
#include "PagePlugins.h"
#include "PageSettings.h"
#include "PagesPage.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include "TXStackedWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QTranslator>
#include <QTreeWidget>

class TestPagesPage : public TestBase
{
    Q_OBJECT

private slots:
    void pluginsAreListed();
    void chosenPageIsShown();
    void stackTakesTheSizeOfThePage();
    void changesAreReadBackLive();
    void savedSettingsAreThereAtTheNextStart();
    void restoringDropsChanges();
    void damagedSettingsReadAsDefaults();
    void missingPluginsAreToldWithTheirFolder();
    void embeddedDialogStaysAfterItsButtons();
    void embeddedDialogStaysAfterEscape();
    void windowClosesWithOkAndHandsItsColourOver();
    void windowClosesWithCancelAndChangesNothing();
    void dialogFollowsItsSlidersAndBoxes();
    void pictureShowsTheWindow();
    void textsFollowTheLanguage();
    void mnemonicsDoNotClash();

protected:
    void prepare() override;
    void finish() override;

private:
    void open(const QString &folder = pagePluginsFolder());
    template<class Widget>
    Widget *visible() const;
    QTreeWidget *list() const;
    DictionaryView *settings() const { return page->findChild<DictionaryView *>(); }
    QTreeWidgetItem *setting(const QString &key) const;
    QPushButton *button(const QString &text, const QWidget *parent = nullptr) const;
    bool showsText(const QString &text) const;
    LabColourDialog *dialog(bool isWindow) const;

    std::unique_ptr<PagesPage> page;
};

void TestPagesPage::prepare()
{
    QLocale::setDefault(QLocale("en"));
    open();
}

void TestPagesPage::finish()
{
    page.reset();
    QLocale::setDefault(QLocale::system());
}

void TestPagesPage::open(const QString &folder)
{
    page.reset();
    page = std::make_unique<PagesPage>(folder, nullptr);
    page->resize(860, 640);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    QVERIFY(dialog(false) && dialog(true));
}

template<class Widget>
Widget *TestPagesPage::visible() const
{
    const auto candidates = page->findChild<TXStackedWidget *>()->findChildren<Widget *>();
    for (Widget *candidate : candidates) {
        if (candidate->isVisible()) {
            return candidate;
        }
    }
    return nullptr;
}

QTreeWidget *TestPagesPage::list() const
{
    const auto trees = page->findChildren<QTreeWidget *>();
    for (QTreeWidget *tree : trees) {
        if (tree != settings()) {
            return tree;
        }
    }
    return nullptr;
}

QTreeWidgetItem *TestPagesPage::setting(const QString &key) const
{
    return settings()->findItems(key, Qt::MatchExactly).value(0);
}

QPushButton *TestPagesPage::button(const QString &text, const QWidget *parent) const
{
    const auto buttons = (parent ? parent : page.get())->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->text().remove('&') == text) {
            return candidate;
        }
    }
    return nullptr;
}

bool TestPagesPage::showsText(const QString &text) const
{
    const auto labels = page->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [&text](const QLabel *label) {
        return label->isVisible() && label->text().contains(text);
    });
}

LabColourDialog *TestPagesPage::dialog(bool isWindow) const
{
    const auto dialogs = page->findChildren<LabColourDialog *>();
    for (LabColourDialog *candidate : dialogs) {
        if (candidate->isWindow() == isWindow) {
            return candidate;
        }
    }
    return nullptr;
}

void TestPagesPage::pluginsAreListed()
{
    QCOMPARE(list()->topLevelItemCount(), 2);
    const QTreeWidgetItem *row = list()->topLevelItem(0);
    QCOMPARE(row->text(0), "Colour Measurement");
    QCOMPARE(row->text(1), "ColourPreferences");
    QCOMPARE(row->text(2), "ColourPreferencesPage");
    QCOMPARE(list()->topLevelItem(1)->text(1), "ReportPreferences");
}

void TestPagesPage::chosenPageIsShown()
{
    const auto *stack = page->findChild<TXStackedWidget *>();
    QCOMPARE(stack->currentWidget()->metaObject()->className(), "ColourPreferencesPage");

    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);

    QCOMPARE(stack->currentWidget()->metaObject()->className(), "ReportPreferencesPage");
    QVERIFY(stack->currentWidget()->isVisible());
    QVERIFY(setting("ReportPaperSize"));
    QVERIFY(!setting("ColourIlluminant"));
}

void TestPagesPage::stackTakesTheSizeOfThePage()
{
    const auto *stack = page->findChild<TXStackedWidget *>();
    for (int row = 0; row < 2; ++row) {
        list()->setCurrentItem(list()->topLevelItem(row));
        QTRY_COMPARE(stack->height(), stack->currentWidget()->sizeHint().height());
    }
}

void TestPagesPage::changesAreReadBackLive()
{
    QCOMPARE(setting("ColourTolerance")->text(2), "2");
    QCOMPARE(setting("ColourTolerance")->text(1), "double");
    QVERIFY(!setting("ColourTolerance")->font(2).bold());
    QVERIFY(!button("Restore")->isEnabled());

    visible<QDoubleSpinBox>()->stepUp();

    QCOMPARE(setting("ColourTolerance")->text(2), "2.1");
    QVERIFY(setting("ColourTolerance")->font(2).bold());
    QVERIFY(!setting("ColourObserver")->font(2).bold());
    QVERIFY(showsText("Changed"));
    QVERIFY(button("Restore")->isEnabled());
}

void TestPagesPage::savedSettingsAreThereAtTheNextStart()
{
    visible<QDoubleSpinBox>()->setValue(3.5);
    QVERIFY(!readPageSettings("ColourPreferences"));

    DialogDriver::click(button("Save"));

    QVERIFY(showsText("These settings are saved."));
    QVERIFY(!setting("ColourTolerance")->font(2).bold());
    QVERIFY(!button("Save")->isEnabled());
    QVERIFY(!readPageSettings("ReportPreferences"));
    QSettings().sync();
    open();
    QCOMPARE(visible<QDoubleSpinBox>()->value(), 3.5);
    QVERIFY(showsText("These settings are saved."));
}

void TestPagesPage::restoringDropsChanges()
{
    visible<QDoubleSpinBox>()->setValue(3.5);
    DialogDriver::click(button("Save"));
    visible<QDoubleSpinBox>()->setValue(9);
    visible<QComboBox>()->setCurrentIndex(0);

    DialogDriver::click(button("Restore"));

    QCOMPARE(visible<QDoubleSpinBox>()->value(), 3.5);
    QCOMPARE(setting("ColourDifferenceFormula")->text(2), "CIEDE2000");
    QVERIFY(showsText("These settings are saved."));
}

void TestPagesPage::damagedSettingsReadAsDefaults()
{
    writePageSettings("ColourPreferences",
                      {{"ColourTolerance", QByteArray("\xff\x00\x01", 3)}, {"ColourObserver", {}}});

    open();

    QCOMPARE(visible<QDoubleSpinBox>()->value(), 2.0);
    QCOMPARE(setting("ColourObserver")->text(2), "2");
}

void TestPagesPage::missingPluginsAreToldWithTheirFolder()
{
    open("nowhere");

    QVERIFY(showsText("No plug-in was found."));
    QVERIFY(showsText(QCoreApplication::applicationDirPath() + "/nowhere"));
    QVERIFY(!list()->isVisible());
    QVERIFY(!button("Save")->isVisible());

    open(QString());
    QVERIFY(showsText(QCoreApplication::applicationDirPath() + "/ConfWidgets"));
}

void TestPagesPage::embeddedDialogStaysAfterItsButtons()
{
    LabColourDialog *embedded = dialog(false);
    QVERIFY(embedded->isVisible());

    DialogDriver::click(button("OK", embedded));
    QVERIFY(embedded->isVisible());
    QVERIFY(showsText("OK was clicked, and the dialog stays"));

    DialogDriver::click(button("Cancel", embedded));
    QVERIFY(embedded->isVisible());
}

void TestPagesPage::embeddedDialogStaysAfterEscape()
{
    LabColourDialog *embedded = dialog(false);

    QTest::keyClick(embedded, Qt::Key_Escape);

    QVERIFY(embedded->isVisible());
}

void TestPagesPage::windowClosesWithOkAndHandsItsColourOver()
{
    dialog(false)->setColour({70, -20, 10});
    LabColourDialog *window = dialog(true);
    QVERIFY(!window->isVisible());

    DialogDriver::click(button("Open as Window"));
    QVERIFY(window->isVisible());
    QCOMPARE(window->colour().a, -20.0);
    window->setColour({30, 5, -40});
    DialogDriver::click(button("OK", window));

    QVERIFY(!window->isVisible());
    QCOMPARE(dialog(false)->colour().b, -40.0);
    QVERIFY(showsText("OK closed the window"));
}

void TestPagesPage::windowClosesWithCancelAndChangesNothing()
{
    LabColourDialog *window = dialog(true);
    DialogDriver::click(button("Open as Window"));
    window->setColour({30, 5, -40});

    DialogDriver::click(button("Cancel", window));

    QVERIFY(!window->isVisible());
    QCOMPARE(dialog(false)->colour().b, 34.0);
    QVERIFY(showsText("Cancel closed the window"));
}

void TestPagesPage::dialogFollowsItsSlidersAndBoxes()
{
    LabColourDialog *embedded = dialog(false);
    const auto sliders = embedded->findChildren<QSlider *>();
    const auto boxes = embedded->findChildren<QSpinBox *>();
    QCOMPARE(sliders.size(), 3);

    sliders[0]->setValue(100);
    sliders[1]->setValue(0);
    boxes[2]->setValue(0);
    QCOMPARE(boxes[0]->value(), 100);
    QCOMPARE(sliders[2]->value(), 0);
    QVERIFY(showsText("On screen #ffffff"));

    boxes[1]->setValue(127);
    QVERIFY(showsText("Beyond the screen"));
}

void TestPagesPage::pictureShowsTheWindow()
{
    const auto windows = page->furtherWindows();

    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.first().window, dialog(true));
    QVERIFY(windows.first().window->isVisible());
}

void TestPagesPage::textsFollowTheLanguage()
{
    QTranslator french;
    QVERIFY(french.load(testTranslationsFolder() + "/gallerytest_fr.qm"));

    QVERIFY(QCoreApplication::installTranslator(&french));
    QTRY_COMPARE(list()->topLevelItem(0)->text(0), "Mesure des couleurs");
    QVERIFY(button("Enregistrer"));

    QVERIFY(QCoreApplication::removeTranslator(&french));
    QTRY_COMPARE(list()->topLevelItem(0)->text(0), "Colour Measurement");
}

void TestPagesPage::mnemonicsDoNotClash()
{
    for (int row = 0; row < list()->topLevelItemCount(); ++row) {
        list()->setCurrentItem(list()->topLevelItem(row));
        QCOMPARE(clashingMnemonics(*page), QStringList());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestPagesPage>(argc, argv);
}

#include "tst_PagesPage.moc"
