#pragma once

#include "LabColour.h"

#include <QRgb>

/// The colours of pictures as numbers to compute with. A picture is taken to be sRGB, whatever
/// profile it may carry.
namespace ScreenColour {

/// The light of a channel, from 0 to 1, by the curve of sRGB. A channel outside of 0 to 255 is
/// brought to the nearer end.
[[nodiscard]] double lightOf(int channel);

/// The channel, from 0 to 255, that comes closest to the light. Light outside of 0 to 1 is brought
/// to the nearer end.
[[nodiscard]] int channelOf(double light);

/// The colour in CIELAB under D50, the other way round than LabColour::toScreen(). Alpha does not
/// count.
[[nodiscard]] LabColour labOf(QRgb colour);

} // namespace ScreenColour
