#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "ListsPage.h"
#include "PageChecks.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include "TXCenteredPixmapDelegate.h"
#include "TXDateTimeDelegate.h"
#include "TXSeparatorListDelegate.h"
#include "TreeViewGridDelegate.h"

#include <QCheckBox>
#include <QLayout>
#include <QListView>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>

#include <memory>

namespace {

constexpr int kResultColumn = 2;
constexpr int kTimeColumn = 3;

} // namespace

class TestListsPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void everyTextFollowsTheLanguage();
    void longTextsLeaveTheTreeItsRoom();
    void delegatesAreThoseOfTheLibrary();
    void gridIsSwitchedOnAndOff();
    void languageLeavesOpenWhatIsOpen();
    void lineBelowARowIsDrawnAndRemoved();
    void separatorCannotBeChosen();
    void comparisonIsRepeatedForTheChosenRows();

protected:
    void prepare() override;
    void finish() override;

private:
    template<class View>
    View *viewOf(const char *name) const
    {
        return controlOf<View>(*page, name);
    }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
    GalleryPage *page = nullptr;
};

void TestListsPage::prepare()
{
    GallerySettings settings;
    settings.page = "lists";
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    page = window->currentPage();
    QVERIFY(qobject_cast<ListsPage *>(page));
}

void TestListsPage::finish()
{
    window.reset();
    languages.reset();
    QLocale::setDefault(QLocale::system());
}

void TestListsPage::pageFitsTheWindow()
{
    QVERIFY(page->width() <= page->parentWidget()->width());
}

void TestListsPage::mnemonicsAreNotShared()
{
    QVERIFY(buttonOf(*page, "Line Below"));
    QVERIFY(mnemonicsOn(*page) >= 7);
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestListsPage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestListsPage::everyTextFollowsTheLanguage()
{
    QTest::mouseClick(buttonOf(*page, "Line Below"), Qt::LeftButton);
    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    const QString folder = QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
    QCOMPARE(smallTexts(*page, {folder}), QStringList());
    QVERIFY(isRead(*page, "ROW 1: LINE DRAWN"));
    QCOMPARE(viewOf<QListView>("PATCHES")->currentIndex().data().toString(), "DARK SKIN");
    const QAbstractItemModel *runs = viewOf<QTableView>("COMPARISONS")->model();
    QCOMPARE(runs->index(0, 0).data().toString(), "DARK SKIN");
    QCOMPARE(runs->headerData(kResultColumn, Qt::Horizontal).toString(), "RESULT");
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

void TestListsPage::longTextsLeaveTheTreeItsRoom()
{
    const QWidget *panel = viewOf<QListView>("Patches")->parentWidget();
    const int before = panel->minimumSizeHint().width();
    QLabel *hint = labelOf(*page, "Choose a row, and switch its line.");
    QVERIFY(hint);

    hint->setText(QString("longer ").repeated(30));
    panel->layout()->activate();

    QVERIFY(panel->minimumSizeHint().width() <= before);
}

void TestListsPage::delegatesAreThoseOfTheLibrary()
{
    const auto *runs = viewOf<QTableView>("Comparisons");

    QVERIFY(qobject_cast<TXCenteredPixmapDelegate *>(runs->itemDelegateForColumn(kResultColumn)));
    QVERIFY(qobject_cast<TXDateTimeDelegate *>(runs->itemDelegateForColumn(kTimeColumn)));
    QVERIFY(qobject_cast<TXSeparatorListDelegate *>(viewOf<QListView>("Patches")->itemDelegate()));
    QVERIFY(
        qobject_cast<TreeViewGridDelegate *>(viewOf<QTreeView>("Colour chart")->itemDelegate()));
}

void TestListsPage::gridIsSwitchedOnAndOff()
{
    auto *tree = viewOf<QTreeView>("Colour chart");
    const QRect cell = tree->visualRect(tree->model()->index(2, 0));
    const QPoint line(cell.center().x(), cell.bottom());
    QVERIFY(PixelProbe(*tree->viewport()).isNear(line, Qt::lightGray));

    QTest::mouseClick(buttonOf<QCheckBox>(*page, "Grid lines"), Qt::LeftButton, {}, {5, 10});

    QVERIFY(!PixelProbe(*tree->viewport()).isNear(line, Qt::lightGray));
}

void TestListsPage::languageLeavesOpenWhatIsOpen()
{
    auto *tree = viewOf<QTreeView>("Colour chart");
    tree->expand(tree->model()->index(3, 0));
    tree->setCurrentIndex(tree->model()->index(1, 0));

    CapitalTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents();

    QVERIFY(tree->isExpanded(tree->model()->index(3, 0)));
    QCOMPARE(tree->currentIndex().data().toString(), "FURTHER COLOURS");
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
}

void TestListsPage::lineBelowARowIsDrawnAndRemoved()
{
    auto *list = viewOf<QListView>("Patches");
    list->setCurrentIndex(list->model()->index(3, 0));
    const QRect row = list->visualRect(list->currentIndex());
    const QPoint line(row.right() - 2, row.bottom());
    QVERIFY(!PixelProbe(*list->viewport()).isNear(line, Qt::lightGray));

    auto *button = buttonOf<QPushButton>(*page, "Line Below");
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(PixelProbe(*list->viewport()).isNear(line, Qt::lightGray));
    QVERIFY(isRead(*page, "Row 4: line drawn"));

    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!PixelProbe(*list->viewport()).isNear(line, Qt::lightGray));
    QVERIFY(isRead(*page, "Row 4: line removed"));
}

void TestListsPage::separatorCannotBeChosen()
{
    auto *list = viewOf<QListView>("Patches");
    list->setCurrentIndex(list->model()->index(5, 0));

    QTest::keyClick(list, Qt::Key_Down);

    QCOMPARE(list->currentIndex().row(), 7);
    QCOMPARE(list->currentIndex().data().toString(), "Orange");
}

void TestListsPage::comparisonIsRepeatedForTheChosenRows()
{
    auto *table = viewOf<QTableView>("Comparisons");
    QAbstractItemModel *runs = table->model();
    const QDateTime old = QDateTime::currentDateTime().addYears(-1);
    for (const int row : {4, 5}) {
        runs->setData(runs->index(row, kTimeColumn), old);
        runs->setData(runs->index(row, kResultColumn), QVariant(), Qt::DecorationRole);
    }
    table->selectRow(4);

    QTest::mouseClick(buttonOf(*page, "Compare Again"), Qt::LeftButton);

    QVERIFY(runs->index(4, kTimeColumn).data().toDateTime() > old);
    QCOMPARE(runs->index(5, kTimeColumn).data().toDateTime(), old);
    QVERIFY(!runs->index(4, kResultColumn).data(Qt::DecorationRole).value<QPixmap>().isNull());
    QVERIFY(runs->index(5, kResultColumn).data(Qt::DecorationRole).isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestListsPage>(argc, argv);
}

#include "tst_ListsPage.moc"
