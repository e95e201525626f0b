#include "LayerKeeper.h"

#include "TestBase.h"

#include <QBitmap>

#include <functional>
#include <limits>
#include <memory>

using Paint = LayerKeeper::Paint;
using Change = std::function<void(Paint &)>;
using ContentChange = std::function<void(LayerKeeper::Content &)>;

class TestLayerKeeper : public TestBase
{
    Q_OBJECT

private slots:
    void onlyWhatPaysIsKept_data();
    void onlyWhatPaysIsKept();
    void deviceIsToldByThePainter_data();
    void deviceIsToldByThePainter();
    void layerIsMadeAtTheSecondPaint();
    void paintOfASmallPartIsNoFirstPaint();
    void paintOfASmallPartMayUseTheLayer();
    void anotherStateLetsTheLayerGo_data();
    void anotherStateLetsTheLayerGo();
    void paintWithoutUseForTheLayerLetsItGo();
    void whatIsLeftWithoutALayerIsForgotten();
};

namespace {

constexpr QSize kSize(60, 40);

QPixmap filled(const QColor &colour)
{
    QPixmap pixmap(30, 40);
    pixmap.fill(colour);
    return pixmap;
}

/// One that is worth keeping: two zones at scale 2 in a window.
Paint paintInWindow()
{
    static const QList<QPixmap> kPictures = {filled(Qt::red), filled(Qt::blue)};
    Paint paint;
    paint.content = {2.0, {}, kSize, kPictures};
    paint.zones = {{0, 0, 30, 40}, {30, 0, 30, 40}};
    paint.isVisible = true;
    paint.isOfMost = true;
    paint.format = QImage::Format_RGB32;
    return paint;
}

void drawNothing(QPainter &, qsizetype) { }

/// What the keeper gives at the next paint.
std::weak_ptr<const ImageLayer> painted(LayerKeeper &keeper, const Paint &paint = paintInWindow())
{
    return keeper.layerFor(paint, drawNothing);
}

} // namespace

void TestLayerKeeper::onlyWhatPaysIsKept_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isKept");
    const auto add = [](const char *name, bool isKept, const Change &change) {
        QTest::newRow(name) << change << isKept;
    };
    const auto addTransform = [&add](const char *name, bool isKept, const QTransform &toDevice) {
        add(name, isKept, [toDevice](Paint &paint) { paint.toDevice = toDevice; });
    };
    const auto addScale = [&add](const char *name, bool isKept, double scale) {
        add(name, isKept, [scale](Paint &paint) { paint.content.scale = scale; });
    };
    const auto addZone = [&add](const char *name, bool isKept, const QRectF &zone) {
        add(name, isKept, [zone](Paint &paint) { paint.zones = {zone}; });
    };
    const auto addFormat = [&add](const char *name, bool isKept, QImage::Format format) {
        add(name, isKept, [format](Paint &paint) { paint.format = format; });
    };

    add("in a window", true, [](Paint &) {});
    add("never shown", false, [](Paint &paint) { paint.isVisible = false; });
    add("a small part", true, [](Paint &paint) { paint.isOfMost = false; });
    add("without zones", false, [](Paint &paint) {
        paint.zones.clear();
        paint.content.pictures.clear();
    });
    add("bitmap among the pictures", false,
        [](Paint &paint) { paint.content.pictures[1] = QBitmap(30, 40); });
    add("other composition", false,
        [](Paint &paint) { paint.mode = QPainter::CompositionMode_Source; });

    addFormat("premultiplied", true, QImage::Format_ARGB32_Premultiplied);
    addFormat("not premultiplied", false, QImage::Format_ARGB32);
    addFormat("16 bits", false, QImage::Format_RGB16);
    addFormat("no picture", false, QImage::Format_Invalid);

    addTransform("moved by a part of a pixel", true, QTransform::fromTranslate(10.5, 3.0));
    addTransform("on a finer screen", true, QTransform::fromScale(1.5, 1.5));
    addTransform("turned", false, QTransform().rotate(90.0));
    addTransform("sheared", false, QTransform().shear(0.5, 0.0));
    addTransform("mirrored", false, QTransform::fromScale(-1.0, 1.0));
    addTransform("upside down", false, QTransform::fromScale(1.0, -1.0));

    addScale("nothing to be seen", false, 0.0);
    addScale("endless", false, std::numeric_limits<double>::infinity());
    addScale("pixel by pixel", false, 1.0);
    add("pixel by pixel on a finer screen", false, [](Paint &paint) {
        paint.content.scale = 0.5;
        paint.toDevice = QTransform::fromScale(2.0, 2.0);
    });
    add("of its own size on a finer screen", true, [](Paint &paint) {
        paint.content.scale = 1.0;
        paint.toDevice = QTransform::fromScale(2.0, 2.0);
    });

    addZone("just wide enough", true, {0, 0, 16, 40});
    addZone("too narrow", false, {0, 0, 15.9, 40});
    addZone("a screen", true, {0, 0, 7680, 4320});
    addZone("more than a screen", false, {0, 0, 7680, 4321});
    add("two of half a screen", true, [](Paint &paint) {
        paint.zones = {{0, 0, 3840, 4320}, {3840, 0, 3840, 4320}};
    });
    add("two of more than half a screen", false, [](Paint &paint) {
        paint.zones = {{0, 0, 3841, 4320}, {3841, 0, 3841, 4320}};
    });
    add("more than a finer screen", false, [](Paint &paint) {
        paint.zones = {{0, 0, 3841, 2160}};
        paint.toDevice = QTransform::fromScale(2.0, 2.0);
    });
}

void TestLayerKeeper::onlyWhatPaysIsKept()
{
    QFETCH(const Change, change);
    Paint paint = paintInWindow();
    change(paint);
    QTEST(LayerKeeper::isWorthKeeping(paint), "isKept");
}

void TestLayerKeeper::deviceIsToldByThePainter_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("32 bits") << QImage::Format_RGB32;
    QTest::newRow("16 bits") << QImage::Format_RGB16;
    QTest::newRow("premultiplied") << QImage::Format_ARGB32_Premultiplied;
}

void TestLayerKeeper::deviceIsToldByThePainter()
{
    QFETCH(const QImage::Format, format);
    QImage image(kSize, format);
    image.setDevicePixelRatio(2.0);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.translate(3.0, 4.0);

    Paint paint;
    paint.setDevice(painter);
    QCOMPARE(paint.format, format);
    QCOMPARE(paint.mode, QPainter::CompositionMode_Plus);
    QCOMPARE(paint.toDevice, QTransform(2.0, 0.0, 0.0, 2.0, 6.0, 8.0));
}

void TestLayerKeeper::layerIsMadeAtTheSecondPaint()
{
    LayerKeeper keeper;
    QList<qsizetype> drawn;
    const ImageLayer::DrawPicture draw = [&drawn](QPainter &, qsizetype zone) {
        drawn.append(zone);
    };

    QVERIFY(!keeper.layerFor(paintInWindow(), draw));
    QVERIFY(!keeper.hasLayer());
    const std::shared_ptr<const ImageLayer> second = keeper.layerFor(paintInWindow(), draw);
    QVERIFY(second);
    QVERIFY(keeper.hasLayer());
    QCOMPARE(drawn, (QList<qsizetype>{0, 1}));
    QCOMPARE(keeper.layerFor(paintInWindow(), draw), second);
    QCOMPARE(drawn.size(), qsizetype(2));
}

void TestLayerKeeper::paintOfASmallPartIsNoFirstPaint()
{
    LayerKeeper keeper;
    Paint part = paintInWindow();
    part.isOfMost = false;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(painted(keeper, part).expired());
    }
    QVERIFY(painted(keeper).expired());
    QVERIFY(!painted(keeper).expired());
}

void TestLayerKeeper::paintOfASmallPartMayUseTheLayer()
{
    LayerKeeper keeper;
    Paint part = paintInWindow();
    part.isOfMost = false;
    QVERIFY(painted(keeper).expired());
    QVERIFY(!painted(keeper, part).expired());
}

void TestLayerKeeper::anotherStateLetsTheLayerGo_data()
{
    QTest::addColumn<ContentChange>("change");
    const auto add = [](const char *name, const ContentChange &change) {
        QTest::newRow(name) << change;
    };
    add("scale", [](LayerKeeper::Content &content) { content.scale = 3.0; });
    add("position", [](LayerKeeper::Content &content) { content.position.ry() = 1e-9; });
    add("size", [](LayerKeeper::Content &content) { content.viewerSize.rwidth() += 1; });
    add("no size", [](LayerKeeper::Content &content) { content.viewerSize = {0, 0}; });
    add("picture", [](LayerKeeper::Content &content) { content.pictures[1] = filled(Qt::red); });
    add("fewer pictures", [](LayerKeeper::Content &content) { content.pictures.removeLast(); });
    add("no pictures", [](LayerKeeper::Content &content) { content.pictures.clear(); });
}

void TestLayerKeeper::anotherStateLetsTheLayerGo()
{
    QFETCH(const ContentChange, change);
    Paint other = paintInWindow();
    change(other.content);

    LayerKeeper told;
    painted(told);
    std::weak_ptr<const ImageLayer> layer = painted(told);
    told.keepOnlyFor(paintInWindow().content);
    QVERIFY(!layer.expired());
    told.keepOnlyFor(other.content);
    QVERIFY(layer.expired());

    LayerKeeper paintedOther;
    painted(paintedOther);
    layer = painted(paintedOther);
    QVERIFY(painted(paintedOther, other).expired());
    QVERIFY(layer.expired());
}

void TestLayerKeeper::paintWithoutUseForTheLayerLetsItGo()
{
    const Change changes[] = {
        [](Paint &paint) { paint.isVisible = false; },
        [](Paint &paint) { paint.zones.clear(); },
        [](Paint &paint) { paint.format = QImage::Format_RGB16; },
        [](Paint &paint) { paint.content.scale = 1.0; },
        [](Paint &paint) { paint.toDevice.rotate(90.0); },
    };
    for (const Change &change : changes) {
        LayerKeeper keeper;
        painted(keeper);
        const std::weak_ptr<const ImageLayer> layer = painted(keeper);
        QVERIFY(!layer.expired());
        Paint other = paintInWindow();
        change(other);
        QVERIFY(painted(keeper, other).expired());
        QVERIFY(layer.expired());
        QVERIFY(!keeper.hasLayer());
    }
}

void TestLayerKeeper::whatIsLeftWithoutALayerIsForgotten()
{
    LayerKeeper keeper;
    painted(keeper);
    QVERIFY(!painted(keeper).expired());
    keeper.clear();
    QVERIFY(!keeper.hasLayer());
    QVERIFY(painted(keeper).expired());
    QVERIFY(!painted(keeper).expired());
}

int main(int argc, char **argv)
{
    return runTest<TestLayerKeeper>(argc, argv);
}

#include "tst_LayerKeeper.moc"
