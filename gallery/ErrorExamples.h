#pragma once

#include <QStringList>

class TXError;

/// @file
/// Errors to show, made by what really fails when they are asked for.

/// The names of the examples in the language of the moment. The first one reads a file.
[[nodiscard]] QStringList errorExampleNames();

/// Makes the example at this place of the list. The first one reads the file as a colour profile;
/// where nothing is wrong with it, there is nothing to report. A place outside the list gives an
/// error with nothing to report.
[[nodiscard]] TXError makeErrorExample(int index, const QString &profilePath);
