#include "ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <sys/prctl.h>
#include <unistd.h>

namespace {

/// Runs in the new process, before its program.
void endWithParent(pid_t parent, int signal)
{
    ::prctl(PR_SET_PDEATHSIG, signal);
    if (::getppid() != parent) {
        ::_exit(1);
    }
}

} // namespace

void endWithThisThread(QProcess &process, int signal)
{
    process.setChildProcessModifier(
        [parent = ::getpid(), signal] { endWithParent(parent, signal); });
}

QStringList processesOf(const QString &folder)
{
    QStringList found;
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString &process : processes) {
        QFile file(QStringLiteral("/proc/%1/environ").arg(process));
        if (file.open(QFile::ReadOnly) && file.readAll().contains(QFile::encodeName(folder))) {
            found.append(process);
        }
    }
    return found;
}
