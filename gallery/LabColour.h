#pragma once

#include <QColor>

/// A colour in CIE L*a*b* for the illuminant D50 and the 2° observer, as the profiles of the
/// printing trade have it.
struct LabColour
{
    /// From 0, black, to 100, white.
    double lightness = 0;
    /// From green, below 0, to red.
    double a = 0;
    /// From blue, below 0, to yellow.
    double b = 0;

    /// The colour as a screen shows it, by sRGB with the white adapted to D65. A colour that sRGB
    /// cannot show is brought to the nearest values of the channels.
    [[nodiscard]] QColor toScreen() const;

    /// False when sRGB cannot show the colour.
    [[nodiscard]] bool isOnScreen() const;
};
