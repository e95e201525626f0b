#include "DialogDriver.h"
#include "PageChecks.h"
#include "PatchWindow.h"
#include "TestBase.h"
#include "WidgetStatePanel.h"
#include "WidgetStateTree.h"

#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>

#include <memory>

class TestWidgetStatePanel : public TestBase
{
    Q_OBJECT

private slots:
    void windowOpensWithAClick();
    void keptStateIsGivenBack();
    void closedWindowIsOpenedAgain();
    void nothingIsGivenBackBeforeItWasKept();
    void keptStateIsListed();
    void secondStateTakesThePlaceOfTheFirst();
    void differenceIsReckonedFromTheAim();
    void everyTextFollowsTheLanguage();
    void numbersFollowTheLanguage();

protected:
    void prepare() override;
    void finish() override;

private:
    /// What a user would see of the window's state.
    struct Look
    {
        QSize size;
        QList<int> parts;
        QList<int> widths;
        QList<int> order;
    };

    void click(const QString &text) { DialogDriver::click(buttonOf(*panel, text)); }
    PatchWindow *window() const { return panel->stateWindow(); }
    QTreeWidget *patches() const { return window()->findChild<QTreeWidget *>("patchTree"); }
    Look look() const;
    QTreeWidgetItem *entry(const QStringList &keys) const;

    std::unique_ptr<WidgetStatePanel> panel;
};

void TestWidgetStatePanel::prepare()
{
    QLocale::setDefault(QLocale("en"));
    panel = std::make_unique<WidgetStatePanel>();
    panel->show();
}

void TestWidgetStatePanel::finish()
{
    panel.reset();
    QLocale::setDefault(QLocale::system());
}

TestWidgetStatePanel::Look TestWidgetStatePanel::look() const
{
    // Layouts put their work off.
    QCoreApplication::processEvents();
    Look seen = {window()->size(), window()->findChild<QSplitter *>()->sizes(), {}, {}};
    const QHeaderView *header = patches()->header();
    for (int column = 0; column < header->count(); ++column) {
        seen.widths.append(header->sectionSize(column));
        seen.order.append(header->visualIndex(column));
    }
    return seen;
}

/// The line of the list under these keys, from the outermost to the innermost, or null.
QTreeWidgetItem *TestWidgetStatePanel::entry(const QStringList &keys) const
{
    QTreeWidgetItem *item = panel->findChild<WidgetStateTree *>()->invisibleRootItem();
    for (const QString &key : keys) {
        QTreeWidgetItem *next = nullptr;
        for (int i = 0; i < item->childCount(); ++i) {
            next = item->child(i)->text(0) == key ? item->child(i) : next;
        }
        if (!next) {
            return nullptr;
        }
        item = next;
    }
    return item;
}

void TestWidgetStatePanel::windowOpensWithAClick()
{
    QVERIFY(!window()->isVisible());

    click("Open Window");

    QVERIFY(window()->isVisible());
    QVERIFY(window()->isWindow());
}

void TestWidgetStatePanel::keptStateIsGivenBack()
{
    click("Open Window");
    patches()->header()->resizeSection(2, 91);
    const Look kept = look();
    click("Keep State");

    click("Disarrange");
    const Look disarranged = look();
    QVERIFY(disarranged.size != kept.size);
    QVERIFY(disarranged.parts != kept.parts);
    QVERIFY(disarranged.widths != kept.widths);
    QVERIFY(disarranged.order != kept.order);

    click("Restore State");

    const Look restored = look();
    QCOMPARE(restored.size, kept.size);
    QCOMPARE(restored.parts, kept.parts);
    QCOMPARE(restored.widths, kept.widths);
    QCOMPARE(restored.order, kept.order);
}

void TestWidgetStatePanel::closedWindowIsOpenedAgain()
{
    click("Open Window");
    click("Keep State");
    const Look kept = look();
    window()->close();

    click("Disarrange");
    QVERIFY(window()->isVisible());
    window()->close();

    click("Restore State");
    QVERIFY(window()->isVisible());
    QCOMPARE(look().order, kept.order);
    QCOMPARE(look().size, kept.size);
}

void TestWidgetStatePanel::nothingIsGivenBackBeforeItWasKept()
{
    QVERIFY(!buttonOf(*panel, "Restore State")->isEnabled());

    click("Keep State");

    QVERIFY(buttonOf(*panel, "Restore State")->isEnabled());
}

void TestWidgetStatePanel::keptStateIsListed()
{
    QVERIFY(!entry({"patchWindow"}));

    click("Open Window");
    click("Keep State");

    const QStringList splitter = {"patchWindow", "children", "patchSplitter"};
    const QStringList tree = splitter + QStringList({"children", "patchTree"});
    const QList<QStringList> states = {
        {"patchWindow", "geometry"},
        {"patchWindow", "state"},
        splitter + QStringList("state"),
        tree + QStringList("geometry"),
        tree + QStringList({"headerState", "horizontalState"}),
        splitter + QStringList({"children", "inkTable", "headerState", "horizontalState"}),
    };
    for (const QStringList &keys : states) {
        QVERIFY2(entry(keys), qPrintable(keys.join('/')));
        QVERIFY2(entry(keys)->text(1).toInt() > 0, qPrintable(keys.join('/')));
    }
    QVERIFY(!entry(tree + QStringList("state")));
    QVERIFY(entry(tree)->isExpanded());
    QVERIFY(!entry(tree + QStringList("children"))->isExpanded());
    QCOMPARE(entry({"patchWindow"})->child(0), entry({"patchWindow", "geometry"}));
}

void TestWidgetStatePanel::secondStateTakesThePlaceOfTheFirst()
{
    click("Keep State");
    click("Disarrange");
    const Look disarranged = look();

    click("Keep State");

    QCOMPARE(panel->findChild<WidgetStateTree *>()->topLevelItemCount(), 1);
    patches()->header()->resizeSection(0, 200);
    click("Restore State");
    QCOMPARE(look().widths, disarranged.widths);
}

void TestWidgetStatePanel::differenceIsReckonedFromTheAim()
{
    const QTreeWidgetItem *magenta = patches()->topLevelItem(0)->child(1);

    QCOMPARE(magenta->text(0), "Magenta");
    QCOMPARE(magenta->text(2), "75.3");
    // 0.9, 1.3 and 1.4 apart.
    QCOMPARE(magenta->text(4), "2.1");
}

void TestWidgetStatePanel::everyTextFollowsTheLanguage()
{
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(smallTexts(*panel, {}), QStringList());
    QCOMPARE(window()->windowTitle(), "SOLID COLOURS");
    QCOMPARE(patches()->topLevelItem(1)->child(2)->text(0), "BLUE");
    QCOMPARE(patches()->headerItem()->text(0), "PATCH");
    QCOMPARE(panel->findChild<WidgetStateTree *>()->headerItem()->text(1), "BYTES");
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

void TestWidgetStatePanel::numbersFollowTheLanguage()
{
    PatchWindow numbers;
    QLocale::setDefault(QLocale("de"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&numbers, &change);
    QLocale::setDefault(QLocale::system());

    const auto *group = numbers.findChild<QTreeWidget *>("patchTree")->topLevelItem(0);
    QCOMPARE(group->child(0)->text(1), "55,8");
    QCOMPARE(numbers.findChild<QTableWidget *>("inkTable")->item(0, 1)->text(), "1,42");
}

int main(int argc, char **argv)
{
    return runTest<TestWidgetStatePanel>(argc, argv);
}

#include "tst_WidgetStatePanel.moc"
