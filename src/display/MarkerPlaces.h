#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QPointF>
#include <QRectF>

class QTransform;

/// Where the markers are drawn that follow the mouse in all zones at once.
namespace MarkerPlaces {

/// The markers' top left corners in the viewer, of those that may be seen in a zone; empty for a
/// zone that covers no pixel of the device. Each zone has a marker, `marker` from the zone's top
/// left corner, that may reach beyond it. Of markers that begin in the same device pixel, as those
/// of zones narrower than one do, only the first is told: for a zone there are no more than its and
/// the marker's device pixels. `zones` lie side by side from left to right and are equally large.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QList<QPointF> seenIn(qsizetype zone,
                                                               const QList<QRectF> &zones,
                                                               const QRectF &marker,
                                                               const QTransform &toDevice);

} // namespace MarkerPlaces
