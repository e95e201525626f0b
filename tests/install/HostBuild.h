#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// How a program that a test ran to its end has fared.
struct CommandResult
{
    /// Whether it has ended by itself with 0.
    bool succeeded = false;
    /// What it has printed, errors too; or why it could not run.
    QString output;
};

/// The tree that is installed and moved before the tests.
[[nodiscard]] QString installedTree();

/// The folder of the libraries in a tree such as installedTree(), or an empty string.
[[nodiscard]] QString librariesIn(const QString &prefix);

/// Where this build lies, and its sources.
[[nodiscard]] QString buildFolder();
[[nodiscard]] QString sourceFolder();

/// The folder that a program adds to its plug-in paths (QT_PLUGIN_PATH) to be looked into by the
/// argument "-plugin windowobserver", see WindowObserver.cpp.
[[nodiscard]] QString observersFolder();

/// Runs a program and waits for its end, for three minutes at most.
[[nodiscard]] CommandResult
runCommand(const QString &program, const QStringList &arguments,
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

/// Runs another program of the CMake that has made this build, such as "cpack".
[[nodiscard]] CommandResult runCMakeTool(const QString &name, const QStringList &arguments);

/// Configures this repository without tests, gallery and plug-in, with further options, in a folder
/// that may be there already. What was said the last time is forgotten.
[[nodiscard]] CommandResult configureLibrary(const QString &folder, const QStringList &options);

/// Configures a host's project, which finds its packages below the prefix.
[[nodiscard]] CommandResult configureHost(const QString &sources, const QString &folder,
                                          const QString &prefix);

/// The same, and builds it.
[[nodiscard]] CommandResult buildHost(const QString &sources, const QString &folder,
                                      const QString &prefix);

/// The command of a shell, as the documents tell it, that makes the program "hello" of "main.cpp"
/// with a module of pkg-config; and what stands at its end under a prefix of one's own.
[[nodiscard]] QString pkgConfigCommand(const QString &module);
[[nodiscard]] QString pkgConfigRunPath(const QString &module);

/// Runs both of them in the folder, with our compiler in the place of the system's.
[[nodiscard]] CommandResult buildWithPkgConfig(const QString &folder, const QString &module,
                                               const QString &prefix);
