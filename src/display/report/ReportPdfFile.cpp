#include "ReportPdfFile.h"

#include <algorithm>

ReportPdfFile::ReportPdfFile(const QString &fileName)
    : file(fileName)
{
    file.setDirectWriteFallback(false);
}

bool ReportPdfFile::open(OpenMode /*mode*/)
{
    return file.open(WriteOnly) && QIODevice::open(WriteOnly | Unbuffered);
}

bool ReportPdfFile::hasFailed() const
{
    return file.error() != QFileDevice::NoError;
}

QString ReportPdfFile::reason() const
{
    return file.errorString();
}

bool ReportPdfFile::commit()
{
    return !hasFailed() && file.commit();
}

qint64 ReportPdfFile::readData(char * /*data*/, qint64 /*maximum*/)
{
    return -1;
}

qint64 ReportPdfFile::writeData(const char *data, qint64 length)
{
    if (hasFailed() || file.write(data, length) != length) {
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
