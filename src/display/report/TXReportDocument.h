#pragma once

#include "TXAlignment.h"
#include "TXGUICommonExport.h"
#include "TXReportText.h"

#include <QCoreApplication>
#include <QList>
#include <QPageLayout>
#include <QRectF>
#include <QString>

#include <functional>
#include <memory>

class ICompletionDelegate;
class QFont;
class QPainter;
class QPrinter;
class TXError;
class TXGraphicsScene;
class TXTable;

/// A report on its way to paper: pages drawn on scenes and long tables, written as PDF or printed.
///
/// One unit of a scene or a table is one point on paper, whatever the resolution. Text stays text,
/// with its fonts embedded; pictures keep their 200 dots per inch and their exact colours; shadows
/// are pictures of their own below what throws them. Letters that a font joins, as many do "fi",
/// are one character for those who copy the text; a letter spacing keeps them apart.
///
/// Pages come in the order in which they are added. A table is cut into pages by its own rules: as
/// many rows as TXTable::getNbRowDrawableOnHeight() counts, at least one, with the header rows
/// repeated. It starts on a new page, at the top left corner of the content, its frame just
/// within. Nothing is scaled to fit: what is larger than the paper is cut off at the paper's edge,
/// also the rows below header rows that take up all of a page.
///
/// ```
/// TXReportDocument report;
/// report.setTitle(tr("Chart comparison"));
/// report.addPage(&coverScene);
/// report.addTable(differences, font);
/// if (!report.writePdf(fileName, nullptr, &error)) {
///     TXDisplayErrorMessageBox(...);
/// }
/// ```
///
/// Memory: a table is painted row by row, without items, so that a page costs what it holds; pages
/// added with addPages() are made one at a time. Time is linear in the number of cells.
///
/// Thread: one thread at a time, and the GUI thread where the report holds scenes. A report of
/// tables only may be written on a worker. cancel() and isCancelled() may be called on any thread.
class TXGUICOMMON_EXPORT TXReportDocument
{
    Q_DECLARE_TR_FUNCTIONS(TXReportDocument)
    Q_DISABLE_COPY_MOVE(TXReportDocument)

public:
    /// Draws page number `page`, counted from 0 among those of one addPages(), on the empty scene.
    using PageDrawing = std::function<void(TXGraphicsScene *scene, int page)>;

    /// An empty report on A4 upright with margins of 36 points, the title at the left of the header
    /// and "page n of m" in the middle of the footer.
    TXReportDocument();
    ~TXReportDocument();

    /// \name Paper
    /// @{

    /// Page size, orientation and margins.
    [[nodiscard]] QPageLayout pageLayout() const;
    /// Sets them; an invalid layout is ignored. Margins count in every mode of the layout. Those
    /// that leave no room for content are accepted, but the report can't be written then.
    void setPageLayout(const QPageLayout &layout);

    /// The title: in the header where it is asked for, and in the PDF's data. Empty by default.
    [[nodiscard]] QString title() const;
    /// Sets the title. Line breaks and other control characters show as blanks.
    void setTitle(const QString &title);

    /// The author, in the PDF's data. Empty by default.
    [[nodiscard]] QString author() const;
    /// Sets the author. Line breaks and other control characters become blanks.
    void setAuthor(const QString &author);

    /// The text at one of the three places of the header.
    [[nodiscard]] QString headerText(TXHorizontalAlignment place) const;
    /// Sets the text at one of the three places of the header. In it "{page}" stands for the number
    /// of the page, from 1, "{pages}" for that of all pages and "{title}" for the title. An
    /// alignment that is none of the three is ignored. A header without any text takes no room;
    /// otherwise it takes the height of its font and 4 points. Texts that are too long for one
    /// line together are cut and end in dots.
    void setHeaderText(const QString &text, TXHorizontalAlignment place);

    /// The text at one of the three places of the footer.
    [[nodiscard]] QString footerText(TXHorizontalAlignment place) const;
    /// As setHeaderText(), below the content.
    void setFooterText(const QString &text, TXHorizontalAlignment place);

    /// The font of header and footer: 8 points by default.
    [[nodiscard]] QFont headerFont() const;
    /// Sets the font of header and footer; as everywhere in reports, a pixel of it is a point.
    void setHeaderFont(const QFont &font);

    /// Where the content stands, in points from the paper's top left corner: the paper without its
    /// margins, header and footer, of no size where they leave nothing. The point (0, 0) of a scene
    /// comes to its top left corner.
    [[nodiscard]] QRectF contentRect() const;

    /// @}
    /// \name Content
    /// @{

    /// Adds a page that shows the scene. The scene stays the caller's; one that is destroyed before
    /// the report is written leaves an empty page. Null is ignored. Items outside the content area
    /// are shown as far as there is paper, but not those that reach 100 million points away or are
    /// at no number at all: they would spoil the page.
    void addPage(TXGraphicsScene *scene);

    /// Adds pages that are drawn one after the other when they are wanted, so that only one of them
    /// is in memory. They are drawn anew each time. A count below 1 or an empty function adds none.
    /// The scene finds its items in the order in which they were added, whatever is asked for.
    void addPages(int count, PageDrawing draw);

    /// Adds a table, cut into as many pages as it takes. It is copied, which costs nothing. A table
    /// without rows adds nothing.
    void addTable(const TXTable &table, const QFont &font);

    /// The number of pages of all that was added. Linear in the number of rows once after each
    /// change.
    [[nodiscard]] int pageCount() const;

    /// @}
    /// \name Outcome
    /// @{

    /// Paints one page, counted from 0, with its header and footer but without the paper, one unit
    /// of the painter being a point and (0, 0) the paper's top left corner. For previews. Nothing
    /// happens outside the pages. Leaves the painter's state as it was.
    void paintPage(int page, QPainter *painter) const;

    /// The texts of one page, counted from 0, its header and footer among them, in the order of
    /// reading: from the top, and each line from the left; a table row by row. For screen readers,
    /// by TXReportAccessible, and for searching. Empty outside the pages. Costs as much as sorting
    /// them; pages of addPages() are drawn for it.
    [[nodiscard]] QList<TXReportText> pageTexts(int page) const;

    /// Writes the report as PDF. The file appears, or replaces an earlier one, only when it is
    /// whole; when writing fails or is cancelled what stood there before stays.
    ///
    /// Blocks until all is written. The delegate, unless null, is called on this thread, with the
    /// title as path if there is one: a progress of 0, a message before and the progress after each
    /// page, the error if there is one, and in the end, once, 100, also after a failure or a
    /// cancelling. Returns true when the file is there. Returns false with `error` filled when it
    /// is not, and with `error` untouched after cancel(). What the delegate changes in the report
    /// shows in the next writing only.
    ///
    /// A report without pages fails, one whose margins leave no room for content, and a name that
    /// stands for a folder, a device or a pipe. A report that is being written already fails too;
    /// of that only `error` is told, as the delegate may be in use.
    [[nodiscard]] bool writePdf(const QString &fileName, ICompletionDelegate *delegate = nullptr,
                                TXError *error = nullptr);

    /// Prints the report, or the range of its pages that the printer is set to, in the printer's
    /// page order, on the report's own page size and orientation. The numbers on the pages stay
    /// those of the report. The printer stays the caller's and its page layout and document name
    /// are set. Otherwise as writePdf(), but what a printer has begun it keeps: cancelling aborts
    /// it, and a file that it prints to is not kept from harm. Fails, too, with a null printer, one
    /// that is painted on, one that does not take the page size and where the range holds none of
    /// the report's pages.
    [[nodiscard]] bool print(QPrinter *printer, ICompletionDelegate *delegate = nullptr,
                             TXError *error = nullptr);

    /// Lets a running writePdf() or print() end at the next page, or after the last one before the
    /// file is put to its place; may be called from the delegate's functions. Does nothing when
    /// none runs.
    void cancel();

    /// Whether the writePdf() or print() that runs, or else the last one, was cancelled. False
    /// again once it turns out to have failed for another reason.
    [[nodiscard]] bool isCancelled() const;

    /// @}

private:
    class Private;
    std::unique_ptr<Private> d;
};
