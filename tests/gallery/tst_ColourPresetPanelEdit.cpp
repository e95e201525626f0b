#include "ColourPresetPanelTest.h"

#include "PageChecks.h"

#include <QDoubleSpinBox>
#include <QSignalSpy>

/// How a preset is edited, and how an edit ends.
class TestColourPresetPanelEdit : public ColourPresetPanelTest
{
    Q_OBJECT

private slots:
    void savedEditIsInTheFile();
    void untouchedNumbersStayExact();
    void nameAroundWhichThereAreBlanksIsTrimmed();
    void cancelledEditChangesNothing_data();
    void cancelledEditChangesNothing();
    void cancelledNewPresetIsDropped();
    void editIsNotLeftWithoutAQuestion_data();
    void editIsNotLeftWithoutAQuestion();
    void unchangedEditIsLeftWithoutAQuestion();
    void keptEditKeepsWhatWasTyped();
    void importLeavesAnEditToo_data();
    void importLeavesAnEditToo();
    void newPresetThatIsLeftIsDropped();
    void refusedNameGoesOnEditing();
    void fullDiskGoesOnEditing();
    void nameThatCannotBeTypedStays();
    void panelMayGoWhileItAsks();
    void changeByOthersIsToldBeforeItIsReplaced();
    void otherLanguageKeepsWhatWasTyped();
    void nameOfAnotherPresetDoesNotChooseIt();

private:
    /// Starts an edit of "Alpha", and changes name and ink limit.
    void editAlpha();
    static void answerLeaving(DialogDriver &driver, QDialogButtonBox::StandardButton answer);
};

void TestColourPresetPanelEdit::editAlpha()
{
    startEdit();
    typeName("Omega");
    inkBox()->setValue(150);
}

void TestColourPresetPanelEdit::answerLeaving(DialogDriver &driver,
                                              QDialogButtonBox::StandardButton answer)
{
    driver.expectMessageBox([answer](QMessageBox &box) {
        QCOMPARE(box.text(), "The preset \"Omega\" has been edited. Save it?");
        DialogDriver::click(box, answer);
    });
}

void TestColourPresetPanelEdit::savedEditIsInTheFile()
{
    const QSignalSpy spy(panel.get(), SIGNAL(editingChanged(bool)));
    editAlpha();
    QVERIFY(inkBox()->isEnabled());
    QVERIFY(!bar->removeItemButton()->isEnabled());

    DialogDriver::click(bar->saveItemButton());

    QCOMPARE(stored(0).name, "Omega");
    QCOMPARE(stored(0).inkLimitPercent, 150);
    QVERIFY(!panel->isEditing());
    QVERIFY(!inkBox()->isEnabled());
    QCOMPARE(shownName(), "Omega");
    QCOMPARE(bar->itemComboBox()->toolTip(), collection->presets().constFirst().summary());
    QVERIFY(!bar->saveItemButton()->isEnabled());
    QCOMPARE(spy.size(), 2);
}

void TestColourPresetPanelEdit::untouchedNumbersStayExact()
{
    ColourPreset fine = collection->presets().constFirst();
    fine.paperWhite = {95.12345, 0.00001, -3.14159};
    QVERIFY(collection->replace(fine, nullptr));
    chooseInBox("Beta");
    chooseInBox("Alpha");

    startEdit();
    controlOf<QDoubleSpinBox>(*panel, "Green to red of the paper")->setValue(7.5);
    DialogDriver::click(bar->saveItemButton());

    QCOMPARE(stored(0).paperWhite.lightness, 95.12345);
    QCOMPARE(stored(0).paperWhite.a, 7.5);
    QCOMPARE(stored(0).paperWhite.b, -3.14159);
}

void TestColourPresetPanelEdit::nameAroundWhichThereAreBlanksIsTrimmed()
{
    startEdit();
    typeName("  Omega ");

    DialogDriver::click(bar->saveItemButton());

    QCOMPARE(stored(0).name, "Omega");
    QCOMPARE(shownName(), "Omega");
}

void TestColourPresetPanelEdit::cancelledEditChangesNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << "button";
    QTest::newRow("Escape in the name") << "name";
    QTest::newRow("Escape in a number") << "number";
}

void TestColourPresetPanelEdit::cancelledEditChangesNothing()
{
    QFETCH(QString, way);
    editAlpha();

    if (way == "button") {
        DialogDriver::click(buttonOf(*panel, "Cancel Edit"));
    } else if (way == "name") {
        QTest::keyClick(bar->itemComboBox()->lineEdit(), Qt::Key_Escape);
    } else {
        inkBox()->setFocus();
        QTest::keyClick(inkBox(), Qt::Key_Escape);
    }

    QVERIFY(!panel->isEditing());
    QCOMPARE(shownName(), "Alpha");
    QCOMPARE(inkBox()->value(), 100);
    QCOMPARE(stored(0).name, "Alpha");
    QVERIFY(!bar->itemComboBox()->isEditable());
    QVERIFY(bar->editItemButton()->hasFocus());
}

void TestColourPresetPanelEdit::cancelledNewPresetIsDropped()
{
    chooseInBox("Beta");
    DialogDriver::click(bar->addNewItemButton());
    QCOMPARE(names().size(), 4);

    panel->cancelEdit();

    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma"}));
    QCOMPARE(filesIn(collection->folder()).size(), 3);
    QCOMPARE(shownName(), "Beta");
    QCOMPARE(inkBox()->value(), 200);
}

void TestColourPresetPanelEdit::editIsNotLeftWithoutAQuestion_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("answer");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QString>("shown");
    QTest::newRow("save") << QDialogButtonBox::Save << QStringList({"Omega", "Beta", "Gamma"})
                          << "Beta";
    QTest::newRow("discard") << QDialogButtonBox::Discard << QStringList({"Alpha", "Beta", "Gamma"})
                             << "Beta";
    QTest::newRow("cancel") << QDialogButtonBox::Cancel << QStringList({"Alpha", "Beta", "Gamma"})
                            << "Omega";
}

void TestColourPresetPanelEdit::editIsNotLeftWithoutAQuestion()
{
    QFETCH(QDialogButtonBox::StandardButton, answer);
    editAlpha();
    DialogDriver driver;
    answerLeaving(driver, answer);

    chooseInBox("Beta");

    QTEST(names(), "after");
    QTEST(shownName(), "shown");
    const bool stays = answer == QDialogButtonBox::Cancel;
    QCOMPARE(panel->isEditing(), stays);
    QCOMPARE(inkBox()->value(), stays ? 150 : 200);
    QCOMPARE(panel->shownPreset(), collection->presets().at(stays ? 0 : 1).id);
}

void TestColourPresetPanelEdit::unchangedEditIsLeftWithoutAQuestion()
{
    const DialogDriver driver;
    startEdit();

    chooseInBox("Beta");

    QVERIFY(!panel->isEditing());
    QCOMPARE(shownName(), "Beta");
    QCOMPARE(inkBox()->value(), 200);
}

void TestColourPresetPanelEdit::keptEditKeepsWhatWasTyped()
{
    editAlpha();
    DialogDriver driver;
    for (int i = 0; i < 2; ++i) {
        answerLeaving(driver, QDialogButtonBox::Cancel);
        chooseInBox("Beta");
    }
    QTest::keyClick(bar->itemComboBox()->lineEdit(), Qt::Key_Return);

    QCOMPARE(shownName(), "Omega");
    DialogDriver::click(bar->saveItemButton());

    QCOMPARE(stored(0).name, "Omega");
    QCOMPARE(stored(1).name, "Beta");
}

void TestColourPresetPanelEdit::importLeavesAnEditToo_data()
{
    QTest::addColumn<QDialogButtonBox::StandardButton>("answer");
    QTest::newRow("save") << QDialogButtonBox::Save;
    QTest::newRow("cancel") << QDialogButtonBox::Cancel;
}

void TestColourPresetPanelEdit::importLeavesAnEditToo()
{
    QFETCH(QDialogButtonBox::StandardButton, answer);
    const bool stays = answer == QDialogButtonBox::Cancel;
    editAlpha();
    DialogDriver driver;
    answerLeaving(driver, answer);
    if (!stays) {
        driver.expect([](QDialog &dialog) { dialog.reject(); });
    }

    chooseInBox("Load");

    QCOMPARE(panel->isEditing(), stays);
    QCOMPARE(shownName(), "Omega");
    QCOMPARE(stored(0).name, stays ? "Alpha" : "Omega");
    QCOMPARE(inkBox()->value(), 150);
}

void TestColourPresetPanelEdit::newPresetThatIsLeftIsDropped()
{
    DialogDriver::click(bar->addNewItemButton());
    typeName("Omega");
    DialogDriver driver;
    answerLeaving(driver, QDialogButtonBox::Discard);

    chooseInBox("Gamma");

    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma"}));
    QCOMPARE(shownName(), "Gamma");
    QCOMPARE(inkBox()->value(), 300);
}

void TestColourPresetPanelEdit::refusedNameGoesOnEditing()
{
    startEdit();
    typeName("bETA");
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().contains("Another preset is called \"bETA\"."));
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });

    DialogDriver::click(bar->saveItemButton());

    QVERIFY(panel->isEditing());
    QCOMPARE(shownName(), "bETA");
    QCOMPARE(stored(0).name, "Alpha");
}

void TestColourPresetPanelEdit::fullDiskGoesOnEditing()
{
    editAlpha();
    {
        const FullDisk disk;
        DialogDriver driver;
        answerLeaving(driver, QDialogButtonBox::Save);
        driver.expectMessageBox([](QMessageBox &box) {
            QVERIFY(box.text().contains("\"Omega\" cannot be saved."));
            DialogDriver::click(box, QDialogButtonBox::Ok);
        });
        chooseInBox("Beta");
    }
    QVERIFY(panel->isEditing());
    QCOMPARE(shownName(), "Omega");
    QCOMPARE(stored(0).name, "Alpha");

    DialogDriver::click(bar->saveItemButton());

    QCOMPARE(stored(0).name, "Omega");
    QCOMPARE(stored(0).inkLimitPercent, 150);
}

void TestColourPresetPanelEdit::nameThatCannotBeTypedStays()
{
    bar->allowComboboxNameEdition(false);
    startEdit();
    QVERIFY(!bar->itemComboBox()->isEditable());
    inkBox()->setValue(150);

    DialogDriver::click(bar->saveItemButton());

    QCOMPARE(stored(0).name, "Alpha");
    QCOMPARE(stored(0).inkLimitPercent, 150);
}

void TestColourPresetPanelEdit::panelMayGoWhileItAsks()
{
    editAlpha();
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox & /*box*/) { panel.reset(); });

    panel->importPreset();

    QVERIFY(!panel);
    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma"}));
}

void TestColourPresetPanelEdit::changeByOthersIsToldBeforeItIsReplaced()
{
    editAlpha();
    const QString file = fileOf(collection->presets().constFirst().id);
    QVERIFY(writeBytes(file, presetCalled("Theirs").toJson()));
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().contains("Another program has changed it in the meantime."));
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });

    DialogDriver::click(bar->saveItemButton());
    QVERIFY(panel->isEditing());
    QCOMPARE(shownName(), "Omega");
    QCOMPARE(stored(0).name, "Theirs");

    DialogDriver::click(bar->saveItemButton());
    QCOMPARE(stored(0).name, "Omega");
    QCOMPARE(stored(0).inkLimitPercent, 150);
}

void TestColourPresetPanelEdit::otherLanguageKeepsWhatWasTyped()
{
    editAlpha();
    const QSignalSpy spy(bar, SIGNAL(itemNameChanged(QString)));

    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(panel.get(), &change);

    QVERIFY(spy.isEmpty());
    QCOMPARE(shownName(), "Omega");
    QCOMPARE(inkBox()->value(), 150);
}

void TestColourPresetPanelEdit::nameOfAnotherPresetDoesNotChooseIt()
{
    startEdit();
    typeName("Beta");

    inkBox()->setFocus();

    QCOMPARE(shownName(), "Beta");
    QCOMPARE(panel->shownPreset(), collection->presets().constFirst().id);
    QVERIFY(panel->isEditing());
}

int main(int argc, char **argv)
{
    return runTest<TestColourPresetPanelEdit>(argc, argv);
}

#include "tst_ColourPresetPanelEdit.moc"
