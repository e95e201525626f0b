#include "ReportShadowEffect.h"

#include "PdfFile.h"
#include "PixelProbe.h"
#include "ReportPdfTest.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"

#include <QBuffer>
#include <QColor>
#include <QDebug>
#include <QFile>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsItem>
#include <QIODevice>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPen>
#include <QPicture>
#include <QTemporaryDir>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const QRectF kPaper(0, 0, 360, 252);
constexpr double kPointsPerInch = 72.0;

void drawScene(TXGraphicsScene &scene, const QString &what)
{
    const QPen pen(Qt::black, 1.0);
    const QRectF box(80, 70, 120, 80);
    if (what == "rectangle") {
        scene.drawRect(box, pen, Qt::yellow, true);
    } else if (what == "rounded") {
        scene.drawRoundedRect(box, 20, 20, pen, Qt::cyan, true);
    } else if (what == "ellipse") {
        scene.drawEllipse(box, pen, Qt::white, true);
    } else if (what == "unfilled") {
        scene.drawRect(box, QPen(Qt::darkRed, 6.0), Qt::NoBrush, true);
    } else if (what == "line") {
        scene.drawLine(QPointF(60, 60), QPointF(280, 180), QPen(Qt::blue, 8.0), true);
    } else if (what == "level line") {
        scene.drawLine(QPointF(60, 100), QPointF(280, 100), QPen(Qt::blue, 6.0), true);
    } else if (what == "text") {
        scene.drawText("Shadowed words", QPointF(70, 90), reportTestFont(24), Qt::black);
        scene.addShadowEffectInGraphicsItem(scene.items().first());
    } else if (what == "transformed") {
        scene.drawRect(QRectF(0, 0, 40, 30), QPen(Qt::black, 0.5), Qt::green, true);
        scene.items().first()->setTransform(
            QTransform().translate(180, 60).rotate(30).scale(2.5, 2));
    } else if (what == "group") {
        QGraphicsItemGroup *group = scene.createItemGroup({});
        group->addToGroup(scene.addRect(box, pen, Qt::white));
        group->addToGroup(scene.addEllipse(box.translated(60, 40), pen, Qt::red));
        scene.addShadowEffectInGraphicsItem(group);
    } else if (what == "nested") {
        QGraphicsItemGroup *group = scene.createItemGroup({});
        scene.drawRect(box, pen, Qt::white, true);
        group->addToGroup(scene.items().first());
        group->addToGroup(scene.addEllipse(box.translated(60, 40), pen, Qt::red));
        scene.addShadowEffectInGraphicsItem(group);
    } else if (what == "translucent") {
        scene.drawRect(box, pen, QColor(255, 0, 0, 100), true);
    } else if (what == "over the edge") {
        scene.drawRect(QRectF(-5000, 120, 5100, 4000), pen, Qt::yellow, true);
    }
}

void render(TXGraphicsScene &scene, QPainter *painter)
{
    scene.render(painter, kPaper, kPaper);
}

QImage onPixels(TXGraphicsScene &scene)
{
    QImage image(kPaper.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    render(scene, &painter);
    return image;
}

void setUpPaper(QPdfWriter &writer, int resolution)
{
    writer.setPageSize(QPageSize(kPaper.size(), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(resolution);
}

/// One page for each scene.
void writePdf(const QList<TXGraphicsScene *> &scenes, const QString &fileName, int resolution = 300)
{
    QPdfWriter writer(fileName);
    setUpPaper(writer, resolution);
    QPainter painter(&writer);
    painter.scale(resolution / kPointsPerInch, resolution / kPointsPerInch);
    for (TXGraphicsScene *scene : scenes) {
        if (scene != scenes.first()) {
            writer.newPage();
        }
        render(*scene, &painter);
    }
}

qint64 pixelCount(const PdfFile::Picture &picture)
{
    return qint64(picture.pixels.width()) * picture.pixels.height();
}

QImage pixelsOfPdf(const QString &fileName)
{
    return PdfFile(fileName).rendered(1, kPointsPerInch).convertToFormat(QImage::Format_RGB32);
}

struct Difference
{
    double mean = 0.0;
    /// Of pixels that are clearly different, which edges may be.
    double clearShare = 0.0;
};

Difference differenceOf(const QImage &one, const QImage &other)
{
    constexpr int kClear = 16;
    qint64 sum = 0;
    qint64 clear = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor first(one.pixel(x, y));
            const QColor second(other.pixel(x, y));
            const int difference = std::max({std::abs(first.red() - second.red()),
                                             std::abs(first.green() - second.green()),
                                             std::abs(first.blue() - second.blue())});
            sum += difference;
            clear += difference > kClear ? 1 : 0;
        }
    }
    const double pixels = double(one.width()) * one.height();
    return {double(sum) / pixels, double(clear) / pixels};
}

/// How much of the difference that the lack of the shadow would make may be left: edges are
/// smoothed in another way by poppler than by Qt, and the shadow's picture is half as fine as
/// the screen. Found are shares from 0.15 (level line) to 0.28 (text).
constexpr double kMeanShareOfShadow = 0.4;

/// The share of pixels along edges that are smoothed in another way. Found are 0.011 at most, where
/// two outlines cross in a group. Shadows are too faint to count here: without one it is 0.001
/// (text) to 0.065.
constexpr double kClearShareOfEdges = 0.015;

/// As the first for a strong, red and shifted shadow, in grey levels: found are 0.55, 12.7 without
/// a shadow, and 12.4 with the one that the effect has before its settings are changed.
constexpr double kMeanOfStrongShadow = 1.5;

/// In grey levels, for a shadow's picture that falls on other pixels of the paper's own grid. Found
/// are 0.11; a shadow on one of the papers alone makes some 2.
constexpr double kMeanOfPictureGrid = 0.2;

/// The paper with all that stands on the scene but the shadows, which the scene has no more after.
QImage paperWithoutShadows(TXGraphicsScene &scene)
{
    for (QGraphicsItem *item : scene.items()) {
        item->setGraphicsEffect(nullptr);
    }
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("plain.pdf");
    writePdf({&scene}, fileName);
    return pixelsOfPdf(fileName);
}

void addKinds()
{
    QTest::addColumn<QString>("what");
    for (const char *what :
         {"rectangle", "rounded", "ellipse", "unfilled", "line", "level line", "text",
          "transformed", "group", "nested", "translucent", "over the edge"}) {
        QTest::newRow(what) << what;
    }
}

/// Writes down what the painter is set to when it comes to this item. The scene itself puts back
/// what it changes when all is painted, and so cannot show what an effect leaves behind.
class PainterWitness : public QGraphicsItem
{
public:
    QRectF boundingRect() const override { return kPaper; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/,
               QWidget * /*widget*/) override
    {
        QDebug(&seen) << painter->worldTransform() << painter->renderHints() << painter->pen()
                      << painter->brush() << painter->opacity() << painter->hasClipping()
                      << int(painter->compositionMode());
    }

    QString seen;
};

PainterWitness *addWitness(QGraphicsScene &scene)
{
    auto witness = std::make_unique<PainterWitness>();
    scene.addItem(witness.get());
    return witness.release();
}

void replaceByQtsEffect(QGraphicsItem *item)
{
    auto effect = std::make_unique<QGraphicsDropShadowEffect>();
    effect->setColor(QColor(80, 80, 80, 100));
    effect->setOffset(0, 0);
    effect->setBlurRadius(40.0);
    item->setGraphicsEffect(effect.release());
}

} // namespace

class TestReportShadowEffect : public ReportPdfTest
{
    Q_OBJECT

private slots:
    void onPixelsItIsQtsDropShadow_data() { addKinds(); }
    void onPixelsItIsQtsDropShadow();
    void onPaperItLooksAsOnTheScreen_data() { addKinds(); }
    void onPaperItLooksAsOnTheScreen();
    void onPaperOnlyTheShadowIsAPicture_data() { addKinds(); }
    void onPaperOnlyTheShadowIsAPicture();
    void doesNotDependOnTheResolutionOfThePaper();
    void shadowedTextStaysTextWithItsFont();
    void equalItemsShareOnePicture();
    void followsTheEffectsSettings();
    void senselessItemsCostNothing_data();
    void senselessItemsCostNothing();
    void shadowOfAHugeItemIsSeenBesideIt_data();
    void shadowOfAHugeItemIsSeenBesideIt();
    void recordingKeepsTheItemAsItIs();
    void whatFollowsFindsThePainterAsItWas();
};

void TestReportShadowEffect::onPixelsItIsQtsDropShadow()
{
    QFETCH(QString, what);
    TXGraphicsScene ours;
    drawScene(ours, what);
    TXGraphicsScene theirs;
    drawScene(theirs, what);
    int replaced = 0;
    for (QGraphicsItem *item : theirs.items()) {
        if (item->graphicsEffect() != nullptr) {
            replaceByQtsEffect(item);
            ++replaced;
        }
    }
    QVERIFY(replaced > 0);
    QCOMPARE(onPixels(ours), onPixels(theirs));
}

void TestReportShadowEffect::onPaperItLooksAsOnTheScreen()
{
    QFETCH(QString, what);
    TXGraphicsScene scene;
    drawScene(scene, what);
    writePdf({&scene}, fileName());
    const QImage paper = pixelsOfPdf(fileName());
    const QImage screen = onPixels(scene);
    QCOMPARE(paper.size(), screen.size());
    const Difference difference = differenceOf(paper, screen);
    const Difference withoutShadow = differenceOf(paperWithoutShadows(scene), screen);
    QVERIFY2(difference.mean < kMeanShareOfShadow * withoutShadow.mean,
             qPrintable(QStringLiteral("%1, without a shadow %2")
                            .arg(difference.mean)
                            .arg(withoutShadow.mean)));
    QVERIFY2(difference.clearShare < kClearShareOfEdges,
             qPrintable(QString::number(difference.clearShare)));
}

void TestReportShadowEffect::onPaperOnlyTheShadowIsAPicture()
{
    QFETCH(QString, what);
    TXGraphicsScene scene;
    drawScene(scene, what);
    writePdf({&scene}, fileName());
    // Each picture comes with a mask of its size.
    PdfFile pdf(fileName());
    const QList<PdfFile::Picture> pictures = pdf.pictures();
    QCOMPARE(pdf.errorText(), QString());
    QCOMPARE(pictures.size(), what == "nested" ? 4 : 2);
    for (const PdfFile::Picture &picture : pictures) {
        QVERIFY2(pixelCount(picture) <= 100'000, qPrintable(QString::number(pixelCount(picture))));
    }
    const qint64 bytes = QFile(fileName()).size();
    QVERIFY2(bytes < 30'000, qPrintable(QString::number(bytes)));
}

void TestReportShadowEffect::doesNotDependOnTheResolutionOfThePaper()
{
    TXGraphicsScene scene;
    scene.drawRect(QRectF(80, 70, 120, 80), Qt::NoPen, Qt::yellow, true);
    writePdf({&scene}, fileName("coarse.pdf"), 72);
    writePdf({&scene}, fileName("fine.pdf"), 1200);
    const Difference difference =
        differenceOf(pixelsOfPdf(fileName("coarse.pdf")), pixelsOfPdf(fileName("fine.pdf")));
    QVERIFY2(difference.mean < kMeanOfPictureGrid, qPrintable(QString::number(difference.mean)));
    const qint64 coarse = QFile(fileName("coarse.pdf")).size();
    const qint64 fine = QFile(fileName("fine.pdf")).size();
    QVERIFY2(fine < coarse + 1000, qPrintable(QString::number(fine - coarse)));
}

void TestReportShadowEffect::shadowedTextStaysTextWithItsFont()
{
    TXGraphicsScene scene;
    drawScene(scene, "text");
    writePdf({&scene}, fileName());
    PdfFile pdf(fileName());
    QCOMPARE(pdf.pageTexts().value(0).trimmed(), QString("Shadowed words"));
    const QList<PdfFile::Font> fonts = pdf.fonts();
    QCOMPARE(fonts.size(), 1);
    QVERIFY2(fonts[0].name.contains("DejaVuSans"), qPrintable(fonts[0].name));
    QVERIFY(fonts[0].isEmbedded);
}

void TestReportShadowEffect::equalItemsShareOnePicture()
{
    TXGraphicsScene first;
    first.drawRect(QRectF(50, 50, 100, 60), QPen(Qt::black), Qt::yellow, true);
    TXGraphicsScene second;
    second.drawRect(QRectF(150.3, 120.8, 100, 60), QPen(Qt::black), Qt::yellow, true);
    TXGraphicsScene other;
    other.drawRect(QRectF(50, 50, 110, 60), QPen(Qt::black), Qt::yellow, true);
    writePdf({&first, &second, &other}, fileName());
    const QList<PdfFile::Picture> pictures = PdfFile(fileName()).pictures();
    QCOMPARE(pictures.size(), 6);
    QCOMPARE(pictures.at(2).object, pictures.at(0).object);
    QVERIFY(pictures.at(4).object != pictures.at(0).object);
}

void TestReportShadowEffect::followsTheEffectsSettings()
{
    TXGraphicsScene scene;
    drawScene(scene, "rectangle");
    auto *effect =
        qobject_cast<QGraphicsDropShadowEffect *>(scene.items().first()->graphicsEffect());
    QVERIFY(effect != nullptr);
    effect->setColor(QColor(200, 0, 0, 255));
    effect->setOffset(30, 20);
    effect->setBlurRadius(10);
    writePdf({&scene}, fileName());
    const Difference difference = differenceOf(pixelsOfPdf(fileName()), onPixels(scene));
    QVERIFY2(difference.mean < kMeanOfStrongShadow, qPrintable(QString::number(difference.mean)));
    effect->setEnabled(false);
    writePdf({&scene}, fileName());
    PdfFile pdf(fileName());
    QCOMPARE(pdf.pictures().size(), 0);
    QCOMPARE(pdf.errorText(), QString());
}

void TestReportShadowEffect::senselessItemsCostNothing_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("huge") << QRectF(-1e9, -1e9, 2e9, 2e9);
    QTest::newRow("beyond all numbers") << QRectF(0, 0, 1e300, 20);
    QTest::newRow("thin and long") << QRectF(0, 0, 9e7, 0.001);
    QTest::newRow("thin and too long") << QRectF(0, 0, 1e12, 0.001);
    QTest::newRow("far away") << QRectF(1e9, 1e9, 10, 10);
    QTest::newRow("no number") << QRectF(kNan, 10, 20, 20);
    QTest::newRow("width no number") << QRectF(10, 10, kNan, 20);
    QTest::newRow("infinite") << QRectF(0, 0, kInfinity, 20);
    QTest::newRow("infinitely high") << QRectF(0, 0, 20, kInfinity);
    QTest::newRow("nothing") << QRectF(10, 10, 0, 0);
    QTest::newRow("negative") << QRectF(100, 100, -40, -30);
}

void TestReportShadowEffect::senselessItemsCostNothing()
{
    QFETCH(QRectF, rect);
    TXGraphicsScene scene;
    scene.drawRect(rect, QPen(Qt::black), Qt::yellow, true);
    writePdf({&scene}, fileName());
    const qint64 bytes = QFile(fileName()).size();
    QVERIFY2(bytes > 0 && bytes < 30'000, qPrintable(QString::number(bytes)));
    PdfFile pdf(fileName());
    const QList<PdfFile::Picture> pictures = pdf.pictures();
    // Qt closes the outline of nothing, which readers remark on and pass over.
    const QString error = pdf.errorText();
    QVERIFY2(error.isEmpty() || error.contains("in closepath"), qPrintable(error));
    for (const PdfFile::Picture &picture : pictures) {
        QVERIFY2(pixelCount(picture) < 200'000, qPrintable(QString::number(pixelCount(picture))));
    }
    QPicture recording;
    QPainter painter(&recording);
    render(scene, &painter);
    painter.end();
    QVERIFY2(recording.size() < 20'000'000, qPrintable(QString::number(recording.size())));
}

void TestReportShadowEffect::shadowOfAHugeItemIsSeenBesideIt_data()
{
    QTest::addColumn<double>("width");
    QTest::newRow("just seen whole") << 200.0;
    QTest::newRow("a long way") << 1e5;
    QTest::newRow("endless") << 1e7;
}

/// Qt's own effect would work for seconds on the longer ones, and fail for want of memory.
void TestReportShadowEffect::shadowOfAHugeItemIsSeenBesideIt()
{
    QFETCH(double, width);
    TXGraphicsScene scene;
    scene.drawRect(QRectF(80, 70, width, 100), QPen(Qt::black, 1.0), Qt::yellow, true);
    const PixelProbe picture(onPixels(scene));
    QVERIFY(picture.isNear({170, 120}, Qt::yellow));
    const QColor above = picture.at({170, 60});
    QVERIFY2(above.lightness() > 200 && above.lightness() < 253, qPrintable(above.name()));
    QVERIFY(picture.isNear({20, 20}, Qt::white));
}

void TestReportShadowEffect::recordingKeepsTheItemAsItIs()
{
    TXGraphicsScene scene;
    drawScene(scene, "text");
    QPicture recording;
    QPainter recorder(&recording);
    render(scene, &recorder);
    recorder.end();

    {
        QPdfWriter writer(fileName());
        setUpPaper(writer, 72);
        QPainter painter(&writer);
        painter.drawPicture(0, 0, recording);
    }
    PdfFile pdf(fileName());
    QCOMPARE(pdf.pageTexts().value(0).trimmed(), QString("Shadowed words"));
    QCOMPARE(pdf.pictures().size(), 2);
}

void TestReportShadowEffect::whatFollowsFindsThePainterAsItWas()
{
    TXGraphicsScene scene;
    const PainterWitness *before = addWitness(scene);
    drawScene(scene, "rectangle");
    const PainterWitness *after = addWitness(scene);
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QPdfWriter writer(&buffer);
    setUpPaper(writer, 300);
    QPainter painter(&writer);
    painter.scale(2.0, 3.0);

    render(scene, &painter);

    QVERIFY(!before->seen.isEmpty());
    QCOMPARE(after->seen, before->seen);
}

int main(int argc, char **argv)
{
    return runTest<TestReportShadowEffect>(argc, argv);
}

#include "tst_ReportShadowEffect.moc"
