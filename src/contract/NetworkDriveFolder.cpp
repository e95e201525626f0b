#include "NetworkDriveFolder.h"

#include <QDir>

QString NetworkDriveFolder::path()
{
    return QDir::homePath() + QStringLiteral("/Network Drives");
}
