#include "TXDeltaGradientWidget.h"

#include "DeltaBarDrawing.h"
#include "DeltaBarHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QPainter>
#include <QTranslator>

#include <cmath>

using DeltaBarDrawing::Values;

namespace {

void set(TXDeltaGradientWidget &widget, const Values &values)
{
    widget.setAverage(values.averageDelta, values.averagePercent);
    widget.setLimit(values.limitDelta, values.limitPercent);
    widget.setMax(values.maxDelta);
}

/// What the bar should look like, on the background that a widget has.
QImage drawn(const TXDeltaGradientWidget &widget, const Values &values, int textHeight, qreal ratio)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(widget.palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.setFont(widget.font());
    painter.setPen(widget.palette().color(QPalette::WindowText));
    DeltaBarDrawing::Drawing(painter, widget.size(), textHeight, values).draw();
    return image;
}

/// Lets every text through and keeps it.
class TextCollector : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        if (qstrcmp(context, "TXDeltaGradientWidget") == 0) {
            texts.append(QString::fromUtf8(sourceText));
        }
        return {};
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

    mutable QStringList texts;
};

/// The columns of the row that hold another colour than the row's, from the first to the last.
QPair<int, int> inkWithin(const PixelProbe &probe, const QRect &area, const QColor &ground)
{
    QPair<int, int> columns(-1, -1);
    for (int x = area.left(); x <= area.right(); ++x) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            if (!probe.isNear({x, y}, ground, 40)) {
                columns.first = columns.first < 0 ? x : columns.first;
                columns.second = x;
            }
        }
    }
    return columns;
}

const QColor kGround("#efeedc");

} // namespace

Q_DECLARE_METATYPE(Values)

class TestTXDeltaGradientWidget : public TestBase
{
    Q_OBJECT

private slots:
    void heightIsThatOfTheParentsFontAtFirst();
    void everyPixelIsAsDrawnAnotherTime_data();
    void everyPixelIsAsDrawnAnotherTime();
    void rowsAreWhereTheyBelong_data();
    void rowsAreWhereTheyBelong();
    void colourJumpsAtTheLimit_data();
    void colourJumpsAtTheLimit();
    void withoutValuesAllIsAboveTheLimit();
    void limitValueKeepsWithinTheBar_data();
    void limitValueKeepsWithinTheBar();
    void averageValueGoesWhereItsMarkGoes_data();
    void averageValueGoesWhereItsMarkGoes();
    void marksPointDownAtTheirPlaces();
    void markOfTheMaximumStaysAtTheEnd();
    void textsAreThoseToTranslate();
    void everySetterPaintsAnew();
};

void TestTXDeltaGradientWidget::heightIsThatOfTheParentsFontAtFirst()
{
    QWidget parent;
    QFont font = parent.font();
    font.setPixelSize(31);
    parent.setFont(font);
    const int height = QFontMetrics(font).height();

    auto *widget = new TXDeltaGradientWidget(&parent);
    QCOMPARE(widget->sizeHint(), QSize(32, 3 * height + 22));

    font.setPixelSize(10);
    parent.setFont(font);
    QCOMPARE(widget->sizeHint(), QSize(32, 3 * height + 22));

    const TXDeltaGradientWidget orphan(nullptr);
    QCOMPARE(orphan.sizeHint().height(), 3 * QFontMetrics(QApplication::font()).height() + 22);
}

void TestTXDeltaGradientWidget::everyPixelIsAsDrawnAnotherTime_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<int>("width");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QPalette>("palette");
    const QPalette light(Qt::white);
    const QPalette dark(QColor(40, 40, 40));
    const QList<QPair<const char *, Values>> cases = {
        {"none", {}},
        {"usual", {1.23, 61.04, 3, 97.4, 8.8}},
        {"limit in the middle", {2.25, 33.3, 3.05, 50, 12.35}},
        {"limit at a third", {12.5, 71.9, 1, 100.0 / 3, 99.95}},
        {"limit at 100", {0.1, 99.9, 3, 100, 2}},
        {"limit above 100", {0.1, 101, 3, 120, 2}},
        {"limit below 0", {10, -3, 3, -20, 2}},
        {"average far above", {10, 250, 3, 4.9, 2}},
        {"negative values", {-1.5, 20, -3.25, 5.1, -0.04}},
    };
    for (const auto &[name, values] : cases) {
        for (const int width : {32, 200, 523}) {
            QTest::addRow("%s, %d wide", name, width) << values << width << 1.0 << light;
        }
        QTest::addRow("%s, ratio 2", name) << values << 401 << 2.0 << light;
        QTest::addRow("%s, dark", name) << values << 401 << 1.0 << dark;
        QTest::addRow("%s, dark, ratio 2", name) << values << 401 << 2.0 << dark;
    }
}

void TestTXDeltaGradientWidget::everyPixelIsAsDrawnAnotherTime()
{
    QFETCH(Values, values);
    QFETCH(int, width);
    QFETCH(qreal, ratio);
    QFETCH(QPalette, palette);
    DeltaBar bar(width);
    bar.widget->setPalette(palette);
    // One of them is higher than its rows.
    bar.widget->resize(width, bar.widget->height() + (width == 200 ? 9 : 0));

    set(*bar.widget, values);

    const QImage found = PixelProbe(*bar.widget, ratio).image();
    const QImage wanted = drawn(*bar.widget, values, bar.textHeight(), ratio);
    QCOMPARE(found, wanted);
}

void TestTXDeltaGradientWidget::rowsAreWhereTheyBelong_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("ratio 1") << 1.0;
    QTest::addRow("ratio 2") << 2.0;
}

void TestTXDeltaGradientWidget::rowsAreWhereTheyBelong()
{
    QFETCH(qreal, ratio);
    DeltaBar bar;
    set(*bar.widget, {1, 30, 2, 60, 3});
    constexpr int kEmptyColumn = 60;

    const PixelProbe probe(*bar.widget, ratio);

    QCOMPARE(probe.at({kEmptyColumn, bar.valueTop() - 1}), Qt::white);
    QCOMPARE(probe.at({kEmptyColumn, bar.valueTop()}), kGround);
    QCOMPARE(probe.at({kEmptyColumn, bar.gradientTop() - 1}), kGround);
    QVERIFY(probe.at({kEmptyColumn, bar.gradientTop()}) != kGround);
    QVERIFY(probe.at({kEmptyColumn, bar.widget->height() - 1}) != Qt::white);
    QCOMPARE(probe.at({DeltaBar::kWidth - 1, bar.valueTop()}), kGround);
    QVERIFY(probe.isNear({0, bar.plainBarRow()}, Qt::white));
    QVERIFY(probe.isNear({DeltaBar::kWidth - 1, bar.plainBarRow()}, "#330000"));
}

void TestTXDeltaGradientWidget::colourJumpsAtTheLimit_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<int>("lastGood");
    // Of 400 columns between the first and the last.
    QTest::addRow("25") << 25.0 << 100;
    QTest::addRow("50") << 50.0 << 200;
    QTest::addRow("truncated") << 50.24 << 200;
    QTest::addRow("next column") << 50.25 << 201;
    QTest::addRow("97.4") << 97.4 << 389;
    QTest::addRow("100") << 100.0 << 400;
    QTest::addRow("above 100") << 100.01 << 400;
    QTest::addRow("huge") << 1e300 << 400;
    QTest::addRow("infinite") << double(INFINITY) << 400;
    QTest::addRow("0") << 0.0 << 0;
    QTest::addRow("below 0") << -0.5 << 0;
    QTest::addRow("minus infinite") << -double(INFINITY) << 0;
    QTest::addRow("not a number") << double(NAN) << 0;
}

void TestTXDeltaGradientWidget::colourJumpsAtTheLimit()
{
    QFETCH(double, percent);
    QFETCH(int, lastGood);
    DeltaBar bar;

    bar.widget->setLimit(3, percent);

    const PixelProbe probe(*bar.widget);
    const auto colour = [&](int x) {
        return probe.at({x, bar.plainBarRow()});
    };
    QVERIFY(probe.isNear({0, bar.plainBarRow()}, Qt::white));
    if (lastGood > 0) {
        // Green has no blue, so that the green end and the bad colours cannot be taken for another.
        QVERIFY(probe.isNear({lastGood, bar.plainBarRow()}, "#009900", 4));
        QVERIFY(probe.isNear({lastGood / 2, bar.plainBarRow()}, QColor(127, 204, 127), 4));
    }
    if (lastGood < DeltaBar::kWidth - 1) {
        // The fewer columns the faster it gets dark.
        const int first = 255 - 204 / (DeltaBar::kWidth - 1 - lastGood);
        QVERIFY2(qAbs(colour(lastGood + 1).red() - first) <= 12,
                 qPrintable(colour(lastGood + 1).name()));
        QVERIFY(probe.isNear({DeltaBar::kWidth - 1, bar.plainBarRow()}, "#330000", 4));
        const int middle = (lastGood + DeltaBar::kWidth - 1) / 2;
        QVERIFY(probe.isNear({middle, bar.plainBarRow()}, QColor(153, 89, 0), 8));
    }
}

void TestTXDeltaGradientWidget::withoutValuesAllIsAboveTheLimit()
{
    const DeltaBar bar;

    const PixelProbe probe(*bar.widget);

    QVERIFY(probe.isNear({1, bar.plainBarRow()}, "#ffb200", 3));
    QVERIFY(probe.isNear({200, bar.plainBarRow()}, QColor(153, 89, 0), 3));
    const int textTop = bar.valueTop() + 1;
    const auto textsIn = [&](int from, int to) {
        const QRect area(QPoint(from, textTop), QPoint(to, bar.markTop() - 1));
        return inkWithin(probe, area, kGround).first >= 0;
    };
    QVERIFY(textsIn(0, 40));
    QVERIFY(textsIn(360, 400));
    QVERIFY(!textsIn(60, 359));
}

void TestTXDeltaGradientWidget::limitValueKeepsWithinTheBar_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<double>("middle");
    QTest::addRow("middle") << 50.0 << 0.5;
    QTest::addRow("a third") << 33.0 << 0.33;
    QTest::addRow("at the bound") << 95.0 << 0.95;
    QTest::addRow("97.4") << 97.4 << 0.95;
    QTest::addRow("far above") << 1e300 << 0.95;
    QTest::addRow("at the lower bound") << 5.0 << 0.05;
    QTest::addRow("below") << 2.0 << 0.05;
    QTest::addRow("negative") << -70.0 << 0.05;
}

void TestTXDeltaGradientWidget::limitValueKeepsWithinTheBar()
{
    QFETCH(double, percent);
    QFETCH(double, middle);
    constexpr int kWide = 1000;
    DeltaBar bar(kWide);
    bar.widget->setLimit(88.8, percent);
    bar.widget->setMax(std::nan(""));
    const PixelProbe probe(*bar.widget);
    QRect area(QPoint(0, bar.valueTop() + 1), QPoint(kWide - 1, bar.markTop() - 1));
    // The values at both ends.
    area.adjust(25, 0, -25, 0);

    const QPair<int, int> ink = inkWithin(probe, area, kGround);

    QVERIFY2(std::abs((ink.first + ink.second) / 2.0 - middle * kWide) <= 2.5,
             qPrintable(QString("%1 to %2").arg(ink.first).arg(ink.second)));
}

void TestTXDeltaGradientWidget::averageValueGoesWhereItsMarkGoes_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<bool>("isSeen");
    QTest::addRow("middle") << 50.0 << true;
    QTest::addRow("below the bound of the limit") << 3.0 << true;
    QTest::addRow("near the end") << 98.0 << true;
    QTest::addRow("above 100") << 103.0 << false;
    QTest::addRow("below 0") << -3.0 << false;
    QTest::addRow("huge") << 1e300 << false;
    QTest::addRow("minus infinite") << -double(INFINITY) << false;
}

void TestTXDeltaGradientWidget::averageValueGoesWhereItsMarkGoes()
{
    QFETCH(double, percent);
    QFETCH(bool, isSeen);
    constexpr int kWide = 1000;
    DeltaBar bar(kWide);
    bar.widget->setAverage(8.8, percent);
    const PixelProbe probe(*bar.widget);
    const auto isYellow = [&](int x, int y) {
        return probe.isNear({x, y}, Qt::yellow, 60);
    };
    int first = kWide;
    int last = -1;
    for (int x = 0; x < kWide; ++x) {
        for (int y = bar.gradientTop() + 3; y < bar.widget->height() - 2; ++y) {
            first = isYellow(x, y) ? std::min(first, x) : first;
            last = isYellow(x, y) ? x : last;
        }
    }

    QCOMPARE(last >= 0, isSeen);
    if (isSeen) {
        QVERIFY2(std::abs((first + last) / 2.0 - percent * kWide / 100) <= 2.5,
                 qPrintable(QString("%1 to %2").arg(first).arg(last)));
    }
}

void TestTXDeltaGradientWidget::marksPointDownAtTheirPlaces()
{
    DeltaBar bar;
    set(*bar.widget, {1, 30, 2, 60, 3});
    QPalette palette = bar.widget->palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    bar.widget->setPalette(palette);

    const PixelProbe probe(*bar.widget);

    const int wide = bar.markTop() + 1;
    const int narrow = bar.gradientTop() - 1;
    const auto mark = [&](int x, int y) {
        return probe.at({x, y});
    };
    // 30 % and 60 % of 401.
    QCOMPARE(mark(120, bar.markTop() + 3), Qt::yellow);
    QCOMPARE(mark(115, wide), Qt::yellow);
    QCOMPARE(mark(125, wide), Qt::yellow);
    QCOMPARE(mark(110, wide), kGround);
    QCOMPARE(mark(131, wide), kGround);
    QCOMPARE(mark(117, narrow), kGround);
    QCOMPARE(mark(123, narrow), kGround);
    QCOMPARE(mark(240, bar.markTop() + 3), Qt::black);
    // Framed in the colour of texts, from corner to corner.
    QCOMPARE(mark(120, bar.markTop()), Qt::red);
    QCOMPARE(mark(113, bar.markTop()), Qt::red);
    QCOMPARE(mark(127, bar.markTop()), Qt::red);
    QCOMPARE(mark(0, wide), Qt::black);
    QCOMPARE(mark(400, wide), Qt::black);
}

void TestTXDeltaGradientWidget::markOfTheMaximumStaysAtTheEnd()
{
    DeltaBar bar;
    bar.widget->setMax(1e9);
    const auto marks = [&] {
        const PixelProbe probe(*bar.widget);
        const QRect area(QPoint(20, bar.markTop()), QPoint(400, bar.gradientTop() - 1));
        return inkWithin(probe, area, kGround);
    };
    const QPair<int, int> atLast = marks();

    for (const double delta : {0.0, -5.0, 8.8, double(NAN)}) {
        bar.widget->setMax(delta);
        QCOMPARE(marks(), atLast);
    }
    QCOMPARE(atLast, qMakePair(392, 400));
}

void TestTXDeltaGradientWidget::textsAreThoseToTranslate()
{
    const DeltaBar bar;
    TextCollector collector;
    QCoreApplication::installTranslator(&collector);

    const PixelProbe probe(*bar.widget);

    QCoreApplication::removeTranslator(&collector);
    const QStringList wanted = {"\u2206EMin", "\u2206Eavg: %1    %2 % of pixels < \u2206E Limit",
                                "\u2206EMax", "%1",
                                "%1",         "%1",
                                "%1"};
    QCOMPARE(collector.texts, wanted);
}

void TestTXDeltaGradientWidget::everySetterPaintsAnew()
{
    struct Counter : QObject
    {
        bool eventFilter(QObject * /*object*/, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    DeltaBar bar;
    bar.parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar.parent));
    QCoreApplication::processEvents();
    bar.widget->installEventFilter(&counter);
    int expected = 0;

    const auto paintsOnce = [&] {
        QCoreApplication::processEvents();
        ++expected;
        return counter.paints == expected;
    };

    bar.widget->setAverage(1, 20);
    QVERIFY(paintsOnce());
    bar.widget->setAverage(1, 20);
    QVERIFY(paintsOnce());
    bar.widget->setLimit(2, 50);
    QVERIFY(paintsOnce());
    bar.widget->setMax(3);
    QVERIFY(paintsOnce());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDeltaGradientWidget>(argc, argv);
}

#include "tst_TXDeltaGradientWidget.moc"
