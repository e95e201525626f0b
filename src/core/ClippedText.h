#pragma once

#include <QChar>
#include <QString>

#include <algorithm>

/// The beginnings of texts that may be of any length: laying out a text takes a time that grows
/// with its length, however little of it there is room for.
namespace ClippedText {

/// What stands for the rest of a text.
inline constexpr QChar kEllipsis(0x2026);

/// The first characters of the text, as many as the length allows (in UTF-16 units; less than 0
/// counts as 0), or all of it. A pair of surrogates is never torn: one that does not fit as a whole
/// is left out.
[[nodiscard]] inline QString start(const QString &text, qsizetype length)
{
    length = std::max<qsizetype>(length, 0);
    if (length >= text.size()) {
        return text;
    }
    const bool isInPair = length > 0 && text.at(length - 1).isHighSurrogate();
    return text.left(isInPair ? length - 1 : length);
}

/// The same text, or its start() and an ellipsis behind it.
[[nodiscard]] inline QString clipped(const QString &text, qsizetype length)
{
    const bool isWhole = text.size() <= std::max<qsizetype>(length, 0);
    return isWhole ? text : start(text, length) + kEllipsis;
}

} // namespace ClippedText
