#include "HelloWindow.h"
#include "HostBuild.h"
#include "TestBase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
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
    void controlFileTells_data();
    void controlFileTells();
    void packagesAreInstalled();
    void fileBelongsToItsPackage_data();
    void fileBelongsToItsPackage();
    void exampleIsBuiltWithThem();
    void removedPackagesLeaveNothing();

private:
    CommandResult dpkg(const QStringList &arguments);
    QStringList filesOf(const QString &package);
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
    const QDir records(system.path());
    QVERIFY(records.mkpath("var/lib/dpkg/info") && records.mkpath("var/lib/dpkg/updates")
            && records.mkpath("var/lib/dpkg/triggers"));
    for (const char *name : {"status", "available"}) {
        QVERIFY(QFile(system.filePath(QString("var/lib/dpkg/") + name)).open(QFile::WriteOnly));
    }
}

void TestDebianPackages::packagesAreMade()
{
    const CommandResult packed = runCMakeTool(
        "cpack", {"--config", buildFolder() + "/CPackConfig.cmake", "-B", made.path()});

    QVERIFY2(packed.succeeded, qPrintable(packed.output));
    files = QDir(made.path()).entryList({"*.deb"}, QDir::Files, QDir::Name);
    for (const QString &file : std::as_const(files)) {
        names.append(file.section('_', 0, 0));
    }
    QCOMPARE(names,
             QStringList({"libtxguicommon-dev", "libtxguicommon1", "txguicommon-designer",
                          "txguicommon-gallery"}));
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
    QTest::newRow("servers") << "txguicommon-gallery"
                             << "Recommends: .*python3-aiosmtpd.*mariadb-server-core.*";
}

void TestDebianPackages::controlFileTells()
{
    QFETCH(const QString, package);
    QFETCH(const QString, line);
    const QString file = files.value(names.indexOf(package));
    QVERIFY(!file.isEmpty());

    const CommandResult told = runCommand("dpkg-deb", {"--field", made.filePath(file)});

    const QRegularExpression pattern('^' + line + '$', QRegularExpression::MultilineOption);
    QVERIFY2(told.output.contains(pattern), qPrintable(told.output));
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
    row("libtxguicommon1", "/usr/share/TXGUICommon/translations/txguicommon_de\\.qm");
    row("libtxguicommon1", "/usr/share/TXGUICommon/Resources/Images/remote_folder\\.png");
    row("libtxguicommon1", "/usr/share/doc/TXGUICommon/NOTICE\\.md");
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
