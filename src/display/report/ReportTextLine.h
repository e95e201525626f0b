#pragma once

#include "TXAlignment.h"
#include "TXGUICommonExport.h"
#include "TXReportText.h"

#include <QList>
#include <QString>

#include <array>

class QFont;
class QPainter;
class QRectF;

/// What the placeholders of a header or a footer stand for on one page.
struct ReportPageFacts
{
    /// The number of the page, from 1.
    int page = 1;
    /// The number of all pages.
    int pages = 1;
    /// The title of the report.
    QString title;
};

/// A line with a text at its left, one in its middle and one at its right: the header or the footer
/// of a report.
class TXGUICOMMON_PRIVATE_EXPORT ReportTextLine
{
public:
    /// The text at a place, with its placeholders; empty for an alignment that is none of the
    /// three.
    [[nodiscard]] QString text(TXHorizontalAlignment place) const;
    /// Sets the text at a place; an alignment that is none of the three is ignored.
    void setText(const QString &text, TXHorizontalAlignment place);

    /// The text with a blank for each line break and any other control character.
    [[nodiscard]] static QString onOneLine(QString text);

    /// The text at a place with its placeholders filled, on one line.
    [[nodiscard]] QString filledText(TXHorizontalAlignment place,
                                     const ReportPageFacts &facts) const;
    /// Whether all three are blank once their placeholders are filled.
    [[nodiscard]] bool isBlank(const ReportPageFacts &facts) const;

    /// Paints the texts within the rectangle, in black. Where they do not fit beside one another
    /// the middle one keeps a third at least, the others share the rest, and what is too long ends
    /// in dots.
    void paint(QPainter *painter, const QRectF &rect, const QFont &font,
               const ReportPageFacts &facts) const;

    /// The texts and where paint() paints them, blank ones aside, from left to right; whole, where
    /// paint() cuts them. The middle one may stand a little off where it has to make room.
    [[nodiscard]] QList<TXReportText> placedTexts(const QRectF &rect, const QFont &font,
                                                  const ReportPageFacts &facts) const;

private:
    static constexpr int kPlaces = 3;

    std::array<QString, kPlaces> texts;
};
