#pragma once

#include "LabColour.h"

#include <QImage>

/// How a picture might look in print: a plain model of paper, ink, dots that grow and the screen
/// that they stand in, computed pixel by pixel.
///
/// Each channel of a pixel is taken for the work of one ink: cyan keeps the red light back, magenta
/// the green, yellow the blue. With t the channel's light, from 0 to 1:
///
///     a = 1 - t                              coverage: how much of the paper the ink is to cover
///     g = a + 4 · kDotGain · a · (1 - a)     dots grow, most where half is covered
///     s = g + 4 · kRipple · g · (1 - g) · r  the screen, r as by ripple(); s within 0 to 1
///     y = paper · (1 - s) + black · s        the light of paper and ink side by side
///
/// `paper` and `black` are the light of the channel in kPaper and kBlack. It is done in light, not
/// in the numbers of the file, since light is what adds up between dots.
///
/// What it is: the four things that one sees first in a print, with numbers that one can change.
/// What it is not: a proof. It knows no profile, no press and no paper of anybody's, no black ink
/// of its own, and its inks are clean, as no real ones are. The dots of a real screen are either
/// there or not, and finer; here they are a ripple, as a scanner sees them that cannot quite tell
/// them apart.
namespace PrintSimulation {

/// Paper is darker than the white of a screen, and yellower.
inline constexpr LabColour kPaper = {94.0, 0.0, 3.0};
/// All inks over one another are not black.
inline constexpr LabColour kBlack = {14.0, 0.5, 1.0};
/// By how much the coverage of one half grows.
constexpr double kDotGain = 0.06;
/// By how much the coverage of one half goes up and down within a dot.
constexpr double kRipple = 0.02;

/// An ink, by the channel whose light it keeps back.
enum class Ink { Cyan, Magenta, Yellow };

/// The screen of an ink at a pixel, from -1 between dots to 1 in the middle of one. The screens of
/// the three inks are turned against each other, by 18.4°, 71.6° and 26.6°: whole numbers of pixels
/// across and up, so that each repeats after kRipplePeriod pixels in both directions.
[[nodiscard]] double ripple(Ink ink, int x, int y);

constexpr int kRipplePeriod = 40;

/// The coverage after the dots have grown.
[[nodiscard]] double grown(double coverage);

/// The channel in print of a channel from 0 to 255, where the screen has this ripple.
[[nodiscard]] int printed(Ink ink, int channel, double ripple);

/// The picture in print, without alpha. The ripple is taken in 16 steps up and down. May be called
/// from any thread; costs three look-ups a pixel.
[[nodiscard]] QImage make(const QImage &picture);

} // namespace PrintSimulation
