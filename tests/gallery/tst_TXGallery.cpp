#include "TestBase.h"
#include "TestTranslations.h"

#include "GalleryPages.h"

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

namespace {

constexpr int kProgramLimitMilliseconds = 60000;

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;

    QStringList lines() const { return output.split('\n', Qt::SkipEmptyParts); }
};

QString galleryFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../gallery");
}

Outcome runProgram(const QString &program, const QStringList &arguments,
                   const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    Outcome outcome;
    if (process.waitForFinished(kProgramLimitMilliseconds)
        && process.exitStatus() == QProcess::NormalExit) {
        outcome.exitCode = process.exitCode();
    }
    outcome.output = QString::fromUtf8(process.readAllStandardOutput());
    outcome.errors = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

Outcome
runGallery(const QStringList &arguments,
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    return runProgram(galleryFolder() + "/bin/TXGallery", arguments, environment);
}

qsizetype countColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return colours.size();
}

/// 0 for black to 255 for white.
int lightness(const QImage &image)
{
    return image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .pixelColor(0, 0)
        .lightness();
}

} // namespace

class TestTXGallery : public TestBase
{
    Q_OBJECT

private slots:
    void everyPageIsGrabbed();
    void furtherWindowsAreGrabbed();
    void onePageIsGrabbedIntoAFile_data();
    void onePageIsGrabbedIntoAFile();
    void onePageIsGrabbedIntoAFolderThatExists();
    void lightAndDarkDiffer();
    void stylesDiffer();
    void scaleFactorDoublesThePicture();
    void picturesAreTakenWithoutAScreen();
    void languagesAreFoundBesideTheProgram();
    void logoOfAPartnerIsKeptAtTheStart();
    void picturesShowNoSplash();
    void rememberedSettingsAreLeftAlone();
    void mistakesAreOneLine_data();
    void mistakesAreOneLine();
    void placesThatCannotBeWrittenAreOneLine_data();
    void placesThatCannotBeWrittenAreOneLine();
    void helpAndVersionNeedNoScreen_data();
    void helpAndVersionNeedNoScreen();
    void resourcesLieBesideTheProgram_data();
    void resourcesLieBesideTheProgram();

protected:
    void prepare() override { folder.reset(new QTemporaryDir); }
    void finish() override { folder.reset(); }

private:
    QString path(const QString &name) const { return folder->filePath(name); }
    QImage grabLog(const QStringList &arguments, const QString &name = "log.png");
    void installWithLogo() const;
    QProcessEnvironment environmentWithCommonData() const;

    QScopedPointer<QTemporaryDir> folder;
};

QImage TestTXGallery::grabLog(const QStringList &arguments, const QString &name)
{
    const Outcome outcome =
        runGallery(QStringList({"--page", "log", "--grab", path(name)}) + arguments);
    return outcome.exitCode == 0 ? QImage(path(name)) : QImage();
}

void TestTXGallery::everyPageIsGrabbed()
{
    const Outcome outcome = runGallery({"--grab", path("new/pictures")});

    QCOMPARE(outcome.exitCode, 0);
    for (const GalleryPageEntry &entry : galleryPages()) {
        const QString file = path("new/pictures/" + entry.name() + ".png");
        QVERIFY2(outcome.lines().contains(file), qPrintable(outcome.output));
        const QImage image(file);
        QCOMPARE(image.width(), 1120);
        QVERIFY(image.height() >= 740);
        QVERIFY2(countColours(image) > 50, qPrintable(entry.name()));
    }
    // Nothing is left of the settings, passwords and drives of the pictures.
    QVERIFY(!QFileInfo::exists(qEnvironmentVariable("XDG_CONFIG_HOME") + "/TXGUICommon"));
    QVERIFY(!QFileInfo::exists(QDir::homePath() + "/Network Drives"));
}

void TestTXGallery::furtherWindowsAreGrabbed()
{
    const Outcome outcome = runGallery({"--grab", folder->path()});

    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.lines().contains(path("log-window.png")));
    const QImage image(path("log-window.png"));
    QVERIFY(image.width() >= 400 && image.height() >= 300);
    QVERIFY(countColours(image) > 50);
}

void TestTXGallery::onePageIsGrabbedIntoAFile_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("with its suffix") << "a/shot.png";
    QTest::newRow("without a suffix") << "a/shot";
}

void TestTXGallery::onePageIsGrabbedIntoAFile()
{
    QFETCH(QString, target);

    const Outcome outcome = runGallery({"--page", "log", "--grab", path(target)});

    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.lines(), QStringList({path("a/shot.png"), path("a/shot-window.png")}));
    QCOMPARE(QDir(path("a")).entryList(QDir::Files), QStringList({"shot-window.png", "shot.png"}));
    QVERIFY(!QImage(path("a/shot.png")).isNull());
}

void TestTXGallery::onePageIsGrabbedIntoAFolderThatExists()
{
    const Outcome outcome = runGallery({"--page", "log", "--grab", folder->path()});

    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.lines().first(), path("log.png"));
}

void TestTXGallery::lightAndDarkDiffer()
{
    const QImage light = grabLog({"--palette", "light"});
    const QImage dark = grabLog({"--palette", "dark"});

    QVERIFY(!light.isNull() && !dark.isNull());
    QVERIFY(lightness(light) > 200);
    QVERIFY(lightness(dark) < 80);
    QVERIFY(lightness(QImage(path("log-window.png"))) < 80);
}

void TestTXGallery::stylesDiffer()
{
    const QImage fusion = grabLog({"--style", "fusion"});
    const QImage windows = grabLog({"--style", "windows"});

    QVERIFY(!fusion.isNull() && !windows.isNull());
    const QRect header(560, 0, 560, 50);
    QVERIFY(fusion.copy(header) != windows.copy(header));
}

void TestTXGallery::scaleFactorDoublesThePicture()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");

    const Outcome outcome = runGallery({"--page", "log", "--grab", path("shot.png")}, environment);

    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(QImage(path("shot.png")).width(), 2240);
}

void TestTXGallery::picturesAreTakenWithoutAScreen()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environment.remove(name);
    }

    QCOMPARE(runGallery({"--page", "log", "--grab", path("shot.png")}, environment).exitCode, 0);
}

void TestTXGallery::languagesAreFoundBesideTheProgram()
{
    QVERIFY(QDir(folder->path()).mkpath("bin"));
    QVERIFY(QDir(folder->path()).mkpath("Resources/translations"));
    const QString program = path("bin/TXGallery");
    QVERIFY(QFile::copy(galleryFolder() + "/bin/TXGallery", program));
    QVERIFY(QFile::copy(testTranslationsFolder() + "/gallerytest_fr.qm",
                        path("Resources/translations/gallerytest_fr.qm")));
    const auto environment = QProcessEnvironment::systemEnvironment();
    const QStringList arguments = {"--page", "log", "--language"};

    QCOMPARE(runProgram(program, arguments + QStringList({"fr", "--grab", path("fr")}), environment)
                 .exitCode,
             0);
    QCOMPARE(runProgram(program, arguments + QStringList({"en", "--grab", path("en")}), environment)
                 .exitCode,
             0);

    const QRect titleAndList(0, 55, 500, 120);
    QVERIFY(QImage(path("fr.png")).copy(titleAndList) != QImage(path("en.png")).copy(titleAndList));
}

/// The program in the test's folder, with a partner's logo beside it.
void TestTXGallery::installWithLogo() const
{
    QImage logo(40, 30, QImage::Format_RGB32);
    logo.fill(Qt::red);
    for (const char *name : {"bin", "Resources/Images", "common/Tovra Hue Works"}) {
        QVERIFY(QDir(folder->path()).mkpath(name));
    }
    QVERIFY(QFile::copy(galleryFolder() + "/bin/TXGallery", path("bin/TXGallery")));
    QVERIFY(logo.save(path("Resources/Images/oemLogo.png")));
}

QProcessEnvironment TestTXGallery::environmentWithCommonData() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ALLUSERSPROFILE", path("common"));
    return environment;
}

/// That is what the splash does.
void TestTXGallery::logoOfAPartnerIsKeptAtTheStart()
{
    installWithLogo();
    QProcess process;
    process.setProcessEnvironment(environmentWithCommonData());

    process.start(path("bin/TXGallery"), {"--page", "controls"});

    const QString copy = path("common/Tovra Hue Works/oemLogo_0.png");
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(copy), kProgramLimitMilliseconds);
    QCOMPARE(QImage(copy).size(), QSize(40, 30));
    process.terminate();
    QVERIFY(process.waitForFinished(kProgramLimitMilliseconds));
}

void TestTXGallery::picturesShowNoSplash()
{
    installWithLogo();

    const Outcome outcome =
        runProgram(path("bin/TXGallery"), {"--page", "log", "--grab", path("shot.png")},
                   environmentWithCommonData());

    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(QDir(path("common/Tovra Hue Works")).isEmpty());
}

void TestTXGallery::rememberedSettingsAreLeftAlone()
{
    QVERIFY(!grabLog({}, QStringLiteral("fresh.png")).isNull());
    const QString settingsPath =
        qEnvironmentVariable("XDG_CONFIG_HOME") + "/TXGUICommon/Gallery.conf";
    const QByteArray content = "LogLevel=2\n\n[Gallery]\nPalette=dark\nStyle=Windows\n";
    QVERIFY(QDir().mkpath(QFileInfo(settingsPath).path()));
    QFile file(settingsPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\n" + content);
    file.close();

    const QImage image = grabLog({});

    QVERIFY(!image.isNull());
    QVERIFY(lightness(image) > 200);
    // The library's windows remember things of their own, as the chosen level of the log.
    const QRect filterRow(0, 0, 300, 36);
    QCOMPARE(QImage(path("log-window.png")).copy(filterRow),
             QImage(path("fresh-window.png")).copy(filterRow));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "[General]\n" + content);
}

void TestTXGallery::mistakesAreOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("page") << QStringList({"--page", "nowhere"}) << "nowhere";
    QTest::newRow("page for a picture")
        << QStringList({"--page", "nowhere", "--grab", "x.png"}) << "nowhere";
    QTest::newRow("style") << QStringList({"--style", "shiny"}) << "shiny";
    QTest::newRow("palette") << QStringList({"--palette", "purple"}) << "purple";
    QTest::newRow("language") << QStringList({"--language", "xx"}) << "xx";
    QTest::newRow("option") << QStringList("--fast") << "fast";
    QTest::newRow("argument") << QStringList("picture.png") << "picture.png";
    QTest::newRow("no value") << QStringList("--grab") << "grab";
    QTest::newRow("empty value") << QStringList({"--grab", ""}) << "grab";
    QTest::newRow("two mistakes") << QStringList({"--page", "nowhere", "--style", "shiny"})
                                  << "nowhere";
    QTest::newRow("line break") << QStringList({"--page", "no\nwhere"}) << "no where";
}

void TestTXGallery::mistakesAreOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);

    const Outcome outcome = runGallery(arguments);

    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.output.isEmpty());
    QCOMPARE(outcome.errors.count('\n'), 1);
    QVERIFY(outcome.errors.startsWith("TXGallery: "));
    QVERIFY2(outcome.errors.contains(named), qPrintable(outcome.errors));
}

void TestTXGallery::placesThatCannotBeWrittenAreOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("folder below a file") << QStringList({"--grab", "file/folder"});
    QTest::newRow("folder that is a file") << QStringList({"--grab", "file"});
    QTest::newRow("file below a file") << QStringList({"--page", "log", "--grab", "file/shot.png"});
    QTest::newRow("file that is a folder") << QStringList({"--page", "log", "--grab", "folder"});
}

void TestTXGallery::placesThatCannotBeWrittenAreOneLine()
{
    QFETCH(QStringList, arguments);
    QVERIFY(QFile(path("file")).open(QIODevice::WriteOnly));
    QVERIFY(QDir(folder->path()).mkdir("folder.png"));
    arguments.last() = path(arguments.last());

    const Outcome outcome = runGallery(arguments);

    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.output.isEmpty());
    QVERIFY2(outcome.errors.count('\n') == 1, qPrintable(outcome.errors));
    QVERIFY(outcome.errors.contains(folder->path()));
}

void TestTXGallery::helpAndVersionNeedNoScreen_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("answer");
    QTest::newRow("help") << "--help"
                          << "--palette";
    QTest::newRow("short help") << "-h"
                                << "--palette";
    QTest::newRow("version") << "--version"
                             << "Gallery ";
}

void TestTXGallery::helpAndVersionNeedNoScreen()
{
    QFETCH(QString, argument);
    QFETCH(QString, answer);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environment.remove(name);
    }

    const Outcome outcome = runGallery({argument}, environment);

    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.contains(answer));
    QVERIFY2(outcome.errors.isEmpty(), qPrintable(outcome.errors));
}

void TestTXGallery::resourcesLieBesideTheProgram_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("text_file_icon.png") << 64;
    QTest::newRow("remote_folder.png") << 128;
}

void TestTXGallery::resourcesLieBesideTheProgram()
{
    QFETCH(int, side);
    const QImage icon(galleryFolder() + "/Resources/Images/" + QTest::currentDataTag());

    QCOMPARE(icon.size(), QSize(side, side));
    QCOMPARE(icon.pixelColor(0, 0).alpha(), 0);
    QVERIFY(countColours(icon) > 10);
}

int main(int argc, char **argv)
{
    return runTest<TestTXGallery>(argc, argv);
}

#include "tst_TXGallery.moc"
