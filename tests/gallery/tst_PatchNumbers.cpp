#include "ChartPatches.h"
#include "PatchNumbers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QPainter>

class TestPatchNumbers : public TestBase
{
    Q_OBJECT

private slots:
    void numberIsDrawnOnceForAScale();
    void largeNumbersAndNonePatchesAreNotKept();
    void numbersAreWhiteInBlack_data();
    void numbersAreWhiteInBlack();
    void numbersDiffer();
    void painterIsLeftAsItWas();
};

void TestPatchNumbers::numberIsDrawnOnceForAScale()
{
    PatchNumbers numbers{QFont()};
    const qint64 first = numbers.kept(3, 0.25, 1).cacheKey();

    QCOMPARE(numbers.kept(3, 0.25, 1).cacheKey(), first);
    QVERIFY(numbers.kept(4, 0.25, 1).cacheKey() != first);
    QCOMPARE(numbers.kept(3, 0.25, 1).cacheKey(), first);

    QVERIFY(numbers.kept(3, 0.25, 2).cacheKey() != first);
    QVERIFY(numbers.kept(3, 0.5, 1).cacheKey() != first);
    QVERIFY(numbers.kept(3, 0.5, 1).width() > numbers.kept(3, 0.25, 1).width());
}

void TestPatchNumbers::largeNumbersAndNonePatchesAreNotKept()
{
    PatchNumbers numbers{QFont()};

    QVERIFY(!numbers.kept(0, 4, 1).isNull());
    QVERIFY(numbers.kept(0, 4.1, 1).isNull());
    QVERIFY(numbers.kept(0, 2.1, 2).isNull());
    QVERIFY(numbers.kept(-1, 1, 1).isNull());
    QVERIFY(numbers.kept(kChartPatches, 1, 1).isNull());
}

void TestPatchNumbers::numbersAreWhiteInBlack_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("ratio");

    QTest::newRow("kept") << 2.0 << 1.0;
    QTest::newRow("kept for a fine screen") << 2.0 << 2.0;
    QTest::newRow("drawn each time") << 5.0 << 1.0;
}

void TestPatchNumbers::numbersAreWhiteInBlack()
{
    QFETCH(const double, scale);
    QFETCH(const double, ratio);
    QImage image(QSize(600, 400) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::red);
    QPainter painter(&image);
    PatchNumbers numbers{QFont()};

    numbers.paint(&painter, 23, QPointF(10, 10), scale);
    painter.end();

    int white = 0;
    int black = 0;
    QRect painted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = image.pixel(x, y);
            white += colour == qRgb(255, 255, 255) ? 1 : 0;
            black += colour == qRgb(0, 0, 0) ? 1 : 0;
            painted |= colour == qRgb(255, 0, 0) ? QRect() : QRect(x, y, 1, 1);
        }
    }
    // "24" in figures of 32 picture pixels, right and down of the corner.
    QVERIFY(white > 100 * scale * ratio);
    QVERIFY(black > 100 * scale * ratio);
    const double height = painted.height() / scale / ratio;
    QVERIFY2(height > 32 && height < 46, qPrintable(QString::number(height)));
    QVERIFY(painted.left() > (10 + 8 * scale) * ratio);
    QVERIFY(painted.top() > (10 + 8 * scale) * ratio);
}

void TestPatchNumbers::numbersDiffer()
{
    PatchNumbers numbers{QFont()};
    QList<QImage> images;

    for (int i = 0; i < kChartPatches; ++i) {
        const QImage image = numbers.kept(i, 1, 1).toImage();
        QVERIFY(!images.contains(image));
        images.append(image);
    }
}

void TestPatchNumbers::painterIsLeftAsItWas()
{
    QImage image(600, 400, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.translate(1, 2);
    const QTransform before = painter.transform();
    PatchNumbers numbers{QFont()};

    numbers.paint(&painter, 0, QPointF(), 1);
    numbers.paint(&painter, 0, QPointF(), 8);

    QCOMPARE(painter.transform(), before);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

int main(int argc, char **argv)
{
    return runTest<TestPatchNumbers>(argc, argv);
}

#include "tst_PatchNumbers.moc"
