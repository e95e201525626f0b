#include "TXComboBoxEditable.h"

#include "TestBase.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

/// The window around the box, which notes the keys that come up to it.
class KeyNotingWindow : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        keys.append(event->key());
        QWidget::keyPressEvent(event);
    }
};

/// Opens the handler of the focus to the test.
class FocusHandlingBox : public TXComboBoxEditable
{
public:
    using TXComboBoxEditable::focusOutEvent;
};

} // namespace

class TestTXComboBoxEditable : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { window.reset(); }

private slots:
    void signalIsTheOnlyMethod();
    void boxIsPolishedFromTheStart();
    void returnReachesTheParentAndAddsNothing_data();
    void returnReachesTheParentAndAddsNothing();
    void returnLeavesTheTypedTextInTheField();
    void arrowsOfAFieldReachTheParent();
    void arrowsOfAListChangeTheSelection();
    void acceptFlagIsSetByTheBoxItself_data();
    void acceptFlagIsSetByTheBoxItself();
    void keyThatNobodyWantsGoesNoFurther();
    void altDownOpensTheListUnlessEditable();
    void escapeWorksInTheOpenList();
    void returnWorksInTheOpenList();
    void typingStaysTyping();
    void beginningOfANameIsCompletedUnlessTheHostForbids();
    void lossOfTheFocusIsTold_data();
    void lossOfTheFocusIsTold();
    void lossIsToldBeforeTheFieldHasFinished();
    void openedListTakesTheFocus();
    void otherEventIsNoLoss();
    void boxMayStopBeingEditableWhenTheFocusIsLost();
    void rowsMayGoWhileANameIsTyped();

private:
    void showBox(bool isEditable);

    std::unique_ptr<KeyNotingWindow> window;
    TXComboBoxEditable *combo = nullptr;
    QLineEdit *other = nullptr;
};

void TestTXComboBoxEditable::prepare()
{
    window = std::make_unique<KeyNotingWindow>();
    combo = new TXComboBoxEditable(window.get());
    combo->addItems({"Coated", "Uncoated", "Newsprint"});
    combo->setCurrentIndex(1);
    other = new QLineEdit(window.get());
    auto *layout = new QVBoxLayout(window.get());
    layout->addWidget(combo);
    layout->addWidget(other);
}

void TestTXComboBoxEditable::showBox(bool isEditable)
{
    combo->setEditable(isEditable);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    combo->setFocus();
    QTRY_VERIFY(combo->hasFocus());
}

void TestTXComboBoxEditable::signalIsTheOnlyMethod()
{
    const QMetaObject &meta = TXComboBoxEditable::staticMetaObject;

    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), "focusHasBeenLost()");
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
}

void TestTXComboBoxEditable::boxIsPolishedFromTheStart()
{
    const TXComboBoxEditable box;
    const QComboBox plain;

    QVERIFY(box.testAttribute(Qt::WA_WState_Polished));
    QVERIFY(!plain.testAttribute(Qt::WA_WState_Polished));
}

void TestTXComboBoxEditable::returnReachesTheParentAndAddsNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isEditable");

    QTest::newRow("Return in a field") << int(Qt::Key_Return) << true;
    QTest::newRow("Enter in a field") << int(Qt::Key_Enter) << true;
    QTest::newRow("Return on a list") << int(Qt::Key_Return) << false;
    QTest::newRow("Enter on a list") << int(Qt::Key_Enter) << false;
}

void TestTXComboBoxEditable::returnReachesTheParentAndAddsNothing()
{
    QFETCH(const int, key);
    QFETCH(const bool, isEditable);
    showBox(isEditable);
    if (isEditable) {
        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo, "Glossy");
        QCOMPARE(combo->currentText(), "Glossy");
    }
    const QSignalSpy activated(combo, SIGNAL(activated(int)));

    QTest::keyClick(combo, Qt::Key(key));

    QCOMPARE(window->keys, QList<int>{key});
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(combo->itemText(1), "Uncoated");
    QCOMPARE(activated.count(), 0);
}

void TestTXComboBoxEditable::returnLeavesTheTypedTextInTheField()
{
    showBox(true);
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, "<b>Glossy</b>");

    QTest::keyClick(combo, Qt::Key_Return);

    QCOMPARE(combo->lineEdit()->text(), "<b>Glossy</b>");
    QVERIFY(combo->hasFocus());
}

void TestTXComboBoxEditable::arrowsOfAFieldReachTheParent()
{
    showBox(true);
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, "Matte");

    QTest::keyClick(combo, Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Down);

    QCOMPARE(window->keys, QList<int>({Qt::Key_Up, Qt::Key_Down}));
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(combo->currentText(), "Matte");
}

void TestTXComboBoxEditable::arrowsOfAListChangeTheSelection()
{
    showBox(false);

    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentIndex(), 2);
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(combo->currentIndex(), 2);

    QTest::keyClick(combo, Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Up);
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(window->keys, QList<int>());
}

void TestTXComboBoxEditable::acceptFlagIsSetByTheBoxItself_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isEditable");
    QTest::addColumn<bool>("isAccepted");

    QTest::newRow("Up, field") << int(Qt::Key_Up) << true << false;
    QTest::newRow("Down, field") << int(Qt::Key_Down) << true << false;
    QTest::newRow("Up, list") << int(Qt::Key_Up) << false << true;
    QTest::newRow("Down, list") << int(Qt::Key_Down) << false << true;
    QTest::newRow("Return, field") << int(Qt::Key_Return) << true << false;
    QTest::newRow("Enter, list") << int(Qt::Key_Enter) << false << false;
    QTest::newRow("Escape, field") << int(Qt::Key_Escape) << true << true;
    QTest::newRow("Escape, list") << int(Qt::Key_Escape) << false << true;
    QTest::newRow("F9, list") << int(Qt::Key_F9) << false << true;
    QTest::newRow("Page Down, list") << int(Qt::Key_PageDown) << false << true;
}

void TestTXComboBoxEditable::acceptFlagIsSetByTheBoxItself()
{
    QFETCH(const int, key);
    QFETCH(const bool, isEditable);
    QFETCH(const bool, isAccepted);
    combo->setEditable(isEditable);

    for (const bool isAcceptedBefore : {false, true}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        event.setAccepted(isAcceptedBefore);
        QObject *receiver = combo;
        receiver->event(&event);
        QCOMPARE(event.isAccepted(), isAccepted);
    }
}

void TestTXComboBoxEditable::keyThatNobodyWantsGoesNoFurther()
{
    showBox(false);
    QComboBox plain(window.get());
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    static_cast<QObject &>(plain).event(&event);
    QVERIFY2(!event.isAccepted(), "the base class no longer ignores the key");

    QTest::keyClick(combo, Qt::Key_Escape);

    QCOMPARE(window->keys, QList<int>());
}

void TestTXComboBoxEditable::altDownOpensTheListUnlessEditable()
{
    showBox(false);
    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(combo->view()->isVisible());
    combo->hidePopup();
    QTRY_VERIFY(!combo->view()->isVisible());

    combo->setEditable(true);
    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
    QVERIFY(!combo->view()->isVisible());
    QCOMPARE(window->keys, QList<int>{Qt::Key_Down});
}

void TestTXComboBoxEditable::escapeWorksInTheOpenList()
{
    showBox(false);
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo->view()->isVisible());
    QCOMPARE(combo->currentIndex(), 1);
}

void TestTXComboBoxEditable::returnWorksInTheOpenList()
{
    showBox(false);
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    QTRY_VERIFY(!combo->view()->isVisible());
    QCOMPARE(combo->currentIndex(), 2);
}

void TestTXComboBoxEditable::typingStaysTyping()
{
    showBox(true);

    QTest::keyClick(combo, Qt::Key_End);
    QTest::keyClicks(combo, " 2");
    QTest::keyClick(combo, Qt::Key_Home);
    QTest::keyClick(combo, Qt::Key_Delete);

    QCOMPARE(combo->currentText(), "ncoated 2");
    QCOMPARE(window->keys, QList<int>());
}

void TestTXComboBoxEditable::beginningOfANameIsCompletedUnlessTheHostForbids()
{
    for (const bool isForbidden : {false, true}) {
        showBox(true);
        if (isForbidden) {
            combo->setCompleter(nullptr);
        }
        combo->lineEdit()->selectAll();
        QTest::keyClicks(combo, "News");
        QTest::keyClick(combo, Qt::Key_Return);
        QCOMPARE(combo->lineEdit()->text(), isForbidden ? "News" : "Newsprint");
        combo->setEditable(false);
    }
}

void TestTXComboBoxEditable::lossOfTheFocusIsTold_data()
{
    QTest::addColumn<bool>("isEditable");

    QTest::newRow("field") << true;
    QTest::newRow("list") << false;
}

void TestTXComboBoxEditable::lossOfTheFocusIsTold()
{
    QFETCH(const bool, isEditable);
    showBox(isEditable);
    const QSignalSpy lost(combo, SIGNAL(focusHasBeenLost()));

    other->setFocus();
    QTRY_VERIFY(other->hasFocus());
    QCOMPARE(lost.count(), 1);

    combo->setFocus();
    QCOMPARE(lost.count(), 1);
    QTest::keyClick(combo, Qt::Key_Tab);
    QCOMPARE(lost.count(), 2);
    QVERIFY(other->hasFocus());
}

void TestTXComboBoxEditable::lossIsToldBeforeTheFieldHasFinished()
{
    showBox(true);
    QStringList order;
    connect(combo, &TXComboBoxEditable::focusHasBeenLost, this, [&order] { order.append("lost"); });
    connect(combo->lineEdit(), &QLineEdit::editingFinished, this,
            [&order] { order.append("finished"); });

    other->setFocus();

    QCOMPARE(order, QStringList({"lost", "finished"}));
}

void TestTXComboBoxEditable::openedListTakesTheFocus()
{
    showBox(true);
    const QSignalSpy lost(combo, SIGNAL(focusHasBeenLost()));

    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());

    // The list is a window of its own: it takes the focus, and then the active window.
    QTRY_VERIFY(lost.count() >= 1);
    combo->hidePopup();
}

void TestTXComboBoxEditable::otherEventIsNoLoss()
{
    FocusHandlingBox box;
    const QSignalSpy lost(&box, SIGNAL(focusHasBeenLost()));

    QFocusEvent gained(QEvent::FocusIn);
    box.focusOutEvent(&gained);
    QFocusEvent about(QEvent::FocusAboutToChange);
    box.focusOutEvent(&about);
    QCOMPARE(lost.count(), 0);

    QFocusEvent out(QEvent::FocusOut);
    box.focusOutEvent(&out);
    QCOMPARE(lost.count(), 1);
}

void TestTXComboBoxEditable::boxMayStopBeingEditableWhenTheFocusIsLost()
{
    showBox(true);
    connect(combo, &TXComboBoxEditable::focusHasBeenLost, combo, [this] {
        combo->setItemText(combo->currentIndex(), combo->lineEdit()->text());
        combo->setEditable(false);
    });
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo, "Glossy");

    other->setFocus();

    QVERIFY(!combo->isEditable());
    QCOMPARE(combo->itemText(1), "Glossy");
    QCOMPARE(combo->currentText(), "Glossy");
}

void TestTXComboBoxEditable::rowsMayGoWhileANameIsTyped()
{
    showBox(true);
    const QSignalSpy lost(combo, SIGNAL(focusHasBeenLost()));
    QTest::keyClicks(combo, "x");

    combo->clear();
    QTest::keyClick(combo, Qt::Key_Return);
    QTest::keyClick(combo, Qt::Key_Down);
    other->setFocus();

    QCOMPARE(combo->count(), 0);
    QCOMPARE(lost.count(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXComboBoxEditable>(argc, argv);
}

#include "tst_TXComboBoxEditable.moc"
