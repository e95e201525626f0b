#pragma once

#include <QFile>
#include <QTemporaryDir>

/// A shell script that is found in the PATH in place of the program of its name while the object
/// lives.
class StandInProgram
{
public:
    StandInProgram(const QString &name, const QByteArray &script)
    {
        QFile file(folder.filePath(name));
        isWritten = file.open(QFile::WriteOnly) && file.write("#!/bin/sh\n" + script) > 0
            && file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(folder.path()) + ':' + oldPath);
    }
    ~StandInProgram() { qputenv("PATH", oldPath); }

    StandInProgram(const StandInProgram &) = delete;
    StandInProgram &operator=(const StandInProgram &) = delete;
    StandInProgram(StandInProgram &&) = delete;
    StandInProgram &operator=(StandInProgram &&) = delete;

    [[nodiscard]] bool isReady() const { return isWritten; }

    /// Puts an empty file beside the script.
    [[nodiscard]] bool touch(const QString &name) const
    {
        return QFile(folder.filePath(name)).open(QFile::WriteOnly);
    }

private:
    const QByteArray oldPath = qgetenv("PATH");
    QTemporaryDir folder;
    bool isWritten = false;
};
