#include "TXDataCryptKey.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool syncToDisk(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool isSynced = descriptor >= 0 && ::fsync(descriptor) == 0;
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return isSynced;
}

} // namespace

bool publishFileUnlessExists(const QString &from, const QString &to, QString *reason)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    // A link, since renaming would replace the file of a process that was quicker.
    const bool isPublished = syncToDisk(from)
        && (::link(source.constData(), target.constData()) == 0 || errno == EEXIST);
    if (!isPublished) {
        *reason = qt_error_string(errno);
    }
    ::unlink(source.constData());
    // Where folders cannot be synced, the file system keeps their order by itself.
    syncToDisk(QFileInfo(to).path());
    return isPublished;
}
