#pragma once

#include "TXReportAccessible.h"

class ReportView;

/// What screen readers learn of the sheets in a ReportView: each is a page, with its texts.
class ReportViewAccessible final : public TXReportAccessible
{
public:
    /// For this view, which outlives it.
    explicit ReportViewAccessible(ReportView *view);

    /// Tells Qt of this interface, once for the life of the process.
    static void install();

    [[nodiscard]] int pageCount() const override;
    [[nodiscard]] QList<TXReportText> pageTexts(int page) const override;
    [[nodiscard]] QRectF pageRect(int page) const override;
    [[nodiscard]] QTransform pageTransform(int page) const override;

private:
    [[nodiscard]] const ReportView &reportView() const;
};
