#include "DoubleSpinBoxWithSliderWidget.h"

#include "DoubleSpinBoxWithSliderTest.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>

#include <limits>

namespace {

constexpr int kMostSteps = std::numeric_limits<int>::max();
constexpr int kLeastSteps = std::numeric_limits<int>::min();

QList<double> doublesIn(const QSignalSpy &spy)
{
    QList<double> values;
    for (const QVariantList &arguments : spy) {
        values.append(arguments.first().toDouble());
    }
    return values;
}

} // namespace

/// The form, and the values of slider and boxes.
class TestDoubleSpinBoxWithSliderWidget : public DoubleSpinBoxWithSliderTest
{
    Q_OBJECT

private slots:
    void formIsAsDesigned_data();
    void formIsAsDesigned();
    void boxesAreAlike();
    void startsWithBoxOnTheRightAndOneRow();
    void startsWithSliderAndBoxesInStep();
    void slotsStandInTheirOrder();

    void decimalsScaleTheSlider_data();
    void decimalsScaleTheSlider();
    void productsAreTruncatedTowardsZero_data();
    void productsAreTruncatedTowardsZero();
    void rangeOfTheSliderIsTruncatedToo();
    void productsBeyondAnIntBecomeItsLimits_data();
    void productsBeyondAnIntBecomeItsLimits();
    void valueThatIsNoNumberIsHarmless();
    void manyDecimalsAreHarmless_data();
    void manyDecimalsAreHarmless();
    void valueOutOfRangeIsClamped();
    void minimumAboveMaximumTakesItAlong();

    void editEmitsFirstTheSlidersValueThenTheTypedOne();
    void editThatLandsLowEmitsTheTypedValueLast();
    void sliderSetsRightThenLeftThenEmits();
    void sliderStepThatLandsLowIsUndone();
    void bothBoxesFollowEachSetter();
    void sameValueAgainEmitsNothing();
    void typingReachesTheSlider();
    void keysMoveTheSlider();
};

void TestDoubleSpinBoxWithSliderWidget::formIsAsDesigned_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QRect>("cell"); // column, row, columns, rows
    QTest::newRow("dataNameLabel") << QByteArray("QLabel") << QRect(0, 0, 1, 1);
    QTest::newRow("dataLeftDoubleSpinBox") << QByteArray("QDoubleSpinBox") << QRect(1, 0, 1, 1);
    QTest::newRow("dataHorizontalSlider") << QByteArray("QSlider") << QRect(2, 0, 3, 1);
    QTest::newRow("dataDoubleSpinBox") << QByteArray("QDoubleSpinBox") << QRect(5, 0, 1, 1);
    QTest::newRow("minValueNameLabel") << QByteArray("QLabel") << QRect(2, 1, 1, 1);
    QTest::newRow("widgetSpacer") << QByteArray("QWidget") << QRect(3, 1, 1, 1);
    QTest::newRow("maxValueNameLabel") << QByteArray("QLabel") << QRect(4, 1, 1, 1);
}

void TestDoubleSpinBoxWithSliderWidget::formIsAsDesigned()
{
    QFETCH(QByteArray, className);
    QFETCH(QRect, cell);
    QCOMPARE(widget->objectName(), "DoubleSpinBoxWithSliderWidget");
    QCOMPARE(widget->windowTitle(), "Form");
    QCOMPARE(widget->size(), QSize(260, 39));
    const auto *grid = child<QGridLayout>("gridLayout");
    QCOMPARE(widget->layout(), grid);
    QCOMPARE(grid->contentsMargins(), QMargins());
    auto *item = child<QWidget>(QTest::currentDataTag());
    QVERIFY(item);
    QCOMPARE(item->metaObject()->className(), className.constData());
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(item), &row, &column, &rows, &columns);
    QCOMPARE(QRect(column, row, columns, rows), cell);
}

void TestDoubleSpinBoxWithSliderWidget::boxesAreAlike()
{
    for (const QDoubleSpinBox *box : {right(), left()}) {
        QCOMPARE(box->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(box->minimum(), 0.0);
        QCOMPARE(box->maximum(), 100.0);
        QCOMPARE(box->singleStep(), 0.1);
        QCOMPARE(box->decimals(), 2);
    }
    QCOMPARE(child<QLabel>("dataNameLabel")->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(slider()->orientation(), Qt::Horizontal);
    QCOMPARE(slider()->tickPosition(), QSlider::NoTicks);
}

void TestDoubleSpinBoxWithSliderWidget::startsWithBoxOnTheRightAndOneRow()
{
    widget->show();
    QVERIFY(right()->isVisible());
    QVERIFY(slider()->isVisible());
    QVERIFY(child<QLabel>("dataNameLabel")->isVisible());
    for (const QWidget *hidden :
         {static_cast<QWidget *>(left()), spacer(), static_cast<QWidget *>(minLabel()),
          static_cast<QWidget *>(maxLabel())}) {
        QVERIFY(!hidden->isVisible());
    }
}

void TestDoubleSpinBoxWithSliderWidget::startsWithSliderAndBoxesInStep()
{
    QCOMPARE(slider()->minimum(), 0);
    QCOMPARE(slider()->maximum(), 10000);
    QCOMPARE(slider()->value(), 0);
}

void TestDoubleSpinBoxWithSliderWidget::slotsStandInTheirOrder()
{
    const QMetaObject *meta = widget->metaObject();
    QByteArrayList slotNames;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Slot) {
            slotNames.append(meta->method(i).methodSignature());
        }
    }
    QCOMPARE(slotNames,
             QByteArrayList({"setValue(double)", "currentSpinBoxValueChanged(double)",
                             "currentSliderValueChanged(int)"}));
}

void TestDoubleSpinBoxWithSliderWidget::decimalsScaleTheSlider_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("steps");
    QTest::newRow("0") << 0 << 100;
    QTest::newRow("1") << 1 << 1000;
    QTest::newRow("2") << 2 << 10000;
    QTest::newRow("5") << 5 << 10000000;
    QTest::newRow("negative") << -1 << 100;
}

void TestDoubleSpinBoxWithSliderWidget::decimalsScaleTheSlider()
{
    QFETCH(int, decimals);
    QFETCH(int, steps);
    widget->setDecimals(decimals);
    QCOMPARE(widget->decimals(), qMax(decimals, 0));
    QCOMPARE(left()->decimals(), right()->decimals());
    QCOMPARE(slider()->minimum(), 0);
    QCOMPARE(slider()->maximum(), steps);
}

void TestDoubleSpinBoxWithSliderWidget::productsAreTruncatedTowardsZero_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::newRow("0.29 is less than 29 hundredths") << 0.29 << 28;
    QTest::newRow("0.57") << 0.57 << 56;
    QTest::newRow("0.28") << 0.28 << 28;
    QTest::newRow("0.5") << 0.5 << 50;
    QTest::newRow("-0.29, towards zero") << -0.29 << -28;
    QTest::newRow("-0.5") << -0.5 << -50;
}

void TestDoubleSpinBoxWithSliderWidget::productsAreTruncatedTowardsZero()
{
    QFETCH(double, value);
    QFETCH(int, steps);
    widget->setMinimumValue(-100);
    widget->setValue(value);
    QCOMPARE(slider()->value(), steps);
    QCOMPARE(widget->value(), steps / 100.0);
    QCOMPARE(slider()->minimum(), -10000);
}

void TestDoubleSpinBoxWithSliderWidget::rangeOfTheSliderIsTruncatedToo()
{
    widget->setMinimumValue(-0.57);
    widget->setMaximumValue(0.29);
    QCOMPARE(slider()->minimum(), -56);
    QCOMPARE(slider()->maximum(), 28);
    QCOMPARE(widget->minimumValue(), -0.57);
    QCOMPARE(widget->maximumValue(), 0.29);
}

void TestDoubleSpinBoxWithSliderWidget::productsBeyondAnIntBecomeItsLimits_data()
{
    QTest::addColumn<double>("limit");
    QTest::newRow("just beyond") << 21474836.48;
    QTest::newRow("1e9") << 1e9;
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("greatest double") << std::numeric_limits<double>::max();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
}

void TestDoubleSpinBoxWithSliderWidget::productsBeyondAnIntBecomeItsLimits()
{
    QFETCH(double, limit);
    widget->setMaximumValue(limit);
    widget->setMinimumValue(-limit - 0.01);
    QCOMPARE(slider()->maximum(), kMostSteps);
    QCOMPARE(slider()->minimum(), kLeastSteps);
    QCOMPARE(slider()->value(), 0);

    widget->setValue(limit);
    QCOMPARE(slider()->value(), kMostSteps);
    widget->setValue(-limit);
    QVERIFY(slider()->value() <= -kMostSteps);
    widget->setValue(1);
    QCOMPARE(slider()->value(), 100);
    QCOMPARE(widget->value(), 1.0);
}

void TestDoubleSpinBoxWithSliderWidget::valueThatIsNoNumberIsHarmless()
{
    widget->show();
    const double none = std::numeric_limits<double>::quiet_NaN();
    widget->setValue(none);
    QVERIFY(widget->value() >= 0 && widget->value() <= 100);

    widget->setMinimumValue(none);
    QCOMPARE(slider()->minimum(), 0);
    widget->setMinimumValue(0);
    widget->setMaximumValue(100);
    widget->setValue(7);
    QCOMPARE(widget->value(), 7.0);
    QCOMPARE(slider()->value(), 700);
}

void TestDoubleSpinBoxWithSliderWidget::manyDecimalsAreHarmless_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("steps");
    QTest::newRow("10, more than an int") << 10 << 0.125 << 1250000000;
    QTest::newRow("18") << 18 << 0x1p-31 << 465661287;
    QTest::newRow("19, more than 64 bits: as 18") << 19 << 0x1p-31 << 465661287;
    QTest::newRow("323, the most of a spin box") << 323 << 0x1p-31 << 465661287;
    QTest::newRow("more than a spin box has") << 100000 << 0x1p-31 << 465661287;
}

void TestDoubleSpinBoxWithSliderWidget::manyDecimalsAreHarmless()
{
    QFETCH(int, decimals);
    QFETCH(double, value);
    QFETCH(int, steps);
    widget->setDecimals(decimals);
    QCOMPARE(slider()->maximum(), kMostSteps);
    widget->setValue(value);
    QCOMPARE(slider()->value(), steps);
    QVERIFY(qAbs(widget->value() - value) < 1e-9);
}

void TestDoubleSpinBoxWithSliderWidget::valueOutOfRangeIsClamped()
{
    widget->setValue(1000);
    QCOMPARE(widget->value(), 100.0);
    QCOMPARE(slider()->value(), 10000);
    widget->setValue(-1000);
    QCOMPARE(widget->value(), 0.0);
    QCOMPARE(slider()->value(), 0);
    widget->currentSliderValueChanged(20000);
    QCOMPARE(widget->value(), 100.0);
}

void TestDoubleSpinBoxWithSliderWidget::minimumAboveMaximumTakesItAlong()
{
    widget->show();
    widget->setMinimumValue(500);
    for (const QDoubleSpinBox *box : {right(), left()}) {
        QCOMPARE(box->minimum(), 500.0);
        QCOMPARE(box->maximum(), 500.0);
        QCOMPARE(box->value(), 500.0);
    }
    QCOMPARE(slider()->value(), 50000);

    widget->setMaximumValue(-1);
    QCOMPARE(widget->minimumValue(), -1.0);
    QCOMPARE(left()->value(), -1.0);
    QCOMPARE(slider()->value(), -100);
}

void TestDoubleSpinBoxWithSliderWidget::editEmitsFirstTheSlidersValueThenTheTypedOne()
{
    widget->show();
    const QSignalSpy changed(widget.get(), SIGNAL(valueChanged(double)));
    right()->setValue(0.5);
    // From the left box, from the slider, and from the box that was edited.
    QCOMPARE(doublesIn(changed), QList<double>({0.5, 0.5, 0.5}));
    QCOMPARE(slider()->value(), 50);
    QCOMPARE(left()->value(), 0.5);
}

void TestDoubleSpinBoxWithSliderWidget::editThatLandsLowEmitsTheTypedValueLast()
{
    widget->show();
    const QSignalSpy changed(widget.get(), SIGNAL(valueChanged(double)));
    right()->setValue(0.29);
    QCOMPARE(doublesIn(changed), QList<double>({0.28, 0.28, 0.28, 0.29}));
    QCOMPARE(widget->value(), 0.28);
}

void TestDoubleSpinBoxWithSliderWidget::sliderSetsRightThenLeftThenEmits()
{
    widget->show();
    QStringList order;
    connect(right(), &QDoubleSpinBox::valueChanged, this, [&] { order.append("right"); });
    connect(left(), &QDoubleSpinBox::valueChanged, this, [&] { order.append("left"); });
    const QSignalSpy changed(widget.get(), SIGNAL(valueChanged(double)));
    slider()->setValue(1234);
    QCOMPARE(order, QStringList({"right", "left"}));
    QCOMPARE(doublesIn(changed), QList<double>({12.34, 12.34, 12.34}));
    QCOMPARE(right()->value(), 12.34);
    QCOMPARE(left()->value(), 12.34);
}

void TestDoubleSpinBoxWithSliderWidget::sliderStepThatLandsLowIsUndone()
{
    widget->show();
    const QSignalSpy changed(widget.get(), SIGNAL(valueChanged(double)));
    slider()->setValue(29);
    QCOMPARE(slider()->value(), 28);
    QCOMPARE(widget->value(), 0.28);
    QCOMPARE(doublesIn(changed).last(), 0.29);
}

void TestDoubleSpinBoxWithSliderWidget::bothBoxesFollowEachSetter()
{
    for (const bool isShown : {false, true}) {
        widget->setVisible(isShown);
        widget->setMinimumValue(-5);
        widget->setMaximumValue(50);
        widget->setValue(12.5);
        for (const QDoubleSpinBox *box : {right(), left()}) {
            QCOMPARE(box->minimum(), -5.0);
            QCOMPARE(box->maximum(), 50.0);
            QCOMPARE(box->value(), 12.5);
        }
        QCOMPARE(slider()->minimum(), -500);
        QCOMPARE(slider()->maximum(), 5000);
        QCOMPARE(slider()->value(), 1250);
        widget->setValue(0);
    }
}

void TestDoubleSpinBoxWithSliderWidget::sameValueAgainEmitsNothing()
{
    widget->show();
    widget->setValue(12.5);
    const QSignalSpy changed(widget.get(), SIGNAL(valueChanged(double)));
    widget->setValue(12.5);
    widget->setMaximumValue(100);
    widget->setMinimumValue(0);
    widget->setDecimals(2);
    slider()->setValue(1250);
    QCOMPARE(changed.count(), 0);
}

void TestDoubleSpinBoxWithSliderWidget::typingReachesTheSlider()
{
    widget->show();
    right()->selectAll();
    QTest::keyClicks(right(), "42");
    QCOMPARE(slider()->value(), 4200);
    QCOMPARE(widget->value(), 42.0);
    QTest::keyClick(right(), Qt::Key_Up);
    QCOMPARE(slider()->value(), 4210);
}

void TestDoubleSpinBoxWithSliderWidget::keysMoveTheSlider()
{
    widget->show();
    QTest::keyClick(slider(), Qt::Key_PageUp);
    QCOMPARE(widget->value(), 0.1);
    QTest::keyClick(slider(), Qt::Key_Right);
    QCOMPARE(widget->value(), 0.11);
    QTest::keyClick(slider(), Qt::Key_End);
    QCOMPARE(widget->value(), 100.0);
}

int main(int argc, char **argv)
{
    return runTest<TestDoubleSpinBoxWithSliderWidget>(argc, argv);
}

#include "tst_DoubleSpinBoxWithSliderWidget.moc"
