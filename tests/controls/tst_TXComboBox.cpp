#include "TXComboBox.h"

#include "TestBase.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QStandardItemModel>
#include <QStringListModel>

#include <memory>

namespace {

constexpr int kManyRows = 10000;

/// Gives each of its children a tooltip while that is being made.
class ExplainingWindow : public QWidget
{
protected:
    void childEvent(QChildEvent *event) override
    {
        if (event->added() && event->child()->isWidgetType()) {
            static_cast<QWidget *>(event->child())->setToolTip("Ask the printer");
        }
    }
};

} // namespace

class TestTXComboBox : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { combo.reset(); }

private slots:
    void slotIsTheOnlyMethod();
    void firstItemGivesItsTooltip();
    void tooltipFollowsTheKeys();
    void tooltipFollowsAClickInTheList();
    void itemWithoutTooltipGivesTheFirstOneBack();
    void tooltipOfTheParentComesBack();
    void tooltipOfTheHostIsLostAtTheNextChange();
    void noCurrentItemLeavesTheTooltip();
    void rowThatThereIsNotLeavesTheTooltip_data();
    void rowThatThereIsNotLeavesTheTooltip();
    void columnZeroCountsWhicheverColumnIsShown();
    void tooltipIsTakenBelowTheRoot();
    void changedDataCountsAtTheNextChange();
    void markupIsKeptAsItIs();
    void separatorHasNoTooltipOfItsOwn();
    void anyOfManyRowsGivesItsTooltip();
    void shrinkingModelGivesTheTooltipOfWhatIsLeft();
    void resetOrVanishedModelLeavesTheTooltip();

private:
    void addItem(const QString &text, const QString &tooltip);

    std::unique_ptr<TXComboBox> combo;
};

void TestTXComboBox::prepare()
{
    combo = std::make_unique<TXComboBox>();
    addItem("M0", "Tungsten light");
    addItem("M1", "Daylight D50");
    addItem("M2", QString());
    addItem("M3", "Polarised light");
}

void TestTXComboBox::addItem(const QString &text, const QString &tooltip)
{
    combo->addItem(text);
    combo->setItemData(combo->count() - 1, tooltip, Qt::ToolTipRole);
}

void TestTXComboBox::slotIsTheOnlyMethod()
{
    const QMetaObject &meta = TXComboBox::staticMetaObject;

    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), "currentIndexHasBeenChanged(int)");
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
}

void TestTXComboBox::firstItemGivesItsTooltip()
{
    TXComboBox box;
    QCOMPARE(box.toolTip(), QString());
    QStandardItemModel model;
    auto *item = new QStandardItem("M0");
    item->setToolTip("Tungsten light");
    model.appendRow(item);

    box.setModel(&model);

    QCOMPARE(box.toolTip(), "Tungsten light");
}

void TestTXComboBox::tooltipFollowsTheKeys()
{
    combo->show();
    QVERIFY(QTest::qWaitForWindowActive(combo.get()));

    QTest::keyClick(combo.get(), Qt::Key_Down);
    QCOMPARE(combo->toolTip(), "Daylight D50");

    QTest::keyClick(combo.get(), Qt::Key_End);
    QCOMPARE(combo->toolTip(), "Polarised light");
}

void TestTXComboBox::tooltipFollowsAClickInTheList()
{
    combo->show();
    QVERIFY(QTest::qWaitForWindowActive(combo.get()));
    combo->showPopup();
    QAbstractItemView *view = combo->view();
    QTRY_VERIFY(view->isVisible());

    const QRect row = view->visualRect(combo->model()->index(3, 0));
    const QPoint place(view->viewport()->rect().center().x(), row.center().y());
    QTest::mouseMove(view->viewport(), place);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);

    QTRY_VERIFY(!view->isVisible());
    QCOMPARE(combo->currentIndex(), 3);
    QCOMPARE(combo->toolTip(), "Polarised light");
}

void TestTXComboBox::itemWithoutTooltipGivesTheFirstOneBack()
{
    combo->setCurrentIndex(1);
    QCOMPARE(combo->toolTip(), "Daylight D50");

    combo->setCurrentIndex(2);

    QCOMPARE(combo->toolTip(), QString());
}

void TestTXComboBox::tooltipOfTheParentComesBack()
{
    ExplainingWindow window;
    TXComboBox box(&window);
    QCOMPARE(box.toolTip(), "Ask the printer");
    box.addItems({"M0", "M1"});
    box.setItemData(1, "Daylight D50", Qt::ToolTipRole);

    box.setCurrentIndex(1);
    QCOMPARE(box.toolTip(), "Daylight D50");
    box.setCurrentIndex(0);
    QCOMPARE(box.toolTip(), "Ask the printer");
}

void TestTXComboBox::tooltipOfTheHostIsLostAtTheNextChange()
{
    combo->setToolTip("Measurement mode");
    QCOMPARE(combo->toolTip(), "Measurement mode");

    combo->setCurrentIndex(2);

    QCOMPARE(combo->toolTip(), QString());
}

void TestTXComboBox::noCurrentItemLeavesTheTooltip()
{
    combo->setCurrentIndex(1);

    combo->setCurrentIndex(-1);
    QCOMPARE(combo->toolTip(), "Daylight D50");

    combo->setCurrentIndex(3);
    combo->clear();
    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->toolTip(), "Polarised light");
}

void TestTXComboBox::rowThatThereIsNotLeavesTheTooltip_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("none") << -1;
    QTest::newRow("below") << -7;
    QTest::newRow("behind the last") << 4;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestTXComboBox::rowThatThereIsNotLeavesTheTooltip()
{
    QFETCH(const int, row);
    combo->setToolTip("Measurement mode");

    combo->currentIndexHasBeenChanged(row);

    QCOMPARE(combo->toolTip(), "Measurement mode");
}

void TestTXComboBox::columnZeroCountsWhicheverColumnIsShown()
{
    QStandardItemModel model(2, 2);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            const QString text = QString("%1/%2").arg(row).arg(column);
            model.setData(model.index(row, column), text, Qt::DisplayRole);
            model.setData(model.index(row, column), "Tip " + text, Qt::ToolTipRole);
        }
    }
    TXComboBox box;
    box.setModel(&model);
    box.setModelColumn(1);

    box.setCurrentIndex(1);

    QCOMPARE(box.currentText(), "1/1");
    QCOMPARE(box.toolTip(), "Tip 1/0");
}

void TestTXComboBox::tooltipIsTakenBelowTheRoot()
{
    QStandardItemModel model;
    auto *branch = new QStandardItem("Papers");
    branch->setToolTip("Branch");
    model.appendRow(branch);
    for (const char *name : {"Coated", "Uncoated"}) {
        auto *leaf = new QStandardItem(name);
        leaf->setToolTip(QString("Leaf ") + name);
        branch->appendRow(leaf);
    }
    TXComboBox box;
    box.setModel(&model);
    QCOMPARE(box.toolTip(), "Branch");
    box.setRootModelIndex(branch->index());

    box.setCurrentIndex(1);

    QCOMPARE(box.currentText(), "Uncoated");
    QCOMPARE(box.toolTip(), "Leaf Uncoated");
}

void TestTXComboBox::changedDataCountsAtTheNextChange()
{
    combo->setCurrentIndex(1);
    combo->setItemData(1, "Daylight with UV", Qt::ToolTipRole);
    QCOMPARE(combo->toolTip(), "Daylight D50");

    combo->setCurrentIndex(0);
    combo->setCurrentIndex(1);
    QCOMPARE(combo->toolTip(), "Daylight with UV");

    combo->setItemData(1, "Daylight without", Qt::ToolTipRole);
    combo->currentIndexHasBeenChanged(1);
    QCOMPARE(combo->toolTip(), "Daylight without");
}

void TestTXComboBox::markupIsKeptAsItIs()
{
    const QString text = "<b>Bold</b> & \"quoted\" <img src='x'>";
    addItem("<i>M4</i>", text);

    combo->setCurrentIndex(combo->count() - 1);

    QCOMPARE(combo->currentText(), "<i>M4</i>");
    QCOMPARE(combo->toolTip(), text);
}

void TestTXComboBox::separatorHasNoTooltipOfItsOwn()
{
    combo->insertSeparator(1);
    combo->setCurrentIndex(2);
    QCOMPARE(combo->toolTip(), "Daylight D50");

    combo->setCurrentIndex(1);

    QCOMPARE(combo->toolTip(), QString());
}

void TestTXComboBox::anyOfManyRowsGivesItsTooltip()
{
    QStandardItemModel model(kManyRows, 1);
    for (int row = 0; row < kManyRows; ++row) {
        model.setData(model.index(row, 0), QString("Tip %1").arg(row), Qt::ToolTipRole);
    }
    combo->setModel(&model);

    for (const int row : {kManyRows - 1, kManyRows / 2, 1}) {
        combo->setCurrentIndex(row);
        QCOMPARE(combo->toolTip(), QString("Tip %1").arg(row));
    }
    combo->setModel(new QStringListModel(combo.get()));
}

void TestTXComboBox::shrinkingModelGivesTheTooltipOfWhatIsLeft()
{
    combo->showPopup();

    combo->setCurrentIndex(3);
    combo->removeItem(3);
    QCOMPARE(combo->currentText(), "M2");
    QCOMPARE(combo->toolTip(), QString());

    combo->removeItem(2);
    QCOMPARE(combo->currentText(), "M1");
    QCOMPARE(combo->toolTip(), "Daylight D50");

    combo->removeItem(1);
    QCOMPARE(combo->toolTip(), "Tungsten light");
    combo->removeItem(0);
    QCOMPARE(combo->count(), 0);
    QCOMPARE(combo->toolTip(), "Tungsten light");
    combo->hidePopup();
}

void TestTXComboBox::resetOrVanishedModelLeavesTheTooltip()
{
    auto model = std::make_unique<QStringListModel>(QStringList{"a", "b"});
    combo->setModel(model.get());
    combo->setToolTip("Kept");
    combo->showPopup();

    model->setStringList({});
    QCOMPARE(combo->currentIndex(), -1);
    QCOMPARE(combo->toolTip(), "Kept");

    model->setStringList({"c"});
    combo->setCurrentIndex(0);
    combo->setToolTip("Kept");
    model.reset();
    combo->hidePopup();
    QCOMPARE(combo->toolTip(), "Kept");
    combo->currentIndexHasBeenChanged(0);
    QCOMPARE(combo->toolTip(), "Kept");
}

int main(int argc, char **argv)
{
    return runTest<TestTXComboBox>(argc, argv);
}

#include "tst_TXComboBox.moc"
