#include "InstallerFile.h"

#include "UnfinishedDownloads.h"

#include <QFile>
#include <QFileInfo>

InstallerFile::InstallerFile(const QString &filePath, qint64 size)
    : path(filePath)
    , expectedSize(size)
    , isLost(filePath.isEmpty())
{ }

InstallerFile::Result InstallerFile::append(QIODevice &source, qint64 size)
{
    if (isLost) {
        return Result::Failed;
    }
    if (!isBegun && !isReadyToBegin()) {
        return lose();
    }
    QFile file(path);
    const auto place = isBegun ? QIODevice::ExistingOnly : QIODevice::NewOnly;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | place)) {
        return openFailed();
    }
    if (!isBegun) {
        isBegun = true;
        birth = file.fileTime(QFileDevice::FileBirthTime);
    }
    const bool isWritten =
        isOurs(file) && write(file, source.read(qBound(qint64(0), size, kLargestPiece)));
    return isWritten ? Result::Written : lose();
}

bool InstallerFile::finish()
{
    const QFile file(path);
    if (isLost || !isBegun || !isOurs(file) || writtenSize < expectedSize) {
        lose();
        return false;
    }
    UnfinishedDownloads::remove(path);
    return true;
}

bool InstallerFile::isReadyToBegin()
{
    // Checked before the file is remembered: what is there belongs to somebody else.
    const QFileInfo file(path);
    if (file.isFile() || file.isSymLink()) {
        return false;
    }
    isRemembered = isRemembered || UnfinishedDownloads::add(path);
    return isRemembered;
}

bool InstallerFile::isOurs(const QFile &file) const
{
    return file.size() == writtenSize && file.fileTime(QFileDevice::FileBirthTime) == birth;
}

bool InstallerFile::write(QFile &file, const QByteArray &piece)
{
    const bool isTaken = file.write(piece) == piece.size();
    // Some file systems tell only here that there is no room.
    file.close();
    writtenSize += piece.size();
    return isTaken && file.error() == QFileDevice::NoError;
}

InstallerFile::Result InstallerFile::openFailed()
{
    const bool isGone = isBegun && !QFileInfo::exists(path);
    return isGone ? lose() : Result::NotOpened;
}

InstallerFile::Result InstallerFile::lose()
{
    isLost = true;
    if (!isBegun && isRemembered) {
        UnfinishedDownloads::remove(path);
    }
    return Result::Failed;
}
