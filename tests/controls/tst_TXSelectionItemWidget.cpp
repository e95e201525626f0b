#include "TXSelectionItemWidget.h"

#include "ControlTestHelpers.h"
#include "SelectionBarHelpers.h"
#include "TXComboBoxEditable.h"
#include "TestBase.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>

#include <limits>

namespace {

QString accessibleNameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

class TestTXSelectionItemWidget : public TestBase
{
    Q_OBJECT

private slots:
    void signalsAndSlotsStandInOrder();
    void formIsALineOfTenControls();
    void layoutHasTheStatedMargins();
    void buttonShowsItsSign_data();
    void buttonShowsItsSign();
    void buttonsHaveTheIconFont();
    void everyButtonHasAReadableName();
    void boxIsNamedByItsLabelOrWhatItHolds();
    void nameGivenByTheHostStays();
    void onlyTheMenuButtonIsHiddenAtFirst();
    void tabGoesFromLeftToRight();
    void wheelNeverChangesTheSelection();
    void otherEventsReachTheBox();
    void buttonRequestsItsAction_data();
    void buttonRequestsItsAction();
    void pressingEverythingTwiceRequestsTwice();
    void enablingConcernsOneControl_data();
    void enablingConcernsOneControl();
    void hidingConcernsOneButton_data();
    void hidingConcernsOneButton();
    void labelIsSetAndRead();
    void boxTakesPolicyAndWidth();
    void impossibleWidthsAreCutInSilence();
};

void TestTXSelectionItemWidget::signalsAndSlotsStandInOrder()
{
    const QMetaObject &meta = TXSelectionItemWidget::staticMetaObject;
    QStringList names;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        names.append(QString::fromLatin1(meta.method(index).methodSignature()));
    }
    const QStringList expected{"addNewItemHasBeenRequest()",
                               "removeItemHasBeenRequest()",
                               "duplicateItemHasBeenRequest()",
                               "importItemHasBeenRequest()",
                               "importItemHasBeenRequest(QAction*)",
                               "exportItemHasBeenRequest()",
                               "editItemHasBeenRequest()",
                               "saveItemHasBeenRequest()",
                               "itemNameChanged(QString)",
                               "itemSelectionChanged(QVariant)",
                               "itemSelectionUpdated(QVariant)",
                               "forceStartItemEdition()",
                               "endItemEdition()",
                               "currentItemChanged(int)",
                               "enterPressed()",
                               "itemNameHasBeenEdited(QString)",
                               "addNewItemAction(QAction*)",
                               "startItemEdition(bool)",
                               "startItemEdition()"};
    QCOMPARE(names, expected);
}

void TestTXSelectionItemWidget::formIsALineOfTenControls()
{
    const TXSelectionItemWidget bar;
    QCOMPARE(bar.objectName(), "TXSelectionItemWidget");
    QCOMPARE(bar.size(), QSize(653, 38));
    QCOMPARE(bar.windowTitle(), "Form");
    QStringList names;
    for (int place = 0; place < bar.layout()->count(); ++place) {
        const QWidget *widget = bar.layout()->itemAt(place)->widget();
        names.append(widget->objectName() + ' ' + widget->metaObject()->className());
    }
    const QStringList expected{"itemLabel QLabel",         "itemComboBox TXComboBoxEditable",
                               "ImportButton QPushButton", "AddButton QPushButton",
                               "importButton QToolButton", "CopyButton QPushButton",
                               "EditButton QPushButton",   "RemoveButton QPushButton",
                               "ExportButton QPushButton", "SaveButton QPushButton"};
    QCOMPARE(names, expected);
}

void TestTXSelectionItemWidget::layoutHasTheStatedMargins()
{
    const TXSelectionItemWidget bar;
    const auto *layout = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), "horizontalLayout");
    QCOMPARE(layout->spacing(), 3);
    QCOMPARE(layout->contentsMargins(), QMargins(2, 0, 0, 0));
}

void TestTXSelectionItemWidget::buttonShowsItsSign_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sign");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("import") << "ImportButton" << QString(QChar(0xf019)) << "Import";
    QTest::newRow("add") << "AddButton"
                         << "+"
                         << "";
    QTest::newRow("menu") << "importButton"
                          << "+"
                          << "Add";
    QTest::newRow("duplicate") << "CopyButton" << QString(QChar(0xf0c5)) << "Duplicate";
    QTest::newRow("edit") << "EditButton" << QString(QChar(0xf044)) << "Edit";
    QTest::newRow("remove") << "RemoveButton"
                            << "-"
                            << "Delete";
    QTest::newRow("export") << "ExportButton" << QString(QChar(0xf093)) << "Export";
    QTest::newRow("save") << "SaveButton" << QString(QChar(0xf0c7)) << "Save";
}

void TestTXSelectionItemWidget::buttonShowsItsSign()
{
    QFETCH(QString, name);
    QFETCH(QString, sign);
    QFETCH(QString, toolTip);
    const TXSelectionItemWidget bar;
    const auto *button = bar.findChild<QAbstractButton *>(name);
    QVERIFY(button);
    QCOMPARE(button->text(), sign);
    QCOMPARE(button->toolTip(), toolTip);
    QVERIFY(button->isEnabled());
}

void TestTXSelectionItemWidget::buttonsHaveTheIconFont()
{
    TXSelectionItemWidget bar;
    const QList<QAbstractButton *> buttons = buttonsOf(bar);
    QCOMPARE(buttons.size(), 8);
    for (const QAbstractButton *button : buttons) {
        QCOMPARE(button->font().family(), "la-solid-900");
        QCOMPARE(button->font().pointSize(), 12);
    }
    QCOMPARE(menuButton(bar)->popupMode(), QToolButton::InstantPopup);
}

void TestTXSelectionItemWidget::everyButtonHasAReadableName()
{
    const TXSelectionItemWidget bar;
    QStringList names;
    const QList<QAbstractButton *> buttons = buttonsOf(bar);
    for (QAbstractButton *button : buttons) {
        names.append(accessibleNameOf(button));
    }
    QCOMPARE(
        names,
        QStringList({"Import", "Add", "Add", "Duplicate", "Edit", "Delete", "Export", "Save"}));
}

void TestTXSelectionItemWidget::boxIsNamedByItsLabelOrWhatItHolds()
{
    TXSelectionItemWidget bar;
    QCOMPARE(bar.findChild<QLabel *>("itemLabel")->buddy(), bar.itemComboBox());
    QCOMPARE(accessibleNameOf(bar.itemComboBox()), "Item");
    bar.setItemBasedName("Preset");
    QCOMPARE(accessibleNameOf(bar.itemComboBox()), "Preset");
    bar.setLabelName("&Paper");
    QCOMPARE(accessibleNameOf(bar.itemComboBox()), "Paper");
    bar.setLabelName(QString());
    QCOMPARE(accessibleNameOf(bar.itemComboBox()), "Preset");

    bar.setItemComboBoxEditable(true);
    QCOMPARE(accessibleNameOf(bar.itemComboBox()->lineEdit()), "Name");
}

void TestTXSelectionItemWidget::nameGivenByTheHostStays()
{
    TXSelectionItemWidget bar;
    bar.itemComboBox()->setAccessibleName("Papers of this house");
    bar.setLabelName("Paper");
    bar.setLabelName(QString());
    bar.setItemBasedName("Preset");
    QCOMPARE(accessibleNameOf(bar.itemComboBox()), "Papers of this house");
}

void TestTXSelectionItemWidget::onlyTheMenuButtonIsHiddenAtFirst()
{
    TXSelectionItemWidget bar;
    const QList<QAbstractButton *> buttons = buttonsOf(bar);
    for (const QAbstractButton *button : buttons) {
        QCOMPARE(button->isHidden(), button == menuButton(bar));
    }
    bar.setImportViaComboBox(false);
    QVERIFY(menuButton(bar)->isHidden());
    bar.setVisibleImportButton(true);
    QVERIFY(!menuButton(bar)->isHidden());
    bar.setImportViaComboBox(true);
    QVERIFY(!menuButton(bar)->isHidden());
    bar.setVisibleImportButton(false);
    QVERIFY(menuButton(bar)->isHidden());
}

void TestTXSelectionItemWidget::tabGoesFromLeftToRight()
{
    TXSelectionItemWidget bar;
    bar.setVisibleImportButton(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    bar.itemComboBox()->setFocus();
    QStringList names;
    for (int step = 0; step < 9; ++step) {
        names.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names,
             QStringList({"itemComboBox", "ImportButton", "AddButton", "importButton", "CopyButton",
                          "EditButton", "RemoveButton", "ExportButton", "SaveButton"}));
    QCOMPARE(QApplication::focusWidget(), bar.itemComboBox());
}

void TestTXSelectionItemWidget::wheelNeverChangesTheSelection()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    bar.selectItem(2);
    EmissionLog log(bar);
    turnWheel(bar.itemComboBox());
    bar.setItemComboBoxEditable(true);
    turnWheel(bar.itemComboBox());
    turnWheel(bar.itemComboBox()->lineEdit());
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(bar.getSelectedItemUserData(), 2);

    QWheelEvent wheel(QPointF(), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QVERIFY(bar.eventFilter(bar.itemComboBox(), &wheel));
}

void TestTXSelectionItemWidget::otherEventsReachTheBox()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::MouseMove, QEvent::ToolTip,
                                    QEvent::FontChange, QEvent::StyleChange, QEvent::Paint}) {
        QEvent event(type);
        QVERIFY(!bar.eventFilter(bar.itemComboBox(), &event));
    }
    QTest::keyClick(bar.itemComboBox(), Qt::Key_Down);
    QCOMPARE(bar.getSelectedItemUserData(), 2);
}

void TestTXSelectionItemWidget::buttonRequestsItsAction_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("request");
    QTest::newRow("import") << "ImportButton"
                            << "import";
    QTest::newRow("add") << "AddButton"
                         << "add";
    QTest::newRow("duplicate") << "CopyButton"
                               << "duplicate";
    QTest::newRow("edit") << "EditButton"
                          << "edit";
    QTest::newRow("remove") << "RemoveButton"
                            << "remove";
    QTest::newRow("export") << "ExportButton"
                            << "export";
    QTest::newRow("save") << "SaveButton"
                          << "save";
}

void TestTXSelectionItemWidget::buttonRequestsItsAction()
{
    QFETCH(QString, name);
    QFETCH(QString, request);
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    auto *button = bar.findChild<QAbstractButton *>(name);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(log.take(), QStringList({request}));

    bar.endItemEdition();
    button->setEnabled(true);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(log.take(), QStringList({request}));
}

void TestTXSelectionItemWidget::pressingEverythingTwiceRequestsTwice()
{
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    for (QPushButton *button :
         {bar.importItemButton(), bar.addNewItemButton(), bar.duplicateItemButton(),
          bar.removeItemButton(), bar.exportItemButton(), bar.saveItemButton()}) {
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(log.take(),
             QStringList({"import", "import", "add", "add", "duplicate", "duplicate", "remove",
                          "remove", "export", "export", "save", "save"}));
}

using Enable = void (TXSelectionItemWidget::*)(bool);

void TestTXSelectionItemWidget::enablingConcernsOneControl_data()
{
    using Bar = TXSelectionItemWidget;
    QTest::addColumn<Enable>("enable");
    QTest::addColumn<QString>("name");
    QTest::newRow("box") << Enable(&Bar::enableItemComboBox) << "itemComboBox";
    QTest::newRow("remove") << Enable(&Bar::enableRemoveItemButton) << "RemoveButton";
    QTest::newRow("export") << Enable(&Bar::enableExportItemButton) << "ExportButton";
    QTest::newRow("duplicate") << Enable(&Bar::enableDuplicateItemButton) << "CopyButton";
    QTest::newRow("edit") << Enable(&Bar::enableEditionItemButton) << "EditButton";
    QTest::newRow("save") << Enable(&Bar::enableSaveItemButton) << "SaveButton";
}

void TestTXSelectionItemWidget::enablingConcernsOneControl()
{
    QFETCH(Enable, enable);
    QFETCH(QString, name);
    TXSelectionItemWidget bar;
    (bar.*enable)(false);
    const auto children = bar.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        QCOMPARE(child->isEnabled(), child->objectName() != name);
    }
    (bar.*enable)(true);
    QVERIFY(bar.findChild<QWidget *>(name)->isEnabled());
}

using Hide = void (TXSelectionItemWidget::*)();

void TestTXSelectionItemWidget::hidingConcernsOneButton_data()
{
    using Bar = TXSelectionItemWidget;
    QTest::addColumn<Hide>("hide");
    QTest::addColumn<QString>("name");
    QTest::newRow("add") << Hide(&Bar::hideAddNewItemButton) << "AddButton";
    QTest::newRow("remove") << Hide(&Bar::hideRemoveButton) << "RemoveButton";
    QTest::newRow("export") << Hide(&Bar::hideExportButton) << "ExportButton";
    QTest::newRow("duplicate") << Hide(&Bar::hideDuplicateItemButton) << "CopyButton";
    QTest::newRow("save") << Hide(&Bar::hideSaveItemButton) << "SaveButton";
    QTest::newRow("edit") << Hide(&Bar::hideEditionItemButton) << "EditButton";
    QTest::newRow("import") << Hide(&Bar::hideImportItemButton) << "ImportButton";
}

void TestTXSelectionItemWidget::hidingConcernsOneButton()
{
    QFETCH(Hide, hide);
    QFETCH(QString, name);
    TXSelectionItemWidget bar;
    bar.setVisibleImportButton(true);
    (bar.*hide)();
    const QList<QAbstractButton *> buttons = buttonsOf(bar);
    for (const QAbstractButton *button : buttons) {
        QCOMPARE(button->isHidden(), button->objectName() == name);
    }
}

void TestTXSelectionItemWidget::labelIsSetAndRead()
{
    TXSelectionItemWidget bar;
    auto *label = bar.findChild<QLabel *>("itemLabel");
    QCOMPARE(bar.labelName(), QString());
    bar.setLabelName("Paper <b>");
    QCOMPARE(bar.labelName(), "Paper <b>");
    QFont font;
    font.setPointSize(23);
    label->setFont(font);
    QCOMPARE(bar.labelFont().pointSize(), 23);
    bar.setLabelMinimumWidth(120);
    QCOMPARE(label->minimumWidth(), 120);
    bar.setVisibleItemLabel(false);
    QVERIFY(label->isHidden());
    bar.setVisibleItemLabel(true);
    QVERIFY(!label->isHidden());
}

void TestTXSelectionItemWidget::boxTakesPolicyAndWidth()
{
    TXSelectionItemWidget bar;
    QCOMPARE(bar.itemComboBox()->sizeAdjustPolicy(),
             QComboBox::AdjustToMinimumContentsLengthWithIcon);
    bar.setItemComboBoxSizeAdjustPolicy(QComboBox::AdjustToContents);
    QCOMPARE(bar.itemComboBox()->sizeAdjustPolicy(), QComboBox::AdjustToContents);
    bar.setItemComboBoxMaximumWidth(90);
    QCOMPARE(bar.itemComboBox()->maximumWidth(), 90);
    bar.setExportButtonToolTip("Write a file");
    QCOMPARE(bar.exportItemButton()->toolTip(), "Write a file");
}

void TestTXSelectionItemWidget::impossibleWidthsAreCutInSilence()
{
    TXSelectionItemWidget bar;
    bar.setLabelMinimumWidth(-5);
    QCOMPARE(bar.findChild<QLabel *>("itemLabel")->minimumWidth(), 0);
    bar.setItemComboBoxMaximumWidth(-5);
    QCOMPARE(bar.itemComboBox()->maximumWidth(), 0);
    bar.setItemComboBoxMaximumWidth(std::numeric_limits<int>::max());
    QCOMPARE(bar.itemComboBox()->maximumWidth(), QWIDGETSIZE_MAX);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidget>(argc, argv);
}

#include "tst_TXSelectionItemWidget.moc"
