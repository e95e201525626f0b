#include "TXSelectionItemWidget.h"

#include "SelectionBarHelpers.h"
#include "TestBase.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <algorithm>

/// What forms and hosts read of the controls of the bar, and write by properties.
class TestTXSelectionItemWidgetProperties : public TestBase
{
    Q_OBJECT

private slots:
    void enabledStateIsThatOfTheControl_data();
    void enabledStateIsThatOfTheControl();
    void enabledStatesFollowTheEdition();
    void entryOfTheMenuComesAndGoes_data();
    void entryOfTheMenuComesAndGoes();
    void importNameIsThatOfTheEntry();
    void basedNameStandsInAnEmptyBox();
    void toolTipIsThatOfTheButton();
    void widthsAreThoseOfLabelAndBox();
    void sizeAdjustPolicyIsThatOfTheBox();
};

void TestTXSelectionItemWidgetProperties::enabledStateIsThatOfTheControl_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("control");

    QTest::newRow("box") << QByteArray("itemComboBoxEnabled") << "itemComboBox";
    QTest::newRow("remove") << QByteArray("removeItemButtonEnabled") << "RemoveButton";
    QTest::newRow("export") << QByteArray("exportItemButtonEnabled") << "ExportButton";
    QTest::newRow("duplicate") << QByteArray("duplicateItemButtonEnabled") << "CopyButton";
    QTest::newRow("edit") << QByteArray("editionItemButtonEnabled") << "EditButton";
    QTest::newRow("save") << QByteArray("saveItemButtonEnabled") << "SaveButton";
}

void TestTXSelectionItemWidgetProperties::enabledStateIsThatOfTheControl()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QString, control);
    TXSelectionItemWidget bar;
    const auto *widget = bar.findChild<QWidget *>(control);
    QVERIFY(bar.property(property).toBool());
    bar.setEnabled(false);
    QVERIFY(bar.property(property).toBool());
    QVERIFY(bar.setProperty(property, false));
    bar.setEnabled(true);
    QVERIFY(!widget->isEnabled());
    QVERIFY(!bar.property(property).toBool());
    QVERIFY(bar.setProperty(property, true));
    QVERIFY(widget->isEnabled());
}

void TestTXSelectionItemWidgetProperties::enabledStatesFollowTheEdition()
{
    TXSelectionItemWidget bar;
    for (const bool isEdited : {true, false}) {
        if (isEdited) {
            bar.forceStartItemEdition();
        } else {
            bar.endItemEdition();
        }
        QCOMPARE(bar.isSaveItemButtonEnabled(), isEdited);
        QCOMPARE(bar.isRemoveItemButtonEnabled(), !isEdited);
        QCOMPARE(bar.isExportItemButtonEnabled(), !isEdited);
        QCOMPARE(bar.isDuplicateItemButtonEnabled(), !isEdited);
        QCOMPARE(bar.isEditionItemButtonEnabled(), !isEdited);
        QVERIFY(bar.isItemComboBoxEnabled());
    }
}

void TestTXSelectionItemWidgetProperties::entryOfTheMenuComesAndGoes_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("entry");

    QTest::newRow("new") << QByteArray("createNewItemMenuEnabled") << 1;
    QTest::newRow("duplicate") << QByteArray("duplicateItemMenuEnabled") << 2;
    QTest::newRow("import") << QByteArray("importItemMenuEnabled") << 3;
}

void TestTXSelectionItemWidgetProperties::entryOfTheMenuComesAndGoes()
{
    QFETCH(const QByteArray, property);
    QFETCH(const int, entry);
    TXSelectionItemWidget bar;
    const auto hasEntry = [&bar, entry] {
        const QList<QAction *> actions = menuButton(bar)->menu()->actions();
        return std::any_of(actions.begin(), actions.end(), [entry](const QAction *action) {
            return action->property("id").toInt() == entry;
        });
    };
    for (const bool isEnabled : {true, false, true}) {
        QVERIFY(bar.setProperty(property, isEnabled));
        QCOMPARE(hasEntry(), isEnabled);
        QCOMPARE(bar.property(property).toBool(), isEnabled);
    }
}

void TestTXSelectionItemWidgetProperties::importNameIsThatOfTheEntry()
{
    TXSelectionItemWidget bar;
    QCOMPARE(bar.property("importName").toString(), QStringLiteral("Load"));
    QVERIFY(bar.setProperty("importName", QStringLiteral("Read a file")));
    QCOMPARE(menuButton(bar)->menu()->actions().constLast()->text(), QStringLiteral("Read a file"));
    QCOMPARE(bar.property("importName").toString(), QStringLiteral("Read a file"));
}

void TestTXSelectionItemWidgetProperties::basedNameStandsInAnEmptyBox()
{
    QStandardItemModel empty;
    TXSelectionItemWidget bar;
    QCOMPARE(bar.property("itemBasedName").toString(), QStringLiteral("Item"));
    QVERIFY(bar.setProperty("itemBasedName", QStringLiteral("Preset")));
    bar.setModel(&empty, nullptr, nullptr);
    QCOMPARE(bar.itemComboBox()->itemText(0), QStringLiteral("Preset"));
    QVERIFY(bar.setProperty("itemBasedName", QString()));
    QCOMPARE(bar.property("itemBasedName").toString(), QStringLiteral("Preset"));
}

void TestTXSelectionItemWidgetProperties::toolTipIsThatOfTheButton()
{
    TXSelectionItemWidget bar;
    QCOMPARE(bar.exportButtonToolTip(), QStringLiteral("Export"));
    QVERIFY(bar.setProperty("exportButtonToolTip", QStringLiteral("Write a file")));
    QCOMPARE(bar.exportItemButton()->toolTip(), QStringLiteral("Write a file"));
    QCOMPARE(bar.exportButtonToolTip(), QStringLiteral("Write a file"));
}

void TestTXSelectionItemWidgetProperties::widthsAreThoseOfLabelAndBox()
{
    TXSelectionItemWidget bar;
    QCOMPARE(bar.labelMinimumWidth(), 0);
    QCOMPARE(bar.itemComboBoxMaximumWidth(), QWIDGETSIZE_MAX);
    QVERIFY(bar.setProperty("labelMinimumWidth", 120));
    QVERIFY(bar.setProperty("itemComboBoxMaximumWidth", 90));
    QCOMPARE(bar.findChild<QLabel *>(QStringLiteral("itemLabel"))->minimumWidth(), 120);
    QCOMPARE(bar.itemComboBox()->maximumWidth(), 90);
    QVERIFY(bar.setProperty("labelMinimumWidth", -1));
    QVERIFY(bar.setProperty("itemComboBoxMaximumWidth", -1));
    QCOMPARE(bar.labelMinimumWidth(), 0);
    QCOMPARE(bar.itemComboBoxMaximumWidth(), 0);
}

void TestTXSelectionItemWidgetProperties::sizeAdjustPolicyIsThatOfTheBox()
{
    TXSelectionItemWidget bar;
    QCOMPARE(bar.itemComboBoxSizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QVERIFY(bar.setProperty("itemComboBoxSizeAdjustPolicy", QComboBox::AdjustToContents));
    QCOMPARE(bar.itemComboBox()->sizeAdjustPolicy(), QComboBox::AdjustToContents);
    QCOMPARE(bar.itemComboBoxSizeAdjustPolicy(), QComboBox::AdjustToContents);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetProperties>(argc, argv);
}

#include "tst_TXSelectionItemWidgetProperties.moc"
