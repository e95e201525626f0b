#include "TXDoubleSpinBoxDisabled.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

namespace {

/// Lets the handler be called as Qt calls it.
class OpenBox : public TXDoubleSpinBoxDisabled
{
public:
    using TXDoubleSpinBoxDisabled::changeEvent;
    using TXDoubleSpinBoxDisabled::TXDoubleSpinBoxDisabled;
};

bool looksPlain(const TXDoubleSpinBoxDisabled &box)
{
    return !box.hasFrame() && box.isReadOnly()
        && box.buttonSymbols() == QAbstractSpinBox::NoButtons;
}

bool looksEditable(const TXDoubleSpinBoxDisabled &box)
{
    return box.hasFrame() && !box.isReadOnly()
        && box.buttonSymbols() == QAbstractSpinBox::UpDownArrows;
}

} // namespace

class TestTXDoubleSpinBoxDisabled : public TestBase
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

void TestTXDoubleSpinBoxDisabled::enabledBoxIsAnOrdinaryOne()
{
    const TXDoubleSpinBoxDisabled box(nullptr);
    QVERIFY(looksEditable(box));
}

void TestTXDoubleSpinBoxDisabled::disabledBoxLooksPlain()
{
    TXDoubleSpinBoxDisabled box;
    box.setEnabled(false);
    QVERIFY(looksPlain(box));
    box.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestTXDoubleSpinBoxDisabled::boxFollowsItsParent()
{
    QWidget parent;
    const auto *box = new TXDoubleSpinBoxDisabled(&parent);
    parent.setEnabled(false);
    QVERIFY(looksPlain(*box));
    parent.setEnabled(true);
    QVERIFY(looksEditable(*box));
}

void TestTXDoubleSpinBoxDisabled::boxBelowADisabledParentStartsPlain()
{
    QWidget parent;
    parent.setEnabled(false);
    const auto *box = new TXDoubleSpinBoxDisabled(&parent);
    QVERIFY(looksPlain(*box));
}

void TestTXDoubleSpinBoxDisabled::enablingOverridesWhatTheHostChose()
{
    TXDoubleSpinBoxDisabled box;
    box.setFrame(false);
    box.setReadOnly(true);
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);

    box.setEnabled(false);
    box.setEnabled(true);
    QVERIFY(looksEditable(box));
}

void TestTXDoubleSpinBoxDisabled::otherChangesLeaveTheLookAlone()
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

void TestTXDoubleSpinBoxDisabled::nullEventIsIgnored()
{
    OpenBox box;
    box.setButtonSymbols(QAbstractSpinBox::PlusMinus);
    box.changeEvent(nullptr);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::PlusMinus);
}

void TestTXDoubleSpinBoxDisabled::valueStaysWhenDisabled()
{
    TXDoubleSpinBoxDisabled box;
    box.setValue(4.25);
    box.setEnabled(false);
    QCOMPARE(box.value(), 4.25);
    box.setEnabled(true);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.value(), 4.25 + 1);
}

void TestTXDoubleSpinBoxDisabled::plainValueIsPaintedWithoutFrame_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio) << QPalette() << ratio;
        QTest::addRow("dark, ratio %g", ratio) << darkPalette() << ratio;
    }
}

void TestTXDoubleSpinBoxDisabled::plainValueIsPaintedWithoutFrame()
{
    QFETCH(QPalette, palette);
    QFETCH(qreal, ratio);
    TXDoubleSpinBoxDisabled box;
    box.setPalette(palette);
    box.setValue(4.25);
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
    return runTest<TestTXDoubleSpinBoxDisabled>(argc, argv);
}

#include "tst_TXDoubleSpinBoxDisabled.moc"
