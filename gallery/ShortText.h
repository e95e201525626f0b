#pragma once

#include <QString>

/// @file
/// The beginnings of texts that may be of any length, as a file from elsewhere holds them.

/// How much of such a text a message shows, in UTF-16 units.
inline constexpr qsizetype kShownLength = 60;

/// The first characters, as many as the length allows (in UTF-16 units, at least 0), and never half
/// of a character that takes two.
[[nodiscard]] inline QString startOf(const QString &text, qsizetype length)
{
    const bool isInPair =
        length > 0 && length < text.size() && text.at(length - 1).isHighSurrogate();
    return text.left(isInPair ? length - 1 : length);
}

/// The text, or its start with an ellipsis behind it where it is longer than a message shows.
[[nodiscard]] inline QString shortText(const QString &text)
{
    return text.size() <= kShownLength ? text
                                       : startOf(text, kShownLength - 1) + QStringLiteral("…");
}
