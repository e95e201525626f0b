#pragma once

#include <QFile>

/// Whether the process is there and not merely waiting for somebody to ask how it ended.
inline bool isAlive(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QFile::ReadOnly)) {
        return false;
    }
    // "12 (python3) S …": the state stands behind the name.
    const QByteArray line = file.readAll();
    const qsizetype state = line.lastIndexOf(')') + 2;
    return line.mid(state, 1) != "Z";
}
