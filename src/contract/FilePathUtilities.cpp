#include "FilePathUtilities.h"

#include <QFile>
#include <QFileInfo>

bool FilePathUtilities::remove(const QString &path)
{
    // QFile warns on an empty name and on one that no file can have.
    return !path.isEmpty() && !path.contains(QChar(u'\0')) && !QFileInfo(path).isDir()
        && QFile::remove(path);
}
