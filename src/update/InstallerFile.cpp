#include "InstallerFile.h"

#include <QFile>
#include <QFileInfo>

InstallerFile::InstallerFile(const QString &filePath, qint64 size)
    : path(filePath)
    , expectedSize(size)
{ }

InstallerFile::Result InstallerFile::append(QIODevice &source, qint64 size)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        return Result::NotOpened;
    }
    if (file.size() != writtenSize) {
        return Result::Failed;
    }
    const QByteArray piece = source.read(size);
    if (file.write(piece) != piece.size() || !file.flush()) {
        return Result::Failed;
    }
    writtenSize += piece.size();
    return Result::Written;
}

bool InstallerFile::isComplete() const
{
    const QFileInfo file(path);
    return file.isFile() && file.size() == writtenSize && writtenSize >= expectedSize;
}
