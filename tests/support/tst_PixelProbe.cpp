#include "PixelProbe.h"
#include "TestBase.h"

#include <QPainter>

namespace {

/// White, with a red square of one device-independent pixel at (3, 2).
class OneRedPixel : public QWidget
{
public:
    OneRedPixel() { resize(8, 6); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.fillRect(3, 2, 1, 1, Qt::red);
    }
};

} // namespace

class TestPixelProbe : public TestBase
{
    Q_OBJECT

private slots:
    void placesMeanTheSameAtEveryRatio_data();
    void placesMeanTheSameAtEveryRatio();
    void placeOutsideIsInvalid();
    void nearRespectsItsTolerance();
    void coloursAreCounted();
};

void TestPixelProbe::placesMeanTheSameAtEveryRatio_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void TestPixelProbe::placesMeanTheSameAtEveryRatio()
{
    QFETCH(qreal, ratio);
    OneRedPixel widget;
    const PixelProbe probe(widget, ratio);

    QCOMPARE(probe.image().size(), QSize(8, 6) * ratio);
    QCOMPARE(probe.at({3, 2}), QColor(Qt::red));
    QCOMPARE(probe.at({2, 2}), QColor(Qt::white));
    QCOMPARE(probe.at({4, 3}), QColor(Qt::white));
}

void TestPixelProbe::placeOutsideIsInvalid()
{
    OneRedPixel widget;
    const PixelProbe probe(widget, 2.0);

    QVERIFY(probe.at({7, 5}).isValid());
    QVERIFY(!probe.at({8, 5}).isValid());
    QVERIFY(!probe.at({-1, 0}).isValid());
    QVERIFY(!probe.isNear({8, 5}, Qt::white, 255));
}

void TestPixelProbe::nearRespectsItsTolerance()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(100, 100, 100));
    const PixelProbe probe(image);

    QVERIFY(probe.isNear({0, 0}, QColor(103, 97, 100), 3));
    QVERIFY(!probe.isNear({0, 0}, QColor(104, 100, 100), 3));
    QVERIFY(!probe.isNear({0, 0}, QColor(100, 100, 100, 200), 3));
}

void TestPixelProbe::coloursAreCounted()
{
    OneRedPixel widget;
    const PixelProbe probe(widget);

    QCOMPARE(probe.countColours({0, 0, 3, 6}), 1);
    QCOMPARE(probe.countColours({0, 0, 8, 6}), 2);
}

int main(int argc, char **argv)
{
    return runTest<TestPixelProbe>(argc, argv);
}

#include "tst_PixelProbe.moc"
