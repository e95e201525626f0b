#include "ReportPdfFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {
constexpr qsizetype kBufferBytes = qsizetype(64) * 1024;
}

ReportPdfFile::ReportPdfFile(const QString &fileName)
    : file(fileName)
{
    file.setDirectWriteFallback(false);
}

QString ReportPdfFile::refusal() const
{
    const QString name = file.fileName();
    if (name.isEmpty() || name.contains(QChar::Null)) {
        return QCoreApplication::translate("TXReportDocument", "This is not a file name.");
    }
    // With the rights to, QSaveFile would put a file in the place of a device.
    const QFileInfo target(name);
    if (target.exists() && !target.isFile() && !target.isDir()) {
        return QCoreApplication::translate("TXReportDocument", "This is not a regular file.");
    }
    return {};
}

bool ReportPdfFile::open(OpenMode /*mode*/)
{
    const QString refused = refusal();
    if (!refused.isEmpty()) {
        fail(refused);
        return false;
    }
    return file.open(WriteOnly | Unbuffered) && QIODevice::open(WriteOnly | Unbuffered);
}

bool ReportPdfFile::hasFailed() const
{
    return !failure.isEmpty() || file.error() != QFileDevice::NoError;
}

QString ReportPdfFile::reason() const
{
    return failure.isEmpty() ? file.errorString() : failure;
}

void ReportPdfFile::fail(const QString &reason)
{
    failure = reason;
}

bool ReportPdfFile::commit()
{
    return !hasFailed() && flushWaiting() && file.commit() && !hasFailed();
}

/// A buffer of our own: that of QSaveFile is emptied last when it commits, which then does not
/// notice when the disk is full, and it forgets the reason when only a part could be written.
bool ReportPdfFile::flushWaiting()
{
    qint64 done = 0;
    while (done < waiting.size()) {
        const qint64 more = file.write(waiting.constData() + done, waiting.size() - done);
        if (more <= 0) {
            fail(file.errorString());
            return false;
        }
        done += more;
    }
    waiting.resize(0);
    return true;
}

qint64 ReportPdfFile::readData(char * /*data*/, qint64 /*maximum*/)
{
    return -1;
}

qint64 ReportPdfFile::writeData(const char *data, qint64 length)
{
    if (hasFailed()) {
        return -1;
    }
    waiting.append(data, length);
    if (waiting.size() >= kBufferBytes && !flushWaiting()) {
        return -1;
    }
    written += length;
    const qint64 kept = std::min<qint64>(length, kTailBytes);
    if (lastBytes.size() + kept > 2 * kTailBytes) {
        lastBytes = lastBytes.right(kTailBytes);
    }
    lastBytes.append(data + (length - kept), kept);
    return length;
}
