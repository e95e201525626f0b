#include "TXVariantViewer.h"

#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <memory>

using VariantViewerHelpers::entriesOf;

namespace {

constexpr int kAtOnce = TXVariantViewer::kEntriesAtOnce;

/// Notes the keys that nobody above it has used.
class KeyCatcher : public QWidget
{
public:
    QList<int> keys;

    void keyPressEvent(QKeyEvent *event) override { keys.append(event->key()); }
};

QVariantList numbers(int count)
{
    QVariantList values;
    values.reserve(count);
    for (int i = 0; i < count; ++i) {
        values.append(i);
    }
    return values;
}

QPushButton *buttonOf(const QWidget &viewer)
{
    return viewer.findChild<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The widgets that can have the focus, in the order of the Tab key, from one on around the window.
QList<QWidget *> focusChain(QWidget &start)
{
    QList<QWidget *> chain;
    QWidget *next = &start;
    do {
        if (next->focusPolicy() != Qt::NoFocus) {
            chain.append(next);
        }
        next = next->nextInFocusChain();
    } while (next != &start);
    return chain;
}

void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    // A layout shows new widgets by a posted event.
    QCoreApplication::sendPostedEvents();
}

} // namespace

/// The buttons for more entries, by keyboard. The tree of the tests, open but for what a holds:
///
///     root
///       a: list of 5,001 numbers, shown in part, and its button
///       b: list of 12,000 numbers, shown in part, and its button
///       c: [1, 2]
class TestTXVariantViewerMoreButton : public TestBase
{
    Q_OBJECT

private slots:
    void downAndUpComeByTheButton();
    void downStaysOnAButtonAtTheEnd();
    void upGoesToTheLastLineAboveTheButton();
    void otherMovesLeaveTheButton_data();
    void otherMovesLeaveTheButton();
    void endReachesTheButtonOfTheRoot();
    void keysPressTheButton_data();
    void keysPressTheButton();
    void heldReturnPressesOnce();
    void keysWithoutUseGoOn_data();
    void keysWithoutUseGoOn();
    void tabLeavesTheTreeFromAButton_data();
    void tabLeavesTheTreeFromAButton();
    void tabGoesRoundByTheRootAlone();
    void tabLeavesTheOrderOfTheWindowAsItWas();
    void viewerMayDieWhenTabLeavesIt();
    void buttonIsScrolledIntoView();

protected:
    void prepare() override;
    void finish() override;

private:
    std::unique_ptr<KeyCatcher> window;
    QLineEdit *before = nullptr;
    QLineEdit *after = nullptr;
    TXVariantViewer *root = nullptr;
    TXVariantViewer *a = nullptr;
    TXVariantViewer *b = nullptr;
    TXVariantViewer *c = nullptr;
};

void TestTXVariantViewerMoreButton::prepare()
{
    window = std::make_unique<KeyCatcher>();
    before = new QLineEdit(window.get());
    root = new TXVariantViewer(window.get());
    after = new QLineEdit(window.get());
    // Without a layout: it would make the window as high as thousands of rows.
    root->setGeometry(0, 30, 400, 300);
    after->move(0, 340);
    root->setPreview(false);
    root->setValue(QVariantMap{{QStringLiteral("a"), numbers(kAtOnce + 1)},
                               {QStringLiteral("b"), numbers(12000)},
                               {QStringLiteral("c"), QVariantList{1, 2}}});
    window->resize(400, 400);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    root->expand();
    const QList<TXVariantViewer *> entries = entriesOf(*root);
    a = entries.at(0);
    b = entries.at(1);
    c = entries.at(2);
    a->expand();
    b->expand();
    QCoreApplication::sendPostedEvents();
    root->setFocus();
}

void TestTXVariantViewerMoreButton::finish()
{
    window.reset();
}

void TestTXVariantViewerMoreButton::downAndUpComeByTheButton()
{
    const QList<QWidget *> order{entriesOf(*a).constLast(), buttonOf(*a), b,
                                 entriesOf(*b).constFirst()};
    order.first()->setFocus();
    for (qsizetype i = 1; i < order.size(); ++i) {
        press(Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), order.at(i));
    }
    for (qsizetype i = order.size() - 2; i >= 0; --i) {
        press(Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget(), order.at(i));
    }
}

void TestTXVariantViewerMoreButton::downStaysOnAButtonAtTheEnd()
{
    root->setValue(numbers(kAtOnce + 1));
    root->expand();
    QPushButton *button = buttonOf(*root);
    button->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), button);
    QCOMPARE(window->keys, QList<int>{Qt::Key_Down});
}

void TestTXVariantViewerMoreButton::upGoesToTheLastLineAboveTheButton()
{
    TXVariantViewer *last = entriesOf(*a).constLast();
    last->setValue(numbers(2));
    last->expand();
    buttonOf(*a)->setFocus();
    press(Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), entriesOf(*last).at(1));
    press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), buttonOf(*a));
}

void TestTXVariantViewerMoreButton::otherMovesLeaveTheButton_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("target");
    QTest::addRow("Home, to the root") << int(Qt::Key_Home) << 0;
    QTest::addRow("Left, to the viewer of its level") << int(Qt::Key_Left) << 1;
    QTest::addRow("End, to the last line") << int(Qt::Key_End) << 2;
}

void TestTXVariantViewerMoreButton::otherMovesLeaveTheButton()
{
    QFETCH(int, key);
    QFETCH(int, target);
    buttonOf(*a)->setFocus();
    press(key);
    const QList<QWidget *> targets{root, a, c};
    QCOMPARE(QApplication::focusWidget(), targets.at(target));
    QVERIFY(a->isExpanded());
}

void TestTXVariantViewerMoreButton::endReachesTheButtonOfTheRoot()
{
    root->setValue(numbers(kAtOnce + 1));
    root->expand();
    press(Qt::Key_End);
    QCOMPARE(QApplication::focusWidget(), buttonOf(*root));
}

void TestTXVariantViewerMoreButton::keysPressTheButton_data()
{
    QTest::addColumn<int>("key");
    QTest::addRow("Space") << int(Qt::Key_Space);
    QTest::addRow("Return") << int(Qt::Key_Return);
    QTest::addRow("Enter") << int(Qt::Key_Enter);
}

void TestTXVariantViewerMoreButton::keysPressTheButton()
{
    QFETCH(int, key);
    buttonOf(*b)->setFocus();
    press(key);
    QCOMPARE(entriesOf(*b).size(), 2 * kAtOnce);
    QCOMPARE(QApplication::focusWidget(), buttonOf(*b));
    QVERIFY(window->keys.isEmpty());
}

void TestTXVariantViewerMoreButton::heldReturnPressesOnce()
{
    QPushButton *button = buttonOf(*b);
    button->setFocus();
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(button, &first);
    QApplication::sendEvent(button, &repeated);
    QCOMPARE(entriesOf(*b).size(), 2 * kAtOnce);
    QVERIFY(window->keys.isEmpty());
}

void TestTXVariantViewerMoreButton::keysWithoutUseGoOn_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::addRow("Right") << int(Qt::Key_Right) << none;
    QTest::addRow("Page Down") << int(Qt::Key_PageDown) << none;
    QTest::addRow("letter") << int(Qt::Key_A) << none;
    QTest::addRow("Control and Up") << int(Qt::Key_Up) << control;
    QTest::addRow("Control and Home") << int(Qt::Key_Home) << control;
}

void TestTXVariantViewerMoreButton::keysWithoutUseGoOn()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    buttonOf(*b)->setFocus();
    press(key, modifiers);
    QVERIFY(!window->keys.isEmpty());
    QCOMPARE(window->keys.last(), key);
    QCOMPARE(QApplication::focusWidget(), buttonOf(*b));
}

void TestTXVariantViewerMoreButton::tabLeavesTheTreeFromAButton_data()
{
    QTest::addColumn<bool>("isFirst");
    QTest::addRow("first button") << true;
    QTest::addRow("second button") << false;
}

void TestTXVariantViewerMoreButton::tabLeavesTheTreeFromAButton()
{
    QFETCH(bool, isFirst);
    QPushButton *button = buttonOf(isFirst ? *a : *b);
    button->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
    button->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), before);
}

void TestTXVariantViewerMoreButton::tabGoesRoundByTheRootAlone()
{
    // From a button first, and from lines about it.
    const QList<QWidget *> starts{buttonOf(*a), buttonOf(*b), entriesOf(*b).at(7), root};
    for (QWidget *start : starts) {
        start->setFocus();
        for (int round = 0; round < 2; ++round) {
            press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), after);
            press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), before);
            press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), root);
        }
    }
}

void TestTXVariantViewerMoreButton::tabLeavesTheOrderOfTheWindowAsItWas()
{
    const QList<QWidget *> order = focusChain(*root);
    for (QWidget *start : {static_cast<QWidget *>(buttonOf(*a)), static_cast<QWidget *>(c)}) {
        start->setFocus();
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), after);
        start->setFocus();
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), before);
    }
    QVERIFY(focusChain(*root) == order);
}

void TestTXVariantViewerMoreButton::viewerMayDieWhenTabLeavesIt()
{
    c->setFocus();
    connect(qApp, &QApplication::focusChanged, root, [this](const QWidget *, const QWidget *now) {
        if (now == after) {
            delete root;
        }
    });
    const QPointer<TXVariantViewer> tree = root;
    press(Qt::Key_Tab);
    QVERIFY(!tree);
    QCOMPARE(QApplication::focusWidget(), after);
}

void TestTXVariantViewerMoreButton::buttonIsScrolledIntoView()
{
    QScrollArea area;
    area.setWidgetResizable(true);
    auto *tree = new TXVariantViewer(&area);
    tree->setPreview(false);
    tree->setValue(numbers(kAtOnce + 1));
    area.setWidget(tree);
    area.resize(300, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    tree->setFocus();
    tree->expand();
    QTRY_VERIFY(area.verticalScrollBar()->maximum() > 0);

    press(Qt::Key_End);
    const QPushButton *button = buttonOf(*tree);
    QCOMPARE(QApplication::focusWidget(), button);
    const QRect place(button->mapTo(area.viewport(), QPoint(0, 0)), button->size());
    QVERIFY(area.viewport()->rect().contains(place));
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerMoreButton>(argc, argv);
}

#include "tst_TXVariantViewerMoreButton.moc"
