#include "ReportFonts.h"

#include <algorithm>

QFont ReportFonts::withPixels(int pixels, QFont::Weight weight)
{
    QFont font;
    font.setPixelSize(std::max(1, pixels));
    font.setWeight(weight);
    return font;
}
