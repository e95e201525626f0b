#include "ChildProcess.h"

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

/// Runs in the new process, before its program.
void endWithParent(pid_t parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) {
        ::_exit(1);
    }
}

} // namespace

void endWithThisThread(QProcess &process)
{
    process.setChildProcessModifier([parent = ::getpid()] { endWithParent(parent); });
}
