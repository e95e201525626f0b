#pragma once

#include <QFont>

/// The fonts of the gallery's report.
namespace ReportFonts {

/// The application's font at a size in pixels, which in a report are points, without ligatures.
/// Less than 1 is 1.
[[nodiscard]] QFont withPixels(int pixels, QFont::Weight weight = QFont::Normal);

} // namespace ReportFonts
