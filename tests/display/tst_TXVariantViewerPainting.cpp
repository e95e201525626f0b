#include "TXVariantViewer.h"

#include "PixelProbe.h"
#include "TestBase.h"
#include "VariantViewerHelpers.h"

#include <QLabel>
#include <QLayout>

#include <algorithm>
#include <memory>

using VariantViewerHelpers::fontOfHeight;
using VariantViewerHelpers::nestedValue;

namespace {

const QColor kPaper(0xff, 0xf0, 0xd0);
const QColor kInk(0x10, 0x20, 0x90);
const QColor kBracketColour(0x60, 0x60, 0x60);
constexpr int kBoxColumn = 14;
constexpr int kBracketColumn = 24;

/// Left, top, right and bottom, all of them inside.
struct Corners
{
    int left;
    int top;
    int right;
    int bottom;
};
using Shape = QList<Corners>;

const Shape kMinusBox = {
    {2, 2, 12, 2}, {2, 12, 12, 12}, {2, 2, 2, 12}, {12, 2, 12, 12}, {5, 7, 9, 7}};
const Shape kPlusBox = kMinusBox + Shape{{7, 5, 7, 9}};

const Shape kListOf60 = {{16, 2, 19, 2}, {16, 3, 17, 56}, {16, 57, 19, 57}};
const Shape kListOf61 = {{16, 2, 19, 2}, {16, 3, 17, 57}, {16, 58, 19, 58}};
const Shape kMapOf60 = {{18, 2, 21, 2},   {17, 3, 18, 28},  {16, 29, 18, 29}, {15, 30, 17, 30},
                        {16, 31, 18, 31}, {17, 32, 18, 56}, {18, 57, 21, 57}};
const Shape kMapOf61 = {{18, 2, 21, 2},   {17, 3, 18, 28},  {16, 29, 18, 29}, {15, 30, 17, 30},
                        {16, 31, 18, 31}, {17, 32, 18, 57}, {18, 58, 21, 58}};

bool isInside(const Shape &shape, int x, int y)
{
    return std::any_of(shape.cbegin(), shape.cend(), [x, y](const Corners &corners) {
        return x >= corners.left && x <= corners.right && y >= corners.top && y <= corners.bottom;
    });
}

/// The viewer without the widgets on it, which cover parts of what it paints.
QImage paintAlone(QWidget &widget, qreal ratio)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return image;
}

std::unique_ptr<TXVariantViewer> makeViewer(const QVariant &value, const QFont &font = QFont())
{
    auto viewer = std::make_unique<TXVariantViewer>(nullptr);
    QPalette palette;
    palette.setColor(QPalette::Window, kPaper);
    palette.setColor(QPalette::WindowText, kInk);
    viewer->setPalette(palette);
    viewer->setFont(font);
    viewer->setValue(value);
    return viewer;
}

/// The pen's join takes the tips off the corners of a box whose line is thick.
bool isCornerOfBox(int x, int y)
{
    return (x == 2 || x == 12) && (y == 2 || y == 12);
}

/// Compares all pixels of some design columns. The pen of a line is scaled along with it, half of
/// it to either side: so a line begins `lead` pixels of the device before its place.
QString firstDifference(const QImage &image, double pixelsPerUnit, QPair<int, int> columns,
                        const Shape &shape, const QColor &colour, int lead)
{
    const int unit = qRound(pixelsPerUnit);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = columns.first * unit; x < columns.second * unit; ++x) {
            const QPoint place((x + lead) / unit, (y + lead) / unit);
            if (lead > 0 && isCornerOfBox(place.x(), place.y())) {
                continue;
            }
            const bool isPainted = isInside(shape, place.x(), place.y());
            const QColor found = image.pixelColor(x, y);
            if (found != (isPainted ? colour : kPaper)) {
                return QStringLiteral("(%1, %2) is %3").arg(x).arg(y).arg(found.name());
            }
        }
    }
    return {};
}

} // namespace

class TestTXVariantViewerPainting : public TestBase
{
    Q_OBJECT

private slots:
    void boxAndBracketStandAtTheirPixels_data();
    void boxAndBracketStandAtTheirPixels();
    void closedViewerHasNoBracket();
    void bracketOfAStringListAndOfAHash();
    void viewerThatCannotExpandShowsNoBox_data();
    void viewerThatCannotExpandShowsNoBox();
    void closedViewerShowsItsBoxLeftOfTheLabel();
    void heightOfNothingIsPaintedWithoutHarm();
    void frameIsPaintedForTheKeyboardOnly();
    void frameOfAnOpenViewerStandsAroundItsMargin();
};

void TestTXVariantViewerPainting::boxAndBracketStandAtTheirPixels_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<int>("fontHeight");
    QTest::addColumn<int>("height");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<Shape>("bracket");
    const QVariant list = QVariantList{1, 2, 3};
    const QVariant map = nestedValue();
    for (const qreal ratio : {1.0, 2.0}) {
        const auto add = [ratio](const char *name, const QVariant &value, bool isOpen, int font,
                                 int height, const Shape &shape) {
            QTest::addRow("%s, font %d, height %d, ratio %g", name, font, height, ratio)
                << value << isOpen << font << height << ratio << shape;
        };
        add("closed", list, false, 15, 60, {});
        add("closed", map, false, 30, 120, {});
        add("list", list, true, 15, 60, kListOf60);
        add("list", list, true, 15, 61, kListOf61);
        add("list", list, true, 30, 120, kListOf60);
        add("list", list, true, 30, 121, kListOf60);
        add("map", map, true, 15, 60, kMapOf60);
        add("map", map, true, 15, 61, kMapOf61);
        add("map", map, true, 30, 121, kMapOf60);
        add("map", map, true, 30, 122, kMapOf61);
    }
}

void TestTXVariantViewerPainting::boxAndBracketStandAtTheirPixels()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isOpen);
    QFETCH(int, fontHeight);
    QFETCH(int, height);
    QFETCH(qreal, ratio);
    QFETCH(Shape, bracket);
    const auto viewer = makeViewer(value, fontOfHeight(fontHeight));
    QCOMPARE(QFontMetrics(viewer->font()).height(), fontHeight);
    viewer->setExpanded(isOpen);
    viewer->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    viewer->setMinimumSize(1, 1);
    viewer->resize(100, height);
    QCOMPARE(viewer->height(), height);

    const QImage image = paintAlone(*viewer, ratio);
    const double unit = fontHeight / 15.0 * ratio;
    const Shape box = isOpen ? kMinusBox : kPlusBox;
    const int lead = qRound(unit) / 2;
    QCOMPARE(firstDifference(image, unit, {0, kBoxColumn}, box, kInk, lead), QString());
    QCOMPARE(firstDifference(image, unit, {kBoxColumn, kBracketColumn}, bracket, kBracketColour, 0),
             QString());
}

void TestTXVariantViewerPainting::closedViewerHasNoBracket()
{
    const auto viewer = makeViewer(nestedValue(), fontOfHeight(15));
    viewer->expand();
    viewer->collapse();
    viewer->resize(100, 60);
    QCOMPARE(firstDifference(paintAlone(*viewer, 1.0), 1.0, {kBoxColumn, kBracketColumn}, {},
                             kBracketColour, 0),
             QString());
}

void TestTXVariantViewerPainting::bracketOfAStringListAndOfAHash()
{
    const auto texts = makeViewer(QStringList{QStringLiteral("a")}, fontOfHeight(15));
    const auto hash = makeViewer(QVariantHash{{QStringLiteral("a"), 1}}, fontOfHeight(15));
    for (TXVariantViewer *viewer : {texts.get(), hash.get()}) {
        viewer->expand();
        viewer->resize(100, 60);
    }
    const QPair<int, int> columns{kBoxColumn, kBracketColumn};
    QCOMPARE(firstDifference(paintAlone(*texts, 1.0), 1.0, columns, kListOf60, kBracketColour, 0),
             QString());
    QCOMPARE(firstDifference(paintAlone(*hash, 1.0), 1.0, columns, kMapOf60, kBracketColour, 0),
             QString());
}

void TestTXVariantViewerPainting::viewerThatCannotExpandShowsNoBox_data()
{
    QTest::addColumn<int>("fontHeight");
    QTest::addColumn<qreal>("ratio");
    QTest::addRow("font 15, ratio 1") << 15 << 1.0;
    QTest::addRow("font 15, ratio 2") << 15 << 2.0;
    QTest::addRow("font 30, ratio 1") << 30 << 1.0;
    QTest::addRow("font 30, ratio 2") << 30 << 2.0;
}

void TestTXVariantViewerPainting::viewerThatCannotExpandShowsNoBox()
{
    QFETCH(int, fontHeight);
    QFETCH(qreal, ratio);
    // A value whose text is empty, so that nothing but the box could be seen.
    const auto viewer = makeViewer(QVariant::fromValue(QSize(1, 1)), fontOfHeight(fontHeight));
    viewer->resize(100, 60);

    const PixelProbe probe(*viewer, ratio);
    QCOMPARE(probe.countColours(viewer->rect()), 1);
    QCOMPARE(probe.at({7, 7}), kPaper);
    // It is there, beneath the label.
    QVERIFY(PixelProbe(paintAlone(*viewer, ratio)).countColours(viewer->rect()) > 1);
}

void TestTXVariantViewerPainting::closedViewerShowsItsBoxLeftOfTheLabel()
{
    const auto viewer = makeViewer(nestedValue(), fontOfHeight(15));
    viewer->resize(300, 60);
    const PixelProbe probe(*viewer);
    QCOMPARE(probe.at({2, 2}), kInk);
    QCOMPARE(probe.at({12, 12}), kInk);
    QCOMPARE(probe.at({13, 12}), kPaper);
    QCOMPARE(probe.at({7, 5}), kInk);
}

void TestTXVariantViewerPainting::heightOfNothingIsPaintedWithoutHarm()
{
    const auto viewer = makeViewer(nestedValue(), fontOfHeight(15));
    viewer->expand();
    viewer->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    viewer->setMinimumSize(1, 1);
    for (int height = 1; height < 12; ++height) {
        viewer->resize(40, height);
        QVERIFY(!paintAlone(*viewer, 1.0).isNull());
    }
}

void TestTXVariantViewerPainting::frameIsPaintedForTheKeyboardOnly()
{
    for (const QVariant &value : {nestedValue(), QVariant(7)}) {
        const auto viewer = makeViewer(value);
        viewer->resize(500, 40);
        const QImage before = PixelProbe(*viewer).image();
        viewer->show();
        QVERIFY(QTest::qWaitForWindowActive(viewer.get()));
        viewer->setFocus(Qt::MouseFocusReason);
        QVERIFY(viewer->hasFocus());
        viewer->setAttribute(Qt::WA_KeyboardFocusChange, false);
        QCOMPARE(PixelProbe(*viewer).image(), before);

        viewer->setAttribute(Qt::WA_KeyboardFocusChange);
        const auto *label = viewer->findChild<QLabel *>();
        const PixelProbe framed(*viewer);
        QVERIFY(framed.image() != before);
        const QRect line = label->geometry();
        QVERIFY(framed.at({line.center().x(), line.top()}) != kPaper);
        QVERIFY(framed.at({line.center().x(), line.bottom()}) != kPaper);
        QVERIFY(framed.at({line.left(), line.center().y()}) != kPaper);
        QVERIFY(framed.at({line.right(), line.center().y()}) != kPaper);

        viewer->clearFocus();
        QCOMPARE(PixelProbe(*viewer).image(), before);
    }
}

void TestTXVariantViewerPainting::frameOfAnOpenViewerStandsAroundItsMargin()
{
    const auto viewer = makeViewer(nestedValue());
    viewer->expand();
    viewer->resize(300, 100);
    viewer->show();
    QVERIFY(QTest::qWaitForWindowActive(viewer.get()));
    viewer->setFocus(Qt::MouseFocusReason);
    viewer->setAttribute(Qt::WA_KeyboardFocusChange, false);
    const PixelProbe plain(*viewer);
    QCOMPARE(plain.at({10, 0}), kPaper);

    viewer->setAttribute(Qt::WA_KeyboardFocusChange);
    const PixelProbe framed(*viewer);
    for (const QPoint place : {QPoint(10, 0), QPoint(10, 99), QPoint(0, 50), QPoint(20, 50)}) {
        QVERIFY2(framed.at(place) != plain.at(place), qPrintable(QString::number(place.x())));
    }
    const QRect entries(21, 0, 279, 100);
    QCOMPARE(framed.image().copy(entries), plain.image().copy(entries));
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerPainting>(argc, argv);
}

#include "tst_TXVariantViewerPainting.moc"
