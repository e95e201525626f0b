#include "DoubleSpinBoxWithSliderWidget.h"

#include "ControlTestHelpers.h"
#include "DoubleSpinBoxWithSliderTest.h"
#include "PixelProbe.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLayout>
#include <QSignalSpy>

/// What is shown and named, and how it is reached.
class TestDoubleSpinBoxWithSliderWidgetLooks : public DoubleSpinBoxWithSliderTest
{
    Q_OBJECT

private slots:
    void boxInUseIsTheVisibleOne();
    void leftBoxAnswersBeforeTheWidgetIsShown();
    void widthIsThatOfTheBoxInUse();
    void hidingMovesTheBox();
    void settersReachBothBoxes();
    void buttonSymbolsReachBothBoxes();
    void widthsAreReadBack();
    void sideOfTheBoxIsAProperty();

    void labelShowsTheName();
    void ampersandInTheNameIsShown();
    void colonOfTheLabelIsNotSpoken_data();
    void colonOfTheLabelIsNotSpoken();
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
};

void TestDoubleSpinBoxWithSliderWidgetLooks::boxInUseIsTheVisibleOne()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::leftBoxAnswersBeforeTheWidgetIsShown()
{
    widget->setValue(12.5);
    QCOMPARE(widget->value(), 12.5);
    const QSignalBlocker blocker(left());
    left()->setValue(3);
    QCOMPARE(widget->value(), 3.0);
    right()->hide();
    QCOMPARE(widget->value(), 3.0);
}

void TestDoubleSpinBoxWithSliderWidgetLooks::widthIsThatOfTheBoxInUse()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::hidingMovesTheBox()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::settersReachBothBoxes()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::buttonSymbolsReachBothBoxes()
{
    for (const auto symbols : {QAbstractSpinBox::NoButtons, QAbstractSpinBox::PlusMinus,
                               QAbstractSpinBox::UpDownArrows}) {
        widget->setSpinBoxButtonSymbol(symbols);
        QCOMPARE(right()->buttonSymbols(), symbols);
        QCOMPARE(left()->buttonSymbols(), symbols);
    }
}

void TestDoubleSpinBoxWithSliderWidgetLooks::widthsAreReadBack()
{
    QCOMPARE(widget->spinBoxMinimumWidth(), 0);
    QCOMPARE(widget->spinBoxMaximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(widget->labelMinimumWidth(), 0);
    widget->setSpinBoxMinimumWidth(70);
    widget->setSpinBoxMaximumWidth(90);
    widget->setLabelMinimumWidth(110);
    for (const bool isLeft : {false, true}) {
        QVERIFY(widget->setProperty("spinBoxLeftOfSlider", isLeft));
        QCOMPARE(widget->spinBoxMinimumWidth(), 70);
        QCOMPARE(widget->spinBoxMaximumWidth(), 90);
    }
    QCOMPARE(widget->labelMinimumWidth(), 110);
}

void TestDoubleSpinBoxWithSliderWidgetLooks::sideOfTheBoxIsAProperty()
{
    QVERIFY(!widget->isSpinBoxLeftOfSlider());
    widget->hideRightSpinBox();
    QVERIFY(widget->isSpinBoxLeftOfSlider());
    widget->hideLeftSpinBox();
    QVERIFY(!widget->isSpinBoxLeftOfSlider());
    widget->show();
    for (const bool isLeft : {true, false}) {
        QVERIFY(widget->setProperty("spinBoxLeftOfSlider", isLeft));
        QCOMPARE(left()->isVisible(), isLeft);
        QCOMPARE(right()->isVisible(), !isLeft);
    }
}

void TestDoubleSpinBoxWithSliderWidgetLooks::labelShowsTheName()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::ampersandInTheNameIsShown()
{
    widget->setDataName(QStringLiteral("Hue && Tone"));
    auto *label = child<QLabel>("dataNameLabel");
    const QLabel asItStands(QStringLiteral("Hue && Tone"));
    QCOMPARE(label->sizeHint(), asItStands.sizeHint());
    QVERIFY(!label->buddy());
}

void TestDoubleSpinBoxWithSliderWidgetLooks::colonOfTheLabelIsNotSpoken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("spoken");

    QTest::newRow("colon") << "Gain:"
                           << "Gain";
    QTest::newRow("colon behind a blank") << QString("Gain\u00A0:") << "Gain";
    QTest::newRow("wide colon") << QString("\u589E\u76CA\uFF1A") << QString("\u589E\u76CA");
    QTest::newRow("colon within") << "Ratio 1:2"
                                  << "Ratio 1:2";
    QTest::newRow("colon alone") << ":" << QString();
}

void TestDoubleSpinBoxWithSliderWidgetLooks::colonOfTheLabelIsNotSpoken()
{
    QFETCH(const QString, name);
    QFETCH(const QString, spoken);
    widget->setDataName(name);
    QCOMPARE(widget->dataName(), name);
    QCOMPARE(right()->accessibleName(), spoken);
    QCOMPARE(left()->accessibleName(), spoken);
    QCOMPARE(slider()->accessibleName(), spoken);
}

void TestDoubleSpinBoxWithSliderWidgetLooks::nameIsTheAccessibleNameOfAllThree()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::secondRowNeedsOneName_data()
{
    QTest::addColumn<bool>("isMinimum");
    QTest::newRow("minimum only") << true;
    QTest::newRow("maximum only") << false;
}

void TestDoubleSpinBoxWithSliderWidgetLooks::secondRowNeedsOneName()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::secondRowGoesWithTheLastName_data()
{
    QTest::addColumn<bool>("isMinimumFirst");
    QTest::newRow("minimum emptied first") << true;
    QTest::newRow("maximum emptied first") << false;
}

void TestDoubleSpinBoxWithSliderWidgetLooks::secondRowGoesWithTheLastName()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::emptiedLabelStaysWhileTheOtherHasText()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::endLabelsStandAtTheEndsOfTheSlider()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::wheelChangesNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"dataDoubleSpinBox", "dataLeftDoubleSpinBox", "dataHorizontalSlider"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestDoubleSpinBoxWithSliderWidgetLooks::wheelChangesNothing()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::wheelThroughTheLineEditChangesNothing()
{
    widget->setValue(50);
    widget->show();
    right()->setFocus();
    turnWheel(right()->findChild<QWidget *>(QStringLiteral("qt_spinbox_lineedit")));
    QCOMPARE(widget->value(), 50.0);
}

void TestDoubleSpinBoxWithSliderWidgetLooks::otherEventsPassTheFilter()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::tabGoesFromLeftToRight()
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

void TestDoubleSpinBoxWithSliderWidgetLooks::hugeTextsAreHarmless()
{
    const QString text = QString(100000, u'w') + QStringLiteral("\x01\n\t<b>&");
    widget->setDataName(text);
    widget->setMinLabelName(text);
    widget->setSpinBoxSuffix(text);
    QCOMPARE(widget->dataName(), text);
    widget->setValue(3);
    QCOMPARE(widget->value(), 3.0);
}

void TestDoubleSpinBoxWithSliderWidgetLooks::widgetIsPainted_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light, ratio %g", ratio) << QPalette() << ratio;
        QTest::addRow("dark, ratio %g", ratio) << darkPalette() << ratio;
    }
}

void TestDoubleSpinBoxWithSliderWidgetLooks::widgetIsPainted()
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
    return runTest<TestDoubleSpinBoxWithSliderWidgetLooks>(argc, argv);
}

#include "tst_DoubleSpinBoxWithSliderWidgetLooks.moc"
