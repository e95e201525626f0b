#pragma once

#include <QPixmap>
#include <QPoint>

/// The crosshair that follows the mouse in all pictures at once. Black in white, so that it is seen
/// on any colour, and open in the middle, so that the pixel itself is.
namespace MouseMarker {

/// Width and height in device-independent pixels.
constexpr int kSize = 31;

/// The pixel that it points to.
inline constexpr QPoint kHotSpot(kSize / 2, kSize / 2);

/// Paints it for a screen of this device pixel ratio.
[[nodiscard]] QPixmap make(double devicePixelRatio);

} // namespace MouseMarker
