#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>

/// How well colours stand out from one another, by the formula of the Web Content Accessibility
/// Guidelines (WCAG 2): with L the relative luminance, the contrast of two colours is
///
///     (L of the brighter + 0.05) / (L of the darker + 0.05)
///
/// from 1 for the same colour to 21 for black and white. L is 0.2126 R + 0.7152 G + 0.0722 B, each
/// channel from 0 to 1 and made linear: c / 12.92 up to 0.03928, else ((c + 0.055) / 1.055) ^ 2.4.
namespace Contrast {

/// What plain text is to have.
constexpr qreal kText = 4.5;
/// What large text, icons and the edges of controls are to have.
constexpr qreal kGlyph = 3;
/// What every text is to have in colours of high contrast.
constexpr qreal kHigh = 7;
/// What disabled text is to have at least here; the guidelines ask for nothing.
constexpr qreal kDisabled = 2;

/// Relative luminance from 0 for black to 1 for white. Alpha is ignored.
[[nodiscard]] inline qreal luminance(const QColor &colour)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// From 1 to 21; the order does not matter.
[[nodiscard]] inline qreal between(const QColor &left, const QColor &right)
{
    const auto [darker, brighter] = std::minmax({luminance(left), luminance(right)});
    return (brighter + 0.05) / (darker + 0.05);
}

/// The colour that most pixels have that are not transparent: the ground, when text stands on it.
[[nodiscard]] inline QColor groundOf(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) == 255) {
                ++counts[picture.pixel(x, y)];
            }
        }
    }
    QRgb most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        // Of two that are as frequent the same one each time, whatever the order of the hash.
        const int best = counts.value(most);
        if (it.value() > best || (it.value() == best && it.key() > most)) {
            most = it.key();
        }
    }
    return QColor::fromRgb(most);
}

/// Of what is painted, the most visible on this ground. What is not opaque does not count.
[[nodiscard]] inline qreal bestOn(const QImage &picture, const QColor &ground)
{
    qreal best = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            best = colour.alpha() == 255 ? std::max(best, between(colour, ground)) : best;
        }
    }
    return best;
}

/// The contrast of a text with its ground, in a picture that shows nothing else. Smoothed edges lie
/// between the two, so the pixel farthest from the ground is the ink.
[[nodiscard]] inline qreal ofText(const QImage &picture)
{
    return bestOn(picture, groundOf(picture));
}

/// How many pixels of a picture stand out, as edges are to, from what they were in another of the
/// same size.
[[nodiscard]] inline int changedPixels(const QImage &before, const QImage &after)
{
    int changed = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const qreal found = between(before.pixelColor(x, y), after.pixelColor(x, y));
            changed += found >= kGlyph ? 1 : 0;
        }
    }
    return changed;
}

} // namespace Contrast
