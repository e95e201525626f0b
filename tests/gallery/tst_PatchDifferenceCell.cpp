#include "ChartComparison.h"
#include "PatchDifferenceCell.h"

#include "PixelProbe.h"
#include "TestBase.h"

#include <algorithm>

/// A patch in two colours side by side.
class TestPatchDifferenceCell : public TestBase
{
    Q_OBJECT

private slots:
    void swatchesMeetInBothReadingDirections_data();
    void swatchesMeetInBothReadingDirections();
    void swatchesFollowATurnOfTheDirection();
};

namespace {

constexpr QSize kWideCell(200, 80);

/// The widest run of plain ground between two painted places of the row through the swatches, in
/// pixels.
int gapBetweenSwatches(PatchDifferenceCell &cell)
{
    cell.resize(kWideCell);
    cell.ensurePolished();
    const PixelProbe probe(cell);
    const int row = kWideCell.height() / 2;
    const QColor ground = probe.at({0, row});
    int gap = 0;
    int widest = 0;
    bool isInside = false;
    for (int column = 0; column < kWideCell.width(); ++column) {
        const bool isInk = !probe.isNear({column, row}, ground);
        if (isInk && isInside) {
            widest = std::max(widest, gap);
        }
        isInside = isInside || isInk;
        gap = isInk ? 0 : gap + 1;
    }
    return isInside ? widest : kWideCell.width();
}

} // namespace

void TestPatchDifferenceCell::swatchesMeetInBothReadingDirections_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void TestPatchDifferenceCell::swatchesMeetInBothReadingDirections()
{
    QFETCH(const Qt::LayoutDirection, direction);
    PatchDifferenceCell cell(ChartComparison::samePatches().constFirst());
    cell.setLayoutDirection(direction);

    QVERIFY(gapBetweenSwatches(cell) < 8);
}

void TestPatchDifferenceCell::swatchesFollowATurnOfTheDirection()
{
    PatchDifferenceCell cell(ChartComparison::samePatches().constFirst());
    cell.setLayoutDirection(Qt::RightToLeft);
    cell.setLayoutDirection(Qt::LeftToRight);

    QVERIFY(gapBetweenSwatches(cell) < 8);
}

int main(int argc, char *argv[])
{
    return runTest<TestPatchDifferenceCell>(argc, argv);
}

#include "tst_PatchDifferenceCell.moc"
