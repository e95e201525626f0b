#include "TXDBNavWidget.h"

#include "NavigatorHelpers.h"
#include "PixelProbe.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLineEdit>

#include <limits>

using PagedTable::Model;
using PagedTable::Navigator;

class TestTXDBNavWidget : public PagedTable::Test
{
    Q_OBJECT

private slots:
    void formIsAsNamed();
    void metaObjectNamesSlotsAndSignal();
    void screenReadersNameThePage();
    void withoutAModelThereIsOnePage();
    void pagesFollowFromTheRows_data();
    void pagesFollowFromTheRows();
    void modelIsRefreshedAtOnceWithoutBeingSelected();
    void shownPageFollowsFromTheOffset_data();
    void shownPageFollowsFromTheOffset();
    void turnedPageSelects_data();
    void turnedPageSelects();
    void typedPageCountsOnce();
    void arrowsTurnThePageAtOnce();
    void settersWriteIntoTheModelOnly();
    void selectIsTheModels();
    void limitShowsWithTheNextRefresh();
    void refreshAndPageTurnCostTheirStatements();
    void largePageIsNotCountedByPortions_data();
    void largePageIsNotCountedByPortions();
    void shrunkTableShowsItsLastPage_data();
    void shrunkTableShowsItsLastPage();
    void rowsRemovedOnALatePage_data();
    void rowsRemovedOnALatePage();
    void oldMaximumHoldsWhileThePageIsSet();
    void severalPagesIsToldAtEveryRefresh();
    void updateStopsAtTheRowsOfTheLastRefresh();
    void insertedAndRevertedRowsRefresh();
    void otherFilterKeepsTheOffset_data();
    void otherFilterKeepsTheOffset();
    void otherFilterCostsOneCount();
    void nullModelKeepsTheNumbers();
    void otherModelTakesOver();
    void sameModelIsConnectedOnce();
    void deletedModelIsNoModel();
    void standsBesideATable_data();
    void standsBesideATable();
};

void TestTXDBNavWidget::formIsAsNamed()
{
    const Navigator navigator;

    QCOMPARE(navigator.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(navigator.size(), QSize(89, 20));
    const auto *layout = navigator.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    QVERIFY(layout);
    QCOMPARE(layout, navigator.layout());
    QCOMPARE(layout->contentsMargins(), QMargins());
    const auto *label = navigator.findChild<QLabel *>(QStringLiteral("gotoLabel"));
    QVERIFY(label);
    QCOMPARE(label->text(), QStringLiteral("Page:"));
    QCOMPARE(layout->itemAt(0)->widget(), label);
    QCOMPARE(layout->itemAt(1)->widget(), navigator.spinBox());
    QCOMPARE(navigator.spinBox()->minimum(), 1);
    QCOMPARE(navigator.spinBox()->maximum(), 99999);
    QCOMPARE(navigator.text(), QStringLiteral("1"));
}

void TestTXDBNavWidget::metaObjectNamesSlotsAndSignal()
{
    const QMetaObject &meta = TXDBNavWidget::staticMetaObject;

    const int own = meta.methodOffset();
    QVERIFY(meta.indexOfSlot("refresh()") >= own);
    QVERIFY(meta.indexOfSlot("update()") >= own);
    QVERIFY(meta.indexOfSignal("severalPages(bool)") >= own);
    QVERIFY(TXSqlTableModel::staticMetaObject.indexOfSignal("filterChanged(QString)")
            >= TXSqlTableModel::staticMetaObject.methodOffset());
}

void TestTXDBNavWidget::screenReadersNameThePage()
{
    const Navigator navigator;

    const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(navigator.spinBox());
    QVERIFY(reader);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Page:"));
}

void TestTXDBNavWidget::withoutAModelThereIsOnePage()
{
    Navigator navigator;
    QCOMPARE(navigator.model(), nullptr);
    navigator.setLimit(10);
    navigator.setOffset(20);
    QCOMPARE(navigator.limit(), 0U);
    QCOMPARE(navigator.offset(), 0U);
    QVERIFY(!navigator.select());

    navigator.spinBox()->setValue(7);
    navigator.update();
    QCOMPARE(navigator.text(), QStringLiteral("7"));
    QCOMPARE(navigator.told(), QList<bool>());

    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(navigator.spinBox()->maximum(), 1);
    QCOMPARE(navigator.told(), QList<bool>({false}));
}

void TestTXDBNavWidget::pagesFollowFromTheRows_data()
{
    QTest::addColumn<bool>("isOnServer");
    QTest::addColumn<int>("rows");
    QTest::addColumn<qulonglong>("limit");
    QTest::addColumn<int>("pages");
    const std::initializer_list<const char *> names = {"SQLite", "MariaDB"};
    for (const char *name : names) {
        const auto row = [name](int rows, qulonglong limit, int pages) {
            QTest::addRow("%s, %d rows by %llu", name, rows, limit)
                << (name[0] == 'M') << rows << limit << pages;
        };
        row(0, 100, 1);
        row(1, 100, 1);
        row(100, 100, 1);
        row(101, 100, 2);
        row(200, 100, 2);
        row(201, 100, 3);
        row(101, 0, 1);
        row(101, 1, 101);
        row(101, std::numeric_limits<qulonglong>::max(), 1);
    }
}

void TestTXDBNavWidget::pagesFollowFromTheRows()
{
    QFETCH(int, rows);
    QFETCH(qulonglong, limit);
    QFETCH(int, pages);
    const auto connection = connect(rows);
    Model model(*connection, limit);
    Navigator navigator;

    navigator.setModel(&model);

    QCOMPARE(navigator.text(), QStringLiteral("1/%1").arg(pages));
    QCOMPARE(navigator.spinBox()->suffix(), QStringLiteral("/%1").arg(pages));
    QCOMPARE(navigator.spinBox()->minimum(), 1);
    QCOMPARE(navigator.spinBox()->maximum(), pages);
    QCOMPARE(navigator.told(), QList<bool>({pages > 1}));
    QVERIFY(navigator.select());
    QCOMPARE(model.rowCount(), limit == 0 ? rows : int(qMin(qulonglong(rows), limit)));
}

void TestTXDBNavWidget::modelIsRefreshedAtOnceWithoutBeingSelected()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    const QSignalSpy resets(&model, &TXSqlTableModel::modelReset);

    navigator.setModel(&model);

    QCOMPARE(navigator.model(), &model);
    QCOMPARE(navigator.text(), QStringLiteral("1/4"));
    QCOMPARE(resets.count(), 0);
    QCOMPARE(model.rowCount(), 0);
}

void TestTXDBNavWidget::shownPageFollowsFromTheOffset_data()
{
    QTest::addColumn<qulonglong>("offset");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qulonglong>("offsetBehind");
    QTest::newRow("first row") << 0ULL << QStringLiteral("1/2") << 0ULL;
    QTest::newRow("within the first page") << 99ULL << QStringLiteral("1/2") << 99ULL;
    // From here on the page turns, and with it the offset goes to its beginning.
    QTest::newRow("second page") << 100ULL << QStringLiteral("2/2") << 100ULL;
    QTest::newRow("within the second page") << 150ULL << QStringLiteral("2/2") << 100ULL;
    QTest::newRow("behind the last page") << 250ULL << QStringLiteral("2/2") << 100ULL;
    QTest::newRow("far behind") << std::numeric_limits<qulonglong>::max() << QStringLiteral("2/2")
                                << 100ULL;
}

void TestTXDBNavWidget::shownPageFollowsFromTheOffset()
{
    QFETCH(qulonglong, offset);
    QFETCH(qulonglong, offsetBehind);
    const auto connection = connect(200, false);
    Model model(*connection, 100, offset);
    Navigator navigator;

    navigator.setModel(&model);

    QTEST(navigator.text(), "text");
    QCOMPARE(model.offset, offsetBehind);
    // Where the page did not turn nothing was selected.
    QCOMPARE(model.rowCount(), offset < 100 ? 0 : 100);
}

void TestTXDBNavWidget::turnedPageSelects_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidget::turnedPageSelects()
{
    const auto connection = connect(130);
    Model model(*connection, 50);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());

    navigator.spinBox()->setValue(3);
    QCOMPARE(model.offset, 100U);
    QCOMPARE(navigator.offset(), 100U);
    QCOMPARE(model.rowCount(), 30);
    QCOMPARE(model.index(0, PagedTable::Id).data().toInt(), 101);

    navigator.spinBox()->setValue(2);
    QCOMPARE(model.offset, 50U);
    QCOMPARE(model.index(49, PagedTable::Id).data().toInt(), 100);

    // Turning a page is no refresh.
    QCOMPARE(navigator.told().size(), 1);
}

void TestTXDBNavWidget::typedPageCountsOnce()
{
    const auto connection = connect(2000, false);
    Model model(*connection, 1);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.show();
    QVERIFY(QTest::qWaitForWindowExposed(&navigator));
    navigator.spinBox()->setFocus();
    navigator.spinBox()->selectAll();
    const QSignalSpy resets(&model, &TXSqlTableModel::modelReset);

    QTest::keyClicks(navigator.spinBox(), QStringLiteral("1500"));
    QCOMPARE(resets.count(), 0);
    QTest::keyClick(navigator.spinBox(), Qt::Key_Return);

    QCOMPARE(resets.count(), 1);
    QCOMPARE(model.offset, 1499U);
    QCOMPARE(navigator.text(), QStringLiteral("1500/2000"));
}

void TestTXDBNavWidget::arrowsTurnThePageAtOnce()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);

    QTest::keyClick(navigator.spinBox(), Qt::Key_Up);
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));

    QTest::keyClick(navigator.spinBox(), Qt::Key_PageUp);
    QCOMPARE(model.ids(), QList<int>({10}));

    QTest::keyClick(navigator.spinBox(), Qt::Key_Down);
    QCOMPARE(model.ids(), QList<int>({7, 8, 9}));
}

void TestTXDBNavWidget::settersWriteIntoTheModelOnly()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());

    navigator.setLimit(2);
    navigator.setOffset(5);

    QCOMPARE(model.limit, 2U);
    QCOMPARE(model.offset, 5U);
    QCOMPARE(navigator.limit(), 2U);
    QCOMPARE(navigator.offset(), 5U);
    QCOMPARE(model.ids(), QList<int>({1, 2, 3}));
    QCOMPARE(navigator.text(), QStringLiteral("1/4"));
    QCOMPARE(navigator.told().size(), 1);
}

void TestTXDBNavWidget::selectIsTheModels()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3, 3);
    Navigator navigator;
    navigator.setModel(&model);

    QVERIFY(navigator.select());
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));
    QCOMPARE(navigator.told().size(), 1);

    connection->run(QStringLiteral("DROP TABLE samples"));
    QVERIFY(!navigator.select());
}

void TestTXDBNavWidget::limitShowsWithTheNextRefresh()
{
    const auto connection = connect(1000, false);
    Model model(*connection, 100);
    Navigator navigator;
    navigator.setModel(&model);

    navigator.setLimit(500);
    QCOMPARE(navigator.text(), QStringLiteral("1/10"));
    QVERIFY(navigator.select());
    QCOMPARE(model.rowCount(), 500);
    QCOMPARE(navigator.text(), QStringLiteral("1/10"));

    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("1/2"));
}

void TestTXDBNavWidget::refreshAndPageTurnCostTheirStatements()
{
    const auto connection = connect(1000, true);
    Model model(*connection, 300);
    Navigator navigator;
    forgetStatements();

    navigator.setModel(&model);
    QCOMPARE(statements(PagedTable::kCount), 1);
    QCOMPARE(statements(PagedTable::kSelect), 0);

    navigator.refresh();
    QCOMPARE(statements(PagedTable::kCount), 2);

    navigator.spinBox()->setValue(3);
    QCOMPARE(statements(PagedTable::kCount), 2);
    QCOMPARE(statements(PagedTable::kSelect), 1);

    QVERIFY(navigator.select());
    QCOMPARE(statements(PagedTable::kCount), 2);
    QCOMPARE(statements(PagedTable::kSelect), 2);
    QCOMPARE(statements(""), 4);
}

void TestTXDBNavWidget::largePageIsNotCountedByPortions_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidget::largePageIsNotCountedByPortions()
{
    const auto connection = connect(3000);
    Model model(*connection, 2000);
    Navigator navigator;
    navigator.setModel(&model);
    forgetStatements();

    QVERIFY(navigator.select());
    navigator.spinBox()->setValue(2);
    connection->run(QStringLiteral("DROP TABLE samples"));
    QVERIFY(!navigator.select());

    QCOMPARE(navigator.told().size(), 1);
    QCOMPARE(connection->isMariaDb() ? statements(PagedTable::kCount) : 0, 0);
}

void TestTXDBNavWidget::shrunkTableShowsItsLastPage_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidget::shrunkTableShowsItsLastPage()
{
    const auto connection = connect(450);
    Model model(*connection, 100);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(5);
    QCOMPARE(model.rowCount(), 50);
    connection->run(QStringLiteral("DELETE FROM samples WHERE id > 150"));

    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(navigator.spinBox()->maximum(), 2);
    QCOMPARE(model.offset, 100U);
    QCOMPARE(model.rowCount(), 50);
    QCOMPARE(model.index(49, PagedTable::Id).data().toInt(), 150);

    connection->run(QStringLiteral("DELETE FROM samples"));
    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(model.offset, 0U);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(navigator.told(), QList<bool>({true, true, false}));
}

void TestTXDBNavWidget::rowsRemovedOnALatePage_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidget::rowsRemovedOnALatePage()
{
    const auto connection = connect(7);
    Model model(*connection, 3);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    QCOMPARE(model.ids(), QList<int>({7}));

    QVERIFY(model.removeRow(0));
    QVERIFY(model.submitAll());
    QCOMPARE(model.rowCount(), 0);
    // The model tells of nothing that happens in the database.
    QCOMPARE(navigator.text(), QStringLiteral("3/3"));

    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(model.ids(), QList<int>({4, 5, 6}));
}

// The value is set before the maximum: a table that has grown takes two refreshes.
void TestTXDBNavWidget::oldMaximumHoldsWhileThePageIsSet()
{
    const auto connection = connect(10, false);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());
    QCOMPARE(navigator.text(), QStringLiteral("1/2"));

    navigator.setLimit(2);
    navigator.setOffset(8);
    navigator.refresh();

    QCOMPARE(navigator.text(), QStringLiteral("2/5"));
    QCOMPARE(model.offset, 2U);
    QCOMPARE(model.ids(), QList<int>({3, 4}));
}

void TestTXDBNavWidget::severalPagesIsToldAtEveryRefresh()
{
    const auto connection = connect(10, false);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);

    navigator.refresh();
    navigator.refresh();
    navigator.setLimit(10);
    navigator.refresh();
    navigator.refresh();

    QCOMPARE(navigator.told(), QList<bool>({true, true, true, false, false}));
}

void TestTXDBNavWidget::updateStopsAtTheRowsOfTheLastRefresh()
{
    const auto connection = connect(10, false);
    Model model(*connection, 2);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(4);
    QCOMPARE(model.offset, 6U);
    navigator.setLimit(5);

    navigator.update();
    QCOMPARE(model.offset, 10U);
    QCOMPARE(model.rowCount(), 0);

    navigator.setLimit(std::numeric_limits<qulonglong>::max() / 3 + 1);
    navigator.update();
    QCOMPARE(model.offset, 10U);

    navigator.setLimit(0);
    navigator.update();
    QCOMPARE(model.offset, 0U);
    QCOMPARE(model.rowCount(), 10);
}

void TestTXDBNavWidget::insertedAndRevertedRowsRefresh()
{
    const auto connection = connect(10, false);
    Model model(*connection, 5);
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    Navigator navigator;
    navigator.setModel(&model);
    QVERIFY(navigator.select());
    connection->run(QStringLiteral("INSERT INTO samples VALUES (11, 'x', 0)"));

    QVERIFY(model.insertRow(0));
    QCOMPARE(navigator.text(), QStringLiteral("1/3"));
    QCOMPARE(navigator.told().size(), 2);

    connection->run(QStringLiteral("DELETE FROM samples WHERE id = 11"));
    model.revertAll();
    QCOMPARE(navigator.text(), QStringLiteral("1/2"));
    QCOMPARE(navigator.told().size(), 3);
    QCOMPARE(model.ids(), QList<int>({1, 2, 3, 4, 5}));
}

void TestTXDBNavWidget::otherFilterKeepsTheOffset_data()
{
    PagedTable::addDatabases();
}

void TestTXDBNavWidget::otherFilterKeepsTheOffset()
{
    const auto connection = connect(30);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    QCOMPARE(model.offset, 10U);

    model.setFilter(QStringLiteral("id > 10"));
    QCOMPARE(model.offset, 10U);
    QCOMPARE(navigator.text(), QStringLiteral("3/4"));
    QCOMPARE(model.ids(), QList<int>({21, 22, 23, 24, 25}));

    model.setFilter(QStringLiteral("id > 23"));
    QCOMPARE(model.offset, 5U);
    QCOMPARE(navigator.text(), QStringLiteral("2/2"));
    QCOMPARE(model.ids(), QList<int>({29, 30}));

    model.setFilter(QStringLiteral("id > 100"));
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));
    QCOMPARE(model.offset, 0U);

    model.setFilter(QString());
    QCOMPARE(navigator.text(), QStringLiteral("1/6"));
    QCOMPARE(model.ids(), QList<int>({1, 2, 3, 4, 5}));
    QCOMPARE(navigator.told(), QList<bool>({true, true, true, false, true}));
}

void TestTXDBNavWidget::otherFilterCostsOneCount()
{
    const auto connection = connect(30, true);
    Model model(*connection, 5);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(3);
    forgetStatements();

    model.setFilter(QStringLiteral("id > 10"));
    QCOMPARE(statements(PagedTable::kCount), 1);
    QCOMPARE(statements(PagedTable::kSelect), 1);

    // The page is another one now, and selected again.
    model.setFilter(QStringLiteral("id > 23"));
    QCOMPARE(statements(PagedTable::kCount), 2);
    QCOMPARE(statements(PagedTable::kSelect), 3);
    QCOMPARE(statements(""), 5);
}

void TestTXDBNavWidget::nullModelKeepsTheNumbers()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.spinBox()->setValue(2);

    navigator.setModel(nullptr);
    QCOMPARE(navigator.model(), nullptr);
    QCOMPARE(navigator.text(), QStringLiteral("2/4"));
    QCOMPARE(navigator.spinBox()->maximum(), 4);
    QCOMPARE(navigator.told().size(), 1);

    model.setFilter(QStringLiteral("id = 1"));
    QVERIFY(model.insertRow(0));
    model.revertAll();
    navigator.spinBox()->setValue(4);
    QCOMPARE(navigator.told().size(), 1);
    QCOMPARE(model.offset, 3U);
}

void TestTXDBNavWidget::otherModelTakesOver()
{
    const auto connection = connect(10, false);
    Model first(*connection, 3);
    Model second(*connection, 2, 8);
    Navigator navigator;
    navigator.setModel(&first);

    navigator.setModel(&second);
    QCOMPARE(navigator.model(), &second);
    // The maximum of the first model still holds while the page of the second one is set.
    QCOMPARE(navigator.text(), QStringLiteral("4/5"));
    QCOMPARE(second.ids(), QList<int>({7, 8}));
    QCOMPARE(first.offset, 0U);

    const auto told = navigator.told().size();
    first.setFilter(QStringLiteral("id = 1"));
    QVERIFY(first.insertRow(0));
    first.revertAll();
    QCOMPARE(navigator.told().size(), told);
    second.setFilter(QStringLiteral("id > 2"));
    QCOMPARE(navigator.told().size(), told + 1);
}

void TestTXDBNavWidget::sameModelIsConnectedOnce()
{
    const auto connection = connect(10, false);
    Model model(*connection, 3);
    Navigator navigator;
    navigator.setModel(&model);
    navigator.setModel(&model);
    QCOMPARE(navigator.told().size(), 2);

    model.setFilter(QStringLiteral("id > 2"));
    QCOMPARE(navigator.told().size(), 3);
    QVERIFY(model.insertRow(0));
    QCOMPARE(navigator.told().size(), 4);
    model.revertAll();
    QCOMPARE(navigator.told().size(), 5);
}

void TestTXDBNavWidget::deletedModelIsNoModel()
{
    const auto connection = connect(10, false);
    auto model = std::make_unique<Model>(*connection, 3);
    Navigator navigator;
    navigator.setModel(model.get());

    model.reset();
    QCOMPARE(navigator.model(), nullptr);
    QCOMPARE(navigator.limit(), 0U);
    QCOMPARE(navigator.offset(), 0U);
    QCOMPARE(navigator.text(), QStringLiteral("1/4"));
    navigator.spinBox()->setValue(3);
    navigator.setLimit(5);
    QVERIFY(!navigator.select());

    navigator.refresh();
    QCOMPARE(navigator.text(), QStringLiteral("1/1"));

    Model next(*connection, 5);
    navigator.setModel(&next);
    QCOMPARE(navigator.text(), QStringLiteral("1/2"));
}

void TestTXDBNavWidget::standsBesideATable_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << 1.0 << false;
    QTest::newRow("light, doubled") << 2.0 << false;
    QTest::newRow("dark") << 1.0 << true;
    QTest::newRow("dark, doubled") << 2.0 << true;
}

// The longest text that there is at first stands in the field without being cut.
void TestTXDBNavWidget::standsBesideATable()
{
    QFETCH(qreal, scale);
    QFETCH(bool, isDark);
    const auto connection = connect(1000, false);
    Model model(*connection, 1);
    Navigator navigator;
    if (isDark) {
        navigator.setPalette(QPalette(QColor(40, 40, 45)));
    }
    navigator.setModel(&model);
    navigator.spinBox()->setValue(1000);
    navigator.resize(navigator.sizeHint());

    const QString longest = navigator.text();
    QCOMPARE(longest, QStringLiteral("1000/1000"));
    const auto *field = navigator.spinBox()->findChild<QLineEdit *>();
    QVERIFY(field->width() > field->fontMetrics().horizontalAdvance(longest));
    const PixelProbe probe(navigator, scale);
    QCOMPARE(probe.image().width(), qRound(navigator.width() * scale));
    const auto *label = navigator.findChild<QLabel *>();
    QVERIFY(probe.countColours(label->geometry()) > 2);
    QVERIFY(probe.countColours(navigator.spinBox()->geometry()) > 2);
    const bool isGround = probe.at(label->geometry().topLeft()).lightness() < 128;
    QCOMPARE(isGround, isDark);
}

int main(int argc, char **argv)
{
    return runTest<TestTXDBNavWidget>(argc, argv);
}

#include "tst_TXDBNavWidget.moc"
