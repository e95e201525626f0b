#include "TXWidgetListWidget.h"

#include "TestBase.h"
#include "WidgetListHelpers.h"

#include <QHBoxLayout>
#include <QPointer>

#include <functional>
#include <limits>
#include <memory>

namespace {

/// A widget that does something when it is resized or asked for its hint.
class BusyWidget : public HintedWidget
{
public:
    using HintedWidget::HintedWidget;

    [[nodiscard]] QSize sizeHint() const override
    {
        run(whenAsked);
        return hint;
    }

    /// Each runs once.
    mutable std::function<void()> whenAsked;
    mutable std::function<void()> whenResized;

protected:
    void resizeEvent(QResizeEvent *) override { run(whenResized); }

private:
    static void run(std::function<void()> &task)
    {
        if (const auto once = std::exchange(task, nullptr)) {
            once();
        }
    }
};

} // namespace

class TestTXWidgetListWidgetBadInput : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void nullIsIgnored();
    void deletedWidgetLeavesTheList();
    void deletedWidgetsOfAShownListCloseTheGap();
    void widgetTakenElsewhereLeavesTheList();
    void deletedWidgetOfAnotherParentLeavesTheList();
    void deletedLayoutLeavesTheList();
    void widgetInAnInnerLayoutIsDeleted();
    void repeatedWidgetHasTwoItems();
    void repeatedWidgetLeavesAsAWhole_data();
    void repeatedWidgetLeavesAsAWhole();
    void repeatedItemIsIgnored();
    void nullAndRepeatedItemsOfAnOrderAreLeftOut();
    void listIsNotNestedInItself();
    void listsAreNotNestedInEachOther();
    void layoutWithAParentIsRefused();
    void itemWithoutItsWidgetIsRefused();
    void endSpacerInTheListIsSkipped();
    void widgetsWithoutHintVanish();
    void hugeHintDoesNoHarm();
    void listChangedByAWidgetDuringAPass_data();
    void listChangedByAWidgetDuringAPass();
    void widgetDiesDuringAPass_data();
    void widgetDiesDuringAPass();
    void listDiesWithWorkPutOff();

private:
    HintedWidget *append();
    void verifyFlow();

    std::unique_ptr<TXWidgetListWidget> list;
};

void TestTXWidgetListWidgetBadInput::prepare()
{
    BareItem::alive = 0;
    list = std::make_unique<TXWidgetListWidget>();
}

void TestTXWidgetListWidgetBadInput::finish()
{
    list.reset();
    QCOMPARE(BareItem::alive, 0);
}

HintedWidget *TestTXWidgetListWidgetBadInput::append()
{
    auto *widget = new HintedWidget({40, 20});
    list->append(widget);
    return widget;
}

/// The grid holds the list and nothing else, in the cells of a plain flow, also after a while.
void TestTXWidgetListWidgetBadInput::verifyFlow()
{
    QCoreApplication::processEvents();
    QCOMPARE(gridOf(*list)->count(), list->count() + 2);
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, plainSizeOf(*list)));
    list->resize(list->width() + 100, 100);
    QCOMPARE(allCellsOf(*list), plainCellsOf(*list, plainSizeOf(*list)));
}

void TestTXWidgetListWidgetBadInput::nullIsIgnored()
{
    list->append(static_cast<QWidget *>(nullptr));
    list->append(static_cast<QLayoutItem *>(nullptr));
    list->insert(0, static_cast<QWidget *>(nullptr));
    list->insert(0, static_cast<QLayoutItem *>(nullptr));
    QCOMPARE(list->count(), 0);
    QCOMPARE(gridOf(*list)->count(), 0);
}

void TestTXWidgetListWidgetBadInput::deletedWidgetLeavesTheList()
{
    const QWidget *first = append();
    const QWidget *second = append();
    const QWidget *third = append();
    delete second;
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->widgetAt(0), first);
    QCOMPARE(list->widgetAt(1), third);
    list->reorganize();
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {1, 0}}));
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::deletedWidgetsOfAShownListCloseTheGap()
{
    list->show();
    QList<QWidget *> widgets;
    for (int i = 0; i < 10; ++i) {
        widgets.append(append());
    }
    QTRY_VERIFY(widgets.constLast()->isVisible());
    const int step = 40 + gridOf(*list)->horizontalSpacing();
    QTRY_COMPARE(widgets.at(1)->x() - widgets.at(0)->x(), step);
    const QPoint place = widgets.at(1)->pos();
    delete widgets.at(1);
    widgets.at(2)->deleteLater();
    QTRY_COMPARE(widgets.at(3)->pos(), place);
    QCOMPARE(list->count(), 8);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::widgetTakenElsewhereLeavesTheList()
{
    append();
    HintedWidget *widget = append();
    QWidget other;
    widget->setParent(&other);
    QCOMPARE(list->count(), 1);
    QVERIFY(!list->contains(widget));
    verifyFlow();

    TXWidgetListWidget next;
    next.append(list->widgetAt(0));
    QCOMPARE(list->count(), 0);
    QCOMPARE(next.count(), 1);
    delete next.widgetAt(0);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::deletedWidgetOfAnotherParentLeavesTheList()
{
    append();
    auto stranger = std::make_unique<HintedWidget>(QSize(10, 10));
    list->append(new QWidgetItem(stranger.get()));
    QVERIFY(!stranger->parentWidget());
    QCOMPARE(stranger->size(), QSize(40, 20));
    stranger.reset();
    QCOMPARE(list->count(), 1);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::deletedLayoutLeavesTheList()
{
    append();
    auto *inner = new QHBoxLayout;
    auto *widget = new HintedWidget({10, 10});
    inner->addWidget(widget);
    list->append(inner);
    QCOMPARE(widget->parentWidget(), contentsOf(*list));
    list->reorganize();
    QCOMPARE(inner->parent(), gridOf(*list));
    delete inner;
    QCOMPARE(list->count(), 1);
    verifyFlow();

    const QPointer<QHBoxLayout> removed = new QHBoxLayout;
    list->append(removed);
    QVERIFY(list->removeItem(removed));
    QVERIFY(!removed);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::widgetInAnInnerLayoutIsDeleted()
{
    auto *inner = new QHBoxLayout;
    auto *widget = new HintedWidget({10, 10});
    inner->addWidget(widget);
    list->append(inner);
    list->show();
    delete widget;
    QCOMPARE(inner->count(), 0);
    QCOMPARE(list->count(), 1);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::repeatedWidgetHasTwoItems()
{
    HintedWidget *widget = append();
    list->append(widget);
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->indexOf(widget), 0);
    QVERIFY(list->removeWidget(widget));
    QCOMPARE(list->widgetAt(0), widget);
    verifyFlow();
    delete widget;
    QCOMPARE(list->count(), 0);
}

void TestTXWidgetListWidgetBadInput::repeatedWidgetLeavesAsAWhole_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("deleted") << true;
    QTest::newRow("taken elsewhere") << false;
}

void TestTXWidgetListWidgetBadInput::repeatedWidgetLeavesAsAWhole()
{
    QFETCH(bool, isDeleted);
    auto widget = std::make_unique<HintedWidget>(QSize(40, 20));
    for (int i = 0; i < 3; ++i) {
        list->append(widget.get());
        append();
    }
    list->append(new QWidgetItem(widget.get()));
    if (isDeleted) {
        widget.reset();
    } else {
        widget->setParent(nullptr);
    }
    QCOMPARE(list->count(), 3);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::repeatedItemIsIgnored()
{
    auto *bare = new BareItem;
    list->append(bare);
    list->append(bare);
    list->insert(0, bare);
    append();
    list->append(list->layoutItems().constLast());
    QCOMPARE(list->count(), 2);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::nullAndRepeatedItemsOfAnOrderAreLeftOut()
{
    append();
    append();
    const QList<QLayoutItem *> items = list->layoutItems();
    auto *bare = new BareItem;
    QWidgetItem around(list.get());
    list->reorganize(
        {items.at(1), nullptr, bare, items.at(1), bare, &around, nullptr, items.at(0)});
    QCOMPARE(list->layoutItems(), QList<QLayoutItem *>({items.at(1), bare, items.at(0)}));
    verifyFlow();
    list->reorganize(list->layoutItems());
    QCOMPARE(list->count(), 3);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::listIsNotNestedInItself()
{
    append();
    QWidget window;
    QWidget inner(&window, Qt::Window); // the list belongs to both, beyond the border of a window
    list->setParent(&inner);
    QScrollArea *area = scrollAreaOf(*list);
    for (QWidget *above : {contentsOf(*list), area->viewport(), static_cast<QWidget *>(area),
                           static_cast<QWidget *>(list.get()), &inner, &window}) {
        const QPointer<QWidget> parent = above->parentWidget();
        list->append(above);
        list->insert(0, above);
        QWidgetItem around(above);
        list->append(&around);
        QHBoxLayout deeper;
        deeper.addItem(new QWidgetItem(above));
        list->append(&deeper);
        QCOMPARE(list->count(), 1);
        QCOMPARE(above->parentWidget(), parent);
    }
    list->append(gridOf(*list));
    list->append(list->layout());
    QCOMPARE(list->count(), 1);
    verifyFlow();
    list->setParent(nullptr);
}

void TestTXWidgetListWidgetBadInput::listsAreNotNestedInEachOther()
{
    auto *inner = new TXWidgetListWidget;
    list->append(inner);
    inner->append(list.get());
    QCOMPARE(inner->count(), 0);
    QCOMPARE(list->count(), 1);
    list->show();
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::layoutWithAParentIsRefused()
{
    QWidget other;
    auto *owned = new QHBoxLayout(&other);
    list->append(owned);
    QCOMPARE(list->count(), 0);
    QCOMPARE(other.layout(), owned);
}

void TestTXWidgetListWidgetBadInput::itemWithoutItsWidgetIsRefused()
{
    QWidgetItem empty(nullptr);
    list->append(&empty);
    list->insert(0, &empty);
    QCOMPARE(list->count(), 0);
    append();
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::endSpacerInTheListIsSkipped()
{
    append();
    QLayoutItem *end = gridOf(*list)->itemAt(1);
    QVERIFY(end->spacerItem());
    list->insert(0, end);
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->spacerItemAt(0), end);
    QCOMPARE(cellsOf(*list), QList<QPoint>({{2, 0}, {0, 0}}));
    QVERIFY(list->removeAt(0));
    verifyFlow();
    list->append(end);
    list->clear();
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::widgetsWithoutHintVanish()
{
    auto *widget = new QWidget;
    list->append(widget);
    list->append(new QWidget);
    list->show();
    QCOMPARE(widget->minimumSize(), QSize(0, 0));
    QCOMPARE(widget->maximumSize(), QSize(0, 0));
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::hugeHintDoesNoHarm()
{
    constexpr int kHuge = std::numeric_limits<int>::max();
    append();
    auto *widget = new HintedWidget({kHuge, kHuge});
    list->append(widget);
    QCOMPARE(widget->size(), QSize(QWIDGETSIZE_MAX - 1, QWIDGETSIZE_MAX - 1));
    append();
    QCOMPARE(cellsOf(*list), QList<QPoint>({{0, 0}, {0, 1}, {0, 2}}));
    delete widget;
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::listChangedByAWidgetDuringAPass_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("count");
    QTest::newRow("append") << "append" << 5;
    QTest::newRow("insert") << "insert" << 5;
    QTest::newRow("removeAt") << "removeAt" << 3;
    QTest::newRow("clear") << "clear" << 0;
    QTest::newRow("reorganize") << "reorganize" << 4;
    QTest::newRow("order") << "order" << 3;
}

void TestTXWidgetListWidgetBadInput::listChangedByAWidgetDuringAPass()
{
    QFETCH(QString, change);
    QFETCH(int, count);
    const QHash<QString, std::function<void()>> changes = {
        {"append",
         [this] {
             append();
         }},
        {"insert",
         [this] {
             list->insert(0, new HintedWidget({50, 10}));
         }},
        {"removeAt",
         [this] {
             list->removeAt(0);
         }},
        {"clear",
         [this] {
             list->clear();
         }},
        {"reorganize",
         [this] {
             list->reorganize();
         }},
        {"order",
         [this] {
             const QList<QLayoutItem *> items = list->layoutItems();
             list->reorganize(items.mid(1));
             delete items.at(0);
         }},
    };
    for (const bool isAsked : {true, false}) {
        list->clear();
        append();
        append();
        auto *busy = new BusyWidget({40, 20});
        list->append(busy);
        append();
        list->show();
        QTRY_VERIFY(busy->isVisible());
        (isAsked ? busy->whenAsked : busy->whenResized) = changes.value(change);
        busy->hint = {45, 20};
        list->reorganize();
        QVERIFY(!busy->whenAsked && !busy->whenResized);
        QCOMPARE(list->count(), count);
        verifyFlow();
    }
}

void TestTXWidgetListWidgetBadInput::widgetDiesDuringAPass_data()
{
    QTest::addColumn<int>("dying");
    QTest::newRow("an earlier one") << 0;
    QTest::newRow("a later one") << 2;
}

void TestTXWidgetListWidgetBadInput::widgetDiesDuringAPass()
{
    QFETCH(int, dying);
    append();
    auto *busy = new BusyWidget({40, 20});
    list->append(busy);
    append();
    list->show();
    QTRY_VERIFY(busy->isVisible());
    busy->whenResized = [this, dying] {
        delete list->widgetAt(dying);
    };
    busy->hint = {70, 20};
    list->reorganize();
    QVERIFY(!busy->whenResized);
    QCOMPARE(list->count(), 2);
    verifyFlow();
}

void TestTXWidgetListWidgetBadInput::listDiesWithWorkPutOff()
{
    list->show();
    for (int i = 0; i < 1000; ++i) {
        list->insert(0, new HintedWidget({1 + i, 20}));
    }
    list->append(new BareItem);
    delete list->widgetAt(3);
    list.reset();
    QCoreApplication::processEvents();
    QCOMPARE(BareItem::alive, 0);
}

int main(int argc, char **argv)
{
    return runTest<TestTXWidgetListWidgetBadInput>(argc, argv);
}

#include "tst_TXWidgetListWidgetBadInput.moc"
