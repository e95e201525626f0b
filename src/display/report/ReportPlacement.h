#pragma once

#include "TXAlignment.h"
#include "TXGUICommonExport.h"

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>

class QPixmap;

/// Where texts and pictures go within their rectangle: the arithmetic of the report canvas, shared
/// by the items of a scene and by what is painted to paper without them.
///
/// Corners are kept in single precision and sizes in whole units. All units are points.
namespace ReportPlacement {

/// The top-left corner of a text of the given size; see TXGraphicsScene::drawTextInRect().
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QPointF placeOfText(const QSizeF &textSize,
                                                             const QRectF &rect,
                                                             TXHorizontalAlignment horizontal,
                                                             TXVerticalAlignment vertical,
                                                             const QSizeF &margins);

/// How far the frame of a table stands out from its cells, on each side.
constexpr float kTableFrameMargin = 5.0F;

/// How far the text of a cell keeps off the side that it is aligned to.
constexpr QSizeF kCellTextMargins(2.0, 2.0);

/// Where the picture of a cell may stand: 1 point off the cell's border.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QRectF pictureRectOfCell(const QRectF &cell);

/// True when a thing can stand there: neither the corners nor the width of its line are infinite or
/// not numbers. One that is would make the extent of its whole scene so.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT bool isDrawable(const QRectF &rect,
                                                         double lineWidth = 0.0);

/// True when a thing stands so near that a PDF can name its place. For places more than some 35 km
/// away, infinite ones and those that are not numbers Qt writes into the page what no reader takes
/// for a number, and the rest of the page is lost.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT bool isWithinReach(const QRectF &rect);

/// Where a picture stands.
struct PicturePlace
{
    /// Its corner, in single precision.
    QPointF topLeft;
    /// Its size in whole points.
    QSize size;
};

/// The place and size of a picture; see TXGraphicsScene::drawImageInRect().
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT PicturePlace
placeOfPicture(const QSize &pixels, const QRectF &rect, TXHorizontalAlignment horizontal,
               TXVerticalAlignment vertical);

/// The factor by which a size grows or shrinks, its proportions kept, to just fit into another.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT float fittingScale(const QSize &from, const QSize &to);

/// What a point is.
constexpr double kPointsPerInch = 72.0;

/// The resolution at which reports keep their pictures.
constexpr int kPictureDotsPerInch = 200;

/// The number of pixels that a size in points has at a resolution.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QSize pixelsForPoints(const QSize &points,
                                                               int dotsPerInch);

/// The pixmap resampled to fit into the pixels, its proportions kept. One that would become larger
/// than any sheet of paper needs stays as it is, so that a senseless size cannot exhaust memory.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QPixmap resampled(const QPixmap &pixmap,
                                                           const QSize &pixels);

} // namespace ReportPlacement
