#include "TXSelectionItemWidget.h"

#include "SelectionBarHelpers.h"
#include "TestBase.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/// The names of the buttons that can be pressed.
QStringList enabledButtons(const TXSelectionItemWidget &bar)
{
    QStringList names;
    const QList<QAbstractButton *> buttons = buttonsOf(bar);
    for (const QAbstractButton *button : buttons) {
        if (button->isEnabled()) {
            names.append(button->objectName());
        }
    }
    return names;
}

const QStringList kAllButtons{"ImportButton", "AddButton",    "importButton", "CopyButton",
                              "EditButton",   "RemoveButton", "ExportButton", "SaveButton"};
const QStringList kAllButSave{"ImportButton", "AddButton",    "importButton", "CopyButton",
                              "EditButton",   "RemoveButton", "ExportButton"};

/// A bar over the presets, "Press" selected.
class PresetBar : public TXSelectionItemWidget
{
public:
    PresetBar()
    {
        setModel(&presets, nullptr, nullptr);
        selectItem(2);
    }

    Presets presets;
};

} // namespace

class TestTXSelectionItemWidgetEditing : public TestBase
{
    Q_OBJECT

private slots:
    void barStartsBrowsing();
    void editButtonStartsEditing();
    void editingIsStarted_data();
    void editingIsStarted();
    void endingEnablesAllButSave();
    void endWithoutStartOnlyDisablesSave();
    void startTwiceIsTwoRequestsAndOneConnection();
    void editableTwiceTellsEachKeyOnce();
    void namesThatMayNotBeTypedLeaveTheBoxAsItIs();
    void permissionCountsFromTheNextStart();
    void typedNameIsTold();
    void typingCompletesNoOtherName();
    void nameOfAnotherRowSelectsNothing_data();
    void nameOfAnotherRowSelectsNothing();
    void anotherItemCanBeChosenWhileEditing();
    void returnGoesToTheParentAndTheNameStays_data();
    void returnGoesToTheParentAndTheNameStays();
    void returnPressesTheDefaultButton();
    void returnPressesNoButtonOfTheBar();
    void enterWritesTheTypedNameBack();
    void enterWithoutALineEditDoesNothing();
    void currentNameIsWrittenWhileItCanBeEdited();
    void writtenNameIsNotRemembered();
    void notEditableTakesTheConnectionsAway();
    void sameItemUnderATypedNameIsAChange();
    void endingShowsTheNameOfTheModel();
    void renamingInTheModelChangesTheBox();
    void settingsOfTheHostOutlastAnEdit();
};

void TestTXSelectionItemWidgetEditing::barStartsBrowsing()
{
    const PresetBar bar;
    QCOMPARE(enabledButtons(bar), kAllButtons);
    QVERIFY(!bar.findChild<QComboBox *>()->isEditable());
}

void TestTXSelectionItemWidgetEditing::editButtonStartsEditing()
{
    PresetBar bar;
    EmissionLog log(bar);
    QTest::mouseClick(bar.editItemButton(), Qt::LeftButton);
    QCOMPARE(log.take(), QStringList({"edit"}));
    QCOMPARE(enabledButtons(bar), QStringList({"SaveButton"}));
    QVERIFY(bar.itemComboBox()->isEditable());
    QVERIFY(bar.itemComboBox()->isEnabled());
    QTest::mouseClick(bar.saveItemButton(), Qt::LeftButton);
    QCOMPARE(log.take(), QStringList({"save"}));
    QVERIFY(bar.itemComboBox()->isEditable());
}

using Start = void (*)(TXSelectionItemWidget &bar);

void TestTXSelectionItemWidgetEditing::editingIsStarted_data()
{
    QTest::addColumn<Start>("start");
    QTest::addColumn<QStringList>("emitted");
    QTest::newRow("with signal") << Start([](TXSelectionItemWidget &bar) {
        bar.startItemEdition(true);
    }) << QStringList("edit");
    QTest::newRow("by default") << Start([](TXSelectionItemWidget &bar) { bar.startItemEdition(); })
                                << QStringList("edit");
    QTest::newRow("by name") << Start([](TXSelectionItemWidget &bar) {
        call(bar, "startItemEdition");
    }) << QStringList("edit");
    QTest::newRow("without signal")
        << Start([](TXSelectionItemWidget &bar) { bar.startItemEdition(false); }) << QStringList();
    QTest::newRow("forced") << Start([](TXSelectionItemWidget &bar) {
        bar.forceStartItemEdition();
    }) << QStringList();
}

void TestTXSelectionItemWidgetEditing::editingIsStarted()
{
    QFETCH(Start, start);
    QFETCH(QStringList, emitted);
    PresetBar bar;
    bar.enableSaveItemButton(false);
    EmissionLog log(bar);
    start(bar);
    QCOMPARE(log.take(), emitted);
    QCOMPARE(enabledButtons(bar), QStringList({"SaveButton"}));
    QCOMPARE(bar.itemComboBox()->lineEdit()->text(), "Press");
}

void TestTXSelectionItemWidgetEditing::endingEnablesAllButSave()
{
    PresetBar bar;
    bar.startItemEdition();
    bar.enableRemoveItemButton(false);
    EmissionLog log(bar);
    bar.endItemEdition();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(enabledButtons(bar), kAllButSave);
    QVERIFY(!bar.itemComboBox()->isEditable());
}

void TestTXSelectionItemWidgetEditing::endWithoutStartOnlyDisablesSave()
{
    PresetBar bar;
    EmissionLog log(bar);
    bar.endItemEdition();
    bar.endItemEdition();
    QCOMPARE(enabledButtons(bar), kAllButSave);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(bar.getSelectedItemName(), "Press");
}

void TestTXSelectionItemWidgetEditing::startTwiceIsTwoRequestsAndOneConnection()
{
    PresetBar bar;
    EmissionLog log(bar);
    bar.startItemEdition();
    bar.startItemEdition();
    QCOMPARE(log.take(), QStringList({"edit", "edit"}));
    QTest::keyClick(bar.itemComboBox()->lineEdit(), Qt::Key_End);
    QTest::keyClicks(bar.itemComboBox(), "2");
    QCOMPARE(log.take(), QStringList({"name Press2"}));
}

void TestTXSelectionItemWidgetEditing::editableTwiceTellsEachKeyOnce()
{
    PresetBar bar;
    EmissionLog log(bar);
    bar.setItemComboBoxEditable(true);
    bar.setItemComboBoxEditable(true);
    QCOMPARE(enabledButtons(bar), kAllButtons);
    bar.itemComboBox()->lineEdit()->clear();
    QTest::keyClicks(bar.itemComboBox(), "Xy");
    QCOMPARE(log.take(), QStringList({"name X", "name Xy"}));
}

void TestTXSelectionItemWidgetEditing::namesThatMayNotBeTypedLeaveTheBoxAsItIs()
{
    PresetBar bar;
    EmissionLog log(bar);
    bar.allowComboboxNameEdition(false);
    bar.startItemEdition();
    QCOMPARE(log.take(), QStringList({"edit"}));
    QVERIFY(!bar.itemComboBox()->isEditable());
    QVERIFY(bar.itemComboBox()->isEnabled());
    QCOMPARE(enabledButtons(bar), QStringList({"SaveButton"}));
    bar.setCurrentItemName("other");
    QCOMPARE(bar.getSelectedItemName(), "Press");
}

void TestTXSelectionItemWidgetEditing::permissionCountsFromTheNextStart()
{
    PresetBar bar;
    bar.startItemEdition();
    bar.allowComboboxNameEdition(false);
    QVERIFY(bar.itemComboBox()->isEditable());
    bar.startItemEdition();
    QVERIFY(!bar.itemComboBox()->isEditable());
    bar.allowComboboxNameEdition(true);
    QVERIFY(!bar.itemComboBox()->isEditable());
}

void TestTXSelectionItemWidgetEditing::typedNameIsTold()
{
    PresetBar bar;
    bar.startItemEdition();
    EmissionLog log(bar);
    bar.itemComboBox()->lineEdit()->selectAll();
    QTest::keyClick(bar.itemComboBox(), Qt::Key_Backspace);
    QTest::keyClicks(bar.itemComboBox(), "<b");
    QCOMPARE(log.take(), QStringList({"name ", "name <", "name <b"}));
    QCOMPARE(bar.getSelectedItemName(), "<b");
    QCOMPARE(bar.getSelectedItemUserData(), 2);
    call(bar, "itemNameHasBeenEdited", Q_ARG(QString, "told"));
    QCOMPARE(log.take(), QStringList({"name told"}));
}

void TestTXSelectionItemWidgetEditing::typingCompletesNoOtherName()
{
    PresetBar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    for (int time = 0; time < 2; ++time) {
        bar.startItemEdition();
        bar.itemComboBox()->setFocus();
        QVERIFY(!bar.itemComboBox()->completer());
        bar.itemComboBox()->lineEdit()->clear();
        QTest::keyClicks(bar.itemComboBox(), "Dr");
        QCOMPARE(bar.getSelectedItemName(), "Dr");
        bar.endItemEdition();
    }
}

void TestTXSelectionItemWidgetEditing::nameOfAnotherRowSelectsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("another item") << "Draft";
    QTest::newRow("the import") << "Load";
}

void TestTXSelectionItemWidgetEditing::nameOfAnotherRowSelectsNothing()
{
    QFETCH(QString, name);
    PresetBar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    for (int time = 0; time < 2; ++time) {
        bar.startItemEdition();
        bar.itemComboBox()->setFocus();
        QLineEdit *const edit = bar.itemComboBox()->lineEdit();
        edit->clear();
        QTest::keyClicks(bar.itemComboBox(), name);
        EmissionLog log(bar);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::mouseClick(bar.saveItemButton(), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), bar.saveItemButton());
        QCOMPARE(log.take(), QStringList({"save"}));
        QCOMPARE(bar.getSelectedItemUserData(), 2);
        QCOMPARE(bar.getSelectedItemName(), name);
        bar.endItemEdition();
    }
}

void TestTXSelectionItemWidgetEditing::anotherItemCanBeChosenWhileEditing()
{
    PresetBar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    bar.startItemEdition();
    QTest::keyClicks(bar.itemComboBox(), "x");
    EmissionLog log(bar);
    bar.itemComboBox()->showPopup();
    QTest::keyClick(bar.itemComboBox()->view(), Qt::Key_Down);
    QTest::keyClick(bar.itemComboBox()->view(), Qt::Key_Return);
    QCOMPARE(log.take(), QStringList({"changed 3"}));
    QCOMPARE(bar.itemComboBox()->lineEdit()->text(), "Draft");
}

void TestTXSelectionItemWidgetEditing::returnGoesToTheParentAndTheNameStays_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void TestTXSelectionItemWidgetEditing::returnGoesToTheParentAndTheNameStays()
{
    /// Counts the keys that nobody below has taken.
    class Parent : public QWidget
    {
    public:
        QList<int> keys;

    protected:
        void keyPressEvent(QKeyEvent *event) override { keys.append(event->key()); }
    };

    QFETCH(Qt::Key, key);
    Parent parent;
    auto *bar = new TXSelectionItemWidget(&parent);
    Presets presets;
    bar->setImportViaComboBox(false);
    bar->setModel(&presets, nullptr, nullptr);
    bar->startItemEdition();
    bar->itemComboBox()->lineEdit()->clear();
    QTest::keyClicks(bar->itemComboBox(), "Web");
    EmissionLog log(*bar);
    QTest::keyClick(bar->itemComboBox(), key);
    QCOMPARE(parent.keys, QList<int>({key}));
    QCOMPARE(bar->getSelectedItemName(), "Web");
    QCOMPARE(presets.rowCount(), 3);
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetEditing::returnPressesTheDefaultButton()
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    PresetBar bar;
    QPushButton accept("Accept");
    accept.setDefault(true);
    layout.addWidget(&bar);
    layout.addWidget(&accept);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QSignalSpy clicked(&accept, &QPushButton::clicked);
    bar.startItemEdition();
    bar.itemComboBox()->setFocus();
    bar.itemComboBox()->lineEdit()->clear();
    QTest::keyClicks(QApplication::focusWidget(), "Web");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(bar.getSelectedItemName(), "Web");
    QCOMPARE(bar.getSelectedItemUserData(), 2);
}

void TestTXSelectionItemWidgetEditing::returnPressesNoButtonOfTheBar()
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    PresetBar bar;
    QLineEdit other;
    layout.addWidget(&bar);
    layout.addWidget(&other);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    EmissionLog log(bar);
    for (QWidget *widget :
         {static_cast<QWidget *>(bar.itemComboBox()),
          static_cast<QWidget *>(bar.removeItemButton()), static_cast<QWidget *>(&other)}) {
        widget->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
        QCOMPARE(log.take(), QStringList());
    }
    bar.startItemEdition(false);
    bar.itemComboBox()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(dialog.isVisible());
}

void TestTXSelectionItemWidgetEditing::enterWritesTheTypedNameBack()
{
    PresetBar bar;
    bar.startItemEdition();
    QLineEdit *const edit = bar.itemComboBox()->lineEdit();
    edit->clear();
    QTest::keyClicks(bar.itemComboBox(), "Web");
    edit->setText("changed by something");
    call(bar, "enterPressed");
    QCOMPARE(bar.getSelectedItemName(), "Web");

    // Return that gets to the line edit itself.
    edit->setText("changed again");
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(bar.getSelectedItemName(), "Web");
    QCOMPARE(bar.getSelectedItemUserData(), 2);

    bar.setImportViaComboBox(false);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(bar.presets.rowCount(), 3);
}

void TestTXSelectionItemWidgetEditing::enterWithoutALineEditDoesNothing()
{
    PresetBar bar;
    EmissionLog log(bar);
    call(bar, "enterPressed");
    QCOMPARE(bar.getSelectedItemName(), "Press");
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetEditing::currentNameIsWrittenWhileItCanBeEdited()
{
    PresetBar bar;
    EmissionLog log(bar);
    bar.setCurrentItemName("Web");
    QCOMPARE(bar.getSelectedItemName(), "Press");
    bar.setItemComboBoxEditable(true);
    bar.setCurrentItemName("Web");
    QCOMPARE(bar.getSelectedItemName(), "Web");
    QCOMPARE(bar.presets.item(1)->text(), "Press");
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetEditing::writtenNameIsNotRemembered()
{
    PresetBar bar;
    bar.setItemComboBoxEditable(true);
    bar.setCurrentItemName("Web");
    call(bar, "enterPressed");
    QCOMPARE(bar.getSelectedItemName(), "Press");
}

void TestTXSelectionItemWidgetEditing::notEditableTakesTheConnectionsAway()
{
    PresetBar bar;
    bar.setItemComboBoxEditable(true);
    const QPointer<QLineEdit> edit = bar.itemComboBox()->lineEdit();
    bar.setItemComboBoxEditable(false);
    bar.setItemComboBoxEditable(false);
    QVERIFY(!bar.itemComboBox()->isEditable());
    EmissionLog log(bar);
    QVERIFY(edit);
    emit edit->textEdited("late");
    emit edit->returnPressed();
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetEditing::sameItemUnderATypedNameIsAChange()
{
    PresetBar bar;
    call(bar, "itemNameHasBeenEdited", Q_ARG(QString, "Web"));
    EmissionLog log(bar);
    call(bar, "currentItemChanged", Q_ARG(int, 1));
    QCOMPARE(log.take(), QStringList({"changed 2"}));
}

void TestTXSelectionItemWidgetEditing::endingShowsTheNameOfTheModel()
{
    PresetBar bar;
    bar.startItemEdition();
    bar.itemComboBox()->lineEdit()->clear();
    QTest::keyClicks(bar.itemComboBox(), "Web");
    bar.endItemEdition();
    QCOMPARE(bar.getSelectedItemName(), "Press");
}

void TestTXSelectionItemWidgetEditing::renamingInTheModelChangesTheBox()
{
    PresetBar bar;
    EmissionLog log(bar);
    bar.presets.item(1)->setText("Web");
    QCOMPARE(bar.getSelectedItemName(), "Web");
    bar.startItemEdition(false);
    bar.presets.item(1)->setText("Offset");
    QCOMPARE(bar.itemComboBox()->lineEdit()->text(), "Offset");
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetEditing::settingsOfTheHostOutlastAnEdit()
{
    PresetBar bar;
    QCOMPARE(bar.itemComboBox()->insertPolicy(), QComboBox::NoInsert);
    bar.itemComboBox()->setInsertPolicy(QComboBox::InsertAtTop);
    bar.startItemEdition();
    QCOMPARE(bar.itemComboBox()->insertPolicy(), QComboBox::InsertAtTop);
    QCompleter completer;
    bar.itemComboBox()->setCompleter(&completer);
    bar.startItemEdition();
    QCOMPARE(bar.itemComboBox()->completer(), &completer);
    bar.endItemEdition();
    QCOMPARE(bar.itemComboBox()->insertPolicy(), QComboBox::InsertAtTop);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetEditing>(argc, argv);
}

#include "tst_TXSelectionItemWidgetEditing.moc"
