#pragma once

#include <QStringView>

class QVariant;

/// How many values there are in a value: itself, and at any depth what its lists and dictionaries
/// hold. Costs time in proportion to that and no stack; nothing of the value is copied.
[[nodiscard]] qsizetype countValues(const QVariant &value);

/// How many characters a reader sees of a rich text: no tags, an entity being one character.
[[nodiscard]] qsizetype countShownCharacters(QStringView html);
