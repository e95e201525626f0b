#include "ChildProcess.h"
#include "TestBase.h"

#include "GalleryPages.h"

#include <QDir>
#include <QImageReader>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>
#include <memory>
#include <vector>

namespace {

constexpr int kLimitMilliseconds = 120000;
constexpr QRgb kWarningSign = 0xc97800;
constexpr size_t kAtOnce = 4;
constexpr int kWidth = 1120;
constexpr int kLeastHeight = 740;
/// Fonts are a little wider or higher at one scale than at another, and lines break elsewhere.
constexpr qreal kTolerance = 0.06;

/// What the gallery itself writes into its log, and what the platform without a screen tells.
bool isExpected(const QString &line)
{
    static const QRegularExpression expected(
        QStringLiteral("^(This plugin does not support |QStandardPaths: |"
                       "A message of Qt's own logging, written by hand)"));
    return expected.match(line).hasMatch();
}

/// A run of the program that paints every page.
struct Run
{
    QString name;
    QString folder;
    std::unique_ptr<QTemporaryDir> home = std::make_unique<QTemporaryDir>();
    std::unique_ptr<QProcess> process = std::make_unique<QProcess>();
};

QProcessEnvironment environmentOf(const Run &run, const QString &scale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
    environment.insert(QStringLiteral("QT_SCALE_FACTOR_ROUNDING_POLICY"),
                       QStringLiteral("PassThrough"));
    // Several run at once, and do not share what they keep.
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        environment.insert(QLatin1String(name), run.home->path());
    }
    return environment;
}

} // namespace

/// Every page at 100, 150 and 200 % in three palettes, by the program itself: the scale belongs to
/// a whole process.
class TestGalleryScales : public TestBase
{
    Q_OBJECT

private slots:
    void everyPageIsPainted();
    void sizesFollowTheScale();
    void picturesInATableKeepTheirSize();

private:
    Run start(const QString &scale, const QString &palette) const;
    void finishRun(const Run &run);
    void readSizes(const Run &run);

    QTemporaryDir pictures;
    /// By scale and palette, then by file.
    std::map<QString, std::map<QString, QSize>> sizes;
};

Run TestGalleryScales::start(const QString &scale, const QString &palette) const
{
    Run run;
    run.name = scale + palette;
    run.folder = pictures.filePath(run.name);
    run.process->setProcessEnvironment(environmentOf(run, scale));
    endWithThisThread(*run.process, SIGTERM);
    run.process->start(QCoreApplication::applicationDirPath() + "/../gallery/bin/TXGallery",
                       {"--palette", palette, "--grab", run.folder});
    return run;
}

void TestGalleryScales::finishRun(const Run &run)
{
    QVERIFY(run.process->waitForFinished(kLimitMilliseconds));
    const QString errors = QString::fromUtf8(run.process->readAllStandardError());
    QVERIFY2(run.process->exitStatus() == QProcess::NormalExit && run.process->exitCode() == 0,
             qPrintable(run.name + ": " + errors));
    const QStringList lines = errors.split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QVERIFY2(isExpected(line), qPrintable(run.name + ": " + line));
    }
    readSizes(run);
}

void TestGalleryScales::readSizes(const Run &run)
{
    const QStringList files = QDir(run.folder).entryList({"*.png"}, QDir::Files);
    for (const QString &file : files) {
        sizes[run.name][file] = QImageReader(run.folder + '/' + file).size();
    }
}

void TestGalleryScales::everyPageIsPainted()
{
    std::vector<Run> runs;
    // The longest first.
    for (const char *scale : {"2", "1.5", "1"}) {
        for (const char *palette : {"light", "dark", "contrast"}) {
            if (runs.size() >= kAtOnce) {
                finishRun(runs[runs.size() - kAtOnce]);
            }
            runs.push_back(start(scale, palette));
        }
    }
    for (size_t i = runs.size() - kAtOnce; i < runs.size(); ++i) {
        finishRun(runs[i]);
    }
}

void TestGalleryScales::sizesFollowTheScale()
{
    QCOMPARE(sizes.size(), 9U);
    const std::map<QString, QSize> &plain = sizes["1light"];
    for (const GalleryPageEntry &entry : galleryPages()) {
        QVERIFY2(plain.contains(entry.name() + ".png"), qPrintable(entry.name()));
        QCOMPARE(plain.at(entry.name() + ".png").width(), kWidth);
        QVERIFY(plain.at(entry.name() + ".png").height() >= kLeastHeight);
    }
    for (const auto &[key, files] : sizes) {
        const qreal scale = key.startsWith("1.5") ? 1.5 : key.left(1).toDouble();
        QCOMPARE(files.size(), plain.size());
        for (const auto &[file, size] : plain) {
            const QString what = key + ' ' + file;
            QVERIFY2(files.contains(file), qPrintable(what));
            const QSizeF inPoints = QSizeF(files.at(file)) / scale;
            if (size.width() == kWidth) {
                QVERIFY2(files.at(file).width() == qRound(kWidth * scale), qPrintable(what));
            }
            QVERIFY2(qAbs(inPoints.width() / size.width() - 1) < kTolerance, qPrintable(what));
            QVERIFY2(qAbs(inPoints.height() / size.height() - 1) < kTolerance, qPrintable(what));
        }
    }
}

/// Counted are the pixels of the warning signs. Twice as wide and high they would be four times as
/// many again, and overlap.
void TestGalleryScales::picturesInATableKeepTheirSize()
{
    const auto signPixels = [this](const QString &run) {
        const QImage page(pictures.filePath(run + "/lists.png"));
        int count = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                count += (page.pixel(x, y) & RGB_MASK) == kWarningSign ? 1 : 0;
            }
        }
        return count;
    };
    const int plain = signPixels("1light");
    QVERIFY(plain > 100);
    QVERIFY(qAbs(signPixels("2light") / 4.0 / plain - 1) < 0.3);
    QVERIFY(qAbs(signPixels("1.5light") / 2.25 / plain - 1) < 0.3);
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryScales>(argc, argv);
}

#include "tst_GalleryScales.moc"
