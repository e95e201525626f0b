#include "MarkerPlaces.h"

#include "TestBase.h"

#include <QTransform>

#include <limits>

class TestMarkerPlaces : public TestBase
{
    Q_OBJECT

private slots:
    void everyMarkerThatReachesInIsTold_data();
    void everyMarkerThatReachesInIsTold();
    void zonesWithoutAPixelNeedNoMarkers();
    void eachPixelIsDrawnOnAFewTimes_data();
    void eachPixelIsDrawnOnAFewTimes();
    void coveredPixelsStayTheSame_data();
    void coveredPixelsStayTheSame();
    void hugeMarkersAreTold();
};

namespace {

QList<QRectF> zonesIn(double width, int count, double height = 100.0)
{
    QList<QRectF> zones;
    for (int i = 0; i < count; ++i) {
        zones.append({i * (width / count), 0.0, width / count, height});
    }
    return zones;
}

/// The pixels of an area whose borders go to the nearest ones.
QRect pixelsOf(const QRectF &area)
{
    const QPoint topLeft = area.topLeft().toPoint();
    const QPoint end = area.bottomRight().toPoint();
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

/// The columns of a zone's device pixels that markers cover.
QList<bool> covered(const QRect &zone, const QList<QPointF> &places, const QRectF &marker,
                    const QTransform &toDevice)
{
    QList<bool> columns(zone.width(), false);
    for (const QPointF &place : places) {
        const QRect drawn = pixelsOf(toDevice.mapRect(QRectF(place, marker.size()))) & zone;
        for (int x = drawn.left(); x <= drawn.right(); ++x) {
            columns[x - zone.left()] = true;
        }
    }
    return columns;
}

void addWidths()
{
    QTest::addColumn<int>("zones");
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const int zones : {1, 3, 7, 399, 401, 1000, 5000, 20000}) {
            QTest::addRow("%d zones at %g", zones, ratio) << zones << ratio;
        }
    }
}

} // namespace

void TestMarkerPlaces::everyMarkerThatReachesInIsTold_data()
{
    QTest::addColumn<QRectF>("marker");
    QTest::newRow("within") << QRectF(50, 50, 10, 10);
    QTest::newRow("over the right border") << QRectF(95, 50, 10, 10);
    QTest::newRow("over the left border") << QRectF(-5, 50, 10, 10);
    QTest::newRow("beyond two zones") << QRectF(-250, 50, 600, 10);
    QTest::newRow("far right") << QRectF(150, 50, 10, 10);
    QTest::newRow("far left") << QRectF(-150, 50, 10, 10);
}

void TestMarkerPlaces::everyMarkerThatReachesInIsTold()
{
    QFETCH(const QRectF, marker);
    const QList<QRectF> zones = zonesIn(700.0, 7);
    for (qsizetype i = 0; i < zones.size(); ++i) {
        const QList<QPointF> places = MarkerPlaces::seenIn(i, zones, marker, QTransform());
        for (const QRectF &other : zones) {
            const QPointF place = other.topLeft() + marker.topLeft();
            if (QRectF(place, marker.size()).intersects(zones[i])) {
                QVERIFY(places.contains(place));
            }
        }
    }
}

void TestMarkerPlaces::zonesWithoutAPixelNeedNoMarkers()
{
    const QList<QRectF> zones = zonesIn(10.0, 40);
    qsizetype withMarkers = 0;
    for (qsizetype i = 0; i < zones.size(); ++i) {
        const QList<QPointF> places = MarkerPlaces::seenIn(i, zones, {0, 0, 4, 4}, QTransform());
        withMarkers += places.isEmpty() ? 0 : 1;
        QCOMPARE(places.isEmpty(), pixelsOf(zones[i]).isEmpty());
    }
    QCOMPARE(withMarkers, qsizetype(10));
    QVERIFY(MarkerPlaces::seenIn(0, {{0, 0, 100, 0}}, {0, 0, 4, 4}, QTransform()).isEmpty());
    QVERIFY(MarkerPlaces::seenIn(0, {{0, 0, 0, 100}}, {0, 0, 4, 4}, QTransform()).isEmpty());
}

void TestMarkerPlaces::eachPixelIsDrawnOnAFewTimes_data()
{
    addWidths();
}

void TestMarkerPlaces::eachPixelIsDrawnOnAFewTimes()
{
    QFETCH(const int, zones);
    QFETCH(const double, ratio);
    const QList<QRectF> all = zonesIn(400.0, zones);
    const QTransform toDevice = QTransform::fromScale(ratio, ratio);
    constexpr double kMarker = 16.0;
    const qsizetype most = qsizetype((kMarker + 4.0) * ratio) + 5;
    qsizetype sum = 0;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const QList<QPointF> places =
            MarkerPlaces::seenIn(i, all, {0, 0, kMarker, kMarker}, toDevice);
        QVERIFY2(places.size() <= most, qPrintable(QString::number(places.size())));
        sum += places.size();
    }
    QVERIFY2(sum <= qsizetype(400.0 * ratio) * most, qPrintable(QString::number(sum)));
}

void TestMarkerPlaces::coveredPixelsStayTheSame_data()
{
    addWidths();
}

void TestMarkerPlaces::coveredPixelsStayTheSame()
{
    QFETCH(const int, zones);
    QFETCH(const double, ratio);
    const QList<QRectF> all = zonesIn(400.0, zones);
    const QTransform toDevice = QTransform::fromScale(ratio, ratio);
    const QRectF marker(0.3, 0.0, 5.0, 5.0);
    QList<QPointF> every;
    for (const QRectF &zone : all) {
        every.append(zone.topLeft() + marker.topLeft());
    }
    for (qsizetype i = 0; i < all.size(); i += 1 + all.size() / 100) {
        const QRect zone = pixelsOf(toDevice.mapRect(all[i]));
        const QList<QPointF> places = MarkerPlaces::seenIn(i, all, marker, toDevice);
        QCOMPARE(covered(zone, places, marker, toDevice), covered(zone, every, marker, toDevice));
    }
}

// Its end counts more zones than an int holds.
void TestMarkerPlaces::hugeMarkersAreTold()
{
    const double huge = std::numeric_limits<double>::max() / 4.0;
    const QList<QRectF> zones = zonesIn(3.0, 3);
    const QList<QPointF> places =
        MarkerPlaces::seenIn(1, zones, {-huge, 0.0, 2.0 * huge, 1.0}, QTransform());
    QVERIFY(!places.isEmpty());
    QCOMPARE(MarkerPlaces::seenIn(1, zones, {0.0, 0.0, huge, 1.0}, QTransform()).size(),
             qsizetype(3));
}

int main(int argc, char **argv)
{
    return runTest<TestMarkerPlaces>(argc, argv);
}

#include "tst_MarkerPlaces.moc"
