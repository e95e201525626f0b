#pragma once

#include "ColourPreset.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

#include <csignal>

#include <sys/resource.h>

/// @file
/// Files of colour presets, and trouble with them.

/// A disk on which no file can grow, while it lives.
class FullDisk
{
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit = {0, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }

    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit before = {};
};

/// A preset of this name with the usual settings.
inline ColourPreset presetCalled(const QString &name)
{
    ColourPreset preset;
    preset.name = name;
    return preset;
}

/// Whether the file holds nothing but this now.
inline bool writeBytes(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QFile::WriteOnly | QFile::Truncate) && file.write(content) == content.size();
}

/// Empty when it cannot be read.
inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The names of everything in the folder, hidden files too.
inline QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                  | QDir::NoDotAndDotDot);
}
