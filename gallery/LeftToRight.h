#pragma once

#include <QDir>
#include <QGuiApplication>
#include <QString>

/// @file
/// Paths and addresses in sentences and lists of a language that is written from right to left: by
/// themselves "/share" would read "share/" there.

/// The text, between the two characters, not seen themselves, that keep it together and let it read
/// from left to right; just the text while the windows are laid out from left to right.
[[nodiscard]] inline QString leftToRight(const QString &text)
{
    constexpr QChar kLeftToRightIsolate(0x2066);
    constexpr QChar kPopDirectionalIsolate(0x2069);
    return QGuiApplication::isRightToLeft() && !text.isEmpty()
        ? kLeftToRightIsolate + text + kPopDirectionalIsolate
        : text;
}

/// The text, to stand alone in a layout from right to left. When its first letter is one that is
/// written from left to right, it is between the two characters that let it read so. For texts in
/// any language, such as those that other programs write.
[[nodiscard]] inline QString inItsOwnDirection(const QString &text)
{
    // Not those of isolation: fonts without them are many, and another font makes rows higher.
    constexpr QChar kLeftToRightEmbedding(0x202a);
    constexpr QChar kPopDirectionalFormatting(0x202c);
    return text.isEmpty() || text.isRightToLeft()
        ? text
        : kLeftToRightEmbedding + text + kPopDirectionalFormatting;
}

/// The path as the system writes it, to stand in a text. For what is shown only.
[[nodiscard]] inline QString pathInText(const QString &path)
{
    return leftToRight(QDir::toNativeSeparators(path));
}
