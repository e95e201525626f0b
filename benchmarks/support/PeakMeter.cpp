#include "PeakMeter.h"

#include <QByteArray>
#include <QFile>

#include <malloc.h>

namespace {

constexpr char kPeakField[] = "VmHWM:";
/// What the kernel takes as "the peak is what is held now".
constexpr char kStartPeakAnew[] = "5";

bool startPeakAnew()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    return file.open(QFile::WriteOnly | QFile::Unbuffered) && file.write(kStartPeakAnew) > 0;
}

/// Below 0 when it is not told.
qint64 peakBytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QFile::ReadOnly)) {
        return -1;
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(kPeakField)) {
            const QByteArray kilobytes =
                line.mid(qstrlen(kPeakField)).simplified().split(' ').at(0);
            return kilobytes.toLongLong() * 1024;
        }
    }
    return -1;
}

} // namespace

PeakMeter::PeakMeter()
{
    malloc_trim(0);
    if (startPeakAnew()) {
        start = peakBytes();
    }
}

bool PeakMeter::isValid() const
{
    return start >= 0;
}

qint64 PeakMeter::bytes() const
{
    return isValid() ? peakBytes() - start : 0;
}
