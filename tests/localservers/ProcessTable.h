#pragma once

#include <QDir>
#include <QFile>
#include <QList>

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

/// The processes that live and among whose arguments the text stands.
inline QList<qint64> processesWith(const QByteArray &text)
{
    QList<qint64> found;
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString &process : processes) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(process));
        if (file.open(QFile::ReadOnly) && file.readAll().contains(text)
            && isAlive(process.toLongLong())) {
            found.append(process.toLongLong());
        }
    }
    return found;
}
