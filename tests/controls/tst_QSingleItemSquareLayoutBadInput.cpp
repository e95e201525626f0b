#include "QSingleItemSquareLayout.h"

#include "SquareLayoutHelpers.h"
#include "TestBase.h"

#include <QBoxLayout>
#include <QPointer>

#include <memory>

class TestQSingleItemSquareLayoutBadInput : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void emptyLayoutHasNoSize();
    void nullIsIgnored();
    void oddSizesDoNoHarm();
    void deletedWidgetLeaves();
    void deletedWidgetOfAnotherParentLeaves();
    void widgetTakenElsewhereLeaves();
    void removedWidgetLeaves();
    void deletedInnerLayoutLeaves();
    void layoutIsNotNestedInItself();
    void layoutWithAParentIsRefused();
    void widgetIsNotNestedInItself();
    void itemWithoutItsWidgetIsRefused();

private:
    std::unique_ptr<QWidget> window;
    QSingleItemSquareLayout *layout = nullptr;
};

void TestQSingleItemSquareLayoutBadInput::prepare()
{
    CountedItem::alive = 0;
    window = std::make_unique<QWidget>();
    layout = new QSingleItemSquareLayout(window.get(), 5);
    layout->setContentsMargins(10, 10, 10, 10);
    window->resize(200, 100);
}

void TestQSingleItemSquareLayoutBadInput::finish()
{
    window.reset();
    QCOMPARE(CountedItem::alive, 0);
}

void TestQSingleItemSquareLayoutBadInput::emptyLayoutHasNoSize()
{
    QCOMPARE(layout->sizeHint(), QSize(0, 0));
    QCOMPARE(layout->minimumSize(), QSize(0, 0));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(window->sizeHint(), QSize(0, 0));
}

void TestQSingleItemSquareLayoutBadInput::nullIsIgnored()
{
    layout->add(nullptr);
    layout->addItem(nullptr);
    layout->addWidget(nullptr);
    QVERIFY(!layout->hasItem());
    QVERIFY(!layout->replaceItem(nullptr));
}

void TestQSingleItemSquareLayoutBadInput::oddSizesDoNoHarm()
{
    auto *widget = new RedWidget(window.get());
    widget->show();
    window->show();
    layout->addWidget(widget);
    layout->setContentsMargins(500, 500, 500, 500);
    for (const QSize &size : {QSize(200, 100), QSize(1, 1), QSize(0, 0), QSize(-5, 30),
                              QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)}) {
        layout->setGeometry(QRect(QPoint(0, 0), size));
        QCOMPARE(layout->geometry().size(), layout->calculateProperSize(size));
        QVERIFY(widget->width() >= 0);
        QVERIFY(widget->height() >= 0);
    }
}

void TestQSingleItemSquareLayoutBadInput::deletedWidgetLeaves()
{
    window->show();
    auto *widget = new RedWidget;
    layout->addWidget(widget);
    QCoreApplication::processEvents();
    delete widget;
    QVERIFY(!layout->hasItem());
    window->resize(300, 300);
    layout->addWidget(new RedWidget);
    QVERIFY(layout->hasItem());
}

void TestQSingleItemSquareLayoutBadInput::deletedWidgetOfAnotherParentLeaves()
{
    auto stranger = std::make_unique<RedWidget>();
    layout->add(new QWidgetItem(stranger.get()));
    QVERIFY(layout->hasItem());
    stranger.reset();
    QVERIFY(!layout->hasItem());
    window->show();
    QCOMPARE(layout->sizeHint(), QSize(0, 0));

    // Neither the widget's end nor the layout's is told once the item is out.
    auto other = std::make_unique<RedWidget>();
    auto *item = new QWidgetItem(other.get());
    layout->add(item);
    QCOMPARE(layout->take(), item);
    layout->add(new CountedItem);
    other.reset();
    delete item;
    QVERIFY(layout->hasItem());
}

void TestQSingleItemSquareLayoutBadInput::widgetTakenElsewhereLeaves()
{
    auto *widget = new RedWidget;
    layout->addWidget(widget);
    QWidget other;
    widget->setParent(&other);
    QVERIFY(!layout->hasItem());
}

void TestQSingleItemSquareLayoutBadInput::removedWidgetLeaves()
{
    auto *widget = new RedWidget;
    layout->addWidget(widget);
    layout->removeWidget(widget);
    QVERIFY(!layout->hasItem());
    QCOMPARE(widget->parentWidget(), window.get());
}

void TestQSingleItemSquareLayoutBadInput::deletedInnerLayoutLeaves()
{
    auto *inner = new QHBoxLayout;
    layout->add(inner);
    delete inner;
    QVERIFY(!layout->hasItem());
    const QPointer<QHBoxLayout> next = new QHBoxLayout;
    layout->add(next);
    delete layout;
    QVERIFY(!next);
}

void TestQSingleItemSquareLayoutBadInput::layoutIsNotNestedInItself()
{
    layout->add(layout);
    QVERIFY(!layout->hasItem());
    QVERIFY(!layout->replaceItem(layout));
    QVERIFY(!layout->hasItem());

    QSingleItemSquareLayout alone(0);
    alone.add(&alone);
    QVERIFY(!alone.hasItem());
    auto *outer = new QHBoxLayout;
    auto *inner = new QSingleItemSquareLayout(0);
    outer->addLayout(inner);
    inner->add(outer);
    QVERIFY(!inner->hasItem());
    delete outer;
}

void TestQSingleItemSquareLayoutBadInput::layoutWithAParentIsRefused()
{
    QWidget other;
    auto *owned = new QHBoxLayout(&other);
    layout->add(owned);
    QVERIFY(!layout->hasItem());
    QCOMPARE(other.layout(), owned);
}

void TestQSingleItemSquareLayoutBadInput::widgetIsNotNestedInItself()
{
    QWidget outer;
    window->setParent(&outer, Qt::Window); // an owner beyond the border of a window
    layout->addWidget(window.get());
    layout->addWidget(&outer);
    QVERIFY(!layout->hasItem());
    QVERIFY(!outer.parentWidget());

    QWidgetItem around(&outer);
    layout->add(&around);
    QVERIFY(!layout->hasItem());

    QHBoxLayout deeper;
    deeper.addItem(new QWidgetItem(window.get()));
    layout->add(&deeper);
    QVERIFY(!layout->hasItem());
    window->setParent(nullptr);
}

void TestQSingleItemSquareLayoutBadInput::itemWithoutItsWidgetIsRefused()
{
    QWidgetItem empty(nullptr);
    layout->add(&empty);
    QVERIFY(!layout->hasItem());
    QVERIFY(!layout->replaceItem(&empty));
    QVERIFY(!layout->hasItem());
}

int main(int argc, char **argv)
{
    return runTest<TestQSingleItemSquareLayoutBadInput>(argc, argv);
}

#include "tst_QSingleItemSquareLayoutBadInput.moc"
