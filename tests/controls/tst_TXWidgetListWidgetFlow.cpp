#include "TXWidgetListWidget.h"

#include "TestBase.h"
#include "WidgetListHelpers.h"

#include <QHBoxLayout>
#include <QRandomGenerator>

#include <memory>

namespace {

constexpr int kLong = 100;

/// More than are laid out before control goes back to the event loop, with some of Qt's own.
constexpr qsizetype kMostHintsAsked = 1'100'000;

} // namespace

class TestTXWidgetListWidgetFlow : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { list = std::make_unique<TXWidgetListWidget>(); }
    void finish() override { list.reset(); }

private slots:
    void allWidgetsTakeTheLargestHint();
    void itemsWithoutWidgetDoNotCountForTheSize();
    void rowsWrapAtTheWidthOfTheScrollArea_data();
    void rowsWrapAtTheWidthOfTheScrollArea();
    void narrowListHasOneWidgetARow();
    void spacerTakesAColumnAndNoWidth();
    void spacerNeverWraps();
    void bareItemTakesAStep();
    void endSpacersFollowTheLargestColumnAndTheLastRow();
    void resizingLaysOutAnew();
    void changedHintCountsWithTheNextPass();
    void changedHintCountsWithTheNextAppend();
    void largerWidgetInALongListIsSeenAtOnce();
    void changedWidthOrSpacingIsSeenByTheNextAppend();
    void randomChangesGiveWhatAPlainFlowGives_data();
    void randomChangesGiveWhatAPlainFlowGives();
    void hundredsOfChangesAreSeenAtOnce();
    void thousandsAreAppended();
    void changesOfAHugeListAreMadeUpForFromTheEventLoop();
    void manyAreCleared();
    void scrollBarsCauseNoFurtherPass();
    void windowOfFixedSizeComesToRest();

private:
    HintedWidget *append(int width = 40, int height = 20);
    void fill(int count);
    void change(QRandomGenerator &random);

    std::unique_ptr<TXWidgetListWidget> list;
};

HintedWidget *TestTXWidgetListWidgetFlow::append(int width, int height)
{
    auto *widget = new HintedWidget({width, height});
    list->append(widget);
    return widget;
}

void TestTXWidgetListWidgetFlow::fill(int count)
{
    for (int i = 0; i < count; ++i) {
        append();
    }
}

void TestTXWidgetListWidgetFlow::allWidgetsTakeTheLargestHint()
{
    const QList<QWidget *> widgets = {append(40, 20), append(10, 50), append(30, 5)};
    for (const QWidget *widget : widgets) {
        QCOMPARE(widget->minimumSize(), QSize(40, 50));
        QCOMPARE(widget->maximumSize(), QSize(40, 50));
    }
}

void TestTXWidgetListWidgetFlow::itemsWithoutWidgetDoNotCountForTheSize()
{
    const QWidget *widget = append(40, 20);
    list->append(new BareItem);
    list->append(new QSpacerItem(900, 900));
    auto *inner = new QHBoxLayout;
    inner->addWidget(new HintedWidget({70, 70}));
    list->append(inner);
    QCOMPARE(widget->size(), QSize(40, 20));
}

void TestTXWidgetListWidgetFlow::rowsWrapAtTheWidthOfTheScrollArea_data()
{
    QTest::addColumn<int>("missing"); // pixels to the width of three steps
    QTest::addColumn<int>("columns");
    QTest::newRow("just as wide") << 0 << 3;
    QTest::newRow("one pixel less") << 1 << 2;
    QTest::newRow("one pixel more") << -1 << 3;
}

void TestTXWidgetListWidgetFlow::rowsWrapAtTheWidthOfTheScrollArea()
{
    QFETCH(int, missing);
    QFETCH(int, columns);
    fill(7);
    list->show();
    const int step = 40 + gridOf(*list)->horizontalSpacing();
    list->resize(3 * step - missing, 200);
    QCOMPARE(scrollAreaOf(*list)->width(), 3 * step - missing);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(cellsOf(*list).at(i), QPoint(i % columns, i / columns));
    }
}

void TestTXWidgetListWidgetFlow::narrowListHasOneWidgetARow()
{
    fill(3);
    list->show();
    list->resize(20, 200);
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {0, 1}, {0, 2}}));
}

void TestTXWidgetListWidgetFlow::spacerTakesAColumnAndNoWidth()
{
    list->show();
    const int step = 40 + gridOf(*list)->horizontalSpacing();
    list->resize(2 * step, 200);
    append();
    auto *spacer = new QSpacerItem(3, 3);
    list->append(spacer);
    fill(2);
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {1, 0}, {2, 0}, {0, 1}}));
    QCOMPARE(spacer->alignment(), Qt::Alignment());
}

void TestTXWidgetListWidgetFlow::spacerNeverWraps()
{
    list->resize(20, 200);
    list->show();
    for (int i = 0; i < 4; ++i) {
        list->append(new QSpacerItem(100, 100));
    }
    append(300, 20); // behind the spacers, where the wrap counts
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}}));
    QCOMPARE(allCellsOf(*list).mid(5), QList<QPoint>({{5, 0}, {0, 2}}));
}

void TestTXWidgetListWidgetFlow::bareItemTakesAStep()
{
    list->show();
    const int step = 40 + gridOf(*list)->horizontalSpacing();
    list->resize(2 * step, 200);
    append();
    auto *bare = new BareItem;
    list->append(bare);
    append();
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {1, 0}, {0, 1}}));
    QCOMPARE(bare->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

void TestTXWidgetListWidgetFlow::endSpacersFollowTheLargestColumnAndTheLastRow()
{
    list->show();
    const int step = 40 + gridOf(*list)->horizontalSpacing();
    list->resize(2 * step, 200);
    const QList<QList<QPoint>> ends = {{{1, 0}, {0, 1}}, {{2, 0}, {0, 1}}, {{3, 0}, {0, 1}},
                                       {{3, 0}, {0, 2}}, {{3, 0}, {0, 2}}, {{3, 0}, {0, 3}}};
    for (int count = 0; count < ends.size(); ++count) {
        QCOMPARE(list->count(), count);
        QCOMPARE(allCellsOf(*list).mid(count), ends.at(count));
        append();
    }
}

void TestTXWidgetListWidgetFlow::resizingLaysOutAnew()
{
    fill(50);
    list->show();
    for (const int width : {100, 700, 30, 320, 321, 1000, 1}) {
        list->resize(width, 200);
        QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {40, 20}));
    }
}

void TestTXWidgetListWidgetFlow::changedHintCountsWithTheNextPass()
{
    HintedWidget *first = append();
    const QWidget *second = append();
    first->hint = {70, 60};
    first->updateGeometry();
    QCOMPARE(second->size(), QSize(40, 20));
    list->reorganize();
    QCOMPARE(second->size(), QSize(70, 60));
    QCOMPARE(first->size(), QSize(70, 60));
}

void TestTXWidgetListWidgetFlow::changedHintCountsWithTheNextAppend()
{
    HintedWidget *first = append();
    fill(kLong);
    first->hint = {70, 60};
    const QWidget *last = append();
    QCOMPARE(first->size(), QSize(70, 60));
    QCOMPARE(last->size(), QSize(70, 60));
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {70, 60}));
}

void TestTXWidgetListWidgetFlow::largerWidgetInALongListIsSeenAtOnce()
{
    const QWidget *first = append();
    fill(kLong);
    append(50, 10);
    QCOMPARE(first->size(), QSize(50, 20));
    append(10, 50);
    QCOMPARE(first->size(), QSize(50, 50));
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {50, 50}));
}

void TestTXWidgetListWidgetFlow::changedWidthOrSpacingIsSeenByTheNextAppend()
{
    fill(kLong);
    gridOf(*list)->setHorizontalSpacing(17);
    append();
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {40, 20}));
    scrollAreaOf(*list)->resize(600, 100);
    append();
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {40, 20}));
    QVERIFY(cellsOf(*list).at(5).y() == 0);
}

void TestTXWidgetListWidgetFlow::change(QRandomGenerator &random)
{
    const int place = random.bounded(list->count() + 1);
    const QSize hint(random.bounded(30, 60), random.bounded(10, 40));
    switch (random.bounded(12)) {
    case 0:
        list->insert(place, new HintedWidget(hint));
        break;
    case 1:
        list->insert(place, new QSpacerItem(1, 1));
        break;
    case 2:
        list->append(new QSpacerItem(1, 1));
        break;
    case 3:
        delete list->widgetAt(place);
        list->reorganize();
        break;
    case 4:
        list->removeAt(place);
        break;
    case 5:
        list->resize(random.bounded(1, 900), 200);
        break;
    case 6:
        list->reorganize(list->layoutItems().mid(0, place) + list->layoutItems().mid(place));
        break;
    default:
        append(hint.width() / 2, hint.height() / 2);
    }
}

void TestTXWidgetListWidgetFlow::randomChangesGiveWhatAPlainFlowGives_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("hidden") << false;
    QTest::newRow("shown") << true;
}

void TestTXWidgetListWidgetFlow::randomChangesGiveWhatAPlainFlowGives()
{
    QFETCH(bool, isShown);
    list->setVisible(isShown);
    QRandomGenerator random(20);
    for (int round = 0; round < 600; ++round) {
        change(random);
        const QSize cell = plainSizeOf(*list);
        QCOMPARE(allCellsOf(*list), plainCellsOf(*list, cell));
        for (int i = 0; i < list->count(); ++i) {
            const QWidget *widget = list->widgetAt(i);
            QVERIFY(!widget || widget->size() == cell);
        }
    }
    QVERIFY(list->count() > kLong);
}

void TestTXWidgetListWidgetFlow::hundredsOfChangesAreSeenAtOnce()
{
    for (int i = 1; i <= 800; ++i) {
        list->insert(0, new HintedWidget({i, 20}));
        QCOMPARE(list->widgetAt(i - 1)->size(), QSize(i, 20));
    }
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {800, 20}));
    for (int i = 800; i > 1; --i) {
        QVERIFY(list->removeAt(0));
        QCOMPARE(list->widgetAt(i - 2)->size(), QSize(i - 1, 20));
    }
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {1, 20}));
}

void TestTXWidgetListWidgetFlow::thousandsAreAppended()
{
    list->show();
    HintedWidget::asked = 0;
    fill(3000);
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {40, 20}));
    QVERIFY2(HintedWidget::asked < kMostHintsAsked,
             qPrintable(QString::number(HintedWidget::asked)));
    QCoreApplication::processEvents();
    QCOMPARE(list->widgetAt(2999)->size(), QSize(40, 20));
    QVERIFY(list->widgetAt(2999)->isVisible());
}

void TestTXWidgetListWidgetFlow::changesOfAHugeListAreMadeUpForFromTheEventLoop()
{
    HintedWidget::asked = 0;
    for (int i = 0; i < 2000; ++i) {
        list->insert(0, new HintedWidget({1 + i / 40, 20})); // ever larger ones, at the front
    }
    QCOMPARE(list->count(), 2000);
    QCOMPARE(gridOf(*list)->count(), 2000 + 2);
    for (int i = 0; i < 500; ++i) {
        QVERIFY(list->removeAt(0));
    }
    QVERIFY2(HintedWidget::asked < kMostHintsAsked,
             qPrintable(QString::number(HintedWidget::asked)));
    QCoreApplication::processEvents();
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {38, 20}));
    QCOMPARE(list->widgetAt(0)->size(), QSize(38, 20));
    // The next turn can afford to lay out at once again.
    list->insert(0, new HintedWidget({60, 20}));
    QCOMPARE(list->widgetAt(1400)->size(), QSize(60, 20));
}

void TestTXWidgetListWidgetFlow::manyAreCleared()
{
    fill(2000);
    HintedWidget::asked = 0;
    list->clear();
    QCOMPARE(HintedWidget::asked, 0);
    QCOMPARE(gridOf(*list)->count(), 2);
    QCOMPARE(contentsOf(*list)->findChildren<QWidget *>().size(), 2000);
}

void TestTXWidgetListWidgetFlow::scrollBarsCauseNoFurtherPass()
{
    HintedWidget *widget = append();
    fill(30);
    list->show();
    QVERIFY(QTest::qWaitForWindowExposed(list.get()));
    for (int height = 400; height > 20; height -= 10) {
        list->resize(150, height);
        QCoreApplication::processEvents();
        HintedWidget::asked = 0;
        widget->updateGeometry();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCOMPARE(HintedWidget::asked, 0);
        QCOMPARE(allCellsOf(*list), plainCellsOf(*list, {40, 20}));
    }
    QVERIFY(scrollAreaOf(*list)->verticalScrollBar()->isVisible());
}

void TestTXWidgetListWidgetFlow::windowOfFixedSizeComesToRest()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto *inner = new TXWidgetListWidget(&window);
    layout->addWidget(inner);
    for (const int width : {2, 40, 300}) {
        inner->clear();
        for (int i = 0; i < 40; ++i) {
            inner->append(new HintedWidget({width, 20}));
        }
        window.show();
        QSize before;
        int rounds = 0;
        while (before != window.size() && ++rounds < 50) {
            before = window.size();
            QCoreApplication::processEvents();
        }
        QVERIFY(rounds < 50);
        QCOMPARE(allCellsOf(*inner), plainCellsOf(*inner, {width, 20}));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetListWidgetFlow>(argc, argv);
}

#include "tst_TXWidgetListWidgetFlow.moc"
