#include "ReportShadowPicture.h"

#include <QByteArray>
#include <QColor>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype kRememberedBytes = 16 * 1024 * 1024;
constexpr size_t kRememberedShadows = 64;

/// Where a shadow ends: darker by less than this no eye sees.
constexpr double kFaintest = 2.0 / 255.0;

/// The picture is half as fine as what throws the shadow; nothing in so soft a thing is finer.
constexpr int kShrink = 2;

/// What throws a shadow, with the shadow's own settings.
struct Silhouette
{
    QByteArray alpha;
    QSize size;
    QRgb colour = 0;
    double radius = 0.0;

    [[nodiscard]] bool isLike(const Silhouette &other) const;
};

/// Equal things differ by a little along their edges when they stand at different places.
bool Silhouette::isLike(const Silhouette &other) const
{
    constexpr int kTolerance = 6;
    return size == other.size && colour == other.colour && radius == other.radius
        && std::equal(alpha.cbegin(), alpha.cend(), other.alpha.cbegin(),
                      [](char one, char another) {
                          return std::abs(int(uchar(one)) - int(uchar(another))) <= kTolerance;
                      });
}

/// The shadows that were made last.
class Memory
{
public:
    /// The shadow, or a null image. One that is found is kept longer.
    [[nodiscard]] QImage find(const Silhouette &silhouette);
    void add(Silhouette &&silhouette, const QImage &shadow);

private:
    struct Known
    {
        Silhouette silhouette;
        QImage shadow;

        [[nodiscard]] qsizetype bytes() const
        {
            return silhouette.alpha.size() + shadow.sizeInBytes();
        }
    };

    /// The one asked for last is the last.
    std::vector<Known> known;
    qsizetype bytes = 0;
};

QImage Memory::find(const Silhouette &silhouette)
{
    const auto found = std::find_if(known.begin(), known.end(), [&](const Known &candidate) {
        return candidate.silhouette.isLike(silhouette);
    });
    if (found == known.end()) {
        return {};
    }
    std::rotate(found, found + 1, known.end());
    return known.back().shadow;
}

void Memory::add(Silhouette &&silhouette, const QImage &shadow)
{
    known.push_back({std::move(silhouette), shadow});
    bytes += known.back().bytes();
    while (known.size() > kRememberedShadows || bytes > kRememberedBytes) {
        bytes -= known.front().bytes();
        known.erase(known.begin());
    }
}

/// How opaque each cell of a grid is, from 0 to 255, row by row.
class Opacities
{
public:
    Opacities(const QByteArray &alpha, const QSize &size);

    void blur(double radius);
    [[nodiscard]] QImage coloured(const QColor &colour) const;

private:
    void blurRow(float *row, float share) const;
    void blendRow(float *row, const float *neighbour, float share) const;
    float *row(int y) { return cells.data() + size_t(y) * size_t(width); }

    int width;
    int height;
    std::vector<float> cells;
};

Opacities::Opacities(const QByteArray &alpha, const QSize &size)
    : width((size.width() + kShrink - 1) / kShrink)
    , height((size.height() + kShrink - 1) / kShrink)
    , cells(size_t(width) * size_t(height), 0.0F)
{
    constexpr float kShare = 1.0F / (kShrink * kShrink);
    for (int y = 0; y < size.height(); ++y) {
        const auto *line =
            reinterpret_cast<const uchar *>(alpha.constData()) + qsizetype(y) * size.width();
        float *target = row(y / kShrink);
        for (int x = 0; x < size.width(); ++x) {
            target[x / kShrink] += kShare * float(line[x]);
        }
    }
}

/// Each cell takes over a share of its neighbour, there and back in both directions, so that what
/// is left fades exponentially with the distance.
void Opacities::blur(double radius)
{
    const auto share = float(1.0 - std::pow(kFaintest, 1.0 / std::max(radius / kShrink, 1e-3)));
    for (int y = 0; y < height; ++y) {
        blurRow(row(y), share);
    }
    for (int y = 1; y < height; ++y) {
        blendRow(row(y), row(y - 1), share);
    }
    for (int y = height - 2; y >= 0; --y) {
        blendRow(row(y), row(y + 1), share);
    }
}

void Opacities::blurRow(float *row, float share) const
{
    for (int x = 1; x < width; ++x) {
        row[x] = row[x - 1] + share * (row[x] - row[x - 1]);
    }
    for (int x = width - 2; x >= 0; --x) {
        row[x] = row[x + 1] + share * (row[x] - row[x + 1]);
    }
}

void Opacities::blendRow(float *row, const float *neighbour, float share) const
{
    for (int x = 0; x < width; ++x) {
        row[x] = neighbour[x] + share * (row[x] - neighbour[x]);
    }
}

/// Not premultiplied, so that the colour is one and the same everywhere and packs into nothing.
QImage Opacities::coloured(const QColor &colour) const
{
    QImage image(width, height, QImage::Format_ARGB32);
    const auto opacity = float(colour.alphaF());
    auto cell = cells.cbegin();
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int alpha = int(*cell++ * opacity + 0.5F);
            line[x] = qRgba(colour.red(), colour.green(), colour.blue(), alpha);
        }
    }
    return image;
}

Silhouette silhouetteOf(const QImage &picture, const QColor &colour, double radius)
{
    const QImage alpha = picture.convertToFormat(QImage::Format_Alpha8);
    Silhouette silhouette{{}, picture.size(), colour.rgba(), radius};
    silhouette.alpha.reserve(qsizetype(alpha.width()) * alpha.height());
    for (int y = 0; y < alpha.height(); ++y) {
        silhouette.alpha.append(reinterpret_cast<const char *>(alpha.constScanLine(y)),
                                alpha.width());
    }
    return silhouette;
}

} // namespace

QImage ReportShadowPicture::shadowOf(const QImage &picture, const QColor &colour, double radius)
{
    thread_local Memory memory;
    Silhouette silhouette = silhouetteOf(picture, colour, radius);
    QImage shadow = memory.find(silhouette);
    if (shadow.isNull()) {
        Opacities opacities(silhouette.alpha, silhouette.size);
        opacities.blur(radius);
        shadow = opacities.coloured(colour);
        memory.add(std::move(silhouette), shadow);
    }
    return shadow;
}
