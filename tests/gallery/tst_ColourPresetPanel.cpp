#include "ColourPresetPanelTest.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <algorithm>

/// What the buttons of the bar do with the presets.
class TestColourPresetPanel : public ColourPresetPanelTest
{
    Q_OBJECT

private slots:
    void chosenPresetIsShown();
    void copyIsSelected();
    void newPresetIsEditedAtOnce();
    void deletingAsks_data();
    void deletingAsks();
    void emptiedCollectionRequestsNothing();
    void importIsChosenInTheBox_data();
    void importIsChosenInTheBox();
    void cancelledImportReturnsToThePreset();
    void damagedFileIsNotImported();
    void exportedFileHoldsThePreset();
    void menuTakesThePlaceOfButtons();
    void choosingFromOutsideSelects();
    void damagedFilesAreListed();
    void fullDiskIsToldForEveryWork();
};

void TestColourPresetPanel::chosenPresetIsShown()
{
    QCOMPARE(shownName(), "Alpha");
    QCOMPARE(inkBox()->value(), 100);
    QVERIFY(!inkBox()->isEnabled());
    QVERIFY(!bar->saveItemButton()->isEnabled());
    const QSignalSpy spy(panel.get(), SIGNAL(shownPresetChanged(QString)));

    chooseInBox("Beta");

    QCOMPARE(inkBox()->value(), 200);
    QCOMPARE(panel->shownPreset(), collection->presets().at(1).id);
    QCOMPARE(spy.constLast().constFirst().toString(), panel->shownPreset());
    QCOMPARE(bar->itemComboBox()->toolTip(), collection->presets().at(1).summary());
}

void TestColourPresetPanel::copyIsSelected()
{
    chooseInBox("Beta");

    DialogDriver::click(bar->duplicateItemButton());

    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma", "Beta 2"}));
    QCOMPARE(shownName(), "Beta 2");
    QCOMPARE(inkBox()->value(), 200);
}

void TestColourPresetPanel::newPresetIsEditedAtOnce()
{
    QSignalSpy requests(bar, SIGNAL(editItemHasBeenRequest()));

    DialogDriver::click(bar->addNewItemButton());

    QVERIFY(panel->isEditing());
    QCOMPARE(requests.size(), 0);
    QCOMPARE(bar->itemComboBox()->lineEdit()->selectedText(), "New preset");
    QVERIFY(bar->itemComboBox()->lineEdit()->hasFocus());

    typeName("Delta");
    DialogDriver::click(bar->saveItemButton());

    QVERIFY(!panel->isEditing());
    QCOMPARE(stored(3).name, "Delta");
    QCOMPARE(shownName(), "Delta");
}

void TestColourPresetPanel::deletingAsks_data()
{
    QTest::addColumn<bool>("isWanted");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QString>("shown");
    QTest::newRow("yes") << true << QStringList({"Alpha", "Beta"}) << "Beta";
    QTest::newRow("no") << false << QStringList({"Alpha", "Beta", "Gamma"}) << "Gamma";
}

void TestColourPresetPanel::deletingAsks()
{
    QFETCH(bool, isWanted);
    chooseInBox("Gamma");
    DialogDriver driver;
    driver.expectMessageBox([isWanted](QMessageBox &box) {
        QCOMPARE(box.text(), "Delete the preset \"Gamma\" for good?");
        DialogDriver::click(box, isWanted ? QDialogButtonBox::Yes : QDialogButtonBox::No);
    });

    DialogDriver::click(bar->removeItemButton());

    QTEST(names(), "left");
    QTEST(shownName(), "shown");
    QCOMPARE(filesIn(collection->folder()).size(), names().size());
}

void TestColourPresetPanel::emptiedCollectionRequestsNothing()
{
    const QSignalSpy imports(bar, SIGNAL(importItemHasBeenRequest()));
    DialogDriver driver;
    for (int left = int(names().size()) - 1; left >= 0; --left) {
        driver.expectMessageBox(
            [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
        DialogDriver::click(bar->removeItemButton());
        QCOMPARE(names().size(), left);
    }

    QCOMPARE(imports.size(), 0);
    QCOMPARE(shownName(), "No preset");
    QCOMPARE(panel->shownPreset(), QString());
    QVERIFY(!inkBox()->isVisible());
    for (QPushButton *button : {bar->removeItemButton(), bar->duplicateItemButton(),
                                bar->editItemButton(), bar->exportItemButton()}) {
        QVERIFY(!button->isEnabled());
    }
    QVERIFY(bar->addNewItemButton()->isEnabled());

    showPanel();
    QCOMPARE(shownName(), "No preset");
    DialogDriver::click(bar->addNewItemButton());
    QCOMPARE(names(), QStringList("New preset"));
    QVERIFY(inkBox()->isVisible());
}

void TestColourPresetPanel::importIsChosenInTheBox_data()
{
    QTest::addColumn<bool>("isInBox");
    QTest::newRow("in the box") << true;
    QTest::newRow("by the button") << false;
}

void TestColourPresetPanel::importIsChosenInTheBox()
{
    QFETCH(bool, isInBox);
    const QString file = place->filePath("import.json");
    QVERIFY(writeBytes(file, presetCalled("Beta").toJson()));
    DialogDriver driver;
    chooseFile(driver, file);

    if (isInBox) {
        chooseInBox("Load");
    } else {
        DialogDriver::click(bar->importItemButton());
    }

    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma", "Beta 2"}));
    QCOMPARE(shownName(), "Beta 2");
}

void TestColourPresetPanel::cancelledImportReturnsToThePreset()
{
    chooseInBox("Beta");
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });

    chooseInBox("Load");

    QCOMPARE(shownName(), "Beta");
    QCOMPARE(inkBox()->value(), 200);
    QCOMPARE(names().size(), 3);
}

void TestColourPresetPanel::damagedFileIsNotImported()
{
    const QString file = place->filePath("import.json");
    QVERIFY(writeBytes(file, "{\"format\": 1}"));
    DialogDriver driver;
    chooseFile(driver, file);
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().contains("cannot be imported"));
        QVERIFY(box.text().contains("\"format\" is no text."));
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });

    chooseInBox("Load");

    QCOMPARE(names().size(), 3);
    QCOMPARE(shownName(), "Alpha");
}

void TestColourPresetPanel::exportedFileHoldsThePreset()
{
    QVERIFY(collection->rename(collection->presets().at(1).id, "Be/ta*", nullptr));
    chooseInBox("Be/ta*");
    const QString file = place->filePath("out.json");
    DialogDriver driver;
    driver.expect([&file](QDialog &dialog) {
        auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
        QCOMPARE(name->text(), "Be_ta_.json");
        name->setText(file);
        dialog.accept();
    });

    DialogDriver::click(bar->exportItemButton());

    QVERIFY(ColourPreset::fromFile(file).preset->hasSameSettings(collection->presets().at(1)));
}

void TestColourPresetPanel::menuTakesThePlaceOfButtons()
{
    chooseInBox("Beta");

    panel->setImportInBox(false);

    QCOMPARE(bar->itemComboBox()->count(), 3);
    QCOMPARE(shownName(), "Beta");
    QVERIFY(!bar->addNewItemButton()->isVisible());
    QVERIFY(!bar->importItemButton()->isVisible());
    QCOMPARE(inkBox()->value(), 200);

    panel->setImportInBox(true);

    QVERIFY(bar->itemComboBox()->count() > 3);
    QCOMPARE(shownName(), "Beta");
    QVERIFY(bar->addNewItemButton()->isVisible());
}

void TestColourPresetPanel::choosingFromOutsideSelects()
{
    panel->choose(collection->presets().at(2).id);
    QCOMPARE(shownName(), "Gamma");

    panel->choose("none");
    QCOMPARE(shownName(), "Gamma");
}

void TestColourPresetPanel::damagedFilesAreListed()
{
    QVERIFY(writeBytes(collection->folder() + "/<b>.json", "[]"));
    QVERIFY(collection->load(nullptr));

    showPanel();

    const auto labels = panel->findChildren<QLabel *>();
    const bool isListed = std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->isVisible() && label->textFormat() == Qt::PlainText
            && label->text().endsWith("<b>.json: It holds no JSON object.");
    });
    QVERIFY(isListed);
}

void TestColourPresetPanel::fullDiskIsToldForEveryWork()
{
    const FullDisk disk;
    for (QPushButton *button : {bar->addNewItemButton(), bar->duplicateItemButton()}) {
        DialogDriver driver;
        driver.expectMessageBox([](QMessageBox &box) {
            QVERIFY(box.text().contains("cannot be saved"));
            DialogDriver::click(box, QDialogButtonBox::Ok);
        });
        DialogDriver::click(button);
    }

    QVERIFY(!panel->isEditing());
    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma"}));
    QCOMPARE(shownName(), "Alpha");
}

int main(int argc, char **argv)
{
    return runTest<TestColourPresetPanel>(argc, argv);
}

#include "tst_ColourPresetPanel.moc"
