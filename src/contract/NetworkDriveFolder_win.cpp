#include "NetworkDriveFolder.h"

QList<QChar> NetworkDriveFolder::letters()
{
    return {};
}

QString NetworkDriveFolder::target(QChar)
{
    return {};
}

bool NetworkDriveFolder::place(QChar, const QString &)
{
    return false;
}

void NetworkDriveFolder::remove(QChar, const QString &) { }
