#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

#include <memory>

class TXReportDocument;

/// Shows a report as the sheets of paper that it is going to be, below one another.
///
/// Keys: Page Up and Page Down turn the page, Home and End go to the first and the last one, Plus
/// and Minus zoom, 0 shows the real size, the arrows scroll. Ctrl and the wheel zoom at the
/// pointer. Paper is white whatever the palette. Pages that were painted are kept, a few at a time,
/// for a smooth scrolling.
class ReportView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// How the size of the pages follows.
    enum class ZoomMode {
        /// The sheet is as wide as the view.
        FitWidth,
        /// The whole sheet is seen.
        FitPage,
        /// The size stays.
        Fixed
    };

    /// Limits of zoomPercent().
    static constexpr int kSmallestZoomPercent = 50;
    static constexpr int kLargestZoomPercent = 400;

    explicit ReportView(QWidget *parent = nullptr);

    /// Shows the report, shared with the caller, which must not change it any more. The place is
    /// kept as far as there is paper. Null shows nothing.
    void setDocument(const std::shared_ptr<TXReportDocument> &report);

    /// What is shown; null without a report.
    [[nodiscard]] const TXReportDocument *report() const { return document.get(); }

    /// 0 without a report.
    [[nodiscard]] int pageCount() const { return pages; }

    /// The page that is read, counted from 0: that in the middle of the view, or the first one when
    /// several are seen as a whole. -1 without pages.
    [[nodiscard]] int currentPage() const;

    /// FitWidth by default.
    [[nodiscard]] ZoomMode zoomMode() const { return mode; }
    /// Fixed keeps the size that a fitted sheet has.
    void setZoomMode(ZoomMode newMode);

    /// 100 is the real size on the screen, as far as the screen's resolution is told. A fitted
    /// sheet, or one that is kept as it was fitted, may be beyond the limits.
    [[nodiscard]] double zoomPercent() const { return percent; }
    /// Brings the percentage within its limits and keeps it.
    void setZoomPercent(double newPercent);

    /// The room of a page in the view, in the view's pixels; empty for one that there is not.
    [[nodiscard]] QRect pageRect(int page) const;

    /// The size of all pages, in points.
    [[nodiscard]] QSizeF paperSize() const { return sheetPoints; }
    /// How many of the view's pixels a point of the paper takes.
    [[nodiscard]] double pixelsPerPoint() const;

public slots:
    /// Brings the top of a page, counted from 0, to the top of the view. A page that there is not
    /// gives the nearest one.
    void goToPage(int page);
    /// Zoom by a step within the limits, and keep that. Nothing happens where a size beyond a limit
    /// would have to change the other way.
    void zoomIn();
    void zoomOut();

signals:
    /// Another page is read, or the number of pages is another.
    void pageChanged();
    /// The percentage, the mode or both are others.
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    [[nodiscard]] QSize pageSize() const;
    [[nodiscard]] int pageStep() const;
    [[nodiscard]] QSize contentSize() const;
    [[nodiscard]] double fittingPercent() const;
    [[nodiscard]] bool turnPage(int key);
    [[nodiscard]] bool zoomByKey(int key);
    void zoomBy(double factor, const QPointF &anchor);
    void zoomAround(double newPercent, const QPointF &anchor);
    void applyPercent(double newPercent, const QPointF &anchor);
    void updateScrollBars();
    void refit();
    bool fit();
    void tellPage();
    void paintSheet(QPainter *painter, int page, const QRect &exposed);
    void paintContent(QPainter *painter, int page) const;
    [[nodiscard]] const QPixmap *pictureOf(int page, double ratio);

    std::shared_ptr<TXReportDocument> document;
    int pages = 0;
    QSizeF sheetPoints;
    ZoomMode mode = ZoomMode::FitWidth;
    double percent = 100;
    int toldPage = -1;
    int toldPages = 0;
    QCache<int, QPixmap> pictures;
};
