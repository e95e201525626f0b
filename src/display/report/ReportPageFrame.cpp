#include "ReportPageFrame.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {

constexpr int kFontPixels = 8;
constexpr double kGapPoints = 4.0;

} // namespace

ReportPageFrame::ReportPageFrame()
{
    font.setPixelSize(kFontPixels);
}

double ReportPageFrame::lineHeight() const
{
    return QFontMetricsF(font).height();
}

QRectF ReportPageFrame::contentRect(const QRectF &withinMargins) const
{
    const ReportPageFacts facts{1, 1, title};
    const double lineRoom = lineHeight() + kGapPoints;
    QRectF content = withinMargins;
    content.adjust(0, header.isBlank(facts) ? 0 : lineRoom, 0,
                   footer.isBlank(facts) ? 0 : -lineRoom);
    // In this order of arguments what is not a number becomes 0 too.
    return {content.topLeft(),
            QSizeF(std::max(0.0, content.width()), std::max(0.0, content.height()))};
}

void ReportPageFrame::paint(QPainter *painter, const QRectF &withinMargins, int page,
                            int pageCount) const
{
    const ReportPageFacts facts{page + 1, pageCount, title};
    const double height = lineHeight();
    QRectF line = withinMargins;
    line.setHeight(height);
    header.paint(painter, line, font, facts);
    line.moveBottom(withinMargins.bottom());
    footer.paint(painter, line, font, facts);
}

QList<TXReportText> ReportPageFrame::around(const QList<TXReportText> &content,
                                            const QRectF &withinMargins, int page,
                                            int pageCount) const
{
    const ReportPageFacts facts{page + 1, pageCount, title};
    QRectF line = withinMargins;
    line.setHeight(lineHeight());
    const QList<TXReportText> above = header.placedTexts(line, font, facts);
    line.moveBottom(withinMargins.bottom());
    return above + content + footer.placedTexts(line, font, facts);
}
