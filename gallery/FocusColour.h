#pragma once

#include <QColor>

class QPalette;

/// The colour of the lines that show where the keyboard is: the palette's Highlight, or where that
/// is lost on the ground of fields or buttons, its Link or else its WindowText. The first of these
/// that has four times the light of both grounds, or a quarter of it.
[[nodiscard]] QColor focusColour(const QPalette &palette);
