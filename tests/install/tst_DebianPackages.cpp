#include "HelloWindow.h"
#include "HostBuild.h"
#include "TestBase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

/// The packages that are made of this build, installed into a system that holds nothing else. No
/// rights of root are needed.
class TestDebianPackages : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void packagesAreMade();
    void packingAgainMakesTheSame();
    void controlFileTells_data();
    void controlFileTells();
    void loaderAndPackagesOfOthersHearOfTheLibraries();
    void noPackageRunsAScript();
    void filesHaveTheirModes();
    void packagesAreInstalled();
    void sumsAreThoseOfTheFiles();
    void nextMajorVersionCanStandBeside();
    void fileBelongsToItsPackage_data();
    void fileBelongsToItsPackage();
    void exampleIsBuiltWithThem();
    void removedPackagesLeaveNothing();

private:
    CommandResult dpkg(const QStringList &arguments);
    QStringList filesOf(const QString &package);
    CommandResult pack(const QString &folder);
    QString pathOf(const QString &package) const;
    /// What dpkg has put beside its own records.
    QStringList installedFiles();

    QTemporaryDir made;
    QTemporaryDir system;
    QStringList files;
    QStringList names;
};

CommandResult TestDebianPackages::dpkg(const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Programs of root that dpkg wants to know of.
    environment.insert("PATH", environment.value("PATH") + ":/usr/sbin:/sbin");
    return runCommand("dpkg",
                      QStringList{"--root=" + system.path(), "--log=/dev/null", "--force-not-root",
                                  "--force-depends"}
                          + arguments,
                      environment);
}

QStringList TestDebianPackages::filesOf(const QString &package)
{
    return dpkg({"--listfiles", package}).output.split('\n', Qt::SkipEmptyParts);
}

CommandResult TestDebianPackages::pack(const QString &folder)
{
    return runCMakeTool("cpack", {"--config", buildFolder() + "/CPackConfig.cmake", "-B", folder});
}

/// Where the package lies.
QString TestDebianPackages::pathOf(const QString &package) const
{
    return made.filePath(files.value(names.indexOf(package)));
}

QStringList TestDebianPackages::installedFiles()
{
    QStringList result;
    QDirIterator entries(system.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = QDir(system.path()).relativeFilePath(entries.next());
        if (!name.startsWith("var")) {
            result.append(name);
        }
    }
    return result;
}

void TestDebianPackages::initTestCase()
{
    // As "./dev package" does.
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    const QDir records(system.path());
    QVERIFY(records.mkpath("var/lib/dpkg/info") && records.mkpath("var/lib/dpkg/updates")
            && records.mkpath("var/lib/dpkg/triggers"));
    for (const char *name : {"status", "available"}) {
        QVERIFY(QFile(system.filePath(QString("var/lib/dpkg/") + name)).open(QFile::WriteOnly));
    }
}

void TestDebianPackages::packagesAreMade()
{
    const CommandResult packed = pack(made.path());

    QVERIFY2(packed.succeeded, qPrintable(packed.output));
    files = QDir(made.path()).entryList({"*.deb"}, QDir::Files, QDir::Name);
    for (const QString &file : std::as_const(files)) {
        names.append(file.section('_', 0, 0));
    }
    QCOMPARE(names,
             QStringList({"libtxguicommon-dev", "libtxguicommon1", "txguicommon-designer",
                          "txguicommon-gallery"}));
}

void TestDebianPackages::packingAgainMakesTheSame()
{
    const QTemporaryDir again;
    const CommandResult packed = pack(again.path());
    QVERIFY2(packed.succeeded, qPrintable(packed.output));

    for (const QString &file : std::as_const(files)) {
        const CommandResult compared =
            runCommand("cmp", {made.filePath(file), again.filePath(file)});
        QVERIFY2(compared.succeeded, qPrintable(compared.output));
    }
}

void TestDebianPackages::controlFileTells_data()
{
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("line");

    const QString runtime = "libtxguicommon1";
    QTest::newRow("maker") << runtime << "Maintainer: Tovra Hue Works <packages@tovra.example>";
    QTest::newRow("home") << runtime << "Homepage: https://www\\.tovra\\.example";
    QTest::newRow("what libraries link") << runtime << "Depends: .*libqt6widgets6 .*libsodium23.*";
    QTest::newRow("headers") << "libtxguicommon-dev"
                             << "Depends: libtxguicommon1 \\(= 1\\.0\\.0\\), qt6-base-dev";
    QTest::newRow("compiler") << "libtxguicommon-dev"
                              << "Recommends: cmake, g\\+\\+, pkg-config";
    QTest::newRow("plug-in") << "txguicommon-designer"
                             << "Depends: libtxguicommon1 \\(= 1\\.0\\.0\\), .*libqt6widgets6.*";
    QTest::newRow("Qt Designer") << "txguicommon-designer"
                                 << "Recommends: designer-qt6";
    QTest::newRow("gallery") << "txguicommon-gallery"
                             << "Depends: libtxguicommon1 \\(= 1\\.0\\.0\\), .*libqt6widgets6.*";
    QTest::newRow("section of libraries") << runtime << "Section: libs";
    QTest::newRow("section of headers") << "libtxguicommon-dev"
                                        << "Section: libdevel";
    QTest::newRow("section of the gallery") << "txguicommon-gallery"
                                            << "Section: devel";
    QTest::newRow("section of the plug-in") << "txguicommon-designer"
                                            << "Section: devel";
    QTest::newRow("servers") << "txguicommon-gallery"
                             << "Recommends: .*python3-aiosmtpd.*mariadb-server-core.*";
}

void TestDebianPackages::controlFileTells()
{
    QFETCH(const QString, package);
    QFETCH(const QString, line);

    const CommandResult told = runCommand("dpkg-deb", {"--field", pathOf(package)});

    const QRegularExpression pattern('^' + line + '$', QRegularExpression::MultilineOption);
    QVERIFY2(told.output.contains(pattern), qPrintable(told.output));
}

void TestDebianPackages::loaderAndPackagesOfOthersHearOfTheLibraries()
{
    const QString runtime = pathOf("libtxguicommon1");

    const CommandResult triggers = runCommand("dpkg-deb", {"--info", runtime, "triggers"});
    QVERIFY2(triggers.succeeded, qPrintable(triggers.output));
    QCOMPARE(triggers.output, QString("activate-noawait ldconfig\n"));

    const CommandResult libraries = runCommand("dpkg-deb", {"--info", runtime, "shlibs"});
    QVERIFY2(libraries.succeeded, qPrintable(libraries.output));
    QCOMPARE(libraries.output,
             QString("libTXCoreCommon 1 libtxguicommon1 (>= 1.0.0)\n"
                     "libTXResources 1 libtxguicommon1 (>= 1.0.0)\n"
                     "libTXGUICommon 1 libtxguicommon1 (>= 1.0.0)\n"));
}

/// For what the loader has to hear there is the trigger.
void TestDebianPackages::noPackageRunsAScript()
{
    for (const QString &name : std::as_const(names)) {
        const QTemporaryDir control;
        QVERIFY(runCommand("dpkg-deb", {"--control", pathOf(name), control.path()}).succeeded);
        QStringList expected = {"control", "md5sums"};
        if (name == "libtxguicommon1") {
            expected += {"shlibs", "triggers"};
        }
        QCOMPARE(QDir(control.path()).entryList(QDir::Files, QDir::Name), expected);
    }
}

/// All belong to root, who alone may write, and only programs are to be run.
void TestDebianPackages::filesHaveTheirModes()
{
    static const QRegularExpression expected(
        "^(drwxr-xr-x|lrwxrwxrwx|-rwxr-xr-x(?=.*/bin/TXGallery)|-rw-r--r--(?!.*/bin/TXGallery)) "
        "root/root ");

    for (const QString &name : std::as_const(names)) {
        const QStringList lines = runCommand("dpkg-deb", {"--contents", pathOf(name)})
                                      .output.split('\n', Qt::SkipEmptyParts);
        QVERIFY(lines.size() > 5);
        for (const QString &line : lines) {
            QVERIFY2(line.contains(expected), qPrintable(line));
        }
    }
}

void TestDebianPackages::packagesAreInstalled()
{
    QStringList arguments = {"--install"};
    for (const QString &file : std::as_const(files)) {
        arguments.append(made.filePath(file));
    }

    const CommandResult installed = dpkg(arguments);

    QVERIFY2(installed.succeeded, qPrintable(installed.output));
    for (const QString &package : std::as_const(names)) {
        QVERIFY(dpkg({"--status", package}).output.contains("Status: install ok installed"));
        const QStringList lines = filesOf(package);
        const QString doc = "/usr/share/doc/" + package;
        QVERIFY(lines.contains(doc + "/copyright") && lines.contains(doc + "/changelog.gz"));
    }
}

void TestDebianPackages::sumsAreThoseOfTheFiles()
{
    for (const QString &name : std::as_const(names)) {
        const QString sums = system.filePath("var/lib/dpkg/info/" + name + ".md5sums");
        const CommandResult checked = runCommand(
            "sh",
            {"-c", "cd \"$0\" && md5sum --check --strict --quiet \"$1\"", system.path(), sums});
        QVERIFY2(checked.succeeded, qPrintable(checked.output));

        QFile list(sums);
        QVERIFY(list.open(QFile::ReadOnly));
        qsizetype regular = 0;
        const QStringList paths = filesOf(name);
        for (const QString &path : paths) {
            const QFileInfo file(system.path() + path);
            regular += file.isFile() && !file.isSymLink() ? 1 : 0;
        }
        QCOMPARE(list.readAll().count('\n'), regular);
    }
}

/// The package of the libraries has nothing that libtxguicommon2 would have as well.
void TestDebianPackages::nextMajorVersionCanStandBeside()
{
    static const QRegularExpression ofThisVersion("\\.so\\.1(\\.|$)|/doc/libtxguicommon1/");

    const QStringList paths = filesOf("libtxguicommon1");
    for (const QString &path : paths) {
        QVERIFY2(QFileInfo(system.path() + path).isDir() || path.contains(ofThisVersion),
                 qPrintable(path));
    }
}

void TestDebianPackages::fileBelongsToItsPackage_data()
{
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("pattern");

    const auto row = [](const char *package, const char *pattern) {
        QTest::addRow("%s: %s", package, pattern) << QString(package) << QString(pattern);
    };
    row("libtxguicommon1", "/usr/lib/.*libTXCoreCommon\\.so\\.1");
    row("libtxguicommon1", "/usr/lib/.*libTXResources\\.so\\.1");
    row("libtxguicommon1", "/usr/lib/.*libTXGUICommon\\.so\\.1");
    row("libtxguicommon-dev", "/usr/share/TXGUICommon/translations/txguicommon_de\\.qm");
    row("libtxguicommon-dev", "/usr/share/TXGUICommon/Resources/Images/remote_folder\\.png");
    row("libtxguicommon-dev", "/usr/share/doc/TXGUICommon/NOTICE\\.md");
    row("libtxguicommon-dev", "/usr/share/doc/TXGUICommon/docs/hosts/guide\\.md");
    row("libtxguicommon-dev", "/usr/include/TXGUICommon/TXLogWindow\\.h");
    row("libtxguicommon-dev", "/usr/lib/.*libTXGUICommon\\.so");
    row("libtxguicommon-dev", "/usr/lib/.*/cmake/TXGUICommon/TXGUICommonConfig\\.cmake");
    row("libtxguicommon-dev", "/usr/lib/.*/pkgconfig/TXGUICommon\\.pc");
    row("txguicommon-gallery", "/usr/bin/TXGallery");
    row("txguicommon-gallery", "/usr/share/applications/TXGallery\\.desktop");
    row("txguicommon-gallery", "/usr/lib/.*/gallery/localservers/mailserver\\.py");
    row("txguicommon-gallery", "/usr/lib/.*/gallery/bin/ConfWidgets/ReportPreferencesPlugin\\.so");
    row("txguicommon-gallery", "/usr/share/man/man1/TXGallery\\.1\\.gz");
    row("txguicommon-designer", "/usr/lib/.*/plugins/designer/libTXGUICommonDesigner\\.so");
}

void TestDebianPackages::fileBelongsToItsPackage()
{
    QFETCH(const QString, package);
    QFETCH(const QString, pattern);
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));

    for (const QString &name : std::as_const(names)) {
        QCOMPARE(filesOf(name).filter(whole).size(), name == package ? 1 : 0);
    }
}

void TestDebianPackages::exampleIsBuiltWithThem()
{
    const QTemporaryDir folder;

    const CommandResult built =
        buildHost(sourceFolder() + "/examples/hello", folder.path(), system.filePath("usr"));

    QVERIFY2(built.succeeded, qPrintable(built.output));
    QCOMPARE(showAndCloseHello(folder.filePath("hello")), QString());
}

void TestDebianPackages::removedPackagesLeaveNothing()
{
    QVERIFY(!installedFiles().isEmpty());

    const CommandResult removed = dpkg(QStringList("--remove") + names);
    QVERIFY2(removed.succeeded, qPrintable(removed.output));
    QCOMPARE(installedFiles(), QStringList());

    const CommandResult purged = dpkg(QStringList("--purge") + names);
    QVERIFY2(purged.succeeded, qPrintable(purged.output));
    QCOMPARE(installedFiles(), QStringList());
    QVERIFY(!dpkg({"--status", names.first()}).succeeded);
}

int main(int argc, char **argv)
{
    return runTest<TestDebianPackages>(argc, argv);
}

#include "tst_DebianPackages.moc"
