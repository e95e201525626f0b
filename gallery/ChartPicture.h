#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

/// The chart of chartPatches() as a large picture: the newer colours of its 24 patches on a dark
/// frame, the published numbers in small print below each, a wedge of greys, and lines and text
/// that grow finer, for looking closer. All places are in pixels of the picture.
namespace ChartPicture {

inline constexpr QSize kSize(1800, 1200);

/// From L* 0 to L* 100 in steps of 5.
constexpr int kWedgeSteps = 21;

/// Where a patch stands. Null for one that there is not.
[[nodiscard]] QRect patchRect(int patch);

/// The patch at the place, or -1.
[[nodiscard]] int patchAt(const QPoint &place);

/// Where a step of the wedge stands. Null for one that there is not.
[[nodiscard]] QRect wedgeRect(int step);

/// The grey of a step of the wedge.
[[nodiscard]] QColor wedgeColour(int step);

/// The dark grey around the patches.
[[nodiscard]] QColor frameColour();

/// Draws the chart, without alpha. May be called from any thread.
[[nodiscard]] QImage make();

} // namespace ChartPicture
