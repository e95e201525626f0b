#include "TXReportDocument.h"

#include <QFont>

class TXReportDocument::Private
{ };

TXReportDocument::TXReportDocument() = default;
TXReportDocument::~TXReportDocument() = default;
QPageLayout TXReportDocument::pageLayout() const
{
    return {};
}
void TXReportDocument::setPageLayout(const QPageLayout &) { }
QString TXReportDocument::title() const
{
    return {};
}
void TXReportDocument::setTitle(const QString &) { }
QString TXReportDocument::author() const
{
    return {};
}
void TXReportDocument::setAuthor(const QString &) { }
QString TXReportDocument::headerText(TXHorizontalAlignment) const
{
    return {};
}
void TXReportDocument::setHeaderText(const QString &, TXHorizontalAlignment) { }
QString TXReportDocument::footerText(TXHorizontalAlignment) const
{
    return {};
}
void TXReportDocument::setFooterText(const QString &, TXHorizontalAlignment) { }
QFont TXReportDocument::headerFont() const
{
    return {};
}
void TXReportDocument::setHeaderFont(const QFont &) { }
QRectF TXReportDocument::contentRect() const
{
    return {};
}
void TXReportDocument::addPage(TXGraphicsScene *) { }
void TXReportDocument::addPages(int, PageDrawing) { }
void TXReportDocument::addTable(const TXTable &, const QFont &) { }
int TXReportDocument::pageCount() const
{
    return 0;
}
void TXReportDocument::paintPage(int, QPainter *) const { }
bool TXReportDocument::writePdf(const QString &, ICompletionDelegate *, TXError *)
{
    return false;
}
bool TXReportDocument::print(QPrinter *, ICompletionDelegate *, TXError *)
{
    return false;
}
void TXReportDocument::cancel() { }
bool TXReportDocument::isCancelled() const
{
    return false;
}
