#pragma once

#include "TXStringI18n.h"

#include <QString>

/// A text file as it reads in an encoding.
struct EncodedText
{
    /// Empty with an error.
    QString text;
    /// How many bytes were read.
    qint64 byteCount = 0;
    /// How many places the encoding has no characters for.
    int unreadableCount = 0;
    /// Whether the file is longer than what was read.
    bool isCut = false;
    /// Why there is no text; empty when there is one.
    TXStringI18n error;
};

/// No more bytes of a file than these are read, so that a large file costs neither time nor memory.
inline constexpr qint64 kMostTextBytes = qint64(64) * 1024;

/// Reads the file with the codec that QTextCodec has under this name. What cannot be read, or is no
/// file at all, such as a folder, a pipe or a device, gives an error; nothing blocks.
[[nodiscard]] EncodedText readEncodedText(const QString &path, const QString &codecName);
