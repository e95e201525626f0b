#include "TXVariantViewer.h"

#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

using VariantViewerHelpers::entriesOf;
using VariantViewerHelpers::nestedValue;

namespace {

/// Notes the keys that nobody above it has used.
class KeyCatcher : public QWidget
{
public:
    QList<int> keys;

    void keyPressEvent(QKeyEvent *event) override { keys.append(event->key()); }
};

} // namespace

/// The tree of the tests, all of it open:
///
///     root
///       a: [1, 2]              a, a0, a1
///       b: {x: true, y: text}  b, bx, by
///       c: 3                   c
class TestTXVariantViewerKeys : public TestBase
{
    Q_OBJECT

private slots:
    void upAndDownGoThroughWhatIsShownInReadingOrder();
    void homeAndEndGoToTheEndsOfTheTree();
    void rightOpensAndGoesIn();
    void leftClosesAndGoesOut();
    void spaceAndReturnOpenAndClose_data();
    void spaceAndReturnOpenAndClose();
    void keysWithoutUseGoOn_data();
    void keysWithoutUseGoOn();
    void keysOfTheNumberPadCount();
    void viewersWithinAreNoStopOfTheTabKey();
    void tabLeavesTheTreeFromAnyViewer_data();
    void tabLeavesTheTreeFromAnyViewer();
    void tabWrapsToTheRootWhereThereIsNoOtherStop();
    void clickGivesTheFocus();
    void clickCloses_data();
    void clickCloses();
    void keysBringTheFrame();
    void focusWithinGoesToTheViewerThatCloses();
    void focusElsewhereStaysWhenAViewerCloses();
    void lineWithTheFocusIsScrolledIntoView();
    void openViewerIsScrolledToItsFirstLine();
    void keysWorkAmongHundredsOfEntries();

protected:
    void prepare() override;
    void finish() override;

private:
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void openAll();

    std::unique_ptr<KeyCatcher> window;
    QLineEdit *before = nullptr;
    QLineEdit *after = nullptr;
    TXVariantViewer *root = nullptr;
    TXVariantViewer *a = nullptr;
    TXVariantViewer *b = nullptr;
    TXVariantViewer *c = nullptr;
};

void TestTXVariantViewerKeys::prepare()
{
    window = std::make_unique<KeyCatcher>();
    auto *column = new QVBoxLayout(window.get());
    before = new QLineEdit(window.get());
    root = new TXVariantViewer(window.get());
    after = new QLineEdit(window.get());
    for (QWidget *widget : {static_cast<QWidget *>(before), static_cast<QWidget *>(root),
                            static_cast<QWidget *>(after)}) {
        column->addWidget(widget);
    }
    root->setValue(nestedValue());
    window->resize(400, 400);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    root->setFocus();
}

void TestTXVariantViewerKeys::finish()
{
    window.reset();
}

void TestTXVariantViewerKeys::openAll()
{
    root->expand();
    const QList<TXVariantViewer *> entries = entriesOf(*root);
    a = entries.at(0);
    b = entries.at(1);
    c = entries.at(2);
    a->expand();
    b->expand();
    QCoreApplication::sendPostedEvents();
}

void TestTXVariantViewerKeys::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    // A layout shows new widgets by a posted event.
    QCoreApplication::sendPostedEvents();
}

void TestTXVariantViewerKeys::upAndDownGoThroughWhatIsShownInReadingOrder()
{
    openAll();
    const QList<TXVariantViewer *> order = {root,
                                            a,
                                            entriesOf(*a).at(0),
                                            entriesOf(*a).at(1),
                                            b,
                                            entriesOf(*b).at(0),
                                            entriesOf(*b).at(1),
                                            c};
    for (TXVariantViewer *viewer : order) {
        QCOMPARE(QApplication::focusWidget(), viewer);
        press(Qt::Key_Down);
    }
    QCOMPARE(QApplication::focusWidget(), c);
    for (qsizetype i = order.size() - 1; i >= 0; --i) {
        QCOMPARE(QApplication::focusWidget(), order.at(i));
        press(Qt::Key_Up);
    }
    QCOMPARE(QApplication::focusWidget(), root);

    a->collapse();
    a->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), b);
    press(Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), a);
}

void TestTXVariantViewerKeys::homeAndEndGoToTheEndsOfTheTree()
{
    openAll();
    entriesOf(*a).at(1)->setFocus();
    press(Qt::Key_End);
    QCOMPARE(QApplication::focusWidget(), c);
    press(Qt::Key_Home);
    QCOMPARE(QApplication::focusWidget(), root);

    c->setValue(QVariantList{QVariantList{1, 2}});
    c->expand();
    TXVariantViewer *inner = entriesOf(*c).at(0);
    inner->expand();
    QCoreApplication::sendPostedEvents();
    press(Qt::Key_End);
    QCOMPARE(QApplication::focusWidget(), entriesOf(*inner).at(1));
}

void TestTXVariantViewerKeys::rightOpensAndGoesIn()
{
    press(Qt::Key_Right);
    QVERIFY(root->isExpanded());
    QCOMPARE(QApplication::focusWidget(), root);
    press(Qt::Key_Right);
    TXVariantViewer *first = entriesOf(*root).at(0);
    QCOMPARE(QApplication::focusWidget(), first);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), entriesOf(*first).at(0));
    press(Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), entriesOf(*first).at(0));
}

void TestTXVariantViewerKeys::leftClosesAndGoesOut()
{
    openAll();
    entriesOf(*a).at(1)->setFocus();
    press(Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), a);
    QVERIFY(a->isExpanded());
    press(Qt::Key_Left);
    QVERIFY(!a->isExpanded());
    QCOMPARE(QApplication::focusWidget(), a);
    press(Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), root);
    press(Qt::Key_Left);
    QVERIFY(!root->isExpanded());
    press(Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), root);
}

void TestTXVariantViewerKeys::spaceAndReturnOpenAndClose_data()
{
    QTest::addColumn<int>("key");
    QTest::addRow("Space") << int(Qt::Key_Space);
    QTest::addRow("Return") << int(Qt::Key_Return);
    QTest::addRow("Enter") << int(Qt::Key_Enter);
}

void TestTXVariantViewerKeys::spaceAndReturnOpenAndClose()
{
    QFETCH(int, key);
    const QSignalSpy resized(root, SIGNAL(resized()));
    press(key);
    QVERIFY(root->isExpanded());
    press(key);
    QVERIFY(!root->isExpanded());
    QCOMPARE(resized.count(), 2);
    QVERIFY(window->keys.isEmpty());
}

void TestTXVariantViewerKeys::keysWithoutUseGoOn_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::addRow("Page Up") << int(Qt::Key_PageUp) << none;
    QTest::addRow("Page Down") << int(Qt::Key_PageDown) << none;
    QTest::addRow("Escape") << int(Qt::Key_Escape) << none;
    QTest::addRow("letter") << int(Qt::Key_A) << none;
    QTest::addRow("Space on a number") << int(Qt::Key_Space) << none;
    QTest::addRow("Return on a number") << int(Qt::Key_Return) << none;
    QTest::addRow("Right on a number") << int(Qt::Key_Right) << none;
    QTest::addRow("Down at the end") << int(Qt::Key_Down) << none;
    QTest::addRow("Control and Up") << int(Qt::Key_Up) << control;
    QTest::addRow("Control and Home") << int(Qt::Key_Home) << control;
}

void TestTXVariantViewerKeys::keysWithoutUseGoOn()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    openAll();
    c->setFocus();
    press(key, modifiers);
    QVERIFY(!window->keys.isEmpty());
    QCOMPARE(window->keys.last(), key);
    QCOMPARE(QApplication::focusWidget(), c);
}

void TestTXVariantViewerKeys::keysOfTheNumberPadCount()
{
    openAll();
    press(Qt::Key_Down, Qt::KeypadModifier);
    QCOMPARE(QApplication::focusWidget(), a);
}

void TestTXVariantViewerKeys::viewersWithinAreNoStopOfTheTabKey()
{
    openAll();
    QCOMPARE(root->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(a->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(entriesOf(*a).at(0)->focusPolicy(), Qt::ClickFocus);
    before->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), root);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), root);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), before);
}

void TestTXVariantViewerKeys::tabLeavesTheTreeFromAnyViewer_data()
{
    QTest::addColumn<int>("downs");
    for (int downs = 0; downs < 8; ++downs) {
        QTest::addRow("viewer %d", downs) << downs;
    }
}

void TestTXVariantViewerKeys::tabLeavesTheTreeFromAnyViewer()
{
    QFETCH(int, downs);
    openAll();
    for (int i = 0; i < downs; ++i) {
        press(Qt::Key_Down);
    }
    QWidget *viewer = QApplication::focusWidget();
    const QSignalSpy focus(qApp, SIGNAL(focusChanged(QWidget *, QWidget *)));
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
    QCOMPARE(focus.count(), 1);

    viewer->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), before);
    QCOMPARE(root->focusPolicy(), Qt::StrongFocus);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), root);
}

void TestTXVariantViewerKeys::tabWrapsToTheRootWhereThereIsNoOtherStop()
{
    openAll();
    before->setFocusPolicy(Qt::NoFocus);
    after->setFocusPolicy(Qt::NoFocus);
    b->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), root);
    b->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), root);
}

void TestTXVariantViewerKeys::clickGivesTheFocus()
{
    openAll();
    QCoreApplication::processEvents();
    for (TXVariantViewer *viewer : {c, b, entriesOf(*a).at(1)}) {
        const QPoint place = viewer->mapTo(window.get(), QPoint(25, viewer->height() / 2));
        QTest::mouseClick(window->windowHandle(), Qt::MiddleButton, {}, place);
        QVERIFY(viewer == QApplication::focusWidget()
                || viewer->isAncestorOf(QApplication::focusWidget()));
    }
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      c->mapTo(window.get(), QPoint(5, 5)));
    QCOMPARE(QApplication::focusWidget(), c);
    press(Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), entriesOf(*b).at(1));
}

void TestTXVariantViewerKeys::clickCloses_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("isOpenBefore");
    QTest::addColumn<bool>("isOpenAfter");
    QTest::addRow("closed, margin") << 5 << Qt::LeftButton << false << true;
    QTest::addRow("closed, text") << 200 << Qt::LeftButton << false << true;
    QTest::addRow("closed, right button") << 5 << Qt::RightButton << false << false;
    QTest::addRow("open, 20") << 20 << Qt::LeftButton << true << false;
    QTest::addRow("open, 21") << 21 << Qt::LeftButton << true << true;
    QTest::addRow("open, right button") << 5 << Qt::RightButton << true << true;
    QTest::addRow("open, middle button") << 5 << Qt::MiddleButton << true << true;
}

void TestTXVariantViewerKeys::clickCloses()
{
    QFETCH(int, x);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, isOpenBefore);
    QFETCH(bool, isOpenAfter);
    root->setExpanded(isOpenBefore);
    QTest::mousePress(root, button, {}, QPoint(x, 10));
    QCOMPARE(root->isExpanded(), isOpenAfter);
}

void TestTXVariantViewerKeys::keysBringTheFrame()
{
    window->setAttribute(Qt::WA_KeyboardFocusChange, false);
    press(Qt::Key_Space);
    QVERIFY(window->testAttribute(Qt::WA_KeyboardFocusChange));
    window->setAttribute(Qt::WA_KeyboardFocusChange, false);
    press(Qt::Key_Down);
    QVERIFY(window->testAttribute(Qt::WA_KeyboardFocusChange));
}

void TestTXVariantViewerKeys::focusWithinGoesToTheViewerThatCloses()
{
    openAll();
    entriesOf(*a).at(1)->setFocus();
    a->collapse();
    QCOMPARE(QApplication::focusWidget(), a);
    root->setValue(5);
    QCOMPARE(QApplication::focusWidget(), root);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QApplication::focusWidget(), root);
}

void TestTXVariantViewerKeys::focusElsewhereStaysWhenAViewerCloses()
{
    openAll();
    after->setFocus();
    root->collapse();
    QCOMPARE(QApplication::focusWidget(), after);
}

void TestTXVariantViewerKeys::lineWithTheFocusIsScrolledIntoView()
{
    QScrollArea area;
    area.setWidgetResizable(true);
    auto *tree = new TXVariantViewer(&area);
    QVariantList list;
    for (int i = 0; i < 100; ++i) {
        list.append(QVariantMap{{QStringLiteral("key"), QString(200, u'x')}});
    }
    tree->setValue(list);
    area.setWidget(tree);
    area.resize(200, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    tree->setFocus();
    tree->expand();
    QTRY_VERIFY(area.verticalScrollBar()->maximum() > 0);
    const auto isInView = [&](const QWidget *viewer) {
        const QRect line(viewer->mapTo(area.viewport(), QPoint(0, 0)), QSize(14, viewer->height()));
        return area.viewport()->rect().contains(line);
    };

    press(Qt::Key_End);
    const TXVariantViewer *last = entriesOf(*tree).last();
    QCOMPARE(QApplication::focusWidget(), last);
    QVERIFY(isInView(last));
    QCOMPARE(area.horizontalScrollBar()->value(), 0);
    for (int i = 98; i >= 0; --i) {
        press(Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget(), entriesOf(*tree).at(i));
        QVERIFY(isInView(QApplication::focusWidget()));
    }
    press(Qt::Key_Home);
    QCOMPARE(area.verticalScrollBar()->value(), 0);
}

void TestTXVariantViewerKeys::openViewerIsScrolledToItsFirstLine()
{
    QScrollArea area;
    area.setWidgetResizable(true);
    auto *tree = new TXVariantViewer(&area);
    tree->setValue(QVariantList{1, QStringList(100, QStringLiteral("x")), 3});
    area.setWidget(tree);
    area.resize(200, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    tree->expand();
    TXVariantViewer *open = entriesOf(*tree).at(1);
    open->expand();
    QTRY_VERIFY(area.verticalScrollBar()->maximum() > 1000);
    TXVariantViewer *far = entriesOf(*open).at(60);
    far->setFocus();
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum() / 2);

    press(Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), open);
    const int top = open->mapTo(area.viewport(), QPoint(0, 0)).y();
    QVERIFY2(top >= 0 && top < 20, qPrintable(QString::number(top)));
}

void TestTXVariantViewerKeys::keysWorkAmongHundredsOfEntries()
{
    constexpr int kEntries = 400;
    QVariantList list;
    for (int i = 0; i < kEntries; ++i) {
        list.append(i);
    }
    root->setValue(list);
    root->expand();
    QCoreApplication::sendPostedEvents();
    press(Qt::Key_End);
    const QList<TXVariantViewer *> entries = entriesOf(*root);
    QCOMPARE(QApplication::focusWidget(), entries.last());
    press(Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), entries.at(kEntries - 2));
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerKeys>(argc, argv);
}

#include "tst_TXVariantViewerKeys.moc"
