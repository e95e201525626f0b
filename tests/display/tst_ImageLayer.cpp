#include "ImageLayer.h"

#include "PixelProbe.h"
#include "TestBase.h"

#include <QPainter>

#include <limits>

class TestImageLayer : public TestBase
{
    Q_OBJECT

private slots:
    void statesDifferInEachOfTheirParts();
    void zonesAreDrawnOnceAndCopied();
    void layerIsDrawnAtItsPlaceOnTheDevice();
    void painterIsLeftAsItWas();
};

namespace {

constexpr QSize kSize(60, 40);

ImageLayer::State state(double scale = 1.0, const QPointF &position = {})
{
    return {scale, position, kSize, QTransform(), {1, 2}};
}

const QList<QRectF> kZones = {{0, 0, 30, 40}, {30, 0, 30, 40}};

/// Draws each zone in a colour of its own and tells what was drawn.
ImageLayer::DrawPicture drawingColours(QRegion *drawn = nullptr)
{
    return [drawn](QPainter &painter, qsizetype zone) {
        painter.setClipRect(kZones[zone]);
        painter.fillRect(kZones[zone].adjusted(5, 5, -5, -5), zone == 0 ? Qt::red : Qt::blue);
        if (drawn) {
            *drawn += painter.clipBoundingRect().toAlignedRect()
                & painter.worldTransform()
                      .inverted()
                      .mapRect(QRectF(0, 0, painter.device()->width(), painter.device()->height()))
                      .toAlignedRect();
        }
    };
}

QImage shown(const ImageLayer &layer)
{
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    layer.drawZone(painter, 0);
    layer.drawZone(painter, 1);
    return image;
}

} // namespace

void TestImageLayer::statesDifferInEachOfTheirParts()
{
    const ImageLayer::State one = state(2.0, {3.0, 4.0});
    ImageLayer::State other = one;
    QVERIFY(one == other);

    other.position.rx() += 1e-13;
    QVERIFY(!(one == other));
    other = one;
    other.scale = 2.5;
    QVERIFY(!(one == other));
    other = one;
    other.viewerSize.rheight() += 1;
    QVERIFY(!(one == other));
    other = one;
    other.toDevice = QTransform::fromScale(2.0, 2.0);
    QVERIFY(!(one == other));
    other = one;
    other.pictures = {2, 1};
    QVERIFY(!(one == other));
    other = one;
    other.scale = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!(other == other));
}

void TestImageLayer::zonesAreDrawnOnceAndCopied()
{
    QRegion drawn;
    const ImageLayer layer(state(), kZones, drawingColours(&drawn));
    QCOMPARE(drawn, QRegion(QRect(QPoint(), kSize)));

    drawn = QRegion();
    const QImage image = shown(layer);
    QVERIFY(drawn.isEmpty());
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::red));
    QCOMPARE(image.pixelColor(4, 5), QColor(Qt::white));
    QCOMPARE(image.pixelColor(54, 34), QColor(Qt::blue));
}

void TestImageLayer::layerIsDrawnAtItsPlaceOnTheDevice()
{
    ImageLayer::State doubled = state();
    doubled.toDevice = QTransform::fromScale(2.0, 2.0);
    const ImageLayer layer(doubled, kZones, drawingColours());

    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    image.setDevicePixelRatio(2.0);
    QPainter painter(&image);
    layer.drawZone(painter, 1);
    painter.end();
    QCOMPARE(image.pixelColor(69, 10), QColor(Qt::white));
    QCOMPARE(image.pixelColor(70, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(109, 69), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(110, 69), QColor(Qt::white));
}

void TestImageLayer::painterIsLeftAsItWas()
{
    const ImageLayer layer(state(), kZones, drawingColours());
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipRect(1, 2, 3, 4);
    layer.drawZone(painter, 0);
    QVERIFY(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    QCOMPARE(painter.clipBoundingRect(), QRectF(1, 2, 3, 4));
    QCOMPARE(painter.worldTransform(), QTransform());
}

int main(int argc, char **argv)
{
    return runTest<TestImageLayer>(argc, argv);
}

#include "tst_ImageLayer.moc"
