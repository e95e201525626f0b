#include "ReportPlacement.h"

#include "WholeNumber.h"

#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace {

/// An A0 sheet at 200 dots per inch has 62 million.
constexpr qint64 kMaximumPixels = 100'000'000;

constexpr double kFarthestPoints = 1e8;

constexpr double kPictureInset = 1.0;

} // namespace

QRectF ReportPlacement::pictureRectOfCell(const QRectF &cell)
{
    return {cell.x() + kPictureInset, cell.y() + kPictureInset, cell.width() - 2 * kPictureInset,
            cell.height() - 2 * kPictureInset};
}

bool ReportPlacement::isWithinReach(const QRectF &rect)
{
    const auto isNear = [](double place) {
        return std::abs(place) <= kFarthestPoints; // false for what is not a number
    };
    return isNear(rect.left()) && isNear(rect.top()) && isNear(rect.right())
        && isNear(rect.bottom());
}

QPointF ReportPlacement::placeOfText(const QSizeF &textSize, const QRectF &rect,
                                     TXHorizontalAlignment horizontal, TXVerticalAlignment vertical,
                                     const QSizeF &margins)
{
    const int width = WholeNumber::truncated(rect.width());
    const int height = WholeNumber::truncated(rect.height());
    auto x = float(rect.x());
    auto y = float(rect.y());
    if (horizontal == TXAlignLeft) {
        x = float(x + margins.width());
    } else if (horizontal == TXAlignRight) {
        x = float(x + (width - textSize.width() - margins.width()));
    } else if (horizontal == TXAlignHorizontallyCentred) {
        x = float(x + (width - textSize.width()) * 0.5);
    }
    if (vertical == TXAlignTop) {
        y = float(y + margins.height());
    } else if (vertical == TXAlignBottom) {
        y = float(y + (height - textSize.height() - margins.height()));
    } else if (vertical == TXAlignVerticallyCentred) {
        y = float(y + (height - textSize.height()) * 0.5);
    }
    return {x, y};
}

bool ReportPlacement::isDrawable(const QRectF &rect, double lineWidth)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.right())
        && std::isfinite(rect.bottom()) && std::isfinite(lineWidth);
}

ReportPlacement::PicturePlace ReportPlacement::placeOfPicture(const QSize &pixels,
                                                              const QRectF &rect,
                                                              TXHorizontalAlignment horizontal,
                                                              TXVerticalAlignment vertical)
{
    const QSize room(WholeNumber::rounded(rect.width()), WholeNumber::rounded(rect.height()));
    const float scale = fittingScale(pixels, room);
    const QSize size(WholeNumber::truncated(scale * float(pixels.width())),
                     WholeNumber::truncated(scale * float(pixels.height())));
    const float spareWidth = float(room.width()) - float(size.width());
    const float spareHeight = float(room.height()) - float(size.height());
    auto x = float(rect.x());
    auto y = float(rect.y());
    if (horizontal == TXAlignRight) {
        x += spareWidth;
    } else if (horizontal == TXAlignHorizontallyCentred) {
        x += spareWidth * 0.5F;
    }
    if (vertical == TXAlignBottom) {
        y += spareHeight;
    } else if (vertical == TXAlignVerticallyCentred) {
        y += spareHeight * 0.5F;
    }
    return {{x, y}, size};
}

float ReportPlacement::fittingScale(const QSize &from, const QSize &to)
{
    return std::min(float(to.width()) / float(from.width()),
                    float(to.height()) / float(from.height()));
}

QSize ReportPlacement::pixelsForPoints(const QSize &points, int dotsPerInch)
{
    const double pixelsPerPoint = dotsPerInch / kPointsPerInch;
    return {WholeNumber::rounded(points.width() * pixelsPerPoint),
            WholeNumber::rounded(points.height() * pixelsPerPoint)};
}

QPixmap ReportPlacement::resampled(const QPixmap &pixmap, const QSize &pixels)
{
    if (pixels.isEmpty()) {
        return {};
    }
    const QSize size = pixmap.size().scaled(pixels, Qt::KeepAspectRatio);
    if (pixmap.isNull() || qint64(size.width()) * size.height() > kMaximumPixels) {
        return pixmap;
    }
    return pixmap.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
