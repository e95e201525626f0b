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
    void settersWriteIntoTheModelOnly();
    void selectIsTheModels();
    void limitShowsWithTheNextRefresh();
    void nullModelKeepsTheNumbers();
    void otherModelTakesOver();
    void sameModelIsConnectedOnce();
    void deletedModelIsNoModel();
    void fieldGrowsWithItsText_data();
    void fieldGrowsWithItsText();
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
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Page"));
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

void TestTXDBNavWidget::fieldGrowsWithItsText_data()
{
    QTest::addColumn<bool>("isTurned");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("first page") << false << false;
    QTest::newRow("page in the middle") << true << false;
    QTest::newRow("first page, hidden meanwhile") << false << true;
    QTest::newRow("page in the middle, hidden meanwhile") << true << true;
}

void TestTXDBNavWidget::fieldGrowsWithItsText()
{
    QFETCH(bool, isTurned);
    QFETCH(bool, isHidden);
    const auto connection = connect(10000, false);
    Model model(*connection, 10000);
    QWidget window;
    auto *page = new QWidget(&window);
    (new QHBoxLayout(&window))->addWidget(page);
    auto *row = new QHBoxLayout(page);
    auto *navigator = new Navigator;
    row->addWidget(navigator);
    row->addStretch();
    navigator->setModel(&model);
    QCOMPARE(navigator->text(), QStringLiteral("1/1"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int before = navigator->spinBox()->width();

    page->setHidden(isHidden);
    model.limit = 1;
    navigator->refresh();
    if (isTurned) {
        navigator->spinBox()->setValue(5001);
    }
    page->show();

    QTRY_VERIFY(navigator->spinBox()->width() >= navigator->spinBox()->sizeHint().width());
    QVERIFY(navigator->spinBox()->width() > before);
    QCOMPARE(navigator->text(),
             isTurned ? QStringLiteral("5001/10000") : QStringLiteral("1/10000"));
    const auto *field = navigator->spinBox()->findChild<QLineEdit *>();
    QVERIFY(field->width() > field->fontMetrics().horizontalAdvance(QStringLiteral("5001/10000")));
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
