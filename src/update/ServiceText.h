#pragma once

#include "TXGUICommonExport.h"

class QLabel;
class QString;
class QWidget;

/// The texts of the update service, made fit to be shown: they may be of any length and hold any
/// markup, and showing them must neither freeze the application nor fetch or read anything.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ServiceText
{
public:
    ServiceText() = delete;

    /// The text as a line in the font of the place: unchanged when it fits on the place's screen,
    /// else on one line with an ellipsis at its end. Takes time for the first few hundred
    /// characters only.
    [[nodiscard]] static QString line(const QString &text, const QWidget &place);

    /// Makes the label a sheet of white paper: dark text whatever the palette.
    static void prepareForNotes(QLabel &label);

    /// Shows release notes, plain or rich, in a label that was prepared for them. Notes that refer
    /// to pictures or style sheets outside of themselves are shown as their words alone, and
    /// nothing of what they refer to is read or asked for.
    static void showNotes(const QString &text, QLabel &label);

    /// The notes as they are shown: unchanged, or with an ellipsis where they become so long or so
    /// laborious that laying them out would be felt (some 12,000 characters of plain text, fewer
    /// with markup, a handful of tables). Never cut within a tag.
    [[nodiscard]] static QString shortened(const QString &text);
};
