#pragma once

#include <array>

/// How strongly the human eye sees light of a wavelength: the colour-matching function y of the CIE
/// 1931 standard colorimetric observer (2°), which is the luminous efficiency V(λ) of daylight
/// vision as well.
namespace LuminousEfficiency {

constexpr int kFirstNanometres = 380;
constexpr int kLastNanometres = 780;
constexpr int kStepNanometres = 10;
constexpr int kCount = (kLastNanometres - kFirstNanometres) / kStepNanometres + 1;

/// The values from the first to the last wavelength, as ISO/CIE 11664-1 and CIE 15 publish them in
/// steps of 10 nm, here with four digits.
[[nodiscard]] const std::array<double, kCount> &values();

} // namespace LuminousEfficiency
