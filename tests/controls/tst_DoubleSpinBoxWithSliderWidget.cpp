#include "DoubleSpinBoxWithSliderWidget.h"

#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>

#include <cmath>
#include <limits>
#include <memory>

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

class TestDoubleSpinBoxWithSliderWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { widget.reset(); }

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

    void boxInUseIsTheVisibleOne();
    void leftBoxAnswersBeforeTheWidgetIsShown();
    void widthIsThatOfTheBoxInUse();
    void hidingMovesTheBox();
    void settersReachBothBoxes();
    void buttonSymbolsReachBothBoxes();

    void labelShowsTheName();
    void ampersandInTheNameIsShown();
    void nameIsTheAccessibleNameOfAllThree();
    void secondRowNeedsOneName_data();
    void secondRowNeedsOneName();
    void secondRowGoesWithTheLastName_data();
    void secondRowGoesWithTheLastName();
    void emptiedLabelStaysWhileTheOtherHasText();
    void endLabelsStandAtTheEndsOfTheSlider();

    void wheelChangesNothing_data();
    void wheelChangesNothing();
    void wheelThroughTheLineEditChangesNothing();
    void otherEventsPassTheFilter();
    void tabGoesFromLeftToRight();
    void hugeTextsAreHarmless();
    void widgetIsPainted_data();
    void widgetIsPainted();

private:
    template<class Child>
    [[nodiscard]] Child *child(const char *name) const
    {
        return widget->findChild<Child *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QDoubleSpinBox *right() const
    {
        return child<QDoubleSpinBox>("dataDoubleSpinBox");
    }
    [[nodiscard]] QDoubleSpinBox *left() const
    {
        return child<QDoubleSpinBox>("dataLeftDoubleSpinBox");
    }
    [[nodiscard]] QSlider *slider() const { return child<QSlider>("dataHorizontalSlider"); }
    [[nodiscard]] QLabel *minLabel() const { return child<QLabel>("minValueNameLabel"); }
    [[nodiscard]] QLabel *maxLabel() const { return child<QLabel>("maxValueNameLabel"); }
    [[nodiscard]] QWidget *spacer() const { return child<QWidget>("widgetSpacer"); }

    std::unique_ptr<DoubleSpinBoxWithSliderWidget> widget;
};

void TestDoubleSpinBoxWithSliderWidget::prepare()
{
    widget = std::make_unique<DoubleSpinBoxWithSliderWidget>(nullptr);
}

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

void TestDoubleSpinBoxWithSliderWidget::boxInUseIsTheVisibleOne()
{
    // The setters keep the boxes alike, so they are set apart by hand.
    widget->show();
    for (QDoubleSpinBox *box : {right(), left()}) {
        const QSignalBlocker blocker(box);
        const bool isRight = box == right();
        box->setDecimals(isRight ? 1 : 3);
        box->setSingleStep(isRight ? 1 : 3);
        box->setRange(isRight ? -1 : -3, isRight ? 10 : 30);
        box->setValue(isRight ? 1 : 3);
    }
    const auto answers = [this] {
        return QList<double>({double(widget->decimals()), widget->singleStep(),
                              widget->minimumValue(), widget->maximumValue(), widget->value()});
    };
    QCOMPARE(answers(), QList<double>({1, 1, -1, 10, 1}));
    widget->hideRightSpinBox();
    QCOMPARE(answers(), QList<double>({3, 3, -3, 30, 3}));
    widget->hideLeftSpinBox();
    QCOMPARE(answers(), QList<double>({1, 1, -1, 10, 1}));
    widget->hide();
    QCOMPARE(answers(), QList<double>({3, 3, -3, 30, 3}));
}

void TestDoubleSpinBoxWithSliderWidget::leftBoxAnswersBeforeTheWidgetIsShown()
{
    widget->setValue(12.5);
    QCOMPARE(widget->value(), 12.5);
    const QSignalBlocker blocker(left());
    left()->setValue(3);
    QCOMPARE(widget->value(), 3.0);
    right()->hide();
    QCOMPARE(widget->value(), 3.0);
}

void TestDoubleSpinBoxWithSliderWidget::widthIsThatOfTheBoxInUse()
{
    right()->setFixedWidth(90);
    left()->setFixedWidth(70);
    widget->resize(400, 39);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QCOMPARE(widget->spinBoxWidth(), 90);
    widget->hideRightSpinBox();
    widget->layout()->activate();
    QCOMPARE(widget->spinBoxWidth(), 70);
}

void TestDoubleSpinBoxWithSliderWidget::hidingMovesTheBox()
{
    widget->resize(400, 39);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QVERIFY(slider()->geometry().right() < right()->geometry().left());

    widget->hideRightSpinBox();
    widget->layout()->activate();
    QVERIFY(!right()->isVisible());
    QVERIFY(left()->isVisible());
    QVERIFY(left()->geometry().right() < slider()->geometry().left());

    widget->hideLeftSpinBox();
    QVERIFY(right()->isVisible());
    QVERIFY(!left()->isVisible());
}

void TestDoubleSpinBoxWithSliderWidget::settersReachBothBoxes()
{
    widget->setSingleStep(0.25);
    widget->setSpinBoxSuffix(QStringLiteral(" %"));
    widget->setSpecialValueText(QStringLiteral("none"));
    widget->setSpinBoxMinimumWidth(77);
    widget->setSpinBoxMaximumWidth(88);
    for (const QDoubleSpinBox *box : {right(), left()}) {
        QCOMPARE(box->singleStep(), 0.25);
        QCOMPARE(box->suffix(), " %");
        QCOMPARE(box->specialValueText(), "none");
        QCOMPARE(box->text(), "none");
        QCOMPARE(box->minimumWidth(), 77);
        QCOMPARE(box->maximumWidth(), 88);
    }
    QCOMPARE(widget->singleStep(), 0.25);
    widget->setSingleStep(-1);
    QCOMPARE(widget->singleStep(), 0.25);
    QCOMPARE(slider()->singleStep(), 1);
}

void TestDoubleSpinBoxWithSliderWidget::buttonSymbolsReachBothBoxes()
{
    for (const auto symbols : {QAbstractSpinBox::NoButtons, QAbstractSpinBox::PlusMinus,
                               QAbstractSpinBox::UpDownArrows}) {
        widget->setSpinBoxButtonSymbol(symbols);
        QCOMPARE(right()->buttonSymbols(), symbols);
        QCOMPARE(left()->buttonSymbols(), symbols);
    }
}

void TestDoubleSpinBoxWithSliderWidget::labelShowsTheName()
{
    auto *label = child<QLabel>("dataNameLabel");
    QCOMPARE(widget->dataName(), QString());
    widget->setDataName(QStringLiteral("Gain"));
    QCOMPARE(widget->dataName(), "Gain");
    QCOMPARE(label->text(), "Gain");

    widget->setLabelMinimumWidth(123);
    QCOMPARE(label->minimumWidth(), 123);
    widget->show();
    widget->setLabelVisible(false);
    QVERIFY(!label->isVisible());
    widget->setLabelVisible(true);
    QVERIFY(label->isVisible());
}

void TestDoubleSpinBoxWithSliderWidget::ampersandInTheNameIsShown()
{
    widget->setDataName(QStringLiteral("Hue && Tone"));
    auto *label = child<QLabel>("dataNameLabel");
    const QLabel asItStands(QStringLiteral("Hue && Tone"));
    QCOMPARE(label->sizeHint(), asItStands.sizeHint());
    QVERIFY(!label->buddy());
}

void TestDoubleSpinBoxWithSliderWidget::nameIsTheAccessibleNameOfAllThree()
{
    widget->setDataName(QStringLiteral("Gain"));
    widget->setLabelVisible(false);
    for (QWidget *named : {static_cast<QWidget *>(right()), static_cast<QWidget *>(left()),
                           static_cast<QWidget *>(slider())}) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(named);
        QVERIFY(accessible);
        QCOMPARE(accessible->text(QAccessible::Name), "Gain");
    }
}

void TestDoubleSpinBoxWithSliderWidget::secondRowNeedsOneName_data()
{
    QTest::addColumn<bool>("isMinimum");
    QTest::newRow("minimum only") << true;
    QTest::newRow("maximum only") << false;
}

void TestDoubleSpinBoxWithSliderWidget::secondRowNeedsOneName()
{
    QFETCH(bool, isMinimum);
    widget->show();
    if (isMinimum) {
        widget->setMinLabelName(QStringLiteral("dark"));
    } else {
        widget->setMaxLabelName(QStringLiteral("light"));
    }
    QVERIFY(spacer()->isVisible());
    QCOMPARE(minLabel()->isVisible(), isMinimum);
    QCOMPARE(maxLabel()->isVisible(), !isMinimum);
    QCOMPARE(minLabel()->text(), isMinimum ? "dark" : "");
    QCOMPARE(maxLabel()->text(), isMinimum ? "" : "light");
}

void TestDoubleSpinBoxWithSliderWidget::secondRowGoesWithTheLastName_data()
{
    QTest::addColumn<bool>("isMinimumFirst");
    QTest::newRow("minimum emptied first") << true;
    QTest::newRow("maximum emptied first") << false;
}

void TestDoubleSpinBoxWithSliderWidget::secondRowGoesWithTheLastName()
{
    QFETCH(bool, isMinimumFirst);
    widget->show();
    widget->setMinLabelName(QStringLiteral("dark"));
    widget->setMaxLabelName(QStringLiteral("light"));
    QVERIFY(minLabel()->isVisible() && maxLabel()->isVisible() && spacer()->isVisible());

    for (const bool isMinimum : {isMinimumFirst, !isMinimumFirst}) {
        QVERIFY(minLabel()->isVisible() && maxLabel()->isVisible() && spacer()->isVisible());
        if (isMinimum) {
            widget->setMinLabelName(QString());
        } else {
            widget->setMaxLabelName(QString());
        }
    }
    QVERIFY(!minLabel()->isVisible());
    QVERIFY(!maxLabel()->isVisible());
    QVERIFY(!spacer()->isVisible());
}

void TestDoubleSpinBoxWithSliderWidget::emptiedLabelStaysWhileTheOtherHasText()
{
    widget->show();
    widget->setMinLabelName(QStringLiteral("dark"));
    widget->setMaxLabelName(QStringLiteral("light"));
    widget->setMinLabelName(QString());
    QVERIFY(minLabel()->isVisible());
    QVERIFY(minLabel()->text().isEmpty());
    QVERIFY(maxLabel()->isVisible());
    QVERIFY(spacer()->isVisible());
}

void TestDoubleSpinBoxWithSliderWidget::endLabelsStandAtTheEndsOfTheSlider()
{
    widget->setMinLabelName(QStringLiteral("dark"));
    widget->setMaxLabelName(QStringLiteral("light"));
    widget->resize(400, 60);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QCOMPARE(minLabel()->geometry().left(), slider()->geometry().left());
    QCOMPARE(maxLabel()->geometry().right(), slider()->geometry().right());
    QVERIFY(spacer()->width() > 100);
    QVERIFY(minLabel()->geometry().top() > slider()->geometry().bottom());
}

void TestDoubleSpinBoxWithSliderWidget::wheelChangesNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"dataDoubleSpinBox", "dataLeftDoubleSpinBox", "dataHorizontalSlider"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestDoubleSpinBoxWithSliderWidget::wheelChangesNothing()
{
    QFETCH(QByteArray, name);
    auto *turned = child<QWidget>(name.constData());
    widget->setValue(50);
    widget->show();
    turned->show();
    turned->setFocus();
    const QSignalSpy changed(widget.get(), SIGNAL(valueChanged(double)));

    turnWheel(turned);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(widget->value(), 50.0);

    // Without the guard it would change.
    turned->removeEventFilter(widget.get());
    turnWheel(turned);
    QVERIFY(changed.count() > 0);
}

void TestDoubleSpinBoxWithSliderWidget::wheelThroughTheLineEditChangesNothing()
{
    widget->setValue(50);
    widget->show();
    right()->setFocus();
    turnWheel(right()->findChild<QWidget *>(QStringLiteral("qt_spinbox_lineedit")));
    QCOMPARE(widget->value(), 50.0);
}

void TestDoubleSpinBoxWithSliderWidget::otherEventsPassTheFilter()
{
    QEvent wheel(QEvent::Wheel);
    QVERIFY(widget->eventFilter(slider(), &wheel));
    QVERIFY(widget->eventFilter(nullptr, &wheel));
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::MouseButtonPress, QEvent::FocusIn,
                                    QEvent::Paint, QEvent::User}) {
        QEvent other(type);
        QVERIFY(!widget->eventFilter(slider(), &other));
    }
}

void TestDoubleSpinBoxWithSliderWidget::tabGoesFromLeftToRight()
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    slider()->setFocus();
    QTest::keyClick(slider(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), right());

    widget->hideRightSpinBox();
    left()->setFocus();
    QTest::keyClick(left(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), slider());
}

void TestDoubleSpinBoxWithSliderWidget::hugeTextsAreHarmless()
{
    const QString text = QString(100000, u'w') + QStringLiteral("\x01\n\t<b>&");
    widget->setDataName(text);
    widget->setMinLabelName(text);
    widget->setSpinBoxSuffix(text);
    QCOMPARE(widget->dataName(), text);
    widget->setValue(3);
    QCOMPARE(widget->value(), 3.0);
}

void TestDoubleSpinBoxWithSliderWidget::widgetIsPainted_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio) << QPalette() << ratio;
        QTest::addRow("dark, ratio %g", ratio) << darkPalette() << ratio;
    }
}

void TestDoubleSpinBoxWithSliderWidget::widgetIsPainted()
{
    QFETCH(QPalette, palette);
    QFETCH(qreal, ratio);
    widget->setPalette(palette);
    widget->setDataName(QStringLiteral("Gain"));
    widget->setMinLabelName(QStringLiteral("dark"));
    widget->setMaxLabelName(QStringLiteral("light"));
    widget->resize(400, 60);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    const PixelProbe probe(*widget, ratio);
    for (const QWidget *part :
         {static_cast<QWidget *>(right()), static_cast<QWidget *>(slider()),
          static_cast<QWidget *>(minLabel()), static_cast<QWidget *>(maxLabel())}) {
        QVERIFY2(probe.countColours(part->geometry()) > 3, qPrintable(part->objectName()));
    }
    QCOMPARE(probe.countColours(spacer()->geometry()), 1);
    QVERIFY(probe.isNear(spacer()->geometry().center(), palette.color(QPalette::Window)));
    QVERIFY(
        probe.isNear(right()->geometry().center() - QPoint(20, 0), palette.color(QPalette::Base)));
}

int main(int argc, char **argv)
{
    return runTest<TestDoubleSpinBoxWithSliderWidget>(argc, argv);
}

#include "tst_DoubleSpinBoxWithSliderWidget.moc"
