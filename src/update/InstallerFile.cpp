#include "InstallerFile.h"

#include "UnfinishedDownloads.h"

#include <QFile>
#include <QFileInfo>

InstallerFile::InstallerFile(const QString &filePath, qint64 size, Beginning fileBeginning)
    : path(filePath)
    , expectedSize(size)
    , beginning(fileBeginning)
{ }

InstallerFile::Result InstallerFile::append(QIODevice &source, qint64 size)
{
    isOffered = true;
    if (isLost) {
        return Result::Failed;
    }
    if (!isBegun && !isReadyToBegin()) {
        return lose();
    }
    QFile file(path);
    if (!open(file)) {
        return openFailed();
    }
    return isOurs(file) ? move(source, qBound(qint64(0), size, kLargestPiece), file) : lose();
}

bool InstallerFile::finish()
{
    const bool isOnDisk = isBegun ? isOurs(QFile(path)) : !isOffered;
    if (isLost || !isOnDisk || fileSize < expectedSize) {
        lose();
        return false;
    }
    if (isBegun) {
        UnfinishedDownloads::remove(path);
    }
    return true;
}

bool InstallerFile::isReadyToBegin()
{
    if (beginning == Beginning::AnyFile) {
        return !path.isEmpty();
    }
    // Checked before the file is remembered: what is there belongs to somebody else.
    const QFileInfo file(path);
    if (path.isEmpty() || file.isFile() || file.isSymLink()) {
        return false;
    }
    // At each try, since the entry tells when the file was made. Settings that cannot be written,
    // as those of a host without a name, are no reason to go without the download.
    UnfinishedDownloads::add(path);
    isRemembered = true;
    return true;
}

bool InstallerFile::open(QFile &file)
{
    const QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Append;
    if (isBegun) {
        return file.open(mode | QIODevice::ExistingOnly);
    }
    const bool isNew = beginning == Beginning::NewFile;
    if (!file.open(isNew ? mode | QIODevice::NewOnly : mode)) {
        return false;
    }
    isBegun = true;
    fileSize = file.size();
    birth = file.fileTime(QFileDevice::FileBirthTime);
    return true;
}

bool InstallerFile::isOurs(const QFile &file) const
{
    return file.size() == fileSize && file.fileTime(QFileDevice::FileBirthTime) == birth;
}

InstallerFile::Result InstallerFile::move(QIODevice &source, qint64 size, QFile &file)
{
    const QByteArray piece = source.read(size);
    if (piece.isEmpty() && size > 0) {
        return Result::NothingRead;
    }
    return write(file, piece) ? Result::Written : lose();
}

bool InstallerFile::write(QFile &file, const QByteArray &piece)
{
    const bool isTaken = file.write(piece) == piece.size();
    // Some file systems tell only here that there is no room.
    file.close();
    fileSize += piece.size();
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
