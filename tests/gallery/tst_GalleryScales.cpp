#include "ChildProcess.h"
#include "TestBase.h"

#include "GalleryPages.h"

#include <QDir>
#include <QHash>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
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
/// Thin lines stay as thin at one scale as at another and so cover less of a larger picture.
constexpr qreal kCoverTolerance = 0.35;

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

/// How much of a picture is not ground, the colour that is there most, from 0 to 1: without the
/// list of the pages and the strip above, which are painted even when a page is not.
qreal coveredShare(const QImage &picture)
{
    constexpr int kStep = 2;
    QHash<QRgb, int> counts;
    int all = 0;
    for (int y = picture.height() / 5; y < picture.height(); y += kStep) {
        for (int x = picture.width() / 4; x < picture.width(); x += kStep) {
            ++counts[picture.pixel(x, y)];
            ++all;
        }
    }
    return 1 - *std::max_element(counts.cbegin(), counts.cend()) / qreal(all);
}

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
    void picturesShowTheSame();
    void picturesInATableKeepTheirSize();

private:
    Run start(const QString &scale, const QString &palette) const;
    void finishRun(const Run &run);
    void readPictures(const Run &run);

    QTemporaryDir pictures;
    /// By scale and palette, then by file.
    std::map<QString, std::map<QString, QSize>> sizes;
    std::map<QString, std::map<QString, qreal>> covered;
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
    readPictures(run);
}

void TestGalleryScales::readPictures(const Run &run)
{
    const QStringList files = QDir(run.folder).entryList({"*.png"}, QDir::Files);
    for (const QString &file : files) {
        const QImage picture(run.folder + '/' + file);
        sizes[run.name][file] = picture.size();
        covered[run.name][file] = coveredShare(picture);
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

/// A page that is painted empty, or in a part of its picture alone, covers less of it than at
/// 100 %.
void TestGalleryScales::picturesShowTheSame()
{
    QCOMPARE(covered.size(), 9U);
    for (const auto &[key, files] : covered) {
        const std::map<QString, qreal> &plain =
            covered.at(QString(key).replace(QRegularExpression("^[0-9.]+"), "1"));
        for (const auto &[file, share] : files) {
            const QString what =
                QStringLiteral("%1 %2: %3 of %4").arg(key, file).arg(share).arg(plain.at(file));
            QVERIFY2(plain.at(file) > 0.01, qPrintable(what));
            QVERIFY2(qAbs(share / plain.at(file) - 1) < kCoverTolerance, qPrintable(what));
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
