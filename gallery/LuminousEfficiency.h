#pragma once

#include <array>

/// How strongly the human eye sees light of a wavelength: the colour-matching function y of the CIE
/// 1931 standard colorimetric observer (2°), which is the luminous efficiency V(λ) of daylight
/// vision as well.
namespace LuminousEfficiency {

constexpr int kFirstNanometres = 380;
constexpr int kLastNanometres = 780;
constexpr int kStepNanometres = 5;
constexpr int kCount = (kLastNanometres - kFirstNanometres) / kStepNanometres + 1;

/// The values from the first to the last wavelength, from 0 to 1, as CIE 15 lists them in steps of
/// 5 nm.
[[nodiscard]] const std::array<double, kCount> &values();

} // namespace LuminousEfficiency
