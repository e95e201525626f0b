#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QString>

/// @file
/// Text in the form that the header of a mail wants it in (RFC 5322 and RFC 2047). Every function
/// costs time linear in the text and gives ASCII without a line end at the end, folded so that no
/// line is longer than 76 characters. `column` is how many characters stand before the text on its
/// first line, at most 40.

/// A character that no header may hold: a control character (line breaks and tabs are such) or a
/// separator of lines or paragraphs.
TXCORECOMMON_PRIVATE_EXPORT bool isControlOrBreak(QChar character);

/// The text with a blank in place of each line break and of each other character that
/// isControlOrBreak().
TXCORECOMMON_PRIVATE_EXPORT QString withoutControls(const QString &text);

/// Any text as encoded words of UTF-8 in base64, one a line, none of them beginning or ending
/// inside a character. Control characters become blanks. Empty for an empty text.
TXCORECOMMON_PRIVATE_EXPORT QByteArray encodedWords(const QString &text, qsizetype column);

/// A text such as a subject: as it is, folded at blanks, when ASCII can hold it unharmed, otherwise
/// as encodedWords(). Readers get back what withoutControls() gives.
TXCORECOMMON_PRIVATE_EXPORT QByteArray unstructuredHeader(const QString &text, qsizetype column);
