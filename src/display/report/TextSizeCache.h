#pragma once

#include "TXGUICommonExport.h"

#include <QFont>
#include <QSizeF>
#include <QString>

/// Remembers for each thread how large texts are and what a font looks like in another weight, so
/// that a report measures each distinct text once.
///
/// A look-up costs a hash of the text. The memory is bounded: it holds kMaximumFonts fonts,
/// kMaximumTexts texts of kLongestText characters at most, and is emptied when one more comes. All
/// is forgotten when the application's fonts change and when the application ends.
///
/// Thread: any; each has its own memory, measures with fonts of its own, and takes none of Qt's
/// locks for a text that it remembers.
class TXGUICOMMON_PRIVATE_EXPORT TextSizeCache
{
public:
    /// What QFontMetricsF(font).size(Qt::TextShowMnemonic, text) gives, always: fonts count as the
    /// same when they are equal and equally large on their device.
    [[nodiscard]] static QSizeF textSize(const QString &text, const QFont &font);

    /// The same for a text that the caller remembers itself: it is not remembered here too.
    [[nodiscard]] static QSizeF measuredTextSize(const QString &text, const QFont &font);

    /// A copy that shares nothing with the font.
    ///
    /// Fonts keep in their shared part what the thread that used them last found out about glyphs,
    /// and Qt guards it by no lock: a font that other threads may use must not be used itself.
    [[nodiscard]] static QFont separateCopy(const QFont &font);

    /// The font with its weight set; it shares nothing with the font given. The same font (a copy,
    /// that is, not one made alike) gives the same copy again, which spares Qt the search for its
    /// glyphs.
    [[nodiscard]] static QFont fontWithWeight(const QFont &font, QFont::Weight weight);

    /// The number of texts that this thread remembers, over all fonts.
    [[nodiscard]] static qsizetype textCount();

    /// The number of fonts that this thread remembers texts of.
    [[nodiscard]] static qsizetype fontCount();

    /// Lets go of all that this thread remembers.
    static void forget();

    /// A report needs one or two fonts.
    static constexpr int kMaximumFonts = 16;
    /// Enough for the distinct texts of a report of 10,000 rows, measured twice.
    static constexpr int kMaximumTexts = 100'000;
    /// In UTF-16 units. Longer texts are measured each time: they are rare, and rarely alike.
    static constexpr int kLongestText = 128;
};
