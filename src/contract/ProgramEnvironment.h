#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <memory>

class QProcess;

/// What all runs of other programs have in common: where a program is found, what language it
/// speaks, how it is started, and how it ends together with the programs that it has started. See
/// ProgramLines and ProgramRun. Thread: any, as long as nobody changes this process's environment
/// meanwhile.
struct TXCORECOMMON_PRIVATE_EXPORT ProgramEnvironment
{
    /// How much of a program's standard error is kept; bytes.
    static constexpr qsizetype kLongestError = 65'536;

    /// The path of a program, looked for in the PATH; empty when it is not there, or is no file
    /// that may be run.
    [[nodiscard]] static QString find(const QString &program);

    /// This process's environment, with English in UTF-8 as the language, so that messages can be
    /// told apart.
    [[nodiscard]] static QProcessEnvironment plainEnglish();

    /// Starts the program of this path in plainEnglish() and in a group of its own, writes the
    /// input and closes it. A program that does not read it does no harm.
    static void start(QProcess *process, const QString &path, const QStringList &arguments,
                      const QByteArray &input);

    /// Kills a process that was started by start() and runs still, and what it has started; does
    /// nothing else for one that has ended. Takes 50 ms at most: one that cannot be killed is
    /// buried by the application's thread when it ends. Nobody may be connected to it any more.
    static void abandon(std::unique_ptr<QProcess> process);

    /// Appends bytes to what is kept, up to the limit; the others are lost.
    static void keepBeginning(QByteArray *kept, const QByteArray &bytes, qsizetype limit);

private:
    /// Lets the process, which is not started yet, begin a session and a process group of its own:
    /// it asks nobody at this process's terminal for a password, and killGroup() can end it. Does
    /// nothing on systems without sessions.
    static void setOwnGroup(QProcess *process);

    /// Kills a process that was started after setOwnGroup(), and with it those that it has started
    /// and that have not begun a session of their own. Only for one that nobody has been told the
    /// end of: from then on its number may be that of a stranger. Does nothing for 0, nor while it
    /// has not come to have a group. On systems without sessions nothing is killed but by
    /// QProcess::kill().
    static void killGroup(qint64 processId);
};
