#include "ProgramEnvironment.h"

#include <QProcess>

#include <csignal>
#include <unistd.h>

void ProgramEnvironment::setOwnGroup(QProcess *process)
{
    process->setChildProcessModifier([] { ::setsid(); });
}

void ProgramEnvironment::killGroup(qint64 processId)
{
    if (processId > 1) {
        ::kill(-static_cast<pid_t>(processId), SIGKILL);
    }
}
