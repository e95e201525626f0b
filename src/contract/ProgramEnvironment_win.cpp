#include "ProgramEnvironment.h"

void ProgramEnvironment::setOwnGroup(QProcess *) { }

void ProgramEnvironment::killGroup(qint64) { }
