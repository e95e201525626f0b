#pragma once

#include "TXGUICommonExport.h"

#include <QRgb>
#include <QString>

#include <cstdint>
#include <vector>

/// What a line of VariantHtml shows: its words, and which of them are coloured or bold.
///
/// Only that markup is understood: the monospaced span around the whole, within it spans that set a
/// colour, and bold text, each kind at most once at a place, and the entities for <, >, & and ".
/// White space counts as in Qt's rich text: any run of it is one blank, none stands at the start,
/// and the no-break space is a letter. All else is foreign; it stands among the words as it was
/// written, so that a line can be shown in any case.
///
/// Costs time in proportion to the markup, a few nanoseconds a character, whatever stands in it.
///
/// Thread: any.
class TXGUICOMMON_PRIVATE_EXPORT ColouredLine
{
public:
    /// How letters look.
    struct Style
    {
        /// Meant when `isColoured`; else the letters have the colour of the widget's text.
        QRgb colour = 0;
        bool isColoured = false;
        bool isBold = false;

        [[nodiscard]] bool operator==(const Style &other) const
        {
            return colour == other.colour && isColoured == other.isColoured
                && isBold == other.isBold;
        }
    };

    /// Letters of one style, up to the start of the next run. No run is empty, and neighbours
    /// differ.
    struct Run
    {
        qsizetype start = 0;
        Style style;
    };

    /// An empty line.
    ColouredLine() = default;

    explicit ColouredLine(const QString &markup);

    /// The words.
    [[nodiscard]] const QString &text() const { return words; }

    /// The runs, from the first letter on; none when there are no words.
    [[nodiscard]] const std::vector<Run> &runs() const { return pieces; }

    /// True when some of the markup was not understood, or when the text holds characters by which
    /// Qt parts or builds documents. Then Qt may show it differently.
    [[nodiscard]] bool isForeign() const { return foreign; }

    /// How many tags were not understood.
    [[nodiscard]] qsizetype foreignTags() const { return unknownTags; }

    /// True when some letters are written from right to left, or change the direction, so that the
    /// runs do not stand in the order of the text.
    [[nodiscard]] bool hasRightToLeft() const { return rightToLeft; }

private:
    friend class ColouredLineParser;

    QString words;
    std::vector<Run> pieces;
    qsizetype unknownTags = 0;
    bool foreign = false;
    bool rightToLeft = false;
};
