#include "ReportFonts.h"

#include <algorithm>

namespace {

/// Letters that are spaced at all are not joined to ligatures, which readers of a PDF that look for
/// "flower" would not find. Too little to be seen.
constexpr double kSpacingPixels = 1.0 / 64;

} // namespace

QFont ReportFonts::withPixels(int pixels, QFont::Weight weight)
{
    QFont font;
    font.setPixelSize(std::max(1, pixels));
    font.setWeight(weight);
    font.setLetterSpacing(QFont::AbsoluteSpacing, kSpacingPixels);
    return font;
}
