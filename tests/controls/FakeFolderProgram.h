#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// The only program "xdg-open" that can be found while the object lives. It opens nothing and
/// remembers what it was asked for.
class FakeFolderProgram
{
public:
    FakeFolderProgram() { qputenv("PATH", QFile::encodeName(bin.path())); }
    ~FakeFolderProgram() { qputenv("PATH", path); }
    FakeFolderProgram(const FakeFolderProgram &) = delete;
    FakeFolderProgram &operator=(const FakeFolderProgram &) = delete;
    FakeFolderProgram(FakeFolderProgram &&) = delete;
    FakeFolderProgram &operator=(FakeFolderProgram &&) = delete;

    /// Puts the program in place; before that there is none.
    [[nodiscard]] bool install()
    {
        // A record appears at once with all that belongs to it.
        const QString script = QStringLiteral("#!/bin/sh\nprintf '%s\\0' \"$@\" >'%1/'$$.new\n"
                                              "/bin/mv '%1/'$$.new '%1/'$$.call\n")
                                   .arg(records.path());
        QFile file(bin.filePath(QStringLiteral("xdg-open")));
        return file.open(QFile::WriteOnly) && file.write(script.toUtf8()) > 0
            && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The arguments of all calls so far, each with a NUL behind it.
    [[nodiscard]] QStringList calls() const
    {
        QStringList all;
        const QStringList names = QDir(records.path()).entryList({QStringLiteral("*.call")});
        for (const QString &name : names) {
            QFile file(records.filePath(name));
            all.append(file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                  : file.errorString());
        }
        return all;
    }

    /// What one call with this only argument leaves.
    [[nodiscard]] static QStringList callFor(const QString &argument)
    {
        return {argument + QChar::Null};
    }

private:
    const QByteArray path = qgetenv("PATH");
    QTemporaryDir bin;
    QTemporaryDir records;
};
