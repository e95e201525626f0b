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
    // Three run at once, and do not share what they keep.
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
    void everyPageIsPainted_data();
    void everyPageIsPainted();
    void sizesFollowTheScale();

private:
    Run start(const QString &scale, const QString &palette) const;
    void readSizes(const Run &run, const QString &key);

    QTemporaryDir pictures;
    /// By scale and palette, then by file.
    std::map<QString, std::map<QString, QSize>> sizes;
};

Run TestGalleryScales::start(const QString &scale, const QString &palette) const
{
    Run run;
    run.folder = pictures.filePath(palette + QLatin1Char('-') + scale);
    run.process->setProcessEnvironment(environmentOf(run, scale));
    endWithThisThread(*run.process, SIGTERM);
    run.process->start(QCoreApplication::applicationDirPath() + "/../gallery/bin/TXGallery",
                       {"--palette", palette, "--grab", run.folder});
    return run;
}

void TestGalleryScales::readSizes(const Run &run, const QString &key)
{
    const QStringList files = QDir(run.folder).entryList({"*.png"}, QDir::Files);
    for (const QString &file : files) {
        QImageReader reader(run.folder + '/' + file);
        sizes[key][file] = reader.size();
        QVERIFY2(!reader.read().isNull(), qPrintable(key + file));
    }
}

void TestGalleryScales::everyPageIsPainted_data()
{
    QTest::addColumn<QString>("scale");
    QTest::newRow("100 %") << "1";
    QTest::newRow("150 %") << "1.5";
    QTest::newRow("200 %") << "2";
}

void TestGalleryScales::everyPageIsPainted()
{
    QFETCH(QString, scale);
    const QStringList palettes = {"light", "dark", "contrast"};
    std::vector<Run> runs;
    for (const QString &palette : palettes) {
        runs.push_back(start(scale, palette));
    }
    for (size_t i = 0; i < runs.size(); ++i) {
        QProcess &process = *runs[i].process;
        QVERIFY(process.waitForFinished(kLimitMilliseconds));
        const QString errors = QString::fromUtf8(process.readAllStandardError());
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 qPrintable(errors));
        const QStringList lines = errors.split('\n', Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            QVERIFY2(isExpected(line), qPrintable(palettes.at(qsizetype(i)) + ": " + line));
        }
        readSizes(runs[i], scale + palettes.at(qsizetype(i)));
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

int main(int argc, char **argv)
{
    return runTest<TestGalleryScales>(argc, argv);
}

#include "tst_GalleryScales.moc"
