#include "ReportPageScene.h"

#include "PdfPicture.h"
#include "TXTable.h"
#include "TestBase.h"

#include <QFont>
#include <QGraphicsColorizeEffect>
#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>
#include <functional>

using PdfPicture::kPaper;

namespace {

using Draw = std::function<void(TXGraphicsScene *)>;

QFont reportFont()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(11);
    return font;
}

/// Leaves the painter in disorder, and paints with what it finds there.
class UntidyItem : public QGraphicsRectItem
{
public:
    using QGraphicsRectItem::QGraphicsRectItem;

    void paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/,
               QWidget * /*widget*/) override
    {
        painter->drawRect(rect());
        painter->setPen(QPen(Qt::red, 7));
        painter->setBrush(Qt::green);
        painter->setOpacity(0.3);
        painter->setClipRect(QRectF(0, 0, 5, 5));
        painter->setRenderHint(QPainter::Antialiasing,
                               !painter->testRenderHint(QPainter::Antialiasing));
        painter->rotate(30);
    }
};

QGraphicsRectItem *addBox(QGraphicsScene *scene, double x, const QColor &colour)
{
    return scene->addRect(QRectF(x, 20.3, 60, 40), QPen(Qt::black, 1.5), colour);
}

/// Boxes of which the middle one is special, with plain items below and above it.
Draw boxesWith(const std::function<void(QGraphicsRectItem *)> &change)
{
    return [change](TXGraphicsScene *scene) {
        addBox(scene, 10, Qt::cyan);
        change(addBox(scene, 40, Qt::yellow));
        addBox(scene, 75, Qt::magenta);
        scene->drawText("above all", QPointF(20.4, 30.6), reportFont(), Qt::blue);
        scene->drawLine(QPointF(5, 5), QPointF(150, 90), QPen(Qt::darkRed, 2), false);
    };
}

QPen randomPen(QRandomGenerator &random)
{
    QPen pen(QColor::fromRgba(random.generate()), random.bounded(4.0));
    pen.setStyle(Qt::PenStyle(random.bounded(4)));
    return pen;
}

QBrush randomBrush(QRandomGenerator &random)
{
    return {QColor::fromRgba(random.generate()), Qt::BrushStyle(random.bounded(8))};
}

void drawAnything(TXGraphicsScene *scene, QRandomGenerator &random)
{
    static const QStringList kTexts{"Patch A1", "two\nlines", "a\tb", "שלום abc", "𝄞 clef", ""};
    const QRectF rect(random.bounded(300.0), random.bounded(200.0), random.bounded(100.0),
                      random.bounded(60.0));
    const bool hasShadow = random.bounded(25) == 0;
    switch (random.bounded(5)) {
    case 0:
        scene->drawRect(rect, randomPen(random), randomBrush(random), hasShadow);
        break;
    case 1:
        scene->drawEllipse(rect, randomPen(random), randomBrush(random), hasShadow);
        break;
    case 2:
        scene->drawRoundedRect(rect, 5, 8, randomPen(random), randomBrush(random), hasShadow);
        break;
    case 3:
        scene->drawLine(rect.topLeft(), rect.bottomRight(), randomPen(random), hasShadow);
        break;
    default:
        scene->drawText(kTexts.at(int(random.bounded(kTexts.size()))), rect.topLeft(), reportFont(),
                        randomBrush(random));
    }
}

void changeAnything(QGraphicsItem *item, QRandomGenerator &random)
{
    switch (random.bounded(40)) {
    case 0:
        item->setRotation(20);
        break;
    case 1:
        item->setOpacity(0.4);
        break;
    case 2:
        item->setZValue(-1);
        break;
    case 3:
        item->setFlag(QGraphicsItem::ItemIgnoresTransformations);
        break;
    case 4:
        item->setCacheMode(QGraphicsItem::ItemCoordinateCache);
        break;
    case 5:
        item->hide();
        break;
    case 6:
        item->setTransform(QTransform().shear(0.2, 0.1).scale(1.3, 0.8));
        break;
    default:
        break;
    }
}

/// The item that is not among those of before; a scene without an index does not sort its items.
QGraphicsItem *newItem(const QGraphicsScene &scene, const QList<QGraphicsItem *> &before)
{
    const QList<QGraphicsItem *> items = scene.items();
    return *std::find_if(items.cbegin(), items.cend(),
                         [&](QGraphicsItem *item) { return !before.contains(item); });
}

Draw anything(quint32 seed)
{
    return [seed](TXGraphicsScene *scene) {
        QRandomGenerator random(seed);
        for (int i = 0; i < 40; ++i) {
            const QList<QGraphicsItem *> before = scene->items();
            drawAnything(scene, random);
            changeAnything(newItem(*scene, before), random);
        }
    };
}

TXTable table()
{
    TXTable result(4, true);
    TXTable::initHeaderOfTableWithTitles(result, {"No.", "Patch", "L*", "a*"}, true, 20.0F);
    for (int i = 0; i < 24; ++i) {
        result.addCell({{"CellElement", i * 1.37}, {"CellSize", QSizeF(40.5, 17.25)}});
    }
    return result;
}

void addPages()
{
    QTest::addColumn<Draw>("draw");

    const auto boxes = [](const char *name,
                          const std::function<void(QGraphicsRectItem *)> &change) {
        QTest::newRow(name) << boxesWith(change);
    };
    QTest::newRow("nothing") << Draw([](TXGraphicsScene *) {});
    QTest::newRow("table") << Draw([](TXGraphicsScene *scene) {
        scene->drawTable(table(), QPointF(12.3, 9.7), reportFont());
    });
    boxes("plain", [](QGraphicsRectItem *) {});
    boxes("moved", [](QGraphicsRectItem *box) { box->setPos(-12.4, 8.8); });
    boxes("turned", [](QGraphicsRectItem *box) { box->setRotation(17); });
    boxes("effect", [](QGraphicsRectItem *box) {
        box->setGraphicsEffect(new QGraphicsColorizeEffect(box->scene()));
    });
    boxes("half transparent", [](QGraphicsRectItem *box) { box->setOpacity(0.5); });
    boxes("clipped", [](QGraphicsRectItem *box) {
        box->setFlag(QGraphicsItem::ItemClipsToShape);
        box->setPen(QPen(Qt::black, 20));
    });
    boxes("selected", [](QGraphicsRectItem *box) {
        box->setFlag(QGraphicsItem::ItemIsSelectable);
        box->setSelected(true);
    });
    boxes("kept in pixels",
          [](QGraphicsRectItem *box) { box->setCacheMode(QGraphicsItem::DeviceCoordinateCache); });
    boxes("child", [](QGraphicsRectItem *box) {
        auto *child = new QGraphicsRectItem(QRectF(70, 30, 40, 50), box);
        child->setFlag(QGraphicsItem::ItemStacksBehindParent);
    });
    boxes("untidy", [](QGraphicsRectItem *box) {
        box->scene()->addItem(new UntidyItem(QRectF(30, 10, 50, 70)));
    });
    boxes("none to see", [](QGraphicsRectItem *box) { box->hide(); });
}

/// How a painter may be set up.
struct Look
{
    bool isSmooth;
    double scale;
};

QImage imageOf(TXGraphicsScene &scene, const Look &look)
{
    QImage image((kPaper.size() * look.scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, look.isSmooth);
    painter.scale(look.scale, look.scale);
    scene.render(&painter, kPaper, kPaper.translated(-7.5, -3.25));
    return image;
}

bool areAlike(const Draw &draw)
{
    ReportPageScene::Pictures pictures;
    ReportPageScene page(&pictures);
    TXGraphicsScene plain;
    draw(&page);
    draw(&plain);
    const QList<Look> looks{{true, 1.0}, {false, 1.37}, {true, 200.0 / 72.0}};
    return std::all_of(looks.cbegin(), looks.cend(), [&](const Look &look) {
        return imageOf(page, look) == imageOf(plain, look);
    });
}

} // namespace

Q_DECLARE_METATYPE(Draw)

class TestReportPageScene : public TestBase
{
    Q_OBJECT

private slots:
    void looksLikeAnyScene_data() { addPages(); }
    void looksLikeAnyScene();
    void looksLikeAnySceneWhateverIsDrawn();
    void looksLikeAnySceneInAPdf_data() { addPages(); }
    void looksLikeAnySceneInAPdf();
    void leavesThePaintersState();
    void rendersItemsAddedAfterARendering();
    void laterPagesGoOnWithThePicturesOfEarlierOnes();
    void tooManyPicturesAreNotHandedOn();
};

void TestReportPageScene::looksLikeAnyScene()
{
    QFETCH(Draw, draw);
    QVERIFY(areAlike(draw));
}

void TestReportPageScene::looksLikeAnySceneWhateverIsDrawn()
{
    constexpr quint32 kPages = 60;
    for (quint32 seed = 1; seed <= kPages; ++seed) {
        QVERIFY2(areAlike(anything(seed)), qPrintable(QString::number(seed)));
    }
}

void TestReportPageScene::looksLikeAnySceneInAPdf()
{
    QFETCH(Draw, draw);
    ReportPageScene::Pictures pictures;
    ReportPageScene page(&pictures);
    TXGraphicsScene plain;
    draw(&page);
    draw(&plain);
    const QImage ours =
        PdfPicture::of([&](QPainter *painter) { page.render(painter, kPaper, kPaper); });
    const QImage expected =
        PdfPicture::of([&](QPainter *painter) { plain.render(painter, kPaper, kPaper); });
    QVERIFY(!ours.isNull());
    QCOMPARE(ours, expected);
}

void TestReportPageScene::leavesThePaintersState()
{
    ReportPageScene::Pictures pictures;
    ReportPageScene scene(&pictures);
    boxesWith([](QGraphicsRectItem *) {})(&scene);
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(1.5, 2.0);
    painter.setPen(QPen(Qt::green, 3.0));
    painter.setBrush(Qt::cyan);
    const QTransform transform = painter.transform();
    scene.render(&painter, QRectF(0, 0, 50, 50), QRectF(0, 0, 100, 100));
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.pen(), QPen(Qt::green, 3.0));
    QCOMPARE(painter.brush(), QBrush(Qt::cyan));
}

void TestReportPageScene::rendersItemsAddedAfterARendering()
{
    const Draw twice = [](TXGraphicsScene *scene) {
        addBox(scene, 10, Qt::cyan);
        (void)imageOf(*scene, {true, 1.0});
        addBox(scene, 40, Qt::yellow);
    };
    QVERIFY(areAlike(twice));
}

void TestReportPageScene::laterPagesGoOnWithThePicturesOfEarlierOnes()
{
    QPixmap logo(40, 40);
    logo.fill(Qt::red);
    ReportPageScene::Pictures pictures;
    qint64 first = 0;
    {
        ReportPageScene page(&pictures);
        first = page.scaleToFitResolution(logo, QSize(30, 30), 200).cacheKey();
        QVERIFY(pictures.isEmpty());
    }
    ReportPageScene page(&pictures);
    QCOMPARE(page.scaleToFitResolution(logo, QSize(30, 30), 200).cacheKey(), first);
}

void TestReportPageScene::tooManyPicturesAreNotHandedOn()
{
    QPixmap picture(4, 4);
    picture.fill(Qt::red);
    ReportPageScene::Pictures pictures;
    {
        ReportPageScene page(&pictures);
        // 4,167 pixels each way with 4 bytes each: 69 MB.
        QCOMPARE(page.scaleToFitResolution(picture, QSize(1500, 1500), 200).width(), 4167);
    }
    QVERIFY(pictures.isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPageScene>(argc, argv);
}

#include "tst_ReportPageScene.moc"
