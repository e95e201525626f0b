#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

/// Shell scripts that are found in the PATH in place of the programs of their names, as long as
/// this object lives. Threads that look at the environment have to be over before and after.
///
/// The scripts find their folder in "$0". A file in it is how a test and a script tell each other
/// what has happened.
class StandInPrograms
{
public:
    StandInPrograms() { qputenv("PATH", QFile::encodeName(folder.path()) + ':' + oldPath); }
    ~StandInPrograms() { qputenv("PATH", oldPath); }

    StandInPrograms(const StandInPrograms &) = delete;
    StandInPrograms &operator=(const StandInPrograms &) = delete;
    StandInPrograms(StandInPrograms &&) = delete;
    StandInPrograms &operator=(StandInPrograms &&) = delete;

    /// Makes all other programs disappear; scripts name those that they need by their paths.
    void hideOthers() const { qputenv("PATH", QFile::encodeName(folder.path())); }

    /// The script gets "$here", the folder, and the functions `tell FILE`, which makes a file with
    /// its standard input in one step, and `await FILE`, which waits until there is one.
    [[nodiscard]] bool add(const QString &name, const QByteArray &script) const
    {
        static const QByteArray begin = "#!/bin/sh\nhere=$(/usr/bin/dirname \"$0\")\n"
                                        "tell() { /bin/cat > \"$here/$1.new\";"
                                        " /bin/mv \"$here/$1.new\" \"$here/$1\"; }\n"
                                        "await() { while [ ! -e \"$here/$1\" ]; do"
                                        " /bin/sleep 0.01; done; }\n";
        return addFile(name, begin + script);
    }

    /// A file that may be run, as it is.
    [[nodiscard]] bool addFile(const QString &name, const QByteArray &contents) const
    {
        write(name, contents);
        return QFile::setPermissions(pathOf(name), QFile::ReadOwner | QFile::ExeOwner);
    }

    void write(const QString &name, const QByteArray &contents = {}) const
    {
        QFile file(pathOf(name));
        if (!file.open(QFile::WriteOnly) || file.write(contents) != contents.size()) {
            qWarning("%s cannot be written.", qPrintable(file.fileName()));
        }
    }

    /// Empty when there is none.
    [[nodiscard]] QByteArray contentsOf(const QString &name) const
    {
        QFile file(pathOf(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] bool has(const QString &name) const { return QFile::exists(pathOf(name)); }

    [[nodiscard]] QString pathOf(const QString &name) const { return folder.filePath(name); }

private:
    const QByteArray oldPath = qgetenv("PATH");
    QTemporaryDir folder;
};

/// Whether a process of this number runs. One that has ended and that nobody has asked about does
/// not count.
inline bool isRunning(const QByteArray &processId)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(processId.trimmed().toInt()));
    if (!file.open(QFile::ReadOnly)) {
        return false;
    }
    const QByteArray status = file.readAll();
    const char state = status.mid(status.lastIndexOf(')') + 2, 1).append('X').at(0);
    return state != 'Z' && state != 'X';
}
