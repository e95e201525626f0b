#include "HostBuild.h"

#include "ChildProcess.h"

#include <QDir>
#include <QDirIterator>
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

CommandResult buildWithPkgConfig(const QString &source, const QString &program,
                                 const QString &module, const QString &prefix)
{
    const QString libraries = librariesIn(prefix);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PKG_CONFIG_PATH"), libraries + QStringLiteral("/pkgconfig"));
    const CommandResult told =
        runCommand(QStringLiteral("pkg-config"),
                   {QStringLiteral("--cflags"), QStringLiteral("--libs"), module}, environment);
    if (!told.succeeded) {
        return told;
    }
    return runCommand(QStringLiteral(TX_COMPILER),
                      QProcess::splitCommand(QStringLiteral(TX_HOST_FLAGS))
                          + QStringList{source, QStringLiteral("-o"), program}
                          + QProcess::splitCommand(told.output)
                          + QStringList(QStringLiteral("-Wl,-rpath,") + libraries));
}
