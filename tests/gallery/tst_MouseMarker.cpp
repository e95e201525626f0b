#include "MouseMarker.h"
#include "PixelProbe.h"
#include "TestBase.h"

class TestMouseMarker : public TestBase
{
    Q_OBJECT

private slots:
    void crosshairIsBlackInWhiteAndOpenInTheMiddle_data();
    void crosshairIsBlackInWhiteAndOpenInTheMiddle();
};

void TestMouseMarker::crosshairIsBlackInWhiteAndOpenInTheMiddle_data()
{
    QTest::addColumn<double>("ratio");

    QTest::newRow("plain screen") << 1.0;
    QTest::newRow("fine screen") << 2.0;
}

void TestMouseMarker::crosshairIsBlackInWhiteAndOpenInTheMiddle()
{
    QFETCH(const double, ratio);

    const QPixmap marker = MouseMarker::make(ratio);
    const PixelProbe probe(marker.toImage());

    QCOMPARE(marker.deviceIndependentSize(), QSizeF(MouseMarker::kSize, MouseMarker::kSize));
    QCOMPARE(probe.at(MouseMarker::kHotSpot).alpha(), 0);
    const QPoint steps[] = {QPoint(8, 0), QPoint(-8, 0), QPoint(0, 8), QPoint(0, -8)};
    for (const QPoint &step : steps) {
        const QPoint beside(step.y() / 8, step.x() / 8);
        QCOMPARE(probe.at(MouseMarker::kHotSpot + step), QColor(Qt::black));
        QCOMPARE(probe.at(MouseMarker::kHotSpot + step + beside), QColor(Qt::white));
        QCOMPARE(probe.at(MouseMarker::kHotSpot + step + 2 * beside).alpha(), 0);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestMouseMarker>(argc, argv);
}

#include "tst_MouseMarker.moc"
