#include "PlainViewer.h"

#include <QCursor>

#include <algorithm>
#include <cmath>
#include <limits>

using ImagePainting::filled;
using ImagePainting::painted;

// Sizes, scales and positions far beyond the usual ones.
class TestTXImageViewerPaintingExtremes : public TestBase
{
    Q_OBJECT

private slots:
    void everyPixelStandsWhereItBelongs_data();
    void everyPixelStandsWhereItBelongs();
    void anyScaleIsPainted_data();
    void anyScaleIsPainted();
    void pixelsLargerThanTheScreenFillIt();
    void mirroredPictureIsShown();
    void thousandsOfZonesArePainted();
    void viewerWithoutSizeIsPainted();
};

namespace {

constexpr double kEndless = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

/// A picture of one row or column: each pixel has its place as its colour.
QPixmap coordinates(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] = 0xff000000U | QRgb(std::max(x, y));
        }
    }
    return QPixmap::fromImage(image);
}

/// The place that a pixel of the picture tells, along its longer side.
double told(const QImage &image, const QPoint &place)
{
    return double(image.pixel(place) & 0xffffffU);
}

} // namespace

void TestTXImageViewerPaintingExtremes::everyPixelStandsWhereItBelongs_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("position");
    for (const int length : {12000, 30000}) {
        for (const double scale : {1.0, 2.5, 2.8, 16.0, 100.0, 5000.0, 70000.0}) {
            for (const double position : {-1e300, -length / 4.0, 0.3, 1e300}) {
                QTest::addRow("%d wide, %g times, from %g", length, scale, position)
                    << QSize(length, 1) << scale << position;
                QTest::addRow("%d high, %g times, from %g", length, scale, position)
                    << QSize(1, length) << scale << position;
            }
        }
    }
}

void TestTXImageViewerPaintingExtremes::everyPixelStandsWhereItBelongs()
{
    QFETCH(QSize, size);
    QFETCH(double, scale);
    QFETCH(double, position);
    const bool isWide = size.width() > size.height();
    TXImageViewer viewer;
    viewer.setScaleLimits(0.001, 1e9);
    viewer.resize(500, 500);
    const QPixmap picture = coordinates(size);
    viewer.setPixmaps({picture, picture});
    viewer.scale(scale, TXImageViewer::Absolute);
    viewer.setPosition({position, position});

    const QImage image = painted(viewer);
    const double held = isWide ? viewer.position().x() : viewer.position().y();
    const double length = isWide ? 250.0 : 500.0;
    const double middle = std::max(size.width(), size.height()) / 2.0 - held;
    for (int i = 0; i < int(length); ++i) {
        const double pixel = middle + (i + 0.5 - length / 2.0) / scale;
        for (const int left : {0, 250}) {
            const QPoint place = isWide ? QPoint(left + i, 250) : QPoint(left + 125, i);
            const double off = std::abs(told(image, place) + 0.5 - pixel);
            QVERIFY2(off < 0.5 + std::min(0.02, 1.0 / scale),
                     qPrintable(QStringLiteral("at %1: %2 for %3")
                                    .arg(i)
                                    .arg(told(image, place))
                                    .arg(pixel, 0, 'f', 3)));
        }
    }
}

void TestTXImageViewerPaintingExtremes::anyScaleIsPainted_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {kEndless, -kEndless, kNotANumber, 0.0, -0.0, -1.0, -1e300, 1e300,
                               1e-300, 5e-324, 1e-7, 1e7, 1e100}) {
        QTest::addRow("%g", scale) << scale;
    }
}

void TestTXImageViewerPaintingExtremes::anyScaleIsPainted()
{
    QFETCH(double, scale);
    for (const QSize &size : {QSize(1, 1), QSize(30000, 1), QSize(1, 30000), QSize(300, 200)}) {
        TXImageViewer viewer;
        viewer.setScaleLimits(-kEndless, kEndless);
        viewer.resize(301, 100);
        viewer.setPixmaps({filled(size, Qt::red), QPixmap(), filled({3, 3}, Qt::blue)});
        viewer.scale(scale, TXImageViewer::Absolute);
        viewer.setOverlay([](QPainter *painter, int, bool, QPointF, double) {
            painter->drawLine(0, 0, 10, 10);
            painter->fillRect(0, 0, 10, 10, Qt::green);
        });
        viewer.setMouseMarker(filled({5, 5}, Qt::black), {2, 2});
        QCursor::setPos(viewer.mapToGlobal(QPoint(50, 50)));

        for (const double position : {0.0, 1e300, -1e300, kEndless}) {
            viewer.setPosition({position, position});
            const QImage first = painted(viewer, 1.5);
            QVERIFY(!std::isnan(viewer.position().x()));
            QCOMPARE(painted(viewer, 1.5), first);
        }
    }
}

void TestTXImageViewerPaintingExtremes::pixelsLargerThanTheScreenFillIt()
{
    TXImageViewer viewer;
    viewer.setScaleLimits(1.0, 1e300);
    viewer.resize(100, 100);
    viewer.setPixmap(ImagePainting::quarters({3000, 3000}));
    for (const double scale : {1e4, 1e6, 1e9, 1e100, 1e300}) {
        viewer.scale(scale, TXImageViewer::Absolute);
        viewer.setPosition({0.0, 0.0});
        const PixelProbe probe(viewer);
        QCOMPARE(probe.at({0, 0}), QColor(Qt::red));
        QCOMPARE(probe.at({49, 49}), QColor(Qt::red));
        QCOMPARE(probe.at({50, 49}), QColor(Qt::green));
        QCOMPARE(probe.at({49, 50}), QColor(Qt::blue));
        QCOMPARE(probe.at({99, 99}), QColor(Qt::yellow));
    }
}

// A negative scale can be had by a negative limit.
void TestTXImageViewerPaintingExtremes::mirroredPictureIsShown()
{
    TXImageViewer viewer;
    viewer.setScaleLimits(-4.0, 16.0);
    viewer.resize(100, 100);
    viewer.setPixmap(ImagePainting::quarters({40, 40}));
    viewer.scale(-2.0, TXImageViewer::Absolute);
    viewer.setPosition({0.0, 0.0});

    const PixelProbe probe(viewer);
    QCOMPARE(probe.at({30, 30}), QColor(Qt::yellow));
    QCOMPARE(probe.at({70, 30}), QColor(Qt::blue));
    QCOMPARE(probe.at({70, 70}), QColor(Qt::red));
}

void TestTXImageViewerPaintingExtremes::thousandsOfZonesArePainted()
{
    constexpr int kZones = 5000;
    int calls = 0;
    TXImageViewer viewer;
    viewer.resize(400, 100);
    viewer.setPixmaps(QList<QPixmap>(kZones, filled({100, 100}, Qt::white)));
    viewer.scale(1.0, TXImageViewer::Absolute);
    viewer.setMouseMarker(filled({16, 16}, Qt::black), {8, 8});
    viewer.setOverlay([&calls](QPainter *, int, bool, QPointF, double) { ++calls; });
    QCursor::setPos(viewer.mapToGlobal(QPoint(200, 50)));

    const PixelProbe probe(viewer);
    QCOMPARE(calls, 2 * kZones);
    QCOMPARE(probe.at({200, 10}), QColor(Qt::white));
    QCOMPARE(probe.at({100, 50}), QColor(Qt::black));
}

void TestTXImageViewerPaintingExtremes::viewerWithoutSizeIsPainted()
{
    TXImageViewer viewer;
    viewer.setPixmaps({filled({10, 10}, Qt::white), filled({10, 10}, Qt::white)});
    viewer.setMouseMarker(filled({16, 16}, Qt::black), {8, 8});
    for (const QSize &size : {QSize(0, 0), QSize(100, 0), QSize(0, 100), QSize(1, 1)}) {
        viewer.resize(size);
        QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        viewer.render(&image, QPoint(), QRegion(0, 0, 10, 10));
        QCOMPARE(viewer.position(), QPointF());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerPaintingExtremes>(argc, argv);
}

#include "tst_TXImageViewerPaintingExtremes.moc"
