#pragma once

#include "ReportTablePages.h"
#include "TXGUICommonExport.h"
#include "TXReportText.h"

#include <QFont>
#include <QList>
#include <QPointer>
#include <QRectF>

#include <functional>
#include <optional>

class QPainter;
struct ReportSharedParts;
class TXGraphicsScene;

/// The paper of a report's pages, in points.
struct ReportPaper
{
    /// The whole sheet, from (0, 0).
    QRectF sheet;
    /// Where the content stands.
    QRectF content;
};

/// Something that was added to a report and becomes pages.
class TXGUICOMMON_PRIVATE_EXPORT ReportContent
{
public:
    virtual ~ReportContent();

    /// The number of pages on such paper.
    [[nodiscard]] virtual int pageCount(const ReportPaper &paper) = 0;

    /// Paints one of them, counted from 0, a unit of the painter being a point; with what it shares
    /// with the pages before it. May change the painter's state.
    virtual void paint(QPainter *painter, int page, const ReportPaper &paper,
                       ReportSharedParts *shared) = 0;

    /// The texts of one of them, as it is painted, in the order of reading.
    [[nodiscard]] virtual QList<TXReportText> texts(int page, const ReportPaper &paper,
                                                    ReportSharedParts *shared) = 0;
};

/// One page that shows a scene of the caller's.
class TXGUICOMMON_PRIVATE_EXPORT ReportScenePage : public ReportContent
{
public:
    /// The scene stays the caller's; without it the page is empty.
    explicit ReportScenePage(TXGraphicsScene *scene);

    [[nodiscard]] int pageCount(const ReportPaper &paper) override;
    void paint(QPainter *painter, int page, const ReportPaper &paper,
               ReportSharedParts *shared) override;
    [[nodiscard]] QList<TXReportText> texts(int page, const ReportPaper &paper,
                                            ReportSharedParts *shared) override;

private:
    QPointer<TXGraphicsScene> scene;
};

/// Pages that are drawn on a scene of their own when they are wanted.
class TXGUICOMMON_PRIVATE_EXPORT ReportDrawnPages : public ReportContent
{
public:
    /// Draws a page, counted from 0, on an empty scene.
    using Drawing = std::function<void(TXGraphicsScene *scene, int page)>;

    /// So many pages, all by the one function.
    ReportDrawnPages(int count, Drawing draw);

    [[nodiscard]] int pageCount(const ReportPaper &paper) override;
    void paint(QPainter *painter, int page, const ReportPaper &paper,
               ReportSharedParts *shared) override;
    [[nodiscard]] QList<TXReportText> texts(int page, const ReportPaper &paper,
                                            ReportSharedParts *shared) override;

private:
    int count;
    Drawing draw;
};

/// The pages of a table. The cuts are remembered for the last height of paper.
class TXGUICOMMON_PRIVATE_EXPORT ReportTableContent : public ReportContent
{
public:
    /// The font is that of the cells' texts.
    ReportTableContent(const TXTable &table, const QFont &font);

    [[nodiscard]] int pageCount(const ReportPaper &paper) override;
    void paint(QPainter *painter, int page, const ReportPaper &paper,
               ReportSharedParts *shared) override;
    [[nodiscard]] QList<TXReportText> texts(int page, const ReportPaper &paper,
                                            ReportSharedParts *shared) override;

private:
    [[nodiscard]] const ReportTablePages &pagesOn(const ReportPaper &paper);

    TXTable table;
    QFont font;
    std::optional<ReportTablePages> pages;
    double cutHeight = 0.0;
};
