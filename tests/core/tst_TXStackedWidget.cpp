#include "TXStackedWidget.h"

#include "TestBase.h"

#include <QVBoxLayout>

namespace {

/// Asks for what it is told to.
class Page : public QWidget
{
public:
    Page(const QSize &hint, const QSize &minimum)
        : hint(hint)
        , minimum(minimum)
    { }

    QSize sizeHint() const override { return hint; }
    QSize minimumSizeHint() const override { return minimum; }

private:
    QSize hint;
    QSize minimum;
};

const QSize kSmall(40, 30);
const QSize kLarge(300, 200);
const QSize kSmallMinimum(20, 10);
const QSize kLargeMinimum(150, 100);

void addPages(QStackedWidget *stack)
{
    stack->addWidget(new Page(kSmall, kSmallMinimum));
    stack->addWidget(new Page(kLarge, kLargeMinimum));
}

} // namespace

class TestTXStackedWidget : public TestBase
{
    Q_OBJECT

private slots:
    void withoutPagesTheHintsAreThoseOfTheBases();
    void frameOfAnEmptyStackCounts();
    void hintsAreThoseOfTheCurrentPage();
    void hiddenLargePageDoesNotCount();
    void smallerCurrentPageMakesItSmaller();
    void removingAllPagesBringsTheBasesBack();
    void parentOwnsTheStack();
    void layoutOfTheHostFollowsTheCurrentPage();
};

void TestTXStackedWidget::withoutPagesTheHintsAreThoseOfTheBases()
{
    const TXStackedWidget stack;

    QCOMPARE(stack.sizeHint(), stack.QFrame::sizeHint());
    QCOMPARE(stack.minimumSizeHint(), stack.QWidget::minimumSizeHint());
}

void TestTXStackedWidget::frameOfAnEmptyStackCounts()
{
    TXStackedWidget stack;
    stack.setFrameStyle(QFrame::Box);
    stack.setLineWidth(5);

    QCOMPARE(stack.sizeHint(), QSize(10, 10));
}

void TestTXStackedWidget::hintsAreThoseOfTheCurrentPage()
{
    TXStackedWidget stack;
    addPages(&stack);
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(stack.sizeHint(), kSmall);
    QCOMPARE(stack.minimumSizeHint(), kSmallMinimum);

    stack.setCurrentIndex(1);
    QCOMPARE(stack.sizeHint(), kLarge);
    QCOMPARE(stack.minimumSizeHint(), kLargeMinimum);
}

void TestTXStackedWidget::hiddenLargePageDoesNotCount()
{
    QStackedWidget plain;
    addPages(&plain);
    TXStackedWidget ours;
    addPages(&ours);

    QCOMPARE(plain.sizeHint(), kLarge);
    QCOMPARE(ours.sizeHint(), kSmall);
}

void TestTXStackedWidget::smallerCurrentPageMakesItSmaller()
{
    TXStackedWidget stack;
    addPages(&stack);
    stack.setCurrentIndex(1);
    stack.setCurrentIndex(0);

    QCOMPARE(stack.sizeHint(), kSmall);
    QCOMPARE(stack.minimumSizeHint(), kSmallMinimum);
}

void TestTXStackedWidget::removingAllPagesBringsTheBasesBack()
{
    TXStackedWidget stack;
    addPages(&stack);
    while (stack.count() > 0) {
        delete stack.widget(0);
    }

    QCOMPARE(stack.sizeHint(), stack.QFrame::sizeHint());
    QCOMPARE(stack.minimumSizeHint(), stack.QWidget::minimumSizeHint());
}

void TestTXStackedWidget::parentOwnsTheStack()
{
    QWidget window;
    const auto *stack = new TXStackedWidget(&window);

    QCOMPARE(stack->parentWidget(), &window);
    QVERIFY(!stack->isWindow());
}

void TestTXStackedWidget::layoutOfTheHostFollowsTheCurrentPage()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto *stack = new TXStackedWidget(&window);
    addPages(stack);
    layout->addWidget(stack);
    window.show();
    QTRY_COMPARE(window.size(), kSmall);

    stack->setCurrentIndex(1);
    QTRY_COMPARE(window.size(), kLarge);
    stack->setCurrentIndex(0);
    QTRY_COMPARE(window.size(), kSmall);
}

int main(int argc, char **argv)
{
    return runTest<TestTXStackedWidget>(argc, argv);
}

#include "tst_TXStackedWidget.moc"
