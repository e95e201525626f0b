#include "TXReportDocument.h"

#include "PdfDocumentInfo.h"
#include "ReportContent.h"
#include "ReportPageFrame.h"
#include "ReportPdfFile.h"
#include "ReportPrintRange.h"
#include "ReportRun.h"
#include "TXStringI18n.h"
#include "TXTable.h"

#include <QDir>
#include <QFont>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kMarginPoints = 36.0;

/// Fine enough for what has to become a picture, an item with an effect, and no finer: such
/// pictures grow with its square. Lines and texts do not depend on it.
constexpr int kPdfDotsPerInch = 300;

QPageLayout defaultLayout()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints),
            QPageLayout::Point};
}

/// Page size and orientation with the whole sheet to paint on: margins as the printing system knows
/// them would move everything by a rounded number of dots.
QPageLayout wholeSheet(const QPageLayout &layout)
{
    QPageLayout sheet(layout.pageSize(), layout.orientation(), QMarginsF(), QPageLayout::Point);
    sheet.setMode(QPageLayout::FullPageMode);
    return sheet;
}

TXStringI18n words(const char *source)
{
    return {"TXReportDocument", source, nullptr, -1};
}

} // namespace

class TXReportDocument::Private
{
public:
    void forgetPages() { firstPages.clear(); }
    [[nodiscard]] QRectF withinMargins() const;
    [[nodiscard]] ReportPaper paper() const;
    [[nodiscard]] int pageCount();
    void paintPage(int page, QPainter *painter);
    [[nodiscard]] bool hasSomethingToShow(ReportRun &run);
    [[nodiscard]] bool writePages(const QString &fileName, ReportRun &run);
    void paintPdf(ReportPdfFile &file, ReportRun &run);
    [[nodiscard]] bool printPages(QPrinter *printer, ReportRun &run);
    [[nodiscard]] PdfDocumentInfo documentInfo() const;

    QPageLayout layout = defaultLayout();
    ReportPageFrame frame;
    QString author;
    ReportRunState state;

    std::vector<std::unique_ptr<ReportContent>> contents;
    /// For each content the number of its first page, and behind them that of all pages. Empty
    /// when they have to be counted anew.
    std::vector<int> firstPages;
};

QRectF TXReportDocument::Private::withinMargins() const
{
    return layout.fullRect(QPageLayout::Point).marginsRemoved(layout.margins(QPageLayout::Point));
}

ReportPaper TXReportDocument::Private::paper() const
{
    return {layout.fullRect(QPageLayout::Point), frame.contentRect(withinMargins())};
}

int TXReportDocument::Private::pageCount()
{
    if (firstPages.empty()) {
        const ReportPaper sheet = paper();
        qint64 count = 0;
        firstPages.push_back(0);
        for (const std::unique_ptr<ReportContent> &content : contents) {
            count = std::min<qint64>(count + content->pageCount(sheet),
                                     std::numeric_limits<int>::max());
            firstPages.push_back(int(count));
        }
    }
    return firstPages.back();
}

void TXReportDocument::Private::paintPage(int page, QPainter *painter)
{
    const int count = pageCount();
    if (page < 0 || page >= count) {
        return;
    }
    const auto next = std::upper_bound(firstPages.begin(), firstPages.end(), page);
    const auto index = std::size_t(next - firstPages.begin()) - 1;
    const ReportPaper sheet = paper();
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                            | QPainter::LosslessImageRendering);
    painter->setClipRect(sheet.sheet, Qt::IntersectClip);
    painter->save();
    contents[index]->paint(painter, page - firstPages[index], sheet);
    painter->restore();
    frame.paint(painter, withinMargins(), page, count);
    painter->restore();
}

bool TXReportDocument::Private::hasSomethingToShow(ReportRun &run)
{
    if (pageCount() == 0) {
        run.fail(words(QT_TRANSLATE_NOOP("TXReportDocument", "The report has no pages.")));
    } else if (paper().content.isEmpty()) {
        run.fail(words(QT_TRANSLATE_NOOP(
            "TXReportDocument",
            "The margins, the header and the footer leave no room on the paper.")));
    }
    return run.isGoingOn();
}

PdfDocumentInfo TXReportDocument::Private::documentInfo() const
{
    PdfDocumentInfo info;
    info.title = frame.title;
    info.author = author;
    info.creator = QCoreApplication::applicationName();
    info.creationTime = QDateTime::currentDateTimeUtc();
    return info;
}

bool TXReportDocument::Private::writePages(const QString &fileName, ReportRun &run)
{
    const auto fail = [&](const QString &reason) {
        run.fail(words(QT_TRANSLATE_NOOP("TXReportDocument",
                                         "The report could not be written to \"%1\": %2"))
                     .arg(QDir::toNativeSeparators(fileName))
                     .arg(reason));
        return false;
    };
    ReportPdfFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return fail(file.reason());
    }
    paintPdf(file, run);
    if (file.hasFailed()) {
        return fail(file.reason());
    }
    if (!run.close()) {
        return false;
    }
    return file.commit() || fail(file.reason());
}

void TXReportDocument::Private::paintPdf(ReportPdfFile &file, ReportRun &run)
{
    const PdfDocumentInfo info = documentInfo();
    const int count = pageCount();
    {
        QPdfWriter writer(&file);
        writer.setPageLayout(wholeSheet(layout));
        writer.setResolution(kPdfDotsPerInch);
        writer.setTitle(info.title);
        writer.setCreator(info.creator);
        QPainter painter(&writer);
        painter.scale(kPdfDotsPerInch / kPointsPerInch, kPdfDotsPerInch / kPointsPerInch);
        for (int page = 0; page < count && !file.hasFailed(); ++page) {
            if (!run.beginPage(page, count)) {
                return;
            }
            if (page > 0) {
                writer.newPage();
            }
            paintPage(page, &painter);
            run.endPage(page, count);
        }
    }
    if (info.needsUpdate()) {
        file.write(info.update(file.tail(), file.writtenBytes()));
    }
}

bool TXReportDocument::Private::printPages(QPrinter *printer, ReportRun &run)
{
    const auto fail = [&](const char *reason) {
        run.fail(words(reason).arg(printer->printerName()));
        return false;
    };
    const QList<int> pages = ReportPrintRange::pages(*printer, pageCount());
    if (pages.isEmpty()) {
        return fail(QT_TRANSLATE_NOOP("TXReportDocument",
                                      "The report has none of the pages that are to be printed."));
    }
    printer->setPageLayout(wholeSheet(layout));
    printer->setFullPage(true);
    printer->setDocName(frame.title);
    QPainter painter;
    if (!painter.begin(printer)) {
        return fail(QT_TRANSLATE_NOOP("TXReportDocument", "The printer \"%1\" can't be started."));
    }
    painter.scale(printer->logicalDpiX() / kPointsPerInch, printer->logicalDpiY() / kPointsPerInch);
    const int count = int(pages.size());
    for (int i = 0; i < count; ++i) {
        if (!run.beginPage(i, count)) {
            printer->abort();
            return false;
        }
        if (i > 0 && !printer->newPage()) {
            return fail(
                QT_TRANSLATE_NOOP("TXReportDocument", "The printer \"%1\" takes no further page."));
        }
        paintPage(pages.at(i), &painter);
        run.endPage(i, count);
    }
    return run.close() && painter.end();
}

TXReportDocument::TXReportDocument()
    : d(std::make_unique<Private>())
{
    d->frame.header.setText(QStringLiteral("{title}"), TXAlignLeft);
    d->frame.footer.setText(tr("page {page} of {pages}"), TXAlignHorizontallyCentred);
}

TXReportDocument::~TXReportDocument() = default;

QPageLayout TXReportDocument::pageLayout() const
{
    return d->layout;
}

void TXReportDocument::setPageLayout(const QPageLayout &layout)
{
    if (layout.isValid()) {
        d->layout = layout;
        d->forgetPages();
    }
}

QString TXReportDocument::title() const
{
    return d->frame.title;
}

void TXReportDocument::setTitle(const QString &title)
{
    d->frame.title = title;
    d->forgetPages();
}

QString TXReportDocument::author() const
{
    return d->author;
}

void TXReportDocument::setAuthor(const QString &author)
{
    d->author = author;
}

QString TXReportDocument::headerText(TXHorizontalAlignment place) const
{
    return d->frame.header.text(place);
}

void TXReportDocument::setHeaderText(const QString &text, TXHorizontalAlignment place)
{
    d->frame.header.setText(text, place);
    d->forgetPages();
}

QString TXReportDocument::footerText(TXHorizontalAlignment place) const
{
    return d->frame.footer.text(place);
}

void TXReportDocument::setFooterText(const QString &text, TXHorizontalAlignment place)
{
    d->frame.footer.setText(text, place);
    d->forgetPages();
}

QFont TXReportDocument::headerFont() const
{
    return d->frame.font;
}

void TXReportDocument::setHeaderFont(const QFont &font)
{
    d->frame.font = font;
    d->forgetPages();
}

QRectF TXReportDocument::contentRect() const
{
    return d->paper().content;
}

void TXReportDocument::addPage(TXGraphicsScene *scene)
{
    if (scene != nullptr) {
        d->contents.push_back(std::make_unique<ReportScenePage>(scene));
        d->forgetPages();
    }
}

void TXReportDocument::addPages(int count, PageDrawing draw)
{
    if (count > 0 && draw) {
        d->contents.push_back(std::make_unique<ReportDrawnPages>(count, std::move(draw)));
        d->forgetPages();
    }
}

void TXReportDocument::addTable(const TXTable &table, const QFont &font)
{
    d->contents.push_back(std::make_unique<ReportTableContent>(table, font));
    d->forgetPages();
}

int TXReportDocument::pageCount() const
{
    return d->pageCount();
}

void TXReportDocument::paintPage(int page, QPainter *painter) const
{
    if (painter != nullptr && painter->isActive()) {
        d->paintPage(page, painter);
    }
}

bool TXReportDocument::writePdf(const QString &fileName, ICompletionDelegate *delegate,
                                TXError *error)
{
    ReportRun run(&d->state, d->frame.title, delegate, error);
    return run.isGoingOn() && d->hasSomethingToShow(run) && d->writePages(fileName, run);
}

bool TXReportDocument::print(QPrinter *printer, ICompletionDelegate *delegate, TXError *error)
{
    ReportRun run(&d->state, d->frame.title, delegate, error);
    return run.isGoingOn() && d->hasSomethingToShow(run) && d->printPages(printer, run);
}

void TXReportDocument::cancel()
{
    d->state.cancel();
}

bool TXReportDocument::isCancelled() const
{
    return d->state.isCancelled();
}
