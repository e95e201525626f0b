#include "TXDoubleSpinBoxDisabled.h"
#include "TXSpinBoxDisabled.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <functional>
#include <memory>

// The two kinds of spin box behave alike, so each test runs with both.

namespace {

/// A box of either kind whose handler can be called as Qt calls it.
struct OpenBox
{
    std::unique_ptr<QAbstractSpinBox> box;
    std::function<void(QEvent *event)> change;
};

template<class Box>
OpenBox open(QWidget *parent)
{
    class Opened : public Box
    {
    public:
        using Box::Box;
        using Box::changeEvent;
    };
    auto box = std::make_unique<Opened>(parent);
    auto change = [opened = box.get()](QEvent *event) {
        opened->changeEvent(event);
    };
    return {std::move(box), change};
}

using Maker = OpenBox (*)(QWidget *parent);

/// A box of the kind that the row of the test names.
OpenBox makeBox(QWidget *parent = nullptr)
{
    QFETCH_GLOBAL(Maker, make);
    return make(parent);
}

bool looksPlain(const QAbstractSpinBox &box)
{
    return !box.hasFrame() && box.isReadOnly()
        && box.buttonSymbols() == QAbstractSpinBox::NoButtons;
}

bool looksEditable(const QAbstractSpinBox &box)
{
    return box.hasFrame() && !box.isReadOnly()
        && box.buttonSymbols() == QAbstractSpinBox::UpDownArrows;
}

} // namespace

class TestDisabledSpinBoxes : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void enabledBoxIsAnOrdinaryOne();
    void disabledBoxLooksPlain();
    void boxFollowsItsParent();
    void boxBelowADisabledParentStartsPlain();
    void enablingOverridesWhatTheHostChose();
    void otherChangesLeaveTheLookAlone();
    void nullEventIsIgnored();
    void valueStaysWhenDisabled();
    void plainValueIsPaintedWithoutFrame_data();
    void plainValueIsPaintedWithoutFrame();
};

void TestDisabledSpinBoxes::initTestCase_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("integer") << Maker(open<TXSpinBoxDisabled>);
    QTest::newRow("decimal") << Maker(open<TXDoubleSpinBoxDisabled>);
}

void TestDisabledSpinBoxes::enabledBoxIsAnOrdinaryOne()
{
    const OpenBox opened = makeBox();
    const QAbstractSpinBox &box = *opened.box;
    QVERIFY(looksEditable(box));
}

void TestDisabledSpinBoxes::disabledBoxLooksPlain()
{
    const OpenBox opened = makeBox();
    QAbstractSpinBox &box = *opened.box;
    box.setEnabled(false);
    QVERIFY(looksPlain(box));
    box.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestDisabledSpinBoxes::boxFollowsItsParent()
{
    QWidget parent;
    const OpenBox opened = makeBox(&parent);
    const QAbstractSpinBox &box = *opened.box;
    parent.setEnabled(false);
    QVERIFY(looksPlain(box));
    parent.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestDisabledSpinBoxes::boxBelowADisabledParentStartsPlain()
{
    QWidget parent;
    parent.setEnabled(false);
    const OpenBox opened = makeBox(&parent);
    const QAbstractSpinBox &box = *opened.box;
    QVERIFY(looksPlain(box));
}

void TestDisabledSpinBoxes::enablingOverridesWhatTheHostChose()
{
    const OpenBox opened = makeBox();
    QAbstractSpinBox &box = *opened.box;
    box.setFrame(false);
    box.setReadOnly(true);
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);

    box.setEnabled(false);
    box.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestDisabledSpinBoxes::otherChangesLeaveTheLookAlone()
{
    const OpenBox opened = makeBox();
    QAbstractSpinBox &box = *opened.box;
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    for (const QEvent::Type type : {QEvent::FontChange, QEvent::StyleChange, QEvent::PaletteChange,
                                    QEvent::LanguageChange, QEvent::ActivationChange}) {
        QEvent event(type);
        opened.change(&event);
    }
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);

    QEvent event(QEvent::EnabledChange);
    opened.change(&event);
    QVERIFY(looksEditable(box));
}

void TestDisabledSpinBoxes::nullEventIsIgnored()
{
    const OpenBox opened = makeBox();
    QAbstractSpinBox &box = *opened.box;
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    opened.change(nullptr);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);
}

void TestDisabledSpinBoxes::valueStaysWhenDisabled()
{
    const OpenBox opened = makeBox();
    QAbstractSpinBox &box = *opened.box;
    box.setProperty("value", 42);
    box.setEnabled(false);
    QCOMPARE(box.property("value").toDouble(), 42.0);
    box.setEnabled(true);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.property("value").toDouble(), 43.0);
}

void TestDisabledSpinBoxes::plainValueIsPaintedWithoutFrame_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio) << QPalette() << ratio;
        QTest::addRow("dark, ratio %g", ratio) << darkPalette() << ratio;
    }
}

void TestDisabledSpinBoxes::plainValueIsPaintedWithoutFrame()
{
    QFETCH(QPalette, palette);
    QFETCH(qreal, ratio);
    const OpenBox opened = makeBox();
    QAbstractSpinBox &box = *opened.box;
    box.setPalette(palette);
    box.setProperty("value", 42);
    box.resize(100, 26);
    const QRect topEdge(20, 0, 50, 3);
    const QRect buttons(84, 4, 14, 18);
    const PixelProbe editable(box, ratio);
    QVERIFY(editable.countColours(topEdge) > 1);
    QVERIFY(editable.countColours(buttons) > 1);

    box.setEnabled(false);
    const PixelProbe plain(box, ratio);
    QCOMPARE(plain.countColours(topEdge), 1);
    QCOMPARE(plain.countColours(buttons), 1);
    QVERIFY(plain.countColours(QRect(0, 5, 40, 16)) > 1); // the digits
}

int main(int argc, char **argv)
{
    return runTest<TestDisabledSpinBoxes>(argc, argv);
}

#include "tst_DisabledSpinBoxes.moc"
