#pragma once

#include <QDir>

/// How many threads this process has.
inline int threadCount()
{
    return int(QDir(QStringLiteral("/proc/self/task")).count());
}

/// How many files and sockets this process has open.
inline int openFileCount()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::Files).count());
}
