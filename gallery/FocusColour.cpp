#include "FocusColour.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

/// More than the 3 that WCAG 2 wants for lines, as these stand on tinted grounds and beside other
/// lines too.
constexpr qreal kLeastContrast = 4;

qreal linear(qreal channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

qreal contrast(const QColor &left, const QColor &right)
{
    const auto [darker, brighter] = std::minmax({luminance(left), luminance(right)});
    return (brighter + 0.05) / (darker + 0.05);
}

} // namespace

QColor focusColour(const QPalette &palette)
{
    const QColor field = palette.color(QPalette::Base);
    const QColor button = palette.color(QPalette::Button);
    for (const auto role : {QPalette::Highlight, QPalette::Link}) {
        const QColor colour = palette.color(role);
        if (contrast(colour, field) >= kLeastContrast
            && contrast(colour, button) >= kLeastContrast) {
            return colour;
        }
    }
    return palette.color(QPalette::WindowText);
}
