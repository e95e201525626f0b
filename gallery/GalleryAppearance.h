#pragma once

#include <QMetaType>
#include <QString>

class QPalette;

/// @file
/// How the gallery looks: palette and widget style, for all windows of the application at once.

/// The palettes a user can choose from. The order is that of the combo box.
enum class GalleryColours {
    System, ///< what the desktop, or else the style, brings
    Light,
    Dark,
    Contrast, ///< white and yellow on black, every frame drawn as a clear line
};

/// Sets the palette of the application; open windows follow at once.
void applyGalleryColours(GalleryColours colours);

/// Sets the widget style and keeps the palette. A name that is no key of QStyleFactory, compared
/// without case, changes nothing and gives false.
bool applyGalleryStyle(const QString &name);

/// The key of QStyleFactory that stands for the name, compared without case, or an empty string.
[[nodiscard]] QString galleryStyleKey(const QString &name);

/// The name of the widget style, as QStyle::name() has it, beneath what draws over it: a
/// FocusStyle, since the first of the calls above.
/// Tells nothing of use while a style sheet is set.
[[nodiscard]] QString galleryStyleName();

/// Light, Dark or Contrast: what a palette looks like, whoever has set it.
[[nodiscard]] GalleryColours shownGalleryColours(const QPalette &palette);

/// "system", "light", "dark" or "contrast": the name in the settings and on the command line.
[[nodiscard]] QString galleryColoursName(GalleryColours colours);

/// Reads a name of galleryColoursName(). Any other text gives the fallback.
[[nodiscard]] GalleryColours galleryColoursFromName(const QString &name, GalleryColours fallback);

Q_DECLARE_METATYPE(GalleryColours)
