#pragma once

#include "TXGUICommonExport.h"

class QString;

/// Release notes written as rich text: whether they may be laid out as they are, and their words
/// for when they may not.
///
/// What may be laid out is told by what is known to be harmless, as markup of a few characters can
/// ask for thousands of columns, heights beyond what a layout can count, or files and hosts.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT RichNotes
{
public:
    RichNotes() = delete;

    /// Whether showing the notes is not felt (some ten thousand characters with tags between them)
    /// and needs nothing outside of the notes: pictures must be written within them, whole and of
    /// a megapixel together. False in case of doubt, such as for a tag written in an unusual way.
    /// Lays nothing out; takes time in proportion to the length of the notes.
    [[nodiscard]] static bool areHarmless(const QString &notes);

    /// The words of the notes, each block on a line of its own, without pictures. Lays nothing
    /// out; takes time in proportion to the length of the notes.
    [[nodiscard]] static QString words(const QString &notes);
};
