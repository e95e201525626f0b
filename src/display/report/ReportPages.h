#pragma once

#include "ReportContent.h"
#include "ReportPageFrame.h"
#include "TXGUICommonExport.h"

#include <QPageLayout>

#include <memory>
#include <vector>

/// The pages of a report: what was added to it, in order, on its paper and within its header and
/// footer. A copy stays as it is when the report changes.
class TXGUICOMMON_PRIVATE_EXPORT ReportPages
{
public:
    /// Page size, orientation and margins.
    [[nodiscard]] const QPageLayout &layout() const { return pageLayout; }
    /// Sets page size, orientation and margins.
    void setLayout(const QPageLayout &layout);
    /// Page size and orientation with the whole sheet to paint on: margins as printing systems know
    /// them would move everything by a rounded number of dots.
    [[nodiscard]] QPageLayout sheetLayout() const;

    /// Header and footer.
    [[nodiscard]] const ReportPageFrame &frame() const { return pageFrame; }
    /// The frame, to be changed.
    [[nodiscard]] ReportPageFrame &changeFrame();

    /// Sheet and content area.
    [[nodiscard]] ReportPaper paper() const;

    /// Adds what becomes further pages.
    void add(std::unique_ptr<ReportContent> content);

    /// The number of pages. Counts anew what was added, or all once the paper or the frame is
    /// another.
    [[nodiscard]] int count();

    /// Paints a page, counted from 0, a unit of the painter being a point. Nothing happens outside
    /// the pages. Leaves the painter's state as it was. Keep the shared parts for all pages of a
    /// writing.
    void paint(int page, QPainter *painter, ReportSharedParts *shared);

    /// The texts of a page, counted from 0, in the order of reading; none outside the pages.
    [[nodiscard]] QList<TXReportText> texts(int page, ReportSharedParts *shared);

private:
    [[nodiscard]] std::size_t contentOf(int page) const;
    [[nodiscard]] QRectF withinMargins() const;
    void forgetCounts();

    QPageLayout pageLayout;
    ReportPageFrame pageFrame;
    /// Shared by copies: a content does not change, but for what it remembers.
    std::vector<std::shared_ptr<ReportContent>> contents;
    /// For each content that is counted already the number of its first page; one more entry, the
    /// last, is the number of all pages so far.
    std::vector<int> firstPages = {0};
};
