#pragma once

#include "ReportTextLine.h"
#include "TXGUICommonExport.h"

#include <QFont>
#include <QRectF>

/// What stands around the content of each page: a header above and a footer below.
///
/// A line with nothing to show on it takes no room. Otherwise it takes the height of its font and a
/// small gap from what the margins leave of the paper.
class TXGUICOMMON_PRIVATE_EXPORT ReportPageFrame
{
public:
    /// Both lines are blank.
    ReportPageFrame();

    /// The three texts above the content.
    ReportTextLine header;
    /// The three texts below the content.
    ReportTextLine footer;
    /// The font of both, by default 8 pixels high.
    QFont font;
    /// What "{title}" stands for.
    QString title;

    /// What is left for the content of what the margins leave. Never of negative size.
    [[nodiscard]] QRectF contentRect(const QRectF &withinMargins) const;

    /// Paints header and footer of a page, counted from 0. Changes the painter's pen.
    void paint(QPainter *painter, const QRectF &withinMargins, int page, int pageCount) const;

    /// The texts of a page's content, counted from 0, with those of the header before and those of
    /// the footer behind them.
    [[nodiscard]] QList<TXReportText> around(const QList<TXReportText> &content,
                                             const QRectF &withinMargins, int page,
                                             int pageCount) const;

private:
    [[nodiscard]] double lineHeight() const;
};
