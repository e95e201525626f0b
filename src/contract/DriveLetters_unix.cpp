#include "DriveLetters.h"
#include "NetworkDriveFolder.h"

QStringList DriveLetters::inUse()
{
    QStringList mountPoints;
    for (const QChar letter : NetworkDriveFolder::letters()) {
        mountPoints.append(mountPoint(letter));
    }
    return mountPoints;
}
