#include "ReportPages.h"

#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

void ReportPages::setLayout(const QPageLayout &layout)
{
    pageLayout = layout;
    forgetCounts();
}

QPageLayout ReportPages::sheetLayout() const
{
    QPageLayout sheet(pageLayout.pageSize(), pageLayout.orientation(), QMarginsF(),
                      QPageLayout::Point);
    sheet.setMode(QPageLayout::FullPageMode);
    return sheet;
}

ReportPageFrame &ReportPages::changeFrame()
{
    forgetCounts();
    return pageFrame;
}

void ReportPages::forgetCounts()
{
    firstPages = {0};
}

QRectF ReportPages::withinMargins() const
{
    return pageLayout.fullRect(QPageLayout::Point)
        .marginsRemoved(pageLayout.margins(QPageLayout::Point));
}

ReportPaper ReportPages::paper() const
{
    return {pageLayout.fullRect(QPageLayout::Point), pageFrame.contentRect(withinMargins())};
}

void ReportPages::add(std::unique_ptr<ReportContent> content)
{
    contents.push_back(std::move(content));
}

int ReportPages::count()
{
    const ReportPaper sheet = paper();
    while (firstPages.size() <= contents.size()) {
        const qint64 more = contents[firstPages.size() - 1]->pageCount(sheet);
        constexpr qint64 kMost = std::numeric_limits<int>::max();
        firstPages.push_back(int(std::min(firstPages.back() + more, kMost)));
    }
    return firstPages.back();
}

/// Of a page that is counted.
std::size_t ReportPages::contentOf(int page) const
{
    const auto next = std::upper_bound(firstPages.begin(), firstPages.end(), page);
    return std::size_t(next - firstPages.begin()) - 1;
}

QList<TXReportText> ReportPages::texts(int page, ReportSharedParts *shared)
{
    const int pageCount = count();
    if (page < 0 || page >= pageCount) {
        return {};
    }
    const std::size_t index = contentOf(page);
    return pageFrame.around(contents[index]->texts(page - firstPages[index], paper(), shared),
                            withinMargins(), page, pageCount);
}

void ReportPages::paint(int page, QPainter *painter, ReportSharedParts *shared)
{
    const int pageCount = count();
    if (page < 0 || page >= pageCount) {
        return;
    }
    const std::size_t index = contentOf(page);
    const ReportPaper sheet = paper();
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                            | QPainter::LosslessImageRendering);
    painter->setClipRect(sheet.sheet, Qt::IntersectClip);
    painter->save();
    contents[index]->paint(painter, page - firstPages[index], sheet, shared);
    painter->restore();
    pageFrame.paint(painter, withinMargins(), page, pageCount);
    painter->restore();
}
