#include "ReportShadowPicture.h"

#include <QByteArray>
#include <QCache>
#include <QColor>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype kRememberedBytes = 16 * 1024 * 1024;

/// Where a shadow ends: darker by less than this no eye sees.
constexpr double kFaintest = 2.0 / 255.0;

/// The picture is half as fine as what throws the shadow; nothing in so soft a thing is finer.
constexpr int kShrink = 2;

struct Silhouette
{
    QByteArray alpha;
    QSize size;
    QRgb colour = 0;
    double radius = 0.0;

    bool operator==(const Silhouette &other) const
    {
        return size == other.size && colour == other.colour && radius == other.radius
            && alpha == other.alpha;
    }
};

size_t qHash(const Silhouette &silhouette, size_t seed = 0)
{
    return qHashMulti(seed, silhouette.alpha, silhouette.colour, silhouette.radius);
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
    thread_local QCache<Silhouette, QImage> remembered(kRememberedBytes);
    Silhouette silhouette = silhouetteOf(picture, colour, radius);
    if (const QImage *known = remembered.object(silhouette)) {
        return *known;
    }
    Opacities opacities(silhouette.alpha, silhouette.size);
    opacities.blur(radius);
    QImage shadow = opacities.coloured(colour);
    const qsizetype bytes = silhouette.alpha.size() + shadow.sizeInBytes();
    remembered.insert(std::move(silhouette), std::make_unique<QImage>(shadow).release(), bytes);
    return shadow;
}
