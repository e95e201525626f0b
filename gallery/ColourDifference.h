#pragma once

struct LabColour;

/// How far apart two colours are, as numbers that grow with what an eye sees.
///
/// Both take colours under the same illuminant and give a difference of 0 or more; the order of the
/// two does not count. Colours that are not numbers give a difference that is none.
namespace ColourDifference {

/// CIE76, the distance in CIELAB, as CIE 15 (Colorimetry) defines it.
[[nodiscard]] double cie76(const LabColour &first, const LabColour &second);

/// CIEDE2000 with all three weights at 1, as CIE 142:2001 and ISO/CIE 11664-6 define it; in the
/// form that G. Sharma, W. Wu and E. N. Dalal gave it in "The CIEDE2000 color-difference formula:
/// Implementation notes, supplementary test data, and mathematical observations", Color Research
/// and Application 30 (2005), whose test data the tests use.
[[nodiscard]] double ciede2000(const LabColour &first, const LabColour &second);

} // namespace ColourDifference
