#include "TXWidgetListWidget.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"
#include "WidgetListHelpers.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QStyle>

#include <algorithm>
#include <memory>

class TestTXWidgetListWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void startsEmpty();
    void formIsAsNamed();
    void endSpacersAreTakenOutOfTheForm();
    void appendedWidgetBecomesAChild();
    void appendedWidgetAppears();
    void hiddenWidgetStaysHidden();
    void widgetsAndItemsAreFound();
    void nothingIsFoundForNull();
    void placesOutOfRangeHoldNothing();
    void insertsAtTheIndex();
    void indexOutOfRangeInsertsAtTheEnd_data();
    void indexOutOfRangeInsertsAtTheEnd();
    void removedItemIsDeletedAndItsWidgetStays();
    void removesByWidgetAndByItem();
    void unknownIsNotRemoved();
    void clearRemovesEverything();
    void newOrderIsLaidOut();
    void itemLeftOutIsTheCallers();
    void newItemInTheOrderIsTakenOver();
    void signalsAreBlockedDuringAPass();
    void itemsDieWithTheList();
    void frameIsTheScrollAreas();
    void tabOrderIsTheOrderOfComing();
    void tilesArePainted_data();
    void tilesArePainted();

private:
    HintedWidget *append(int width = 40, int height = 20);

    std::unique_ptr<TXWidgetListWidget> list;
};

void TestTXWidgetListWidget::prepare()
{
    BareItem::alive = 0;
    CountedSpacer::alive = 0;
    list = std::make_unique<TXWidgetListWidget>();
}

void TestTXWidgetListWidget::finish()
{
    list.reset();
    QCOMPARE(BareItem::alive, 0);
    QCOMPARE(CountedSpacer::alive, 0);
}

HintedWidget *TestTXWidgetListWidget::append(int width, int height)
{
    auto *widget = new HintedWidget({width, height});
    list->append(widget);
    return widget;
}

void TestTXWidgetListWidget::startsEmpty()
{
    QCOMPARE(list->count(), 0);
    QVERIFY(list->layoutItems().isEmpty());
    QCOMPARE(list->size(), QSize(230, 223));
}

void TestTXWidgetListWidget::formIsAsNamed()
{
    QCOMPARE(list->objectName(), "TXWidgetListWidget");
    QCOMPARE(list->layout()->objectName(), "horizontalLayout");
    QCOMPARE(list->layout()->contentsMargins(), QMargins());
    const QScrollArea *area = scrollAreaOf(*list);
    QVERIFY(area);
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(area->widget(), contentsOf(*list));
    QCOMPARE(contentsOf(*list)->layout(), gridOf(*list));
}

void TestTXWidgetListWidget::endSpacersAreTakenOutOfTheForm()
{
    QCOMPARE(list->layout()->count(), 1);
    QCOMPARE(gridOf(*list)->count(), 0);
    list->reorganize();
    QCOMPARE(allCellsOf(*list), QList<QPoint>({{1, 0}, {0, 1}}));
    QGridLayout *grid = gridOf(*list);
    QCOMPARE(grid->itemAt(0)->expandingDirections(), Qt::Horizontal);
    QCOMPARE(grid->itemAt(1)->expandingDirections(), Qt::Vertical);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(grid->itemAt(i)->alignment(), Qt::AlignLeft | Qt::AlignTop);
    }
}

void TestTXWidgetListWidget::appendedWidgetBecomesAChild()
{
    QWidget former;
    auto *widget = new HintedWidget({40, 20}, &former);
    list->append(widget);
    QCOMPARE(widget->parentWidget(), contentsOf(*list));
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->widgetAt(0), widget);
    QLayoutItem *item = list->layoutItems().constFirst();
    QVERIFY(dynamic_cast<QWidgetItem *>(item));
    QCOMPARE(item->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

void TestTXWidgetListWidget::appendedWidgetAppears()
{
    const QWidget *early = append();
    list->show();
    QVERIFY(early->isVisible());
    const QWidget *first = append();
    const QWidget *second = append();
    QTRY_VERIFY(first->isVisible() && second->isVisible());
    QCOMPARE(first->y(), early->y());
    QVERIFY(first->x() > early->x());
    QVERIFY(second->x() > first->x());
}

void TestTXWidgetListWidget::hiddenWidgetStaysHidden()
{
    list->show();
    auto *widget = new HintedWidget({40, 20});
    widget->hide();
    list->append(widget);
    const QWidget *next = append();
    QTRY_VERIFY(next->isVisible());
    QVERIFY(!widget->isVisible());
}

void TestTXWidgetListWidget::widgetsAndItemsAreFound()
{
    QWidget *first = append();
    auto *spacer = new CountedSpacer;
    list->append(spacer);
    QWidget *second = append();
    QCOMPARE(list->count(), 3);
    QCOMPARE(list->indexOf(first), 0);
    QCOMPARE(list->indexOf(spacer), 1);
    QCOMPARE(list->indexOf(second), 2);
    QCOMPARE(list->indexOf(list->layoutItems().at(2)), 2);
    QVERIFY(list->contains(first));
    QVERIFY(list->contains(spacer));
    QCOMPARE(list->spacerItemAt(1), spacer);
    QVERIFY(!list->widgetAt(1));
    QVERIFY(!list->spacerItemAt(0));
    QCOMPARE(list->widgetAt(2), second);

    QWidget stranger;
    QSpacerItem strangeItem(1, 1);
    QCOMPARE(list->indexOf(&stranger), -1);
    QCOMPARE(list->indexOf(&strangeItem), -1);
    QVERIFY(!list->contains(&stranger));
    QVERIFY(!list->contains(&strangeItem));
}

void TestTXWidgetListWidget::nothingIsFoundForNull()
{
    list->append(new CountedSpacer);
    list->append(new BareItem);
    QCOMPARE(list->indexOf(static_cast<QWidget *>(nullptr)), -1);
    QCOMPARE(list->indexOf(static_cast<QLayoutItem *>(nullptr)), -1);
    QVERIFY(!list->contains(static_cast<QWidget *>(nullptr)));
    QVERIFY(!list->contains(static_cast<QLayoutItem *>(nullptr)));
    QVERIFY(!list->removeWidget(nullptr));
    QVERIFY(!list->removeItem(nullptr));
    QCOMPARE(list->count(), 2);
}

void TestTXWidgetListWidget::placesOutOfRangeHoldNothing()
{
    append();
    for (const int index : {-1, 1, 1000}) {
        QVERIFY(!list->widgetAt(index));
        QVERIFY(!list->spacerItemAt(index));
        QVERIFY(!list->removeAt(index));
    }
    QCOMPARE(list->count(), 1);
}

void TestTXWidgetListWidget::insertsAtTheIndex()
{
    QWidget *second = append();
    auto *first = new HintedWidget({10, 10});
    list->insert(0, first);
    auto *middle = new CountedSpacer;
    list->insert(1, middle);
    QCOMPARE(list->indexOf(first), 0);
    QCOMPARE(list->indexOf(middle), 1);
    QCOMPARE(list->indexOf(second), 2);
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {1, 0}, {2, 0}}));
}

void TestTXWidgetListWidget::indexOutOfRangeInsertsAtTheEnd_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("far negative") << std::numeric_limits<int>::min();
    QTest::newRow("behind the end") << 2;
    QTest::newRow("far behind") << std::numeric_limits<int>::max();
}

void TestTXWidgetListWidget::indexOutOfRangeInsertsAtTheEnd()
{
    QFETCH(int, index);
    append();
    auto *widget = new HintedWidget({10, 10});
    list->insert(index, widget);
    auto *spacer = new CountedSpacer;
    list->insert(index, spacer);
    QCOMPARE(list->indexOf(widget), 1);
    QCOMPARE(list->indexOf(spacer), 2);
}

void TestTXWidgetListWidget::removedItemIsDeletedAndItsWidgetStays()
{
    list->show();
    append();
    const QPointer<QWidget> widget = append(60, 30);
    auto *spacer = new CountedSpacer;
    list->append(spacer);
    QTRY_VERIFY(widget->isVisible());
    QVERIFY(list->removeAt(1));
    QCOMPARE(list->count(), 2);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), contentsOf(*list));
    QVERIFY(widget->isVisible());
    QCOMPARE(widget->size(), QSize(60, 30));
    QCOMPARE(list->widgetAt(0)->size(), QSize(40, 20)); // the cell is smaller again
    QVERIFY(list->removeAt(1));
    QCOMPARE(CountedSpacer::alive, 0);
    QCOMPARE(gridOf(*list)->count(), 1 + 2);
    delete widget;
    QCOMPARE(list->count(), 1);
}

void TestTXWidgetListWidget::removesByWidgetAndByItem()
{
    QWidget *first = append();
    append();
    QLayoutItem *item = list->layoutItems().at(1);
    QVERIFY(list->removeWidget(first));
    QVERIFY(!list->contains(first));
    QVERIFY(list->removeItem(item));
    QCOMPARE(list->count(), 0);
    QVERIFY(!list->removeWidget(first));
}

void TestTXWidgetListWidget::unknownIsNotRemoved()
{
    append();
    QWidget stranger(contentsOf(*list));
    QSpacerItem item(1, 1);
    QVERIFY(!list->removeWidget(&stranger));
    QVERIFY(!list->removeItem(&item));
    QCOMPARE(list->count(), 1);
}

void TestTXWidgetListWidget::clearRemovesEverything()
{
    list->clear();
    const QPointer<QWidget> widget = append();
    list->append(new BareItem);
    list->append(new CountedSpacer);
    list->clear();
    QCOMPARE(list->count(), 0);
    QVERIFY(widget);
    QCOMPARE(BareItem::alive, 0);
    QCOMPARE(CountedSpacer::alive, 0);
    QCOMPARE(allCellsOf(*list), QList<QPoint>({{1, 0}, {0, 1}}));
    list->append(widget);
    QCOMPARE(list->count(), 1);
}

void TestTXWidgetListWidget::newOrderIsLaidOut()
{
    const QWidget *first = append();
    const QWidget *second = append();
    append();
    QList<QLayoutItem *> items = list->layoutItems();
    std::reverse(items.begin(), items.end());
    list->reorganize(items);
    QCOMPARE(list->layoutItems(), items);
    QCOMPARE(list->widgetAt(2), first);
    QCOMPARE(list->widgetAt(1), second);
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {1, 0}, {0, 1}}));
}

void TestTXWidgetListWidget::itemLeftOutIsTheCallers()
{
    const QPointer<QWidget> widget = append();
    append();
    const QList<QLayoutItem *> all = list->layoutItems();
    list->reorganize(all.mid(1));
    QCOMPARE(list->count(), 1);
    QCOMPARE(cellOf(*list, all.at(0)), QPoint(-1, -1));
    QVERIFY(widget);
    list->reorganize(all);
    QCOMPARE(list->indexOf(widget), 0);
    list->reorganize({});
    QCOMPARE(list->count(), 0);
    qDeleteAll(all);
}

void TestTXWidgetListWidget::newItemInTheOrderIsTakenOver()
{
    append();
    const QList<QLayoutItem *> old = list->layoutItems();
    auto *spacer = new CountedSpacer;
    auto *widget = new HintedWidget({10, 10}, contentsOf(*list));
    auto *inner = new QHBoxLayout;
    auto *deep = new HintedWidget({10, 10});
    inner->addWidget(deep);
    list->reorganize({spacer, new QWidgetItem(widget), old.at(0), inner});
    QCOMPARE(list->count(), 4);
    QCOMPARE(widget->size(), QSize(40, 20));
    QCOMPARE(inner->parent(), gridOf(*list));
    QCOMPARE(deep->parentWidget(), contentsOf(*list));
    delete widget;
    QCOMPARE(list->count(), 3);
}

void TestTXWidgetListWidget::signalsAreBlockedDuringAPass()
{
    class Watcher : public HintedWidget
    {
    public:
        explicit Watcher(const QObject *watchedObject)
            : HintedWidget({10, 10})
            , watched(watchedObject)
        { }
        [[nodiscard]] QSize sizeHint() const override
        {
            seen.append(watched->signalsBlocked());
            return hint;
        }
        const QObject *watched;
        mutable QList<bool> seen;
    };
    auto *watcher = new Watcher(list.get());
    list->append(watcher);
    list->reorganize();
    QVERIFY(!watcher->seen.isEmpty());
    QVERIFY(!watcher->seen.contains(false));
    QVERIFY(!list->signalsBlocked());
    list->blockSignals(true);
    list->reorganize();
    QVERIFY(list->signalsBlocked());
}

void TestTXWidgetListWidget::itemsDieWithTheList()
{
    const QPointer<QWidget> widget = append();
    list->append(new BareItem);
    list->append(new CountedSpacer);
    const QPointer<QLayout> inner = new QHBoxLayout;
    list->append(inner);
    QWidget stranger;
    list->append(new QWidgetItem(&stranger));
    list.reset();
    QVERIFY(!widget);
    QVERIFY(!inner);
    QCOMPARE(BareItem::alive, 0);
    QCOMPARE(CountedSpacer::alive, 0);
}

void TestTXWidgetListWidget::frameIsTheScrollAreas()
{
    QCOMPARE(scrollAreaOf(*list)->frameShape(), QFrame::StyledPanel);
    list->setFrameShape(QFrame::NoFrame);
    QCOMPARE(scrollAreaOf(*list)->frameShape(), QFrame::NoFrame);
}

void TestTXWidgetListWidget::tabOrderIsTheOrderOfComing()
{
    QList<QWidget *> fields;
    for (int i = 0; i < 3; ++i) {
        fields.append(new QLineEdit);
        list->append(fields.constLast());
    }
    list->show();
    list->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(list.get()));
    fields.at(0)->setFocus();
    for (int i = 1; i < 3; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), fields.at(i));
    }
}

void TestTXWidgetListWidget::tilesArePainted_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("ratio 1") << 1.0 << Qt::LeftToRight;
    QTest::newRow("ratio 2") << 2.0 << Qt::LeftToRight;
    QTest::newRow("right to left") << 1.0 << Qt::RightToLeft;
}

void TestTXWidgetListWidget::tilesArePainted()
{
    QFETCH(qreal, ratio);
    QFETCH(Qt::LayoutDirection, direction);
    list->setLayoutDirection(direction);
    const QList<QColor> colours = {Qt::red, Qt::green, Qt::blue};
    for (const QColor &colour : colours) {
        QWidget *tile = append(80, 30);
        tile->setAutoFillBackground(true);
        tile->setPalette(QPalette(colour));
    }
    list->show();
    const PixelProbe probe(*list, ratio);
    const QGridLayout *grid = gridOf(*list);
    const int margin = grid->contentsMargins().left() + scrollAreaOf(*list)->frameWidth();
    const int right = margin + 80 + grid->horizontalSpacing();
    const int below = margin + 30 + grid->verticalSpacing();
    const QList<QPoint> corners = {{margin, margin}, {right, margin}, {margin, below}};
    for (int i = 0; i < 3; ++i) {
        const QRect tile =
            QStyle::visualRect(direction, list->rect(), {corners.at(i), QSize(80, 30)});
        QVERIFY(probe.isNear(tile.topLeft(), colours.at(i)));
        QVERIFY(probe.isNear(tile.bottomRight(), colours.at(i)));
        QVERIFY(!probe.isNear(tile.bottomRight() + QPoint(1, 0), colours.at(i)));
        QVERIFY(!probe.isNear(tile.topLeft() - QPoint(0, 1), colours.at(i)));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetListWidget>(argc, argv);
}

#include "tst_TXWidgetListWidget.moc"
