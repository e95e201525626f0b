#pragma once

#include "TXGUICommonExport.h"

class QLabel;
class QString;

/// The texts of the update service, made fit to be shown: they may be of any length and hold any
/// markup, and showing them must neither freeze the application nor fetch or read anything.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ServiceText
{
public:
    ServiceText() = delete;

    /// The text letter for letter, on one line: its line breaks are spaces, and behind the first
    /// 500 characters stands an ellipsis in place of the rest.
    [[nodiscard]] static QString line(const QString &text);

    /// Shows a line in a label of plain text and makes the label as wide as it takes, yet not
    /// wider than the screen. A line that is clipped there has a tool tip.
    static void showLine(const QString &text, QLabel &label);

    /// Makes the label a sheet of white paper: dark text whatever the palette.
    static void prepareForNotes(QLabel &label);

    /// Shows release notes, plain or rich, in a label that was prepared for them. Rich ones whose
    /// layout would be felt, or that refer to pictures or style sheets outside of themselves, are
    /// shown as their words, and nothing of what they refer to is read or asked for. Sets the
    /// label's text format to what is shown.
    static void showNotes(const QString &text, QLabel &label);

    /// Plain notes as they are shown: unchanged, or with an ellipsis where they become so long
    /// that laying them out would be felt (60,000 letters; lines count as 20, letters of writings
    /// other than the Latin, Greek and Cyrillic ones as 4).
    [[nodiscard]] static QString shortened(const QString &words);
};
