#pragma once

#include "TXGUICommonExport.h"

#include <QImage>

class QColor;

/// Pictures of shadows.
namespace ReportShadowPicture {

/// The shadow that an opaque or transparent picture throws: its silhouette in one colour, blurred
/// until it ends `radius` pixels away. Leave as much room around the picture, and give it even
/// sides: the shadow has half as many pixels each way, which does for so soft a thing.
///
/// Silhouettes that look equal get the same image again, down to its QImage::cacheKey(), as long
/// as it is remembered: each thread keeps 64 of them, 16 MB at most. Linear in the number of
/// pixels.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QImage shadowOf(const QImage &picture,
                                                         const QColor &colour, double radius);

} // namespace ReportShadowPicture
