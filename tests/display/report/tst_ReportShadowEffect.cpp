#include "ReportShadowEffect.h"

#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TestBase.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QFont>
#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const QRectF kPaper(0, 0, 360, 252);
constexpr double kPointsPerInch = 72.0;

QFont textFont()
{
    QFont font("DejaVu Sans");
    font.setPixelSize(24);
    return font;
}

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
        scene.drawText("Shadowed words", QPointF(70, 90), textFont(), Qt::black);
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

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0
        || process.exitStatus() != QProcess::NormalExit) {
        return "failed: " + process.errorString().toUtf8() + process.readAllStandardError();
    }
    return process.readAllStandardOutput();
}

QImage pixelsOfPdf(const QString &fileName)
{
    return QImage::fromData(outputOf("pdftoppm", {"-r", "72", "-png", fileName}), "PNG")
        .convertToFormat(QImage::Format_RGB32);
}

struct Picture
{
    QString type;
    qint64 pixels = 0;
    QString object;
};

QList<Picture> picturesIn(const QString &fileName)
{
    QList<Picture> pictures;
    const QString list = outputOf("pdfimages", {"-list", fileName});
    for (const QString &line : list.split('\n').mid(2)) {
        const QStringList fields = line.simplified().split(' ');
        if (fields.size() > 10) {
            pictures.append({fields.at(2), fields.at(3).toLongLong() * fields.at(4).toLongLong(),
                             fields.at(10)});
        }
    }
    return pictures;
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

void addKinds()
{
    QTest::addColumn<QString>("what");
    for (const char *what :
         {"rectangle", "rounded", "ellipse", "unfilled", "line", "level line", "text",
          "transformed", "group", "nested", "translucent", "over the edge"}) {
        QTest::newRow(what) << what;
    }
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

class tst_ReportShadowEffect : public TestBase
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
    void recordingKeepsTheItemAsItIs();
    void leavesThePaintersState();
};

void tst_ReportShadowEffect::onPixelsItIsQtsDropShadow()
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

void tst_ReportShadowEffect::onPaperItLooksAsOnTheScreen()
{
    QFETCH(QString, what);
    TXGraphicsScene scene;
    drawScene(scene, what);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("shadow.pdf");
    writePdf({&scene}, fileName);
    const QImage paper = pixelsOfPdf(fileName);
    const QImage screen = onPixels(scene);
    QCOMPARE(paper.size(), screen.size());
    const Difference difference = differenceOf(paper, screen);
    QVERIFY2(difference.mean < 0.8, qPrintable(QString::number(difference.mean)));
    QVERIFY2(difference.clearShare < 0.015, qPrintable(QString::number(difference.clearShare)));
}

void tst_ReportShadowEffect::onPaperOnlyTheShadowIsAPicture()
{
    QFETCH(QString, what);
    TXGraphicsScene scene;
    drawScene(scene, what);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("shadow.pdf");
    writePdf({&scene}, fileName);
    // Each picture comes with a mask of its size.
    const QList<Picture> pictures = picturesIn(fileName);
    QCOMPARE(pictures.size(), what == "nested" ? 4 : 2);
    for (const Picture &picture : pictures) {
        QVERIFY2(picture.pixels <= 100'000, qPrintable(QString::number(picture.pixels)));
    }
    const qint64 bytes = QFile(fileName).size();
    QVERIFY2(bytes < 30'000, qPrintable(QString::number(bytes)));
}

void tst_ReportShadowEffect::doesNotDependOnTheResolutionOfThePaper()
{
    TXGraphicsScene scene;
    scene.drawRect(QRectF(80, 70, 120, 80), Qt::NoPen, Qt::yellow, true);
    const QTemporaryDir folder;
    writePdf({&scene}, folder.filePath("coarse.pdf"), 72);
    writePdf({&scene}, folder.filePath("fine.pdf"), 1200);
    const Difference difference = differenceOf(pixelsOfPdf(folder.filePath("coarse.pdf")),
                                               pixelsOfPdf(folder.filePath("fine.pdf")));
    QVERIFY2(difference.mean < 0.2, qPrintable(QString::number(difference.mean)));
    const qint64 coarse = QFile(folder.filePath("coarse.pdf")).size();
    const qint64 fine = QFile(folder.filePath("fine.pdf")).size();
    QVERIFY2(fine < coarse + 1000, qPrintable(QString::number(fine - coarse)));
}

void tst_ReportShadowEffect::shadowedTextStaysTextWithItsFont()
{
    TXGraphicsScene scene;
    drawScene(scene, "text");
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("shadow.pdf");
    writePdf({&scene}, fileName);
    QCOMPARE(outputOf("pdftotext", {fileName, "-"}).trimmed(), QByteArray("Shadowed words"));
    const QByteArray fonts = outputOf("pdffonts", {fileName});
    QVERIFY2(fonts.contains("DejaVuSans"), fonts.constData());
}

void tst_ReportShadowEffect::equalItemsShareOnePicture()
{
    TXGraphicsScene first;
    first.drawRect(QRectF(50, 50, 100, 60), QPen(Qt::black), Qt::yellow, true);
    TXGraphicsScene second;
    second.drawRect(QRectF(150.3, 120.8, 100, 60), QPen(Qt::black), Qt::yellow, true);
    TXGraphicsScene other;
    other.drawRect(QRectF(50, 50, 110, 60), QPen(Qt::black), Qt::yellow, true);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("shadow.pdf");
    writePdf({&first, &second, &other}, fileName);
    const QList<Picture> pictures = picturesIn(fileName);
    QCOMPARE(pictures.size(), 6);
    QCOMPARE(pictures.at(2).object, pictures.at(0).object);
    QVERIFY(pictures.at(4).object != pictures.at(0).object);
}

void tst_ReportShadowEffect::followsTheEffectsSettings()
{
    TXGraphicsScene scene;
    drawScene(scene, "rectangle");
    auto *effect =
        qobject_cast<QGraphicsDropShadowEffect *>(scene.items().first()->graphicsEffect());
    QVERIFY(effect != nullptr);
    effect->setColor(QColor(200, 0, 0, 255));
    effect->setOffset(30, 20);
    effect->setBlurRadius(10);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("shadow.pdf");
    writePdf({&scene}, fileName);
    const Difference difference = differenceOf(pixelsOfPdf(fileName), onPixels(scene));
    QVERIFY2(difference.mean < 1.5, qPrintable(QString::number(difference.mean)));
    effect->setEnabled(false);
    writePdf({&scene}, fileName);
    QCOMPARE(picturesIn(fileName).size(), 0);
}

void tst_ReportShadowEffect::senselessItemsCostNothing_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("huge") << QRectF(-1e9, -1e9, 2e9, 2e9);
    QTest::newRow("far away") << QRectF(1e9, 1e9, 10, 10);
    QTest::newRow("no number") << QRectF(kNan, 10, 20, 20);
    QTest::newRow("width no number") << QRectF(10, 10, kNan, 20);
    QTest::newRow("infinite") << QRectF(0, 0, kInfinity, 20);
    QTest::newRow("infinitely high") << QRectF(0, 0, 20, kInfinity);
    QTest::newRow("nothing") << QRectF(10, 10, 0, 0);
    QTest::newRow("negative") << QRectF(100, 100, -40, -30);
}

void tst_ReportShadowEffect::senselessItemsCostNothing()
{
    QFETCH(QRectF, rect);
    TXGraphicsScene scene;
    scene.drawRect(rect, QPen(Qt::black), Qt::yellow, true);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("shadow.pdf");
    writePdf({&scene}, fileName);
    const qint64 bytes = QFile(fileName).size();
    QVERIFY2(bytes > 0 && bytes < 30'000, qPrintable(QString::number(bytes)));
    for (const Picture &picture : picturesIn(fileName)) {
        QVERIFY2(picture.pixels < 200'000, qPrintable(QString::number(picture.pixels)));
    }
    QPicture recording;
    QPainter painter(&recording);
    render(scene, &painter);
    painter.end();
    QVERIFY2(recording.size() < 20'000'000, qPrintable(QString::number(recording.size())));
}

void tst_ReportShadowEffect::recordingKeepsTheItemAsItIs()
{
    TXGraphicsScene scene;
    drawScene(scene, "text");
    QPicture recording;
    QPainter recorder(&recording);
    render(scene, &recorder);
    recorder.end();

    const QTemporaryDir folder;
    const QString fileName = folder.filePath("played.pdf");
    {
        QPdfWriter writer(fileName);
        setUpPaper(writer, 72);
        QPainter painter(&writer);
        painter.drawPicture(0, 0, recording);
    }
    QCOMPARE(outputOf("pdftotext", {fileName, "-"}).trimmed(), QByteArray("Shadowed words"));
    QCOMPARE(picturesIn(fileName).size(), 2);
}

void tst_ReportShadowEffect::leavesThePaintersState()
{
    TXGraphicsScene scene;
    drawScene(scene, "rectangle");
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QPdfWriter writer(&buffer);
    setUpPaper(writer, 300);
    QPainter painter(&writer);
    painter.scale(2.0, 3.0);
    const QTransform transform = painter.transform();
    const QPainter::RenderHints hints = painter.renderHints();
    render(scene, &painter);
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.renderHints(), hints);
}

int main(int argc, char **argv)
{
    return runTest<tst_ReportShadowEffect>(argc, argv);
}

#include "tst_ReportShadowEffect.moc"
