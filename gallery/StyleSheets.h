#pragma once

#include <QString>
#include <QStringList>

class TXError;

/// @file
/// The style sheets and fonts beside the program, which hold for the whole application.
namespace StyleSheets {

/// Name of the sheet that the gallery ships.
[[nodiscard]] QString shippedName();

/// Where the sheets lie: "../Resources/Templates", seen from the program's folder.
[[nodiscard]] QString folder();

/// Where the fonts lie: "../Resources/Fonts".
[[nodiscard]] QString fontsFolder();

/// The names of the sheets, "*.css", sorted. Empty when there is no folder.
[[nodiscard]] QStringList names();

/// Applies the sheet of this name from folder(), and adds the fonts again. False, with an error and
/// the present style kept, when it cannot be read. The error may be null.
bool apply(const QString &name, TXError *error);

/// Takes the application's style sheet away.
void remove();

/// Adds the fonts and leaves the look of the application to its style. For the program's start.
void loadFonts();

} // namespace StyleSheets
