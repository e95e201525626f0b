#pragma once

#include "TXGUICommonExport.h"

#include <QFont>
#include <QSizeF>
#include <QString>

/// Remembers for each thread how large texts are and what a font looks like in another weight, so
/// that a report measures each distinct text once.
///
/// A look-up costs a hash of the text; the memory is bounded, and all is forgotten when the
/// application's fonts change. Thread: any; each has its own memory.
class TXGUICOMMON_PRIVATE_EXPORT TextSizeCache
{
public:
    /// What QFontMetricsF(font).size(Qt::TextShowMnemonic, text) gives.
    [[nodiscard]] static QSizeF textSize(const QString &text, const QFont &font);

    /// The font with its weight set. The same font gives the same copy again, which spares Qt the
    /// search for its glyphs.
    [[nodiscard]] static QFont fontWithWeight(const QFont &font, QFont::Weight weight);
};
