#include "HostBuild.h"

#include "ChildProcess.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

namespace {

constexpr int kPatienceMilliseconds = 180000;

} // namespace

QString installedTree()
{
    return QStringLiteral(TX_INSTALLED_TREE);
}

QString librariesIn(const QString &prefix)
{
    QDirIterator files(prefix, {QStringLiteral("libTXGUICommon.so.1")}, QDir::Files,
                       QDirIterator::Subdirectories);
    return files.hasNext() ? QFileInfo(files.next()).path() : QString();
}

QString buildFolder()
{
    return QStringLiteral(TX_BUILD_FOLDER);
}

QString sourceFolder()
{
    return QStringLiteral(TX_SOURCE_FOLDER);
}

QString observersFolder()
{
    return QStringLiteral(TX_OBSERVERS);
}

CommandResult runCommand(const QString &program, const QStringList &arguments,
                         const QProcessEnvironment &environment)
{
    QProcess process;
    endWithThisThread(process);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(kPatienceMilliseconds)) {
        return {false, program + QStringLiteral(": ") + process.errorString()};
    }
    const bool ended = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return {ended, QString::fromUtf8(process.readAll())};
}

CommandResult runCMakeTool(const QString &name, const QStringList &arguments)
{
    return runCommand(QFileInfo(QStringLiteral(TX_CMAKE)).dir().filePath(name), arguments);
}

CommandResult configureLibrary(const QString &folder, const QStringList &options)
{
    // CMake still knows the compiler then.
    QFile::remove(folder + QStringLiteral("/CMakeCache.txt"));
    return runCommand(QStringLiteral(TX_CMAKE),
                      QStringList{QStringLiteral("-S"), sourceFolder(), QStringLiteral("-B"),
                                  folder, QStringLiteral("-G" TX_GENERATOR),
                                  QStringLiteral("-DCMAKE_CXX_COMPILER=" TX_COMPILER),
                                  QStringLiteral("-DTXGUICOMMON_BUILD_TESTS=OFF"),
                                  QStringLiteral("-DTXGUICOMMON_BUILD_GALLERY=OFF"),
                                  QStringLiteral("-DTXGUICOMMON_BUILD_DESIGNER=OFF")}
                          + options);
}

CommandResult configureHost(const QString &sources, const QString &folder, const QString &prefix)
{
    return runCommand(QStringLiteral(TX_CMAKE),
                      {QStringLiteral("-S"), sources, QStringLiteral("-B"), folder,
                       QStringLiteral("-G" TX_GENERATOR),
                       QStringLiteral("-DCMAKE_CXX_COMPILER=" TX_COMPILER),
                       QStringLiteral("-DCMAKE_CXX_FLAGS=" TX_HOST_FLAGS),
                       QStringLiteral("-DCMAKE_PREFIX_PATH=") + prefix});
}

CommandResult buildHost(const QString &sources, const QString &folder, const QString &prefix)
{
    const CommandResult configured = configureHost(sources, folder, prefix);
    return configured.succeeded
        ? runCommand(QStringLiteral(TX_CMAKE), {QStringLiteral("--build"), folder})
        : configured;
}

QString pkgConfigCommand(const QString &module)
{
    return QStringLiteral("c++ main.cpp -o hello $(pkg-config --cflags --libs %1)").arg(module);
}

QString pkgConfigRunPath(const QString &module)
{
    return QStringLiteral("-Wl,-rpath,$(pkg-config --variable=libdir %1)").arg(module);
}

CommandResult buildWithPkgConfig(const QString &folder, const QString &module,
                                 const QString &prefix)
{
    QString command = pkgConfigCommand(module) + u' ' + pkgConfigRunPath(module);
    command.replace(0, command.indexOf(u' '), QStringLiteral(TX_COMPILER " " TX_HOST_FLAGS));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PKG_CONFIG_PATH"),
                       librariesIn(prefix) + QStringLiteral("/pkgconfig"));
    return runCommand(QStringLiteral("sh"),
                      {QStringLiteral("-c"), QStringLiteral("cd \"$0\" && ") + command, folder},
                      environment);
}
