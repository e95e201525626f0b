#include "DifferencePicture.h"

#include "ColourDifference.h"
#include "ScreenColour.h"

#include <QSize>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr QRgb kGoodStart = qRgb(0xff, 0xff, 0xff);
constexpr QRgb kGoodEnd = qRgb(0x00, 0x99, 0x00);
constexpr QRgb kBadStart = qRgb(0xff, 0xb2, 0x00);
constexpr QRgb kBadEnd = qRgb(0x33, 0x00, 0x00);
/// The bits of alpha.
constexpr QRgb kOpaque = 0xff000000U;

int between(int start, int end, double share)
{
    return int(std::lround(start + (end - start) * share));
}

QRgb between(QRgb start, QRgb end, double share)
{
    return qRgb(between(qRed(start), qRed(end), share), between(qGreen(start), qGreen(end), share),
                between(qBlue(start), qBlue(end), share));
}

/// Remembers the colours of pairs. Each pair has one place, which the last that came holds.
class PairMemory
{
public:
    PairMemory()
        : entries(kPlaces)
    { }

    /// For colours without alpha.
    QRgb colourOf(QRgb first, QRgb second)
    {
        Entry &entry = entries[placeOf(first, second)];
        if (entry.first != first || entry.second != second) {
            const double delta = DifferencePicture::difference(first, second);
            entry = {first, second, DifferencePicture::colourOf(delta)};
        }
        return entry.colour;
    }

private:
    /// At first a pair that no picture without alpha has.
    struct Entry
    {
        QRgb first = 0;
        QRgb second = 0;
        QRgb colour = 0;
    };

    static constexpr int kPlaceBits = 17;
    static constexpr size_t kPlaces = size_t(1) << kPlaceBits;

    /// Multiplies by large odd numbers and takes the upper bits, which all others have gone into.
    static size_t placeOf(QRgb first, QRgb second)
    {
        const quint32 mixed = (first * 0x9e3779b1U) ^ (second * 0x85ebca6bU);
        return (mixed * 0xc2b2ae35U) >> (32 - kPlaceBits);
    }

    std::vector<Entry> entries;
};

} // namespace

double DifferencePicture::difference(QRgb first, QRgb second)
{
    return ColourDifference::ciede2000(ScreenColour::labOf(first), ScreenColour::labOf(second));
}

QRgb DifferencePicture::colourOf(double delta)
{
    // Written so that what is no number goes the second way.
    if (delta <= kCloseDelta) {
        return between(kGoodStart, kGoodEnd, std::max(delta, 0.0) / kCloseDelta);
    }
    if (delta < kLargestDelta) {
        return between(kBadStart, kBadEnd, (delta - kCloseDelta) / (kLargestDelta - kCloseDelta));
    }
    return kBadEnd;
}

QImage DifferencePicture::make(const QImage &first, const QImage &second,
                               const std::atomic<bool> &isCancelled)
{
    const QImage one = first.convertToFormat(QImage::Format_RGB32);
    const QImage other = second.convertToFormat(QImage::Format_RGB32);
    QImage picture(one.size().boundedTo(other.size()), QImage::Format_RGB32);
    PairMemory memory;
    for (int y = 0; y < picture.height(); ++y) {
        if (isCancelled) {
            return {};
        }
        const auto *oneLine = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *otherLine = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            // RGB32 may hold anything in the bits of alpha.
            line[x] = memory.colourOf(oneLine[x] | kOpaque, otherLine[x] | kOpaque);
        }
    }
    return picture;
}
