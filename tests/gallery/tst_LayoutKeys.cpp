#include "LayoutKeys.h"

#include "TestBase.h"

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTableWidget>

#include <memory>

/// Columns and splitters by keyboard alone.
class TestLayoutKeys : public TestBase
{
    Q_OBJECT

private slots:
    void columnGrowsAndShrinks();
    void columnStaysAsWideAsStylesAllow();
    void listIsSortedByItsCurrentColumn();
    void listThatIsNotSortedStaysAsItIs();
    void emptyListTakesNoKeys();
    void borderMovesWithTheArrow();
    void borderBeforeTheLastPartMoves();
    void innerSplitterIsFoundFromBesideIt();
    void borderStopsAtTheEnd();
    void mirroredBorderFollowsTheArrow();
    void otherKeysStayWithTheWidget();

protected:
    void prepare() override;
    void finish() override;

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers) const;
    void pressAtBorder(Qt::Key key) const { press(key, Qt::ControlModifier | Qt::AltModifier); }
    void pressAtColumn(Qt::Key key) const { press(key, Qt::ControlModifier | Qt::ShiftModifier); }

    std::unique_ptr<LayoutKeys> keys;
    /// A table and, to its right, a splitter with a field above a text.
    std::unique_ptr<QSplitter> outer;
    QTableWidget *table = nullptr;
    QSplitter *inner = nullptr;
    QPlainTextEdit *field = nullptr;
};

void TestLayoutKeys::prepare()
{
    keys = std::make_unique<LayoutKeys>(nullptr);
    outer = std::make_unique<QSplitter>(Qt::Horizontal);
    table = new QTableWidget(2, 3, outer.get());
    inner = new QSplitter(Qt::Vertical, outer.get());
    field = new QPlainTextEdit(inner);
    new QLabel(QStringLiteral("Cyan"), inner);
    outer->resize(600, 300);
    outer->show();
    QVERIFY(QTest::qWaitForWindowActive(outer.get()));
    outer->setSizes({300, 300});
    inner->setSizes({150, 150});
    table->setFocus();
}

void TestLayoutKeys::finish()
{
    outer.reset();
    keys.reset();
}

void TestLayoutKeys::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void TestLayoutKeys::columnGrowsAndShrinks()
{
    table->setCurrentCell(0, 1);
    const int width = table->columnWidth(1);
    const int other = table->columnWidth(0);
    pressAtColumn(Qt::Key_Right);
    QCOMPARE(table->columnWidth(1), width + LayoutKeys::kStepPixels);
    pressAtColumn(Qt::Key_Left);
    pressAtColumn(Qt::Key_Left);
    QCOMPARE(table->columnWidth(1), width - LayoutKeys::kStepPixels);
    QCOMPARE(table->columnWidth(0), other);
    QCOMPARE(table->currentColumn(), 1);
}

void TestLayoutKeys::columnStaysAsWideAsStylesAllow()
{
    table->setCurrentCell(0, 0);
    for (int times = 0; times < 40; ++times) {
        pressAtColumn(Qt::Key_Left);
    }
    QCOMPARE(table->columnWidth(0), table->horizontalHeader()->minimumSectionSize());
}

void TestLayoutKeys::listIsSortedByItsCurrentColumn()
{
    table->setItem(0, 1, new QTableWidgetItem(QStringLiteral("Cyan")));
    table->setItem(1, 1, new QTableWidgetItem(QStringLiteral("Black")));
    table->setSortingEnabled(true);
    table->sortByColumn(0, Qt::AscendingOrder);
    table->setCurrentCell(0, 1);
    pressAtColumn(Qt::Key_Up);
    QCOMPARE(table->item(0, 1)->text(), QStringLiteral("Black"));
    pressAtColumn(Qt::Key_Down);
    QCOMPARE(table->item(0, 1)->text(), QStringLiteral("Cyan"));
}

void TestLayoutKeys::listThatIsNotSortedStaysAsItIs()
{
    table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("Cyan")));
    table->setItem(1, 0, new QTableWidgetItem(QStringLiteral("Black")));
    table->setCurrentCell(0, 0);
    pressAtColumn(Qt::Key_Up);
    QCOMPARE(table->item(0, 0)->text(), QStringLiteral("Cyan"));
}

void TestLayoutKeys::emptyListTakesNoKeys()
{
    table->setColumnCount(0);
    pressAtColumn(Qt::Key_Right);
    pressAtColumn(Qt::Key_Up);
    QCOMPARE(table->columnCount(), 0);
}

void TestLayoutKeys::borderMovesWithTheArrow()
{
    const QList<int> before = outer->sizes();
    pressAtBorder(Qt::Key_Right);
    QCOMPARE(outer->sizes().at(0), before.at(0) + LayoutKeys::kStepPixels);
    pressAtBorder(Qt::Key_Left);
    QCOMPARE(outer->sizes(), before);
}

void TestLayoutKeys::borderBeforeTheLastPartMoves()
{
    field->setFocus();
    const QList<int> before = outer->sizes();
    pressAtBorder(Qt::Key_Left);
    QCOMPARE(outer->sizes().at(0), before.at(0) - LayoutKeys::kStepPixels);
}

void TestLayoutKeys::innerSplitterIsFoundFromBesideIt()
{
    const QList<int> before = inner->sizes();
    pressAtBorder(Qt::Key_Down);
    QCOMPARE(inner->sizes().at(0), before.at(0) + LayoutKeys::kStepPixels);
    field->setFocus();
    pressAtBorder(Qt::Key_Up);
    QCOMPARE(inner->sizes(), before);
}

void TestLayoutKeys::borderStopsAtTheEnd()
{
    for (int times = 0; times < 100; ++times) {
        pressAtBorder(Qt::Key_Right);
    }
    const QList<int> sizes = outer->sizes();
    QVERIFY(sizes.at(1) >= 0);
    pressAtBorder(Qt::Key_Right);
    QCOMPARE(outer->sizes(), sizes);
}

void TestLayoutKeys::mirroredBorderFollowsTheArrow()
{
    outer->setLayoutDirection(Qt::RightToLeft);
    const QList<int> before = outer->sizes();
    pressAtBorder(Qt::Key_Left);
    QCOMPARE(outer->sizes().at(0), before.at(0) + LayoutKeys::kStepPixels);
}

void TestLayoutKeys::otherKeysStayWithTheWidget()
{
    const QList<int> before = outer->sizes();
    table->setCurrentCell(0, 1);
    press(Qt::Key_Right, Qt::NoModifier);
    QCOMPARE(table->currentColumn(), 2);
    field->setFocus();
    field->setPlainText(QStringLiteral("Cyan"));
    field->moveCursor(QTextCursor::End);
    press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(field->textCursor().selectedText(), QStringLiteral("Cyan"));
    QCOMPARE(outer->sizes(), before);
}

int main(int argc, char **argv)
{
    return runTest<TestLayoutKeys>(argc, argv);
}

#include "tst_LayoutKeys.moc"
