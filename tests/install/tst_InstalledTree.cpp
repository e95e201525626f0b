#include "ChildProcess.h"
#include "HostBuild.h"
#include "LocalDisplay.h"
#include "TestBase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QLibraryInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace {

constexpr int kPatienceMilliseconds = 60000;

/// All files below the folder, links left out, from the folder on.
QStringList filesBelow(const QString &folder)
{
    QStringList result;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        result.append(QDir(folder).relativeFilePath(files.next()));
    }
    return result;
}

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray asUtf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()),
            text.size() * static_cast<qsizetype>(sizeof(char16_t))};
}

} // namespace

/// The files that are installed.
class TestInstalledTree : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fileIsThere_data();
    void fileIsThere();
    void headersLieFlat();
    void ownHostsIncludeOnlyWhatIsThere_data();
    void ownHostsIncludeOnlyWhatIsThere();
    void everyLanguageOfTheSourcesIsThere();
    void iconFontIsNot();
    void noFileNamesTheFolderOfTheBuild();
    void libraryHasItsVersionAndFindsTheOthers_data();
    void libraryHasItsVersionAndFindsTheOthers();
    void nothingThatIsLinkedIsMissing();
    void noticeTellsWhatIsLinked_data();
    void noticeTellsWhatIsLinked();
    void desktopEntryIsValid();
    void manualPageTellsOfEachOption();
    void galleryShowsItself();
    void galleryFindsItsServers();
    void designerLoadsThePlugin();

private:
    const QString tree = installedTree();
    QString libraries;
    QString gallery;
};

void TestInstalledTree::initTestCase()
{
    libraries = librariesIn(tree);
    QVERIFY2(!libraries.isEmpty(), "nothing is installed; ctest -R install/tree does it");
    gallery = libraries + "/TXGUICommon/gallery";
}

void TestInstalledTree::fileIsThere_data()
{
    QTest::addColumn<QString>("fileName");

    for (const char *name :
         {"include/TXGUICommon/TXLogWindow.h", "include/TXGUICommon/TXLogManager.h",
          "include/TXGUICommon/TXResources.h", "include/TXGUICommon/TXGUICommonExport.h",
          "include/TXGUICommon/TXCoreCommonExport.h", "include/TXGUICommon/TXResourcesExport.h",
          "share/TXGUICommon/Resources/Images/remote_folder.png",
          "share/TXGUICommon/Resources/Templates/TovraStyle.css", "share/doc/TXGUICommon/LICENSE",
          "share/doc/TXGUICommon/NOTICE.md", "share/doc/TXGUICommon/README.md",
          "share/doc/TXGUICommon/CHANGELOG.md", "bin/TXGallery",
          "share/icons/hicolor/scalable/apps/TXGallery.svg", "share/man/man1/TXGallery.1"}) {
        QTest::newRow(name) << tree + '/' + name;
    }
    for (const char *name :
         {"cmake/TXGUICommon/TXGUICommonConfig.cmake",
          "cmake/TXGUICommon/TXGUICommonConfigVersion.cmake", "pkgconfig/TXCoreCommon.pc",
          "pkgconfig/TXResources.pc", "pkgconfig/TXGUICommon.pc", "libTXCoreCommon.so",
          "libTXResources.so", "libTXGUICommon.so",
          "qt6/plugins/designer/libTXGUICommonDesigner.so"}) {
        QTest::newRow(name) << libraries + '/' + name;
    }
    for (const char *name :
         {"bin/ConfWidgets/ColourPreferencesPlugin.so",
          "bin/ConfWidgets/ReportPreferencesPlugin.so", "Resources/Images/splash@2x.png",
          "Resources/Manual/TXGallery.pdf", "Resources/LegalNotices/TXGalleryLegalNotices.html",
          "Resources/Templates/TovraStyle.css"}) {
        QTest::newRow(name) << gallery + '/' + name;
    }
}

void TestInstalledTree::fileIsThere()
{
    QFETCH(const QString, fileName);

    QVERIFY2(!contentsOf(fileName).isEmpty(), qPrintable(fileName));
}

void TestInstalledTree::headersLieFlat()
{
    const QStringList headers = filesBelow(tree + "/include/TXGUICommon");

    QVERIFY(headers.size() > 90);
    for (const QString &header : headers) {
        QVERIFY2(header.endsWith(".h") && !header.contains('/'), qPrintable(header));
    }
}

void TestInstalledTree::ownHostsIncludeOnlyWhatIsThere_data()
{
    QTest::addColumn<QString>("folder");

    for (const char *folder : {"gallery", "designer"}) {
        QTest::newRow(folder) << sourceFolder() + '/' + folder;
    }
}

/// Gallery and plug-in are hosts like any other. Builds for the tests let them reach the library's
/// own classes, a build for packages does not.
void TestInstalledTree::ownHostsIncludeOnlyWhatIsThere()
{
    QFETCH(const QString, folder);
    static const QRegularExpression include("^#include \"(\\w+\\.h)\"",
                                            QRegularExpression::MultilineOption);
    QSet<QString> ofTheLibrary;
    const QStringList headers =
        filesBelow(sourceFolder() + "/src").filter(QRegularExpression("\\.h$"));
    for (const QString &header : headers) {
        ofTheLibrary.insert(header.section('/', -1));
    }

    int included = 0;
    const QStringList sources = filesBelow(folder).filter(QRegularExpression("\\.(h|cpp)$"));
    for (const QString &source : sources) {
        const QString text = QString::fromUtf8(contentsOf(folder + '/' + source));
        for (auto found = include.globalMatch(text); found.hasNext();) {
            const QString header = found.next().captured(1);
            if (ofTheLibrary.contains(header)) {
                ++included;
                QVERIFY2(QFile::exists(tree + "/include/TXGUICommon/" + header),
                         qPrintable(source + " includes " + header));
            }
        }
    }
    QVERIFY(included >= 20);
}

void TestInstalledTree::everyLanguageOfTheSourcesIsThere()
{
    const QStringList sources =
        QDir(sourceFolder() + "/translations").entryList({"*.ts"}, QDir::Files);
    QVERIFY(!sources.isEmpty());

    for (const QString &source : sources) {
        const QString name = source.chopped(3) + ".qm";
        QVERIFY2(QFile::exists(gallery + "/Resources/translations/" + name), qPrintable(name));
        if (name.startsWith("txguicommon_")) {
            QVERIFY2(QFile::exists(tree + "/share/TXGUICommon/translations/" + name),
                     qPrintable(name));
        }
    }
}

/// It has a licence of its own.
void TestInstalledTree::iconFontIsNot()
{
    QVERIFY(filesBelow(tree).filter(".ttf").isEmpty());
}

void TestInstalledTree::noFileNamesTheFolderOfTheBuild()
{
    const QStringList files = filesBelow(tree);
    QVERIFY(files.size() > 150);

    for (const QString &name : files) {
        const QByteArray contents = contentsOf(tree + '/' + name);
        for (const QString &folder : {sourceFolder(), buildFolder(), tree}) {
            QVERIFY2(!contents.contains(folder.toUtf8()), qPrintable(name));
            QVERIFY2(!contents.contains(asUtf16(folder)), qPrintable(name));
        }
    }
}

void TestInstalledTree::libraryHasItsVersionAndFindsTheOthers_data()
{
    QTest::addColumn<QString>("library");

    for (const char *library : {"TXCoreCommon", "TXResources", "TXGUICommon"}) {
        QTest::newRow(library) << QString(library);
    }
}

void TestInstalledTree::libraryHasItsVersionAndFindsTheOthers()
{
    QFETCH(const QString, library);
    const QString name = "lib" + library + ".so";

    const CommandResult result = runCommand("readelf", {"-d", libraries + '/' + name});

    QVERIFY(result.succeeded);
    QVERIFY2(result.output.contains("soname: [" + name + ".1]"), qPrintable(result.output));
    QVERIFY2(result.output.contains("runpath: [$ORIGIN]"), qPrintable(result.output));
    QVERIFY(QFileInfo(libraries + '/' + name).symLinkTarget().contains(name + ".1"));
}

void TestInstalledTree::nothingThatIsLinkedIsMissing()
{
    QStringList programs = {gallery + "/bin/TXGallery"};
    const QStringList files = filesBelow(tree);
    for (const QString &name : files) {
        if (name.contains(".so")) {
            programs.append(tree + '/' + name);
        }
    }
    QVERIFY(programs.size() >= 6);

    for (const QString &program : std::as_const(programs)) {
        const CommandResult result = runCommand("ldd", {program});
        QVERIFY(result.succeeded);
        QVERIFY2(!result.output.contains("not found"), qPrintable(program + '\n' + result.output));
    }
}

void TestInstalledTree::noticeTellsWhatIsLinked_data()
{
    libraryHasItsVersionAndFindsTheOthers_data();
}

/// Each library of others in a row of the table, with ours as one that uses it.
void TestInstalledTree::noticeTellsWhatIsLinked()
{
    QFETCH(const QString, library);
    QString notice = QString::fromUtf8(contentsOf(tree + "/share/doc/TXGUICommon/NOTICE.md"));
    notice.replace("Qt 5 Core Compatibility APIs", "Core5Compat").remove("Print ");
    notice.replace("Support", "PrintSupport");
    QString told;
    const QStringList lines = notice.split('\n');
    for (const QString &line : lines) {
        const QString users = line.section('|', 2, 2).trimmed();
        if (users == "all libraries" || users == library) {
            told += line.section('|', 1, 1).remove("Qt 6:").replace(',', ' ');
        }
    }

    const CommandResult result =
        runCommand("readelf", {"-d", libraries + "/lib" + library + ".so"});

    static const QRegularExpression needed(
        "\\[lib(?:Qt6)?(Core5Compat|curl|sodium|[A-Z]\\w+)\\.so");
    QSet<QString> linked;
    for (auto found = needed.globalMatch(result.output); found.hasNext();) {
        QString name = found.next().captured(1);
        linked.insert(name == "curl" || name == "sodium" ? "lib" + name : name);
    }
    linked -= QSet<QString>{"TXCoreCommon", "TXResources", "TXGUICommon"};
    const QStringList words = told.split(' ', Qt::SkipEmptyParts);
    QCOMPARE(QSet<QString>(words.begin(), words.end()), linked);
}

void TestInstalledTree::desktopEntryIsValid()
{
    const CommandResult result =
        runCommand("desktop-file-validate", {tree + "/share/applications/TXGallery.desktop"});

    QVERIFY2(result.succeeded, qPrintable(result.output));
    QCOMPARE(result.output, QString());
}

void TestInstalledTree::manualPageTellsOfEachOption()
{
    const QString page =
        QString::fromUtf8(contentsOf(tree + "/share/man/man1/TXGallery.1")).remove('\\');
    const CommandResult help = runCommand(tree + "/bin/TXGallery", {"--help"});
    QVERIFY2(help.succeeded, qPrintable(help.output));

    const QRegularExpression option("--[a-z]+");
    QStringList options;
    for (auto found = option.globalMatch(help.output); found.hasNext();) {
        options.append(found.next().captured());
    }
    QVERIFY(options.size() >= 7);
    for (const QString &name : std::as_const(options)) {
        QVERIFY2(page.contains(name), qPrintable(name));
    }
}

void TestInstalledTree::galleryShowsItself()
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath("controls.png");

    const CommandResult result =
        runCommand(tree + "/bin/TXGallery", {"--page", "controls", "--grab", picture});

    QVERIFY2(result.succeeded, qPrintable(result.output));
    QVERIFY(QImage(picture).width() > 100);
}

/// A program in the place of the gallery starts a server as the gallery does.
void TestInstalledTree::galleryFindsItsServers()
{
    const QString program = gallery + "/bin/serverowner";
    QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + "/serverowner", program));
    QProcess owner;
    owner.start(program, QStringList());

    const bool answered = owner.waitForReadyRead(kPatienceMilliseconds);
    const QString script = QString::fromUtf8(
        contentsOf(QString("/proc/%1/cmdline").arg(owner.readLine().trimmed().toInt())));
    owner.kill();
    owner.waitForFinished();
    QVERIFY(QFile::remove(program));

    QVERIFY2(answered, owner.readAllStandardError().constData());
    QVERIFY2(script.contains(gallery + "/localservers/ftpserver.py"), qPrintable(script));
}

/// With the library beside it, not that of the build.
void TestInstalledTree::designerLoadsThePlugin()
{
    LocalDisplay display;
    QVERIFY2(display.start(), "needs the programs Xvfb, openbox and xdotool");
    QProcessEnvironment environment = display.environment();
    environment.insert("QT_PLUGIN_PATH", libraries + "/qt6/plugins");
    QProcess designer;
    endWithThisThread(designer);
    designer.setProcessEnvironment(environment);
    designer.start(QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/designer", QStringList());
    QVERIFY2(designer.waitForStarted(), "needs Qt Designer");

    const QString maps = QString("/proc/%1/maps").arg(designer.processId());
    const QByteArray plugin = (libraries + "/qt6/plugins/designer/lib").toUtf8();
    QTRY_VERIFY_WITH_TIMEOUT(contentsOf(maps).contains(plugin + "TXGUICommonDesigner.so"),
                             kPatienceMilliseconds);
    QVERIFY(contentsOf(maps).contains(libraries.toUtf8() + "/libTXGUICommon.so.1"));
    designer.kill();
    QVERIFY(designer.waitForFinished(kPatienceMilliseconds));
}

int main(int argc, char **argv)
{
    return runTest<TestInstalledTree>(argc, argv);
}

#include "tst_InstalledTree.moc"
