#pragma once

#include "TXError.h"

#include <QList>

/// @file
/// Nested errors as text that a user can edit: a line for each, indented by two blanks below the
/// error it belongs to.

/// The errors of the text. Empty lines count for nothing; a line that is indented by more than one
/// step below the one above belongs to that one. Costs time in proportion to the text.
[[nodiscard]] QList<TXError> nestedErrorsFromText(const QString &text);

/// The text of the errors. One without a description is named by its domain; where that is missing
/// too, the errors below it take its place.
[[nodiscard]] QString textOfNestedErrors(const QList<TXError> &errors);
