#include "TXSelectionItemWidget.h"

#include "SelectionBarHelpers.h"
#include "TestBase.h"

#include <QMenu>
#include <QTimer>

namespace {

/// The entries of a menu, such as "1 Create New".
QStringList entriesOf(const QMenu *menu)
{
    QStringList entries;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        entries.append(QString::number(action->property("id").toInt()) + ' ' + action->text());
    }
    return entries;
}

void deleteWhatIsToBeDeleted()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Opens the menu of the button as a user does and chooses an entry by the keyboard.
void chooseEntry(TXSelectionItemWidget &bar, int entry)
{
    bool isChosen = false;
    QTimer::singleShot(0, &bar, [&bar, &isChosen, entry] {
        QMenu *menu = menuButton(bar)->menu();
        isChosen = menu->isVisible();
        menu->setActiveAction(menu->actions().at(entry));
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::mouseClick(menuButton(bar), Qt::LeftButton);
    QVERIFY(isChosen);
}

} // namespace

class TestTXSelectionItemWidgetMenus : public TestBase
{
    Q_OBJECT

private slots:
    void defaultMenuIsInstalledFromTheStart();
    void entriesHaveNumbersAndParents();
    void menuHasTheEntriesThatAreEnabled_data();
    void menuHasTheEntriesThatAreEnabled();
    void eachSettingInstallsAFreshMenu();
    void importNameIsThatOfTheEntry();
    void menuMadeButNotInstalledBelongsToTheBar();
    void chosenEntryRaisesBothRequests_data();
    void chosenEntryRaisesBothRequests();
    void specificRequestComesOfTheGeneralOne();
    void actionsWithoutANumberAreIgnored();
    void withoutMenuTheButtonRequestsTheImport();
    void menuAgainTakesTheClickAway();
    void ownMenuIsToldByItsAction();
    void replacedMenuIsDeletedLater();
    void presentMenuStaysWhenItIsSetAgain();
    void menuOfAForeignParentIsTakenLikeAnyOther();
    void deletedMenuIsForgotten();
    void emptyMenuCanBeOpened();
    void menuReplacedByItsOwnEntry();
};

void TestTXSelectionItemWidgetMenus::defaultMenuIsInstalledFromTheStart()
{
    TXSelectionItemWidget bar;
    const QMenu *menu = menuButton(bar)->menu();
    QVERIFY(menu);
    QCOMPARE(entriesOf(menu), QStringList({"1 Create New", "2 Duplicate", "3 Load"}));
}

void TestTXSelectionItemWidgetMenus::entriesHaveNumbersAndParents()
{
    TXSelectionItemWidget bar;
    QMenu *const menu = bar.fillDefaultAddItemMenu();
    QCOMPARE(menu->parent(), &bar);
    QVERIFY(menu != menuButton(bar)->menu());
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        QCOMPARE(action->parent(), menu);
        QCOMPARE(action->property("id").metaType(), QMetaType(QMetaType::Int));
    }
}

void TestTXSelectionItemWidgetMenus::menuHasTheEntriesThatAreEnabled_data()
{
    QTest::addColumn<bool>("create");
    QTest::addColumn<bool>("duplicate");
    QTest::addColumn<bool>("import");
    QTest::addColumn<QStringList>("entries");
    for (int mask = 0; mask < 8; ++mask) {
        QStringList entries;
        entries += mask & 1 ? QStringList("1 Create New") : QStringList();
        entries += mask & 2 ? QStringList("2 Duplicate") : QStringList();
        entries += mask & 4 ? QStringList("3 Load") : QStringList();
        QTest::addRow("%d", mask) << bool(mask & 1) << bool(mask & 2) << bool(mask & 4) << entries;
    }
}

void TestTXSelectionItemWidgetMenus::menuHasTheEntriesThatAreEnabled()
{
    QFETCH(bool, create);
    QFETCH(bool, duplicate);
    QFETCH(bool, import);
    TXSelectionItemWidget bar;
    bar.enableCreateNewItemMenu(create);
    bar.enableDuplicateItemMenu(duplicate);
    bar.enableImportItemMenu(import);
    QTEST(entriesOf(menuButton(bar)->menu()), "entries");
    QTEST(entriesOf(bar.fillDefaultAddItemMenu()), "entries");
}

void TestTXSelectionItemWidgetMenus::eachSettingInstallsAFreshMenu()
{
    TXSelectionItemWidget bar;
    const auto isFresh = [&bar](const auto &set) {
        const QPointer<QMenu> before = menuButton(bar)->menu();
        set();
        const bool isOther = menuButton(bar)->menu() && menuButton(bar)->menu() != before;
        deleteWhatIsToBeDeleted();
        return isOther && !before;
    };
    QVERIFY(isFresh([&bar] { bar.enableCreateNewItemMenu(true); }));
    QVERIFY(isFresh([&bar] { bar.enableDuplicateItemMenu(true); }));
    QVERIFY(isFresh([&bar] { bar.enableImportItemMenu(true); }));
    QVERIFY(isFresh([&bar] { bar.setImportName("Load"); }));
    bar.setImportToolButtonMenu(nullptr);
    QVERIFY(!menuButton(bar)->menu());
    bar.setImportName("Load");
    QCOMPARE(entriesOf(menuButton(bar)->menu()).size(), 3);
    deleteWhatIsToBeDeleted();
    QCOMPARE(bar.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

void TestTXSelectionItemWidgetMenus::importNameIsThatOfTheEntry()
{
    Presets presets;
    TXSelectionItemWidget bar;
    bar.setModel(&presets, nullptr, nullptr);
    bar.setImportName("Read <file>");
    QCOMPARE(entriesOf(menuButton(bar)->menu()).last(), "3 Read <file>");
    QCOMPARE(shownNames(bar).last(), "Load");
    bar.setImportName(QString());
    QCOMPARE(entriesOf(menuButton(bar)->menu()).last(), "3 ");
}

void TestTXSelectionItemWidgetMenus::menuMadeButNotInstalledBelongsToTheBar()
{
    QPointer<QMenu> made;
    QPointer<QMenu> installed;
    {
        TXSelectionItemWidget bar;
        made = bar.fillDefaultAddItemMenu();
        installed = menuButton(bar)->menu();
    }
    QVERIFY(!made);
    QVERIFY(!installed);
}

void TestTXSelectionItemWidgetMenus::chosenEntryRaisesBothRequests_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QStringList>("emitted");
    // The bar itself is the first to hear of the entry.
    QTest::newRow("create") << 0 << QStringList({"add", "entry Create New"});
    QTest::newRow("duplicate") << 1 << QStringList({"duplicate", "entry Duplicate"});
    QTest::newRow("import") << 2 << QStringList({"import", "entry Load"});
}

void TestTXSelectionItemWidgetMenus::chosenEntryRaisesBothRequests()
{
    QFETCH(int, entry);
    TXSelectionItemWidget bar;
    bar.setVisibleImportButton(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    EmissionLog log(bar);
    chooseEntry(bar, entry);
    QTEST(log.take(), "emitted");
    chooseEntry(bar, entry);
    QTEST(log.take(), "emitted");
}

void TestTXSelectionItemWidgetMenus::specificRequestComesOfTheGeneralOne()
{
    TXSelectionItemWidget bar;
    QAction *const create = menuButton(bar)->menu()->actions().constFirst();
    EmissionLog log(bar);
    emit bar.importItemHasBeenRequest(create);
    QCOMPARE(log.take(), QStringList({"add", "entry Create New"}));

    QVERIFY(QObject::disconnect(&bar, SIGNAL(importItemHasBeenRequest(QAction *)), &bar,
                                SLOT(addNewItemAction(QAction *))));
    emit menuButton(bar)->triggered(create);
    QCOMPARE(log.take(), QStringList({"entry Create New"}));
}

void TestTXSelectionItemWidgetMenus::actionsWithoutANumberAreIgnored()
{
    TXSelectionItemWidget bar;
    EmissionLog log(bar);
    QAction action("other");
    bar.addNewItemAction(nullptr);
    bar.addNewItemAction(&action);
    for (const QVariant &id : {QVariant(0), QVariant(4), QVariant(-1), QVariant("x")}) {
        action.setProperty("id", id);
        bar.addNewItemAction(&action);
    }
    QCOMPARE(log.take(), QStringList());
    action.setProperty("id", "2");
    bar.addNewItemAction(&action);
    QCOMPARE(log.take(), QStringList({"duplicate"}));
    emit bar.importItemHasBeenRequest(nullptr);
    QCOMPARE(log.take(), QStringList({"entry none"}));
}

void TestTXSelectionItemWidgetMenus::withoutMenuTheButtonRequestsTheImport()
{
    TXSelectionItemWidget bar;
    bar.setImportToolButtonMenu(nullptr);
    bar.setImportToolButtonMenu(nullptr);
    EmissionLog log(bar);
    QTest::mouseClick(menuButton(bar), Qt::LeftButton);
    QCOMPARE(log.take(), QStringList({"import"}));
    emit menuButton(bar)->triggered(nullptr);
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetMenus::menuAgainTakesTheClickAway()
{
    TXSelectionItemWidget bar;
    bar.setImportToolButtonMenu(nullptr);
    bar.enableImportItemMenu(true);
    bar.enableImportItemMenu(true);
    EmissionLog log(bar);
    emit menuButton(bar)->clicked();
    QCOMPARE(log.take(), QStringList());
    emit menuButton(bar)->triggered(menuButton(bar)->menu()->actions().constLast());
    QCOMPARE(log.take(), QStringList({"import", "entry Load"}));
}

void TestTXSelectionItemWidgetMenus::ownMenuIsToldByItsAction()
{
    TXSelectionItemWidget bar;
    bar.setVisibleImportButton(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    auto *menu = new QMenu(&bar);
    menu->addAction("From a folder");
    bar.setImportToolButtonMenu(menu);
    EmissionLog log(bar);
    chooseEntry(bar, 0);
    QCOMPARE(log.take(), QStringList({"entry From a folder"}));
}

void TestTXSelectionItemWidgetMenus::replacedMenuIsDeletedLater()
{
    TXSelectionItemWidget bar;
    const QPointer<QMenu> first = menuButton(bar)->menu();
    auto *second = new QMenu(&bar);
    bar.setImportToolButtonMenu(second);
    QVERIFY(first);
    deleteWhatIsToBeDeleted();
    QVERIFY(!first);
    QCOMPARE(menuButton(bar)->menu(), second);
}

void TestTXSelectionItemWidgetMenus::presentMenuStaysWhenItIsSetAgain()
{
    TXSelectionItemWidget bar;
    const QPointer<QMenu> menu = menuButton(bar)->menu();
    bar.setImportToolButtonMenu(menu);
    deleteWhatIsToBeDeleted();
    QVERIFY(menu);
    QCOMPARE(menuButton(bar)->menu(), menu);
    EmissionLog log(bar);
    emit menuButton(bar)->triggered(menu->actions().constFirst());
    QCOMPARE(log.take(), QStringList({"add", "entry Create New"}));
}

void TestTXSelectionItemWidgetMenus::menuOfAForeignParentIsTakenLikeAnyOther()
{
    QWidget stranger;
    const QPointer<QMenu> menu = new QMenu(&stranger);
    {
        TXSelectionItemWidget bar;
        bar.setImportToolButtonMenu(menu);
        QCOMPARE(menu->parent(), &stranger);
    }
    deleteWhatIsToBeDeleted();
    QVERIFY(menu);

    TXSelectionItemWidget bar;
    bar.setImportToolButtonMenu(menu);
    bar.setImportToolButtonMenu(nullptr);
    deleteWhatIsToBeDeleted();
    QVERIFY(!menu);
}

void TestTXSelectionItemWidgetMenus::deletedMenuIsForgotten()
{
    TXSelectionItemWidget bar;
    delete menuButton(bar)->menu();
    QVERIFY(!menuButton(bar)->menu());
    EmissionLog log(bar);
    QTest::mouseClick(menuButton(bar), Qt::LeftButton);
    QCOMPARE(log.take(), QStringList());
    bar.setImportName("Read");
    QCOMPARE(entriesOf(menuButton(bar)->menu()).last(), "3 Read");
}

void TestTXSelectionItemWidgetMenus::emptyMenuCanBeOpened()
{
    TXSelectionItemWidget bar;
    bar.enableCreateNewItemMenu(false);
    bar.enableDuplicateItemMenu(false);
    bar.enableImportItemMenu(false);
    bar.setVisibleImportButton(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    EmissionLog log(bar);
    QTimer::singleShot(0, &bar, [&bar] { menuButton(bar)->menu()->close(); });
    QTest::mouseClick(menuButton(bar), Qt::LeftButton);
    QCOMPARE(log.take(), QStringList());
}

void TestTXSelectionItemWidgetMenus::menuReplacedByItsOwnEntry()
{
    TXSelectionItemWidget bar;
    bar.setVisibleImportButton(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    const QPointer<QMenu> before = menuButton(bar)->menu();
    connect(&bar, &TXSelectionItemWidget::addNewItemHasBeenRequest, &bar,
            [&bar] { bar.setImportName("Read"); });
    chooseEntry(bar, 0);
    deleteWhatIsToBeDeleted();
    QVERIFY(!before);
    QCOMPARE(entriesOf(menuButton(bar)->menu()).last(), "3 Read");
}

int main(int argc, char **argv)
{
    return runTest<TestTXSelectionItemWidgetMenus>(argc, argv);
}

#include "tst_TXSelectionItemWidgetMenus.moc"
