#include "DriveLetters.h"

#include <QDir>

QStringList DriveLetters::inUse()
{
    QStringList mountPoints;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo &drive : drives) {
        mountPoints.append(drive.filePath());
    }
    return mountPoints;
}
