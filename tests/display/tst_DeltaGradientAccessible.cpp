#include "DeltaGradientAccessible.h"

#include "AccessibleEvents.h"
#include "DeltaBarHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QLineEdit>

#include <cmath>

namespace {

class SubclassedBar : public TXDeltaGradientWidget
{
    Q_OBJECT

public:
    using TXDeltaGradientWidget::TXDeltaGradientWidget;
};

} // namespace

class TestDeltaGradientAccessible : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { AccessibleEvents::start(false); }

private slots:
    void barIsAChartThatTakesTheFocus();
    void subclassIsAChartToo();
    void nameIsTheWidgetsOrAGeneralOne();
    void valueSaysTheNumbers_data();
    void valueSaysTheNumbers();
    void valueIsPartOfTheDescription();
    void changesAreTold();
    void nobodyIsToldWhenNobodyListens();
    void tabComesToTheBarAndFramesIt();
};

void TestDeltaGradientAccessible::barIsAChartThatTakesTheFocus()
{
    const DeltaBar bar;

    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(bar.widget);

    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Chart);
    QVERIFY(accessible->state().focusable);
    QVERIFY(!accessible->state().focused);
    QCOMPARE(bar.widget->focusPolicy(), Qt::TabFocus);
}

void TestDeltaGradientAccessible::subclassIsAChartToo()
{
    QWidget parent;
    auto *bar = new SubclassedBar(&parent);
    bar->setMax(4);

    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(bar);

    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Chart);
    QVERIFY(accessible->text(QAccessible::Value).endsWith("maximum 4.0"));
}

void TestDeltaGradientAccessible::nameIsTheWidgetsOrAGeneralOne()
{
    const DeltaBar bar;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(bar.widget);
    QVERIFY(accessible);

    QCOMPARE(accessible->text(QAccessible::Name), "Colour differences");

    bar.widget->setAccessibleName("Proof against print");
    QCOMPARE(accessible->text(QAccessible::Name), "Proof against print");
}

void TestDeltaGradientAccessible::valueSaysTheNumbers_data()
{
    QTest::addColumn<double>("average");
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("percent");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QString>("text");
    QTest::addRow("none") << 0.0 << 0.0 << 0.0 << 0.0
                          << "Average 0.0, limit 0.0 with 0.0 % of the pixels below, maximum 0.0";
    QTest::addRow("usual") << 1.23 << 3.0 << 97.4 << 8.76
                           << "Average 1.2, limit 3.0 with 97.4 % of the pixels below, maximum 8.8";
    QTest::addRow("odd") << double(NAN) << -1.0 << double(INFINITY) << 1e6
                         << "Average nan, limit -1.0 with inf % of the pixels below, "
                            "maximum 1000000.0";
}

void TestDeltaGradientAccessible::valueSaysTheNumbers()
{
    QFETCH(double, average);
    QFETCH(double, limit);
    QFETCH(double, percent);
    QFETCH(double, maximum);
    QFETCH(QString, text);
    const DeltaBar bar;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(bar.widget);
    QVERIFY(accessible);

    bar.widget->setAverage(average, 12);
    bar.widget->setLimit(limit, percent);
    bar.widget->setMax(maximum);

    QCOMPARE(accessible->text(QAccessible::Value), text);
}

void TestDeltaGradientAccessible::valueIsPartOfTheDescription()
{
    const DeltaBar bar;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(bar.widget);
    QVERIFY(accessible);

    QCOMPARE(accessible->text(QAccessible::Description), accessible->text(QAccessible::Value));
    QCOMPARE(accessible->text(QAccessible::Accelerator), QString());

    bar.widget->setToolTip("Print 7");
    QCOMPARE(accessible->text(QAccessible::Description),
             accessible->text(QAccessible::Value) + "\nPrint 7");

    bar.widget->setAccessibleDescription("By CIEDE2000");
    QCOMPARE(accessible->text(QAccessible::Description),
             "By CIEDE2000\n" + accessible->text(QAccessible::Value));
}

void TestDeltaGradientAccessible::changesAreTold()
{
    const DeltaBar bar;
    AccessibleEvents::start(true);

    bar.widget->setAverage(1, 20);
    bar.widget->setLimit(2, 50);
    bar.widget->setMax(3);

    const QStringList wanted = {
        "description Average 1.0, limit 0.0 with 0.0 % of the pixels below, maximum 0.0",
        "description Average 1.0, limit 2.0 with 50.0 % of the pixels below, maximum 0.0",
        "description Average 1.0, limit 2.0 with 50.0 % of the pixels below, maximum 3.0"};
    QCOMPARE(AccessibleEvents::take(), wanted);
}

void TestDeltaGradientAccessible::nobodyIsToldWhenNobodyListens()
{
    const DeltaBar bar;

    bar.widget->setMax(3);

    QCOMPARE(AccessibleEvents::take(), QStringList());
}

void TestDeltaGradientAccessible::tabComesToTheBarAndFramesIt()
{
    DeltaBar bar;
    auto *edit = new QLineEdit(&bar.parent);
    QWidget::setTabOrder(edit, bar.widget);
    edit->move(0, 200);
    bar.widget->window()->show();
    bar.widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(bar.widget->window()));
    edit->setFocus();
    const QImage before = PixelProbe(*bar.widget).image();

    QTest::keyClick(edit, Qt::Key_Tab);

    QVERIFY(bar.widget->hasFocus());
    const QImage framed = PixelProbe(*bar.widget).image();
    QVERIFY(framed != before);
    // Around the whole, on top of all.
    const QPoint places[] = {{200, 0}, {200, framed.height() - 1}, {0, 10}, {400, 10}};
    for (const QPoint &place : places) {
        QVERIFY(framed.pixelColor(place) != before.pixelColor(place));
    }
    // The colours are those of the bar still.
    const QRect inside = QRect(QPoint(), bar.widget->size()).adjusted(2, 2, -2, -2);
    QCOMPARE(framed.copy(inside), before.copy(inside));
}

int main(int argc, char **argv)
{
    return runTest<TestDeltaGradientAccessible>(argc, argv);
}

#include "tst_DeltaGradientAccessible.moc"
