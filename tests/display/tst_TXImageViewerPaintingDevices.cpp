#include "PlainViewer.h"

#include <QGraphicsEffect>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QImage>

#include <functional>

using ImagePainting::OpenViewer;
using ImagePainting::PlainViewer;

// A viewer may be painted by others than its window, with their painter.
class TestTXImageViewerPaintingDevices : public TestBase
{
    Q_OBJECT

private slots:
    void everyWayOfPaintingLooksAsDrawnAnew_data();
    void everyWayOfPaintingLooksAsDrawnAnew();
    void effectIsGivenWhatIsDrawnAnew();
};

namespace {

constexpr QSize kSize(120, 90);
constexpr quint32 kSeed = 20240609;

void setUp(TXImageViewer &viewer)
{
    QRandomGenerator random(kSeed);
    viewer.resize(kSize);
    viewer.setPixmaps({ImagePainting::noise({100, 100}, false, random),
                       ImagePainting::noise({100, 100}, true, random),
                       ImagePainting::noise({40, 70}, true, random)});
    viewer.scale(0.6, TXImageViewer::Absolute);
}

/// Some paints of a widget, one after the other.
using Paints = std::function<QList<QImage>(QWidget &)>;
using Paint = std::function<void(QImage &)>;

QList<QImage> threeTimes(const Paint &paint, QImage::Format format = QImage::Format_RGB32,
                         double ratio = 1.0)
{
    QList<QImage> images;
    for (int i = 0; i < 3; ++i) {
        QImage image(QSize(200, 200) * ratio, format);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        paint(image);
        images.append(image);
    }
    return images;
}

/// Painted by a painter that the host has set up.
Paints byPainter(const std::function<void(QPainter &)> &prepare)
{
    return [prepare](QWidget &widget) {
        return threeTimes([&](QImage &image) {
            QPainter painter(&image);
            prepare(painter);
            widget.render(&painter);
        });
    };
}

Paints onImage(QImage::Format format, double ratio)
{
    return [format, ratio](QWidget &widget) {
        const auto paint = [&widget](QImage &image) {
            widget.render(&image);
        };
        return threeTimes(paint, format, ratio);
    };
}

Paints inScene(double ratio)
{
    return [ratio](QWidget &widget) {
        QGraphicsScene scene;
        QGraphicsProxyWidget *proxy = scene.addWidget(&widget);
        const auto paint = [&scene](QImage &image) {
            QPainter painter(&image);
            scene.render(&painter, QRectF(10.0, 20.0, 100.0, 100.0), QRectF(0, 0, 100.0, 100.0));
        };
        const QList<QImage> images = threeTimes(paint, QImage::Format_RGB32, ratio);
        proxy->setWidget(nullptr);
        return images;
    };
}

/// Shows what it is given.
class PlainEffect : public QGraphicsEffect
{
public:
    using QGraphicsEffect::QGraphicsEffect;

protected:
    void draw(QPainter *painter) override
    {
        QPoint offset;
        const QPixmap pixmap = sourcePixmap(Qt::LogicalCoordinates, &offset);
        painter->drawPixmap(offset, pixmap);
    }
};

QList<QImage> throughAnEffect(QWidget &widget)
{
    return threeTimes([&widget](QImage &image) {
        // An effect asks the widget to paint but once.
        widget.setGraphicsEffect(new PlainEffect(&widget));
        widget.render(&image);
    });
}

} // namespace

void TestTXImageViewerPaintingDevices::everyWayOfPaintingLooksAsDrawnAnew_data()
{
    QTest::addColumn<Paints>("paints");
    QTest::addColumn<bool>("isKept");
    const auto add = [](const char *name, bool isKept, const Paints &paints) {
        QTest::newRow(name) << paints << isKept;
    };
    const auto addPainter = [&add](const char *name, bool isKept,
                                   const std::function<void(QPainter &)> &prepare) {
        add(name, isKept, byPainter(prepare));
    };
    add("32 bits", true, onImage(QImage::Format_RGB32, 1.0));
    add("32 bits at 1.5", true, onImage(QImage::Format_RGB32, 1.5));
    add("premultiplied at 2", true, onImage(QImage::Format_ARGB32_Premultiplied, 2.0));
    add("16 bits", false, onImage(QImage::Format_RGB16, 1.0));
    add("not premultiplied", false, onImage(QImage::Format_ARGB32, 1.0));
    add("graphics scene", true, inScene(1.0));
    add("graphics scene at 2", true, inScene(2.0));

    addPainter("painter", true, [](QPainter &) {});
    addPainter("moved painter", true, [](QPainter &painter) { painter.translate(10.5, 20.25); });
    addPainter("scaled painter", true, [](QPainter &painter) { painter.scale(1.25, 1.5); });
    addPainter("turned painter", false, [](QPainter &painter) {
        painter.translate(150.0, 10.0);
        painter.rotate(30.0);
    });
    addPainter("mirrored painter", false, [](QPainter &painter) {
        painter.translate(150.0, 0.0);
        painter.scale(-1.0, 1.0);
    });
    addPainter("clipped painter", true,
               [](QPainter &painter) { painter.setClipRect(20, 30, 50, 40); });
    addPainter("other composition", false, [](QPainter &painter) {
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    });
    addPainter("faint painter", true, [](QPainter &painter) { painter.setOpacity(0.5); });
}

void TestTXImageViewerPaintingDevices::everyWayOfPaintingLooksAsDrawnAnew()
{
    QFETCH(const Paints, paints);
    OpenViewer viewer;
    setUp(viewer);
    PlainViewer plain(viewer);
    viewer.show();
    plain.show();

    const QList<QImage> wanted = paints(plain);
    QCOMPARE(paints(viewer), wanted);
    QTEST(viewer.hasLayer(), "isKept");
}

void TestTXImageViewerPaintingDevices::effectIsGivenWhatIsDrawnAnew()
{
    OpenViewer viewer;
    setUp(viewer);
    PlainViewer plain(viewer);
    viewer.show();
    plain.show();
    const QList<QImage> wanted = throughAnEffect(plain);
    QCOMPARE(throughAnEffect(viewer), wanted);
    QVERIFY(ImagePainting::painted(viewer) == ImagePainting::painted(plain));
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerPaintingDevices>(argc, argv);
}

#include "tst_TXImageViewerPaintingDevices.moc"
