#include "ReportPlacement.h"

#include "SceneTestHelpers.h"
#include "TestBase.h"

#include <QPixmap>

#include <cmath>
#include <limits>

using SceneTestHelpers::exactly;

namespace {

constexpr double kInfinity = INFINITY;
constexpr double kNotANumber = NAN;

const QSizeF kTextSize(30.5, 12.25);
const QSizeF kMargins(2.0, 3.0);
const QSize kLandscape(400, 200);

} // namespace

class TestReportPlacement : public TestBase
{
    Q_OBJECT

private slots:
    void placesOfText_data();
    void placesOfText();
    void textIsPlacedInSinglePrecision();
    void sumWithMarginsIsSingleToo();
    void placesOfPicture_data();
    void placesOfPicture();
    void pictureIsPlacedInSinglePrecision();
    void scaleIsTheSmallerOfBoth();
    void pixelsOfPoints_data();
    void pixelsOfPoints();
    void whatIsInfiniteOrNoNumberIsNotDrawable_data();
    void whatIsInfiniteOrNoNumberIsNotDrawable();
    void resamplingKeepsProportions();
    void resamplingToASenselessSizeKeepsThePicture();
    void resamplingOfANullPictureIsNull();
};

void TestReportPlacement::placesOfText_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<QPointF>("place");

    // The size counts as 100 by 50, neither as it is nor rounded.
    const QRectF rect(8.0, 16.0, 100.9, 50.9);
    QTest::addRow("left top") << rect << 0U << 0U << QPointF(10.0, 19.0);
    QTest::addRow("right bottom") << rect << 1U << 1U << QPointF(75.5, 50.75);
    QTest::addRow("centred, without margins") << rect << 2U << 2U << QPointF(42.75, 34.875);
    QTest::addRow("left bottom") << rect << 0U << 1U << QPointF(10.0, 50.75);
    QTest::addRow("right top") << rect << 1U << 0U << QPointF(75.5, 19.0);
    QTest::addRow("any other number") << rect << 7U << 7U << QPointF(8.0, 16.0);
    QTest::addRow("other across, centred down") << rect << 3U << 2U << QPointF(8.0, 34.875);
    QTest::addRow("centred across, other down")
        << rect << 2U << 4294967295U << QPointF(42.75, 16.0);

    const QRectF narrow(0.0, 0.0, 10.9, 5.9);
    QTest::addRow("too wide, right") << narrow << 1U << 1U << QPointF(-22.5, -10.25);
    QTest::addRow("too wide, centred") << narrow << 2U << 2U << QPointF(-10.25, -3.625);
    QTest::addRow("too wide, left") << narrow << 0U << 0U << QPointF(2.0, 3.0);

    const QRectF negative(0.0, 0.0, -10.9, -5.9);
    QTest::addRow("negative") << negative << 2U << 2U << QPointF(-20.25, -8.625);
    const QRectF none(1.0, 2.0, 0.0, 0.0);
    QTest::addRow("without size") << none << 2U << 2U << QPointF(-14.25, -4.125);
    const QRectF noNumber(1.0, 2.0, kNotANumber, kNotANumber);
    QTest::addRow("size not a number") << noNumber << 2U << 2U << QPointF(-14.25, -4.125);
}

void TestReportPlacement::placesOfText()
{
    QFETCH(QRectF, rect);
    QFETCH(quint32, horizontal);
    QFETCH(quint32, vertical);
    QFETCH(QPointF, place);

    const QPointF found =
        ReportPlacement::placeOfText(kTextSize, rect, TXHorizontalAlignment(horizontal),
                                     TXVerticalAlignment(vertical), kMargins);

    QCOMPARE(exactly(found), exactly(place));
}

void TestReportPlacement::textIsPlacedInSinglePrecision()
{
    const QPointF corner(0.1, 1'000'000.1);

    const QPointF found =
        ReportPlacement::placeOfText(kTextSize, QRectF(corner, QSizeF(10, 10)),
                                     TXHorizontalAlignment(7), TXVerticalAlignment(7), kMargins);

    QCOMPARE(exactly(found), QStringLiteral("0.10000000149011612, 1000000.125"));
}

void TestReportPlacement::sumWithMarginsIsSingleToo()
{
    const QRectF rect(0.0, 0.0, 10.0, 10.0);

    const QPointF found =
        ReportPlacement::placeOfText(kTextSize, rect, TXAlignLeft, TXAlignTop, QSizeF(0.1, 0.3));

    QCOMPARE(exactly(found), QStringLiteral("0.10000000149011612, 0.30000001192092896"));
}

void TestReportPlacement::placesOfPicture_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<quint32>("horizontal");
    QTest::addColumn<quint32>("vertical");
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QSize>("size");

    const QRectF square(10.0, 20.0, 100.0, 100.0);
    const QSize landscape(100, 50);
    QTest::addRow("landscape, top left")
        << kLandscape << square << 0U << 0U << QPointF(10, 20) << landscape;
    QTest::addRow("landscape, bottom right")
        << kLandscape << square << 1U << 1U << QPointF(10, 70) << landscape;
    QTest::addRow("landscape, centred")
        << kLandscape << square << 2U << 2U << QPointF(10, 45) << landscape;
    QTest::addRow("landscape, any other number")
        << kLandscape << square << 7U << 7U << QPointF(10, 20) << landscape;

    const QSize tall(200, 400);
    QTest::addRow("portrait, right")
        << tall << square << 1U << 1U << QPointF(60, 20) << QSize(50, 100);
    QTest::addRow("portrait, centred")
        << tall << square << 2U << 2U << QPointF(35, 20) << QSize(50, 100);
    QTest::addRow("enlarged") << QSize(10, 5) << square << 2U << 2U << QPointF(10, 45) << landscape;

    const QSize quadratic(200, 200);
    QTest::addRow("room is rounded, up at a half")
        << quadratic << QRectF(0, 0, 100.5, 100.4) << 1U << 1U << QPointF(1, 0) << QSize(100, 100);
    QTest::addRow("half a unit spare") << quadratic << QRectF(0, 0, 100.5, 100.4) << 2U << 2U
                                       << QPointF(0.5, 0) << QSize(100, 100);
    QTest::addRow("size is truncated")
        << QSize(3, 2) << QRectF(0, 0, 10, 10) << 2U << 2U << QPointF(0, 2) << QSize(10, 6);
    // In double precision it would be 31 and 60.
    QTest::addRow("single precision falls short")
        << QSize(7, 7) << QRectF(0, 0, 31, 31) << 1U << 2U << QPointF(1, 0.5) << QSize(30, 30);
    QTest::addRow("single precision does not")
        << QSize(7, 7) << QRectF(0, 0, 61, 61) << 1U << 2U << QPointF(0, 0) << QSize(61, 61);

    QTest::addRow("without size") << kLandscape << QRectF(5, 6, 0, 0) << 2U << 2U << QPointF(5, 6)
                                  << QSize(0, 0);
    QTest::addRow("negative") << kLandscape << QRectF(5, 6, -100, -100) << 0U << 0U << QPointF(5, 6)
                              << QSize(-200, -100);
    QTest::addRow("size not a number") << kLandscape << QRectF(5, 6, kNotANumber, kNotANumber) << 2U
                                       << 2U << QPointF(5, 6) << QSize(0, 0);
}

void TestReportPlacement::placesOfPicture()
{
    QFETCH(QSize, pixels);
    QFETCH(QRectF, rect);
    QFETCH(quint32, horizontal);
    QFETCH(quint32, vertical);
    QFETCH(QPointF, place);
    QFETCH(QSize, size);

    const auto found = ReportPlacement::placeOfPicture(
        pixels, rect, TXHorizontalAlignment(horizontal), TXVerticalAlignment(vertical));

    QCOMPARE(found.size, size);
    QCOMPARE(exactly(found.topLeft), exactly(place));
}

void TestReportPlacement::pictureIsPlacedInSinglePrecision()
{
    const QRectF rect(0.1, 1'000'000.1, 100, 100);

    const auto found =
        ReportPlacement::placeOfPicture(kLandscape, rect, TXAlignLeft, TXAlignBottom);

    QCOMPARE(exactly(found.topLeft), QStringLiteral("0.10000000149011612, 1000050.125"));
}

void TestReportPlacement::scaleIsTheSmallerOfBoth()
{
    QCOMPARE(ReportPlacement::fittingScale({400, 200}, {100, 100}), 0.25F);
    QCOMPARE(ReportPlacement::fittingScale({200, 400}, {100, 100}), 0.25F);
    QCOMPARE(exactly(ReportPlacement::fittingScale({3, 1}, {1, 1})),
             QStringLiteral("0.3333333432674408"));
}

void TestReportPlacement::pixelsOfPoints_data()
{
    QTest::addColumn<QSize>("points");
    QTest::addColumn<int>("dotsPerInch");
    QTest::addColumn<QSize>("pixels");

    QTest::addRow("200 dots per inch") << QSize(100, 50) << 200 << QSize(278, 139);
    QTest::addRow("a pixel for a point") << QSize(100, 50) << 72 << QSize(100, 50);
    QTest::addRow("halves are rounded up") << QSize(1, 3) << 36 << QSize(1, 2);
    QTest::addRow("negative halves are rounded down") << QSize(-1, -3) << 36 << QSize(-1, -2);
    QTest::addRow("no resolution") << QSize(100, 50) << 0 << QSize(0, 0);
    QTest::addRow("beyond whole numbers")
        << QSize(2'000'000'000, 1) << 200 << QSize(std::numeric_limits<int>::max(), 3);
}

void TestReportPlacement::pixelsOfPoints()
{
    QFETCH(QSize, points);
    QFETCH(int, dotsPerInch);
    QFETCH(QSize, pixels);

    QCOMPARE(ReportPlacement::pixelsForPoints(points, dotsPerInch), pixels);
}

void TestReportPlacement::whatIsInfiniteOrNoNumberIsNotDrawable_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("lineWidth");
    QTest::addColumn<bool>("isDrawable");

    QTest::addRow("plain") << QRectF(1, 2, 3, 4) << 0.5 << true;
    QTest::addRow("negative") << QRectF(-1, -2, -3, -4) << 0.5 << true;
    QTest::addRow("huge") << QRectF(-1e300, 0, 1e300, 1e300) << 0.5 << true;
    QTest::addRow("infinite place") << QRectF(-kInfinity, 2, 3, 4) << 0.5 << false;
    QTest::addRow("infinite width") << QRectF(1, 2, kInfinity, 4) << 0.5 << false;
    QTest::addRow("corner beyond all numbers") << QRectF(0, 1.7e308, 0, 1.7e308) << 0.5 << false;
    QTest::addRow("height not a number") << QRectF(1, 2, 3, kNotANumber) << 0.5 << false;
    QTest::addRow("place not a number") << QRectF(1, kNotANumber, 3, 4) << 0.5 << false;
    QTest::addRow("infinite line") << QRectF(1, 2, 3, 4) << kInfinity << false;
    QTest::addRow("line not a number") << QRectF(1, 2, 3, 4) << kNotANumber << false;
}

void TestReportPlacement::whatIsInfiniteOrNoNumberIsNotDrawable()
{
    QFETCH(QRectF, rect);
    QFETCH(double, lineWidth);
    QFETCH(bool, isDrawable);

    QCOMPARE(ReportPlacement::isDrawable(rect, lineWidth), isDrawable);
}

void TestReportPlacement::resamplingKeepsProportions()
{
    const QPixmap landscape(kLandscape);

    QCOMPARE(ReportPlacement::resampled(landscape, {278, 139}).size(), QSize(278, 139));
    QCOMPARE(ReportPlacement::resampled(landscape, {300, 300}).size(), QSize(300, 150));
    QVERIFY(ReportPlacement::resampled(landscape, {0, 139}).isNull());
    QVERIFY(ReportPlacement::resampled(landscape, {-278, -139}).isNull());
    QVERIFY(ReportPlacement::resampled(landscape, {-30'000, -30'000}).isNull());
}

void TestReportPlacement::resamplingToASenselessSizeKeepsThePicture()
{
    const QPixmap picture(40, 20);

    const QPixmap same = ReportPlacement::resampled(picture, {2'000'000'000, 1'000'000'000});

    QCOMPARE(same.cacheKey(), picture.cacheKey());
}

void TestReportPlacement::resamplingOfANullPictureIsNull()
{
    QVERIFY(ReportPlacement::resampled(QPixmap(), {278, 139}).isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPlacement>(argc, argv);
}

#include "tst_ReportPlacement.moc"
