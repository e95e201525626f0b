#include "TXSpinBoxDisabled.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

namespace {

/// Lets the handler be called as Qt calls it.
class OpenBox : public TXSpinBoxDisabled
{
public:
    using TXSpinBoxDisabled::changeEvent;
    using TXSpinBoxDisabled::TXSpinBoxDisabled;
};

bool looksPlain(const TXSpinBoxDisabled &box)
{
    return !box.hasFrame() && box.isReadOnly()
        && box.buttonSymbols() == QAbstractSpinBox::NoButtons;
}

bool looksEditable(const TXSpinBoxDisabled &box)
{
    return box.hasFrame() && !box.isReadOnly()
        && box.buttonSymbols() == QAbstractSpinBox::UpDownArrows;
}

} // namespace

class TestTXSpinBoxDisabled : public TestBase
{
    Q_OBJECT

private slots:
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

void TestTXSpinBoxDisabled::enabledBoxIsAnOrdinaryOne()
{
    const TXSpinBoxDisabled box(nullptr);
    QVERIFY(looksEditable(box));
}

void TestTXSpinBoxDisabled::disabledBoxLooksPlain()
{
    TXSpinBoxDisabled box;
    box.setEnabled(false);
    QVERIFY(looksPlain(box));
    box.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestTXSpinBoxDisabled::boxFollowsItsParent()
{
    QWidget parent;
    const auto *box = new TXSpinBoxDisabled(&parent);
    parent.setEnabled(false);
    QVERIFY(looksPlain(*box));
    parent.setEnabled(true);
    QVERIFY(looksEditable(*box));
}

void TestTXSpinBoxDisabled::boxBelowADisabledParentStartsPlain()
{
    QWidget parent;
    parent.setEnabled(false);
    const auto *box = new TXSpinBoxDisabled(&parent);
    QVERIFY(looksPlain(*box));
}

void TestTXSpinBoxDisabled::enablingOverridesWhatTheHostChose()
{
    TXSpinBoxDisabled box;
    box.setFrame(false);
    box.setReadOnly(true);
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);

    box.setEnabled(false);
    box.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestTXSpinBoxDisabled::otherChangesLeaveTheLookAlone()
{
    OpenBox box;
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    for (const QEvent::Type type : {QEvent::FontChange, QEvent::StyleChange, QEvent::PaletteChange,
                                    QEvent::LanguageChange, QEvent::ActivationChange}) {
        QEvent event(type);
        box.changeEvent(&event);
    }
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);

    QEvent event(QEvent::EnabledChange);
    box.changeEvent(&event);
    QVERIFY(looksEditable(box));
}

void TestTXSpinBoxDisabled::nullEventIsIgnored()
{
    OpenBox box;
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    box.changeEvent(nullptr);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);
}

void TestTXSpinBoxDisabled::valueStaysWhenDisabled()
{
    TXSpinBoxDisabled box;
    box.setValue(42);
    box.setEnabled(false);
    QCOMPARE(box.value(), 42);
    box.setEnabled(true);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 42 + 1);
}

void TestTXSpinBoxDisabled::plainValueIsPaintedWithoutFrame_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio) << QPalette() << ratio;
        QTest::addRow("dark, ratio %g", ratio) << darkPalette() << ratio;
    }
}

void TestTXSpinBoxDisabled::plainValueIsPaintedWithoutFrame()
{
    QFETCH(QPalette, palette);
    QFETCH(qreal, ratio);
    TXSpinBoxDisabled box;
    box.setPalette(palette);
    box.setValue(42);
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
    return runTest<TestTXSpinBoxDisabled>(argc, argv);
}

#include "tst_TXSpinBoxDisabled.moc"
