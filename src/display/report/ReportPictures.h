#pragma once

#include "TXGUICommonExport.h"

#include <QCache>
#include <QPixmap>
#include <QSize>

#include <utility>

/// Pictures resampled for paper, so that the same picture in the same size is resampled once, and
/// is one and the same pixmap for a PDF that holds each pixmap once. Remembers those used last,
/// 64 MB of them at most. Thread: any one at a time that may use pixmaps.
class TXGUICOMMON_PRIVATE_EXPORT ReportPictures
{
public:
    /// Nothing is remembered yet.
    ReportPictures();

    /// The pixmap at the resolution of reports for its size on paper in points, as
    /// TXGraphicsScene::drawImageInRect() stores it.
    [[nodiscard]] QPixmap resampled(const QPixmap &pixmap, const QSize &points);

private:
    /// QPixmap::cacheKey(), and the size in pixels.
    using Key = std::pair<qint64, std::pair<int, int>>;

    QCache<Key, QPixmap> remembered;
};
