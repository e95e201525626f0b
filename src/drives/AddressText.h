#pragma once

#include "TXGUICommonExport.h"

class QString;

/// The addresses, paths and names of drives, made fit to be drawn on one line: they come from
/// whoever is on the network, and read from left to right whatever the language is.
///
/// For what is drawn only; what is stored, compared or handed out stays what it is.
///
/// Thread: any.
class TXGUICOMMON_PRIVATE_EXPORT AddressText
{
public:
    AddressText() = delete;

    /// No more than the text's first 500 characters (an ellipsis stands for the rest), with a
    /// replacement character in place of each that would break the line, turn the direction of
    /// those behind it, or cannot be seen at all. Around it stand the two characters, not seen
    /// themselves, that keep "/share" from reading "share/" among text from right to left; an
    /// empty text stays empty.
    [[nodiscard]] static QString drawn(const QString &text);
};
