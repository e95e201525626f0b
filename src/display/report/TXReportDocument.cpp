#include "TXReportDocument.h"

#include "PdfDocumentInfo.h"
#include "ReportContent.h"
#include "ReportPages.h"
#include "ReportPdfWriting.h"
#include "ReportPrinting.h"
#include "ReportRun.h"
#include "ReportSharedParts.h"
#include "TXStringI18n.h"
#include "TXTable.h"
#include "TextSizeCache.h"

#include <QFont>
#include <QPageSize>
#include <QPainter>

#include <utility>

namespace {

constexpr double kMarginPoints = 36.0;

QPageLayout defaultLayout()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints),
            QPageLayout::Point};
}

/// Fails the run where there is nothing to write.
bool checkForContent(ReportPages &pages, ReportRun &run)
{
    if (pages.count() == 0) {
        run.fail(reportText(QT_TRANSLATE_NOOP("TXReportDocument", "The report has no pages.")));
        return false;
    }
    if (pages.paper().content.isEmpty()) {
        run.fail(reportText(QT_TRANSLATE_NOOP(
            "TXReportDocument",
            "The margins, the header and the footer leave no room on the paper.")));
        return false;
    }
    return true;
}

} // namespace

class TXReportDocument::Private
{
public:
    [[nodiscard]] ReportPages pagesAsTheyAre() const;
    [[nodiscard]] PdfDocumentInfo documentInfo() const;

    ReportPages pages;
    QString author;
    ReportRunState state;
};

/// The delegate may change the report, and this thread need not be that of the host's fonts: a
/// writing neither changes with the report nor shares its font.
ReportPages TXReportDocument::Private::pagesAsTheyAre() const
{
    ReportPages copy = pages;
    QFont &font = copy.changeFrame().font;
    font = TextSizeCache::separateCopy(font);
    return copy;
}

PdfDocumentInfo TXReportDocument::Private::documentInfo() const
{
    PdfDocumentInfo info;
    info.title = ReportTextLine::onOneLine(pages.frame().title);
    info.author = ReportTextLine::onOneLine(author);
    info.creator = QCoreApplication::applicationName();
    info.creationTime = QDateTime::currentDateTimeUtc();
    return info;
}

TXReportDocument::TXReportDocument()
    : d(std::make_unique<Private>())
{
    d->pages.setLayout(defaultLayout());
    ReportPageFrame &frame = d->pages.changeFrame();
    frame.header.setText(QStringLiteral("{title}"), TXAlignLeft);
    frame.footer.setText(tr("page {page} of {pages}"), TXAlignHorizontallyCentred);
}

TXReportDocument::~TXReportDocument() = default;

QPageLayout TXReportDocument::pageLayout() const
{
    return d->pages.layout();
}

void TXReportDocument::setPageLayout(const QPageLayout &layout)
{
    if (layout.isValid()) {
        d->pages.setLayout(layout);
    }
}

QString TXReportDocument::title() const
{
    return d->pages.frame().title;
}

void TXReportDocument::setTitle(const QString &title)
{
    d->pages.changeFrame().title = title;
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
    return d->pages.frame().header.text(place);
}

void TXReportDocument::setHeaderText(const QString &text, TXHorizontalAlignment place)
{
    d->pages.changeFrame().header.setText(text, place);
}

QString TXReportDocument::footerText(TXHorizontalAlignment place) const
{
    return d->pages.frame().footer.text(place);
}

void TXReportDocument::setFooterText(const QString &text, TXHorizontalAlignment place)
{
    d->pages.changeFrame().footer.setText(text, place);
}

QFont TXReportDocument::headerFont() const
{
    return d->pages.frame().font;
}

void TXReportDocument::setHeaderFont(const QFont &font)
{
    d->pages.changeFrame().font = font;
}

QRectF TXReportDocument::contentRect() const
{
    return d->pages.paper().content;
}

void TXReportDocument::addPage(TXGraphicsScene *scene)
{
    if (scene != nullptr) {
        d->pages.add(std::make_unique<ReportScenePage>(scene));
    }
}

void TXReportDocument::addPages(int count, PageDrawing draw)
{
    if (count > 0 && draw) {
        d->pages.add(std::make_unique<ReportDrawnPages>(count, std::move(draw)));
    }
}

void TXReportDocument::addTable(const TXTable &table, const QFont &font)
{
    d->pages.add(std::make_unique<ReportTableContent>(table, font));
}

int TXReportDocument::pageCount() const
{
    return d->pages.count();
}

void TXReportDocument::paintPage(int page, QPainter *painter) const
{
    if (painter != nullptr && painter->isActive()) {
        ReportSharedParts shared;
        d->pages.paint(page, painter, &shared);
    }
}

QList<TXReportText> TXReportDocument::pageTexts(int page) const
{
    ReportSharedParts shared;
    return d->pages.texts(page, &shared);
}

bool TXReportDocument::writePdf(const QString &fileName, ICompletionDelegate *delegate,
                                TXError *error)
{
    ReportPages pages = d->pagesAsTheyAre();
    const PdfDocumentInfo info = d->documentInfo();
    ReportRun run(&d->state, pages.frame().title, delegate, error);
    return run.isGoingOn() && checkForContent(pages, run)
        && ReportPdfWriting::write(pages, info, fileName, run);
}

bool TXReportDocument::print(QPrinter *printer, ICompletionDelegate *delegate, TXError *error)
{
    ReportPages pages = d->pagesAsTheyAre();
    ReportRun run(&d->state, pages.frame().title, delegate, error);
    return run.isGoingOn() && checkForContent(pages, run)
        && ReportPrinting::print(pages, printer, run);
}

void TXReportDocument::cancel()
{
    d->state.cancel();
}

bool TXReportDocument::isCancelled() const
{
    return d->state.isCancelled();
}
