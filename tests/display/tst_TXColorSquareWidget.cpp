#include "TXColorSquareWidget.h"

#include "PixelProbe.h"
#include "TestBase.h"

#include <QHBoxLayout>
#include <QPainter>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
const QColor kFilling(0, 0, 255);
const QColor kFrame(255, 0, 0);

/// A frame that neither is seen nor takes room; one that is only not seen does.
QPen noFrame()
{
    QPen pen(Qt::NoPen);
    pen.setWidth(0);
    return pen;
}

/// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject * /*object*/, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        layoutRequests += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }
    int take()
    {
        QCoreApplication::processEvents();
        return std::exchange(paints, 0);
    }
    int layoutRequests = 0;

private:
    int paints = 0;
};

/// Decides its size by itself.
class LargeSquare : public TXColorSquareWidget
{
public:
    using TXColorSquareWidget::TXColorSquareWidget;
    [[nodiscard]] QSize sizeHint() const override { return {40, 30}; }
};

/// The pixels that have no colour of the ground.
QRect inkOf(const QImage &image, const QColor &ground)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground) {
                result |= QRect(x, y, 1, 1);
            }
        }
    }
    return result;
}

} // namespace

class TestTXColorSquareWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { square.reset(); }

private slots:
    void startsAsASmallSquareAtTheTopLeft();
    void squareStandsAsAligned_data();
    void squareStandsAsAligned();
    void leftAndTopAreTestedFirst_data();
    void leftAndTopAreTestedFirst();
    void halvesOfPixelsAreKept();
    void smallWidgetShrinksTheSquare_data();
    void smallWidgetShrinksTheSquare();
    void penDecidesTheRectangle_data();
    void penDecidesTheRectangle();
    void cornersAreRound_data();
    void cornersAreRound();
    void oddRadiiAreDrawn_data();
    void oddRadiiAreDrawn();
    void sizeOfASubclassIsObeyed();
    void settersPaintOnlyWhenSomethingDiffers();
    void hintsFollowTheSizeThatWasSet();
    void layoutLearnsOfASizeWhenItIsTold();
    void nothingIsTooLarge_data();
    void nothingIsTooLarge();

private:
    [[nodiscard]] QRect ink() const
    {
        return inkOf(PixelProbe(*square).image(), square->palette().color(QPalette::Window));
    }
    /// What QPainter makes of a rectangle in the widget, with the square's filling and pen.
    [[nodiscard]] QImage drawn(const QPointF &offset, const QRect &rect, double radius,
                               const QPen &pen, qreal ratio = 1) const;

    std::unique_ptr<TXColorSquareWidget> square;
};

void TestTXColorSquareWidget::prepare()
{
    square = std::make_unique<TXColorSquareWidget>();
    square->setPalette(QPalette(Qt::white));
    square->setBrush(kFilling);
    square->setPen(noFrame());
    square->resize(101, 60);
}

QImage TestTXColorSquareWidget::drawn(const QPointF &offset, const QRect &rect, double radius,
                                      const QPen &pen, qreal ratio) const
{
    QImage image(square->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(square->palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(kFilling);
    painter.setPen(pen);
    painter.translate(offset);
    painter.drawRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
    return image;
}

void TestTXColorSquareWidget::startsAsASmallSquareAtTheTopLeft()
{
    TXColorSquareWidget fresh;
    fresh.setPalette(QPalette(Qt::white));
    fresh.resize(60, 60);

    const PixelProbe probe(fresh);

    QCOMPARE(fresh.sizeHint(), QSize(24, 24));
    QCOMPARE(fresh.minimumSizeHint(), QSize(24, 24));
    QCOMPARE(fresh.focusPolicy(), Qt::NoFocus);
    // A pen of one pixel, which lies half on this and half on the next pixel, and no filling.
    QVERIFY(probe.at({0, 10}) != Qt::white);
    QVERIFY(probe.at({22, 10}) != Qt::white);
    QVERIFY(probe.at({23, 10}) != Qt::white);
    QCOMPARE(probe.at({24, 10}), Qt::white);
    QCOMPARE(probe.at({10, 10}), Qt::white);
}

void TestTXColorSquareWidget::squareStandsAsAligned_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QPoint>("corner");
    const auto row = [](const char *name, Qt::Alignment alignment, const QPoint &corner) {
        QTest::addRow("%s", name) << alignment << corner;
    };
    row("top left", Qt::AlignTop | Qt::AlignLeft, {0, 0});
    row("top right", Qt::AlignTop | Qt::AlignRight, {80, 0});
    row("bottom left", Qt::AlignBottom | Qt::AlignLeft, {0, 40});
    row("bottom right", Qt::AlignBottom | Qt::AlignRight, {80, 40});
    row("centre", Qt::AlignCenter, {40, 20});
    row("left in the middle", Qt::AlignLeft | Qt::AlignVCenter, {0, 20});
    row("right in the middle", Qt::AlignRight | Qt::AlignVCenter, {80, 20});
    row("top in the middle", Qt::AlignTop | Qt::AlignHCenter, {40, 0});
    row("only right", Qt::AlignRight, {80, 0});
    row("only bottom", Qt::AlignBottom, {0, 40});
    row("none", {}, {0, 0});
    row("none that counts", Qt::AlignJustify | Qt::AlignBaseline, {0, 0});
}

void TestTXColorSquareWidget::squareStandsAsAligned()
{
    QFETCH(Qt::Alignment, alignment);
    QFETCH(QPoint, corner);
    square->resize(100, 60);
    square->setSizeHint({20, 20});

    square->setAlignment(alignment);

    QCOMPARE(ink(), QRect(corner, QSize(20, 20)));
    const PixelProbe twice(*square, 2);
    QCOMPARE(inkOf(twice.image(), Qt::white), QRect(2 * corner, QSize(40, 40)));
}

void TestTXColorSquareWidget::leftAndTopAreTestedFirst_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QPoint>("corner");
    QTest::addRow("left and right") << (Qt::AlignLeft | Qt::AlignRight) << QPoint(0, 0);
    QTest::addRow("right and centre") << (Qt::AlignRight | Qt::AlignHCenter) << QPoint(80, 0);
    QTest::addRow("left and centre") << (Qt::AlignLeft | Qt::AlignHCenter) << QPoint(0, 0);
    QTest::addRow("top and bottom") << (Qt::AlignTop | Qt::AlignBottom) << QPoint(0, 0);
    QTest::addRow("bottom and centre") << (Qt::AlignBottom | Qt::AlignVCenter) << QPoint(0, 40);
    QTest::addRow("all") << Qt::Alignment(Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask)
                         << QPoint(0, 0);
}

void TestTXColorSquareWidget::leftAndTopAreTestedFirst()
{
    squareStandsAsAligned();
}

void TestTXColorSquareWidget::halvesOfPixelsAreKept()
{
    square->setSizeHint({20, 20});
    square->setAlignment(Qt::AlignCenter);

    // 101 wide: from 40.5 to 60.5.
    const PixelProbe probe(*square);
    QVERIFY(probe.isNear({40, 30}, QColor(127, 127, 255), 3));
    QCOMPARE(probe.at({41, 30}), kFilling);
    QCOMPARE(probe.at({59, 30}), kFilling);
    QVERIFY(probe.isNear({60, 30}, QColor(127, 127, 255), 3));
    const QRect atTwice = inkOf(PixelProbe(*square, 2).image(), Qt::white);
    QCOMPARE(atTwice, QRect(81, 40, 40, 40));
}

void TestTXColorSquareWidget::smallWidgetShrinksTheSquare_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QPointF>("offset");
    const auto row = [](const char *name, Qt::Alignment alignment, const QPointF &offset) {
        QTest::addRow("%s", name) << alignment << offset;
    };
    row("top left", Qt::AlignTop | Qt::AlignLeft, {0, 0});
    row("centre", Qt::AlignCenter, {-7.5, -4});
    row("bottom right", Qt::AlignBottom | Qt::AlignRight, {-15, -8});
}

void TestTXColorSquareWidget::smallWidgetShrinksTheSquare()
{
    QFETCH(Qt::Alignment, alignment);
    QFETCH(QPointF, offset);
    const QPen pen(kFrame, 2);
    square->setPen(pen);
    square->setSizeHint({40, 30});
    square->setAlignment(alignment);

    square->resize(25, 22);

    QCOMPARE(PixelProbe(*square).image(), drawn(offset, QRect(1, 1, 23, 20), 0, pen));
}

void TestTXColorSquareWidget::penDecidesTheRectangle_data()
{
    QTest::addColumn<QPen>("pen");
    QTest::addColumn<QRect>("rect");
    QTest::addRow("1") << QPen(kFrame, 1) << QRect(0, 0, 23, 23);
    QTest::addRow("2") << QPen(kFrame, 2) << QRect(1, 1, 22, 22);
    QTest::addRow("3") << QPen(kFrame, 3) << QRect(1, 1, 21, 21);
    QTest::addRow("4") << QPen(kFrame, 4) << QRect(2, 2, 20, 20);
    QTest::addRow("a hair") << QPen(kFrame, 0) << QRect(0, 0, 24, 24);
    QTest::addRow("2.9 counts as 3") << QPen(kFrame, 2.9) << QRect(1, 1, 21, 21);
    QTest::addRow("one that draws nothing counts") << QPen(Qt::NoPen) << QRect(0, 0, 23, 23);
    QTest::addRow("as wide as the square") << QPen(kFrame, 24) << QRect(12, 12, 0, 0);
    QTest::addRow("wider than the square") << QPen(kFrame, 30) << QRect(15, 15, -6, -6);
}

void TestTXColorSquareWidget::penDecidesTheRectangle()
{
    QFETCH(QPen, pen);
    QFETCH(QRect, rect);

    square->setPen(pen);

    QCOMPARE(PixelProbe(*square).image(), drawn({}, rect, 0, pen));
    QCOMPARE(PixelProbe(*square, 2).image(), drawn({}, rect, 0, pen, 2));
}

void TestTXColorSquareWidget::cornersAreRound_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("ratio 1") << 1.0;
    QTest::addRow("ratio 2") << 2.0;
}

void TestTXColorSquareWidget::cornersAreRound()
{
    QFETCH(qreal, ratio);
    square->setPen(QPen(kFrame, 2));

    square->setRadius(8);

    const PixelProbe probe(*square, ratio);
    QCOMPARE(probe.at({0, 0}), Qt::white);
    QCOMPARE(probe.at({23, 23}), Qt::white);
    QCOMPARE(probe.at({1, 12}), kFrame);
    QCOMPARE(probe.at({12, 12}), kFilling);
    QCOMPARE(probe.image(), drawn({}, QRect(1, 1, 22, 22), 8, QPen(kFrame, 2), ratio));
    QCOMPARE(probe.at({0, 2}), Qt::white);
    square->setRadius(0);
    QCOMPARE(PixelProbe(*square, ratio).at({0, 2}), kFrame);
}

void TestTXColorSquareWidget::oddRadiiAreDrawn_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("sameAs");
    QTest::addRow("negative") << -5.0 << 0.0;
    QTest::addRow("more than half") << 1000.0 << 12.0;
    QTest::addRow("huge") << 1e300 << 12.0;
    QTest::addRow("infinite") << double(INFINITY) << 12.0;
    QTest::addRow("minus infinite") << -double(INFINITY) << 0.0;
    QTest::addRow("not a number") << double(NAN) << 0.0;
}

void TestTXColorSquareWidget::oddRadiiAreDrawn()
{
    QFETCH(double, radius);
    QFETCH(double, sameAs);
    square->setPen(QPen(kFrame, 0));

    square->setRadius(radius);

    QCOMPARE(PixelProbe(*square).image(), drawn({}, QRect(0, 0, 24, 24), sameAs, QPen(kFrame, 0)));
}

void TestTXColorSquareWidget::sizeOfASubclassIsObeyed()
{
    LargeSquare large;
    large.setPalette(QPalette(Qt::white));
    large.setBrush(kFilling);
    large.setPen(noFrame());
    large.setSizeHint({10, 10});
    large.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    large.resize(100, 60);

    const QImage image = PixelProbe(large).image();

    QCOMPARE(inkOf(image, Qt::white), QRect(60, 30, 40, 30));
    QCOMPARE(large.minimumSizeHint(), QSize(10, 10));
}

void TestTXColorSquareWidget::settersPaintOnlyWhenSomethingDiffers()
{
    square->show();
    QVERIFY(QTest::qWaitForWindowExposed(square.get()));
    PaintCounter counter(square.get());
    counter.take();

    square->setBrush(Qt::green);
    QCOMPARE(counter.take(), 1);
    square->setBrush(Qt::green);
    QCOMPARE(counter.take(), 0);
    square->setBrush(QBrush(Qt::green, Qt::Dense3Pattern));
    QCOMPARE(counter.take(), 1);

    square->setPen(QPen(Qt::red, 2));
    QCOMPARE(counter.take(), 1);
    square->setPen(QPen(Qt::red, 2));
    QCOMPARE(counter.take(), 0);

    square->setSizeHint({30, 30});
    QCOMPARE(counter.take(), 1);
    square->setSizeHint({30, 30});
    QCOMPARE(counter.take(), 0);

    square->setAlignment(Qt::AlignCenter);
    QCOMPARE(counter.take(), 1);
    square->setAlignment(Qt::AlignCenter);
    QCOMPARE(counter.take(), 0);

    square->setRadius(0);
    QCOMPARE(counter.take(), 0);
    square->setRadius(4);
    QCOMPARE(counter.take(), 1);
    square->setRadius(4);
    QCOMPARE(counter.take(), 0);
}

void TestTXColorSquareWidget::hintsFollowTheSizeThatWasSet()
{
    for (const QSize &size : {QSize(48, 16), QSize(0, 0), QSize(-3, 7)}) {
        square->setSizeHint(size);
        QCOMPARE(square->sizeHint(), size);
        QCOMPARE(square->minimumSizeHint(), size);
    }
}

void TestTXColorSquareWidget::layoutLearnsOfASizeWhenItIsTold()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *swatch = new TXColorSquareWidget(&window);
    layout->addWidget(swatch, 0, Qt::AlignCenter);
    window.resize(200, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PaintCounter counter(&window);

    swatch->setSizeHint({50, 40});
    QCoreApplication::processEvents();
    QCOMPARE(counter.layoutRequests, 0);
    QCOMPARE(swatch->size(), QSize(24, 24));

    swatch->updateGeometry();
    QCoreApplication::processEvents();
    QVERIFY(counter.layoutRequests > 0);
    QCOMPARE(swatch->size(), QSize(50, 40));
}

void TestTXColorSquareWidget::nothingIsTooLarge_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPen>("pen");
    QTest::addRow("largest size") << QSize(kMost, kMost) << QPen(kFrame, 3);
    QTest::addRow("least size") << QSize(kLeast, kLeast) << QPen(kFrame, 3);
    QTest::addRow("no size") << QSize(0, 0) << QPen(kFrame, 1);
    QTest::addRow("widest pen") << QSize(24, 24) << QPen(kFrame, 32767);
    QTest::addRow("widest pen on least size") << QSize(kLeast, kLeast) << QPen(kFrame, 32767);
    QTest::addRow("pen wider than that") << QSize(24, 24) << QPen(kFrame, 1e300);
    QTest::addRow("pen that is no number") << QSize(24, 24) << QPen(kFrame, double(NAN));
    QTest::addRow("dashes") << QSize(kMost, kMost) << QPen(kFrame, 1, Qt::DashLine);
}

void TestTXColorSquareWidget::nothingIsTooLarge()
{
    QFETCH(QSize, size);
    QFETCH(QPen, pen);
    square->setPen(pen);
    square->setSizeHint(size);
    square->setRadius(5);

    for (const auto alignment : {Qt::AlignLeft, Qt::AlignRight, Qt::AlignCenter, Qt::AlignBottom}) {
        square->setAlignment(alignment);
        QCOMPARE(PixelProbe(*square).image().size(), square->size());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXColorSquareWidget>(argc, argv);
}

#include "tst_TXColorSquareWidget.moc"
