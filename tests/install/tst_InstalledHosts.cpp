#include "HelloWindow.h"
#include "HostBuild.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int kPatienceMilliseconds = 60000;

/// Whether the last list of widgets in the output is complete and has all of these lines.
bool tellsLast(const QByteArray &output, const QStringList &lines)
{
    const QString last = QString::fromUtf8(output).section(QStringLiteral("on the screen:\n"), -1);
    const QStringList told = last.split(u'\n');
    return told.contains(QStringLiteral("end"))
        && std::all_of(lines.begin(), lines.end(),
                       [&told](const QString &line) { return told.contains(line); });
}

/// Finds the widgets of examples/form by their names, turns the switch off as a user with the
/// keyboard, and sees that it turns the number off.
QString useForm(QProcess &form, const QProcessEnvironment &screen)
{
    const QString square = QStringLiteral("paperSquare TXColorSquareWidget enabled");
    const QString toggle = QStringLiteral("paperSwitch TXSwitchSlider enabled");
    const QString number = QStringLiteral("toleranceBox DoubleSpinBoxWithSliderWidget ");
    QByteArray output;
    const auto tells = [&](const QString &state) {
        output += form.readAll();
        return tellsLast(output, {square, toggle, number + state});
    };
    if (!QTest::qWaitFor([&] { return tells(QStringLiteral("enabled")); }, kPatienceMilliseconds)) {
        return QStringLiteral("a widget is missing: ") + QString::fromUtf8(output);
    }
    const auto isTurnedOff = [&] {
        return pressKeys(QStringLiteral("Home"), screen) && tells(QStringLiteral("disabled"));
    };
    return QTest::qWaitFor(isTurnedOff, kPatienceMilliseconds)
        ? QString()
        : QStringLiteral("the switch does nothing: ") + QString::fromUtf8(output);
}

} // namespace

/// Programs that are built with the installed libraries.
class TestInstalledHosts : public TestBase
{
    Q_OBJECT

private slots:
    void exampleFindsThePackage();
    void exampleIsBuiltWithPkgConfig();
    void documentsTellOfPkgConfig_data();
    void documentsTellOfPkgConfig();
    void hostOfTheCoreIsBuiltWithPkgConfig();
    void hostOfTheResourcesIsBuiltWithPkgConfig();
    void exampleHasItsForm();
    void programOfTheGuideGetsWhatItShips();
    void hostOfTheCoreDoesWithoutTheWidgets();
    void packageIsFound_data();
    void packageIsFound();
    void packageIsRefusedInWords_data();
    void packageIsRefusedInWords();

private:
    /// Configures a project of this one line, besides what each has.
    CommandResult configure(const QString &line);
};

CommandResult TestInstalledHosts::configure(const QString &line)
{
    const QTemporaryDir folder;
    QFile project(folder.filePath("CMakeLists.txt"));
    if (!project.open(QFile::WriteOnly)) {
        return {false, project.errorString()};
    }
    project.write("cmake_minimum_required(VERSION 3.25)\nproject(host LANGUAGES CXX)\n"
                  + line.toUtf8() + '\n');
    project.close();
    CommandResult result = configureHost(folder.path(), folder.filePath("build"), installedTree());
    // CMake breaks lines where it likes.
    result.output = result.output.simplified();
    return result;
}

void TestInstalledHosts::exampleFindsThePackage()
{
    const QTemporaryDir folder;

    const CommandResult built =
        buildHost(sourceFolder() + "/examples/hello", folder.path(), installedTree());

    QVERIFY2(built.succeeded, qPrintable(built.output));
    const QString program = folder.filePath("hello");
    const CommandResult linked = runCommand("ldd", {program});
    QVERIFY2(linked.output.contains(librariesIn(installedTree()) + "/libTXGUICommon.so.1"),
             qPrintable(linked.output));
    QCOMPARE(showAndCloseHello(program), QString());
}

void TestInstalledHosts::exampleIsBuiltWithPkgConfig()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(sourceFolder() + "/examples/hello/main.cpp", folder.filePath("main.cpp")));

    const CommandResult built = buildWithPkgConfig(folder.path(), "TXGUICommon", installedTree());

    QVERIFY2(built.succeeded, qPrintable(built.output));
    QCOMPARE(showAndCloseHello(folder.filePath("hello")), QString());
}

void TestInstalledHosts::documentsTellOfPkgConfig_data()
{
    QTest::addColumn<QString>("fileName");

    for (const char *name : {"README.md", "docs/hosts/guide.md", "examples/hello/README.md"}) {
        QTest::newRow(name) << sourceFolder() + '/' + name;
    }
}

void TestInstalledHosts::documentsTellOfPkgConfig()
{
    QFETCH(const QString, fileName);
    QFile file(fileName);
    QVERIFY(file.open(QFile::ReadOnly));
    const QString document = QString::fromUtf8(file.readAll()).remove(" -std=c++17 -fPIC");

    QVERIFY(document.contains(pkgConfigCommand("TXGUICommon")));
    QVERIFY(document.contains('`' + pkgConfigRunPath("TXGUICommon") + '`'));
    QVERIFY(document.contains("`PKG_CONFIG_PATH`"));
}

void TestInstalledHosts::hostOfTheCoreIsBuiltWithPkgConfig()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(sourceFolder() + "/tests/install/corehost/main.cpp",
                        folder.filePath("main.cpp")));

    const CommandResult built = buildWithPkgConfig(folder.path(), "TXCoreCommon", installedTree());

    QVERIFY2(built.succeeded, qPrintable(built.output));
    const CommandResult ran = runCommand(folder.filePath("hello"), {});
    QVERIFY(ran.succeeded);
    QCOMPARE(ran.output, QString("No paper in the printer\n"));
}

void TestInstalledHosts::hostOfTheResourcesIsBuiltWithPkgConfig()
{
    const QTemporaryDir folder;
    QFile source(folder.filePath("main.cpp"));
    QVERIFY(source.open(QFile::WriteOnly));
    source.write("#include <TXResources.h>\n#include <QGuiApplication>\n"
                 "int main(int argc, char **argv)\n{\n"
                 "    const QGuiApplication application(argc, argv);\n"
                 "    return TXDisplayFixBulletStaticImage().isNull() ? 1 : 0;\n}\n");
    source.close();

    const CommandResult built = buildWithPkgConfig(folder.path(), "TXResources", installedTree());

    QVERIFY2(built.succeeded, qPrintable(built.output));
    const CommandResult ran = runCommand(folder.filePath("hello"), {});
    QVERIFY2(ran.succeeded, qPrintable(ran.output));
}

void TestInstalledHosts::exampleHasItsForm()
{
    const QTemporaryDir folder;
    const CommandResult built =
        buildHost(sourceFolder() + "/examples/form", folder.path(), installedTree());
    QVERIFY2(built.succeeded, qPrintable(built.output));

    qputenv("QT_PLUGIN_PATH", observersFolder().toLocal8Bit());
    const auto tidy = qScopeGuard([] { qunsetenv("QT_PLUGIN_PATH"); });
    QCOMPARE(showAndClose(folder.filePath("form"), {"-plugin", "windowobserver"}, "Proof", useForm),
             QString());
}

void TestInstalledHosts::programOfTheGuideGetsWhatItShips()
{
    const QTemporaryDir folder;

    const CommandResult configured =
        configureHost(sourceFolder() + "/docs/hosts/samples", folder.path(), installedTree());
    QVERIFY2(configured.succeeded, qPrintable(configured.output));
    const CommandResult built = runCMakeTool(
        "cmake", {"--build", folder.path(), "--target", "PatchReader", "PatchReaderResources"});

    QVERIFY2(built.succeeded, qPrintable(built.output));
    for (const char *name :
         {"bin/PatchReader", "Resources/Images/remote_folder.png",
          "Resources/Templates/TovraStyle.css", "Resources/translations/txguicommon_de.qm"}) {
        QVERIFY2(QFile::exists(folder.filePath(QString("stage/") + name)), name);
    }
}

void TestInstalledHosts::hostOfTheCoreDoesWithoutTheWidgets()
{
    const QTemporaryDir folder;

    const CommandResult built =
        buildHost(sourceFolder() + "/tests/install/corehost", folder.path(), installedTree());

    QVERIFY2(built.succeeded, qPrintable(built.output));
    const CommandResult linked = runCommand("ldd", {folder.filePath("corehost")});
    QVERIFY(linked.output.contains("libTXCoreCommon.so.1"));
    QVERIFY2(!linked.output.contains("libTXGUICommon"), qPrintable(linked.output));
    QVERIFY2(!linked.output.contains("libQt6Sql"), qPrintable(linked.output));
    const CommandResult ran = runCommand(folder.filePath("corehost"), {});
    QVERIFY(ran.succeeded);
    QCOMPARE(ran.output, QString("No paper in the printer\n"));
}

void TestInstalledHosts::packageIsFound_data()
{
    QTest::addColumn<QString>("line");

    const auto row = [](const char *name, const QString &wanted, const QString &target) {
        QTest::newRow(name) << QString("find_package(TXGUICommon %1)\nget_target_property(type "
                                       "TXGUICommon::%2 TYPE)\nmessage(${type})")
                                   .arg(wanted, target);
    };
    row("without components", "REQUIRED", "GUICommon");
    row("older minor version", "1.0 REQUIRED", "TXGUICommon");
    row("core", "REQUIRED COMPONENTS CoreCommon", "CoreCommon");
    row("resources", "REQUIRED COMPONENTS Resources", "Resources");
    row("widgets bring the core", "REQUIRED COMPONENTS GUICommon", "CoreCommon");
    row("widgets bring the resources", "REQUIRED COMPONENTS GUICommon", "TXResources");
    row("unknown component that may be missing",
        "REQUIRED COMPONENTS CoreCommon OPTIONAL_COMPONENTS Widgets", "TXCoreCommon");
    row("twice", "REQUIRED COMPONENTS CoreCommon)\nfind_package(TXGUICommon REQUIRED", "GUICommon");
}

void TestInstalledHosts::packageIsFound()
{
    QFETCH(const QString, line);

    const CommandResult result = configure(line);

    QVERIFY2(result.succeeded, qPrintable(result.output));
    QVERIFY2(result.output.contains("SHARED_LIBRARY"), qPrintable(result.output));
}

void TestInstalledHosts::packageIsRefusedInWords_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");

    QTest::newRow("unknown component")
        << "find_package(TXGUICommon REQUIRED COMPONENTS CoreCommon Widgets)"
        << "TXGUICommon has no component Widgets, but CoreCommon, Resources, GUICommon.";
    QTest::newRow("library in place of its component")
        << "find_package(TXGUICommon REQUIRED COMPONENTS TXGUICommon)"
        << "TXGUICommon has no component TXGUICommon, but CoreCommon, Resources, GUICommon.";
    QTest::newRow("next major version")
        << "find_package(TXGUICommon 2.0 REQUIRED)"
        << "compatible with requested version \"2.0\". The following configuration files were "
           "considered but not accepted:";
    QTest::newRow("next minor version") << "find_package(TXGUICommon 1.99 REQUIRED)"
                                        << "compatible with requested version \"1.99\"";
}

void TestInstalledHosts::packageIsRefusedInWords()
{
    QFETCH(const QString, line);
    QFETCH(const QString, reason);

    const CommandResult result = configure(line);

    QVERIFY(!result.succeeded);
    QVERIFY2(result.output.contains(reason), qPrintable(result.output));
}

int main(int argc, char **argv)
{
    return runTest<TestInstalledHosts>(argc, argv);
}

#include "tst_InstalledHosts.moc"
