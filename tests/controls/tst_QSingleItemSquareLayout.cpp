#include "QSingleItemSquareLayout.h"

#include "PixelProbe.h"
#include "SquareLayoutHelpers.h"
#include "TestBase.h"

#include <QBoxLayout>

#include <memory>

class TestQSingleItemSquareLayout : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void startsEmpty();
    void spacingIsKept();
    void squareStandsInTheMiddle_data();
    void squareStandsInTheMiddle();
    void properSizeIsTheShorterSideLessItsMargins_data();
    void properSizeIsTheShorterSideLessItsMargins();
    void centreIsFoundByIntegerDivision_data();
    void centreIsFoundByIntegerDivision();
    void placeOfTheGivenRectangleDoesNotCount();
    void sameRectangleIsNotLaidOutAgain();
    void lastReceivedRectangleCanBeSet();
    void rectanglesAreComparedByTheirCorners();
    void emptyLayoutForgetsTheRectangle();
    void bothSizesAreTheItemsMinimum();
    void takesAllSpace();
    void secondItemIsIgnored();
    void replacingLaysOutInTheFormerSquare();
    void replacingWithTheSameItemChangesNothing();
    void onlyTheFirstIndexHoldsAnItem();
    void takenItemIsTheCallers();
    void itemDiesWithTheLayout();
    void widgetBecomesAChildAndIsShown();
    void widgetGetsItsParentWithTheLayout();
    void hiddenWidgetStaysHidden();
    void widgetShownLateIsLaidOut();
    void followsEveryResize();
    void innerLayoutIsLaidOut();
    void squareIsPainted_data();
    void squareIsPainted();

private:
    std::unique_ptr<QWidget> window;
    QSingleItemSquareLayout *layout = nullptr;
};

void TestQSingleItemSquareLayout::prepare()
{
    CountedItem::alive = 0;
    window = std::make_unique<QWidget>();
    layout = new QSingleItemSquareLayout(window.get(), 5);
    layout->setContentsMargins(10, 10, 10, 10);
    window->resize(200, 100);
}

void TestQSingleItemSquareLayout::finish()
{
    window.reset();
    QCOMPARE(CountedItem::alive, 0);
}

void TestQSingleItemSquareLayout::startsEmpty()
{
    QCOMPARE(window->layout(), layout);
    QVERIFY(!layout->hasItem());
    QCOMPARE(layout->count(), 0);
    QVERIFY(!layout->itemAt(0));
    QVERIFY(!layout->takeAt(0));
    QVERIFY(!layout->take());
    QCOMPARE(layout->geometry(), QRect());
    QVERIFY(layout->isEmpty());
}

void TestQSingleItemSquareLayout::spacingIsKept()
{
    QCOMPARE(layout->spacing(), 5);
    const QSingleItemSquareLayout alone(7);
    QCOMPARE(alone.spacing(), 7);
    QVERIFY(!alone.parentWidget());
    QVERIFY(!alone.hasItem());
}

void TestQSingleItemSquareLayout::squareStandsInTheMiddle_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("square");
    QTest::newRow("wide") << QSize(200, 100) << QRect(60, 10, 80, 80);
    QTest::newRow("high") << QSize(100, 200) << QRect(10, 60, 80, 80);
    QTest::newRow("square") << QSize(100, 100) << QRect(10, 10, 80, 80);
    QTest::newRow("odd") << QSize(201, 101) << QRect(61, 11, 81, 81);
    QTest::newRow("odd and even") << QSize(101, 200) << QRect(11, 60, 81, 81);
}

void TestQSingleItemSquareLayout::squareStandsInTheMiddle()
{
    QFETCH(QSize, size);
    QFETCH(QRect, square);
    auto *widget = new RedWidget;
    layout->addWidget(widget);
    window->resize(size);
    window->show();
    QCOMPARE(widget->geometry(), square);
    QCOMPARE(layout->geometry(), square);
}

void TestQSingleItemSquareLayout::properSizeIsTheShorterSideLessItsMargins_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("side");
    QTest::newRow("wide") << QSize(200, 100) << 100 - 2 - 8;
    QTest::newRow("high") << QSize(100, 200) << 100 - 1 - 4;
    QTest::newRow("as wide as high") << QSize(100, 100) << 100 - 1 - 4;
    QTest::newRow("nearly as wide as high") << QSize(101, 100) << 100 - 2 - 8;
    QTest::newRow("within the margins") << QSize(3, 200) << -2;
    QTest::newRow("nothing") << QSize(0, 0) << -5;
}

void TestQSingleItemSquareLayout::properSizeIsTheShorterSideLessItsMargins()
{
    QFETCH(QSize, size);
    QFETCH(int, side);
    layout->setContentsMargins(1, 2, 4, 8);
    QCOMPARE(layout->calculateProperSize(size), QSize(side, side));
}

void TestQSingleItemSquareLayout::centreIsFoundByIntegerDivision_data()
{
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("item");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("even") << QSize(200, 100) << QSize(80, 80) << QPoint(60, 10);
    QTest::newRow("odd space") << QSize(201, 101) << QSize(80, 80) << QPoint(61, 11);
    QTest::newRow("odd item") << QSize(200, 100) << QSize(81, 81) << QPoint(60, 10);
    QTest::newRow("both odd") << QSize(201, 101) << QSize(81, 81) << QPoint(61, 11);
    QTest::newRow("too large") << QSize(40, 30) << QSize(80, 80) << QPoint(0, 0);
    QTest::newRow("too wide alone") << QSize(40, 100) << QSize(80, 80) << QPoint(0, 10);
    QTest::newRow("negative item") << QSize(10, 20) << QSize(-5, -5) << QPoint(7, 12);
}

void TestQSingleItemSquareLayout::centreIsFoundByIntegerDivision()
{
    QFETCH(QSize, from);
    QFETCH(QSize, item);
    QFETCH(QPoint, place);
    QCOMPARE(layout->calculateCenterLocation(from, item), place);
}

void TestQSingleItemSquareLayout::placeOfTheGivenRectangleDoesNotCount()
{
    auto *widget = new RedWidget(window.get());
    widget->show();
    window->show();
    layout->addWidget(widget);
    layout->setGeometry(QRect(1000, 500, 200, 100));
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
    QCOMPARE(widget->geometry(), QRect(60, 10, 80, 80));
    layout->setGeometry(QRect(-3, -4, 60, 100));
    QCOMPARE(layout->geometry(), QRect(10, 30, 40, 40));
}

void TestQSingleItemSquareLayout::sameRectangleIsNotLaidOutAgain()
{
    layout->add(new CountedItem);
    layout->setGeometry(QRect(0, 0, 200, 100));
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
    layout->setGeometry(QRect(1, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect(70, 20, 60, 60));
}

void TestQSingleItemSquareLayout::lastReceivedRectangleCanBeSet()
{
    layout->add(new CountedItem);
    layout->setLastReceivedRect(QRect(0, 0, 200, 100));
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect());
    layout->setLastReceivedRect(QRect());
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
}

void TestQSingleItemSquareLayout::rectanglesAreComparedByTheirCorners()
{
    QVERIFY(layout->areRectsEqual(QRect(1, 2, 3, 4), QRect(1, 2, 3, 4)));
    QVERIFY(layout->areRectsEqual(QRect(), QRect(0, 0, 0, 0)));
    for (const QRect &other :
         {QRect(0, 2, 3, 4), QRect(1, 0, 3, 4), QRect(1, 2, 0, 4), QRect(1, 2, 3, 0)}) {
        QVERIFY(!layout->areRectsEqual(QRect(1, 2, 3, 4), other));
    }
}

void TestQSingleItemSquareLayout::emptyLayoutForgetsTheRectangle()
{
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect());
    layout->add(new CountedItem);
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
}

void TestQSingleItemSquareLayout::bothSizesAreTheItemsMinimum()
{
    layout->add(new CountedItem);
    QCOMPARE(layout->sizeHint(), QSize(30, 20));
    QCOMPARE(layout->minimumSize(), QSize(30, 20));
}

void TestQSingleItemSquareLayout::takesAllSpace()
{
    QCOMPARE(layout->expandingDirections(), Qt::Horizontal | Qt::Vertical);
    QVERIFY(!layout->hasHeightForWidth());
}

void TestQSingleItemSquareLayout::secondItemIsIgnored()
{
    auto *first = new RedWidget;
    layout->addWidget(first);
    QLayoutItem *item = layout->itemAt(0);
    RedWidget second;
    layout->addWidget(&second);
    QVERIFY(!second.parentWidget());
    CountedItem third;
    layout->add(&third);
    layout->addItem(&third);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0), item);
    QCOMPARE(item->widget(), first);
    QCOMPARE(CountedItem::alive, 1); // what was refused is the caller's
}

void TestQSingleItemSquareLayout::replacingLaysOutInTheFormerSquare()
{
    layout->add(new CountedItem);
    layout->setGeometry(QRect(0, 0, 200, 100));
    auto *next = new CountedItem;
    const std::unique_ptr<QLayoutItem> former(layout->replaceItem(next));
    QVERIFY(former);
    QCOMPARE(layout->itemAt(0), next);
    // Out of the square with 80 pixels a side at (60, 10), again less the margins.
    QCOMPARE(layout->geometry(), QRect(10, 10, 60, 60));
    QCoreApplication::processEvents();
    QCOMPARE(layout->geometry(), QRect(10, 10, 60, 60));
    layout->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
}

void TestQSingleItemSquareLayout::replacingWithTheSameItemChangesNothing()
{
    auto *item = new CountedItem;
    QVERIFY(!layout->replaceItem(item));
    layout->setGeometry(QRect(0, 0, 200, 100));
    QVERIFY(!layout->replaceItem(item));
    QCOMPARE(layout->itemAt(0), item);
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
}

void TestQSingleItemSquareLayout::onlyTheFirstIndexHoldsAnItem()
{
    auto *item = new CountedItem;
    layout->addItem(item);
    QVERIFY(layout->hasItem());
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0), item);
    for (const int index : {-1, 1, 2}) {
        QVERIFY(!layout->itemAt(index));
        QVERIFY(!layout->takeAt(index));
    }
    QVERIFY(layout->hasItem());
}

void TestQSingleItemSquareLayout::takenItemIsTheCallers()
{
    auto *item = new CountedItem;
    layout->add(item);
    QCOMPARE(layout->takeAt(0), item);
    QVERIFY(!layout->hasItem());
    layout->add(item);
    QCOMPARE(layout->take(), item);
    QCOMPARE(layout->count(), 0);
    QCOMPARE(CountedItem::alive, 1);
    delete item;
}

void TestQSingleItemSquareLayout::itemDiesWithTheLayout()
{
    layout->add(new CountedItem);
    delete layout;
    QCOMPARE(CountedItem::alive, 0);

    auto *next = new QSingleItemSquareLayout(window.get(), 0);
    auto *widget = new RedWidget;
    next->addWidget(widget);
    delete next;
    QCOMPARE(widget->parentWidget(), window.get());
}

void TestQSingleItemSquareLayout::widgetBecomesAChildAndIsShown()
{
    window->show();
    auto *widget = new RedWidget;
    layout->addWidget(widget);
    QCOMPARE(widget->parentWidget(), window.get());
    QTRY_VERIFY(widget->isVisible());
    QCOMPARE(widget->geometry(), QRect(60, 10, 80, 80));
}

void TestQSingleItemSquareLayout::widgetGetsItsParentWithTheLayout()
{
    auto *later = new QSingleItemSquareLayout(0);
    auto *widget = new RedWidget;
    later->addWidget(widget);
    QVERIFY(!widget->parentWidget());
    QWidget parent;
    parent.setLayout(later);
    QCOMPARE(widget->parentWidget(), &parent);
}

void TestQSingleItemSquareLayout::hiddenWidgetStaysHidden()
{
    window->show();
    auto *widget = new RedWidget;
    widget->hide();
    layout->addWidget(widget);
    QCoreApplication::processEvents();
    QVERIFY(!widget->isVisible());
}

void TestQSingleItemSquareLayout::widgetShownLateIsLaidOut()
{
    auto *widget = new RedWidget;
    widget->hide();
    layout->addWidget(widget);
    window->show();
    QCOMPARE(layout->geometry(), QRect(60, 10, 80, 80));
    QVERIFY(widget->geometry() != QRect(60, 10, 80, 80));
    widget->show();
    QCOMPARE(widget->geometry(), QRect(60, 10, 80, 80));

    // Laid out before it is shown: the layout is told of its new margins first.
    delete layout->take();
    widget->setParent(nullptr);
    window->resize(300, 100);
    layout->addWidget(widget);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->activate();
    QVERIFY(!widget->isVisible());
    QTRY_VERIFY(widget->isVisible());
    QCOMPARE(widget->geometry(), QRect(120, 20, 60, 60));
}

void TestQSingleItemSquareLayout::followsEveryResize()
{
    auto *widget = new RedWidget;
    layout->addWidget(widget);
    window->show();
    for (int width = 60; width <= 300; width += 7) {
        window->resize(width, 120);
        const int side = qMin(width, 120) - 20;
        QCOMPARE(widget->size(), QSize(side, side));
        QCOMPARE(widget->x(), width - width / 2 - side / 2);
        QCOMPARE(widget->y(), 60 - side / 2);
    }
}

void TestQSingleItemSquareLayout::innerLayoutIsLaidOut()
{
    auto *inner = new QHBoxLayout;
    inner->setContentsMargins(0, 0, 0, 0);
    auto *widget = new RedWidget;
    inner->addWidget(widget);
    layout->add(inner);
    QCOMPARE(inner->parent(), layout);
    QCOMPARE(widget->parentWidget(), window.get());
    window->show();
    QCOMPARE(widget->geometry(), QRect(60, 10, 80, 80));

    const std::unique_ptr<QLayoutItem> taken(layout->take());
    QCOMPARE(taken->layout(), inner);
    QVERIFY(!inner->parent());
}

void TestQSingleItemSquareLayout::squareIsPainted_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("ratio 1") << 1.0;
    QTest::newRow("ratio 2") << 2.0;
}

void TestQSingleItemSquareLayout::squareIsPainted()
{
    QFETCH(qreal, ratio);
    layout->addWidget(new RedWidget);
    window->show();
    const PixelProbe probe(*window, ratio);
    for (const QPoint &inside :
         {QPoint(60, 10), QPoint(139, 10), QPoint(60, 89), QPoint(139, 89)}) {
        QVERIFY(probe.isNear(inside, Qt::red));
    }
    for (const QPoint &outside :
         {QPoint(59, 50), QPoint(140, 50), QPoint(100, 9), QPoint(100, 90)}) {
        QVERIFY(!probe.isNear(outside, Qt::red));
    }
}

int main(int argc, char **argv)
{
    return runTest<TestQSingleItemSquareLayout>(argc, argv);
}

#include "tst_QSingleItemSquareLayout.moc"
