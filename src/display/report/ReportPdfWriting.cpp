#include "ReportPdfWriting.h"

#include "PdfDocumentInfo.h"
#include "ReportPages.h"
#include "ReportPdfFile.h"
#include "ReportPlacement.h"
#include "ReportRun.h"
#include "ReportSharedParts.h"
#include "TXStringI18n.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>

namespace {

/// Fine enough for what has to become a picture, an item with an effect, and no finer: such
/// pictures grow with its square. Lines and texts do not depend on it.
constexpr int kDotsPerInch = 300;

/// The reason is filled in first, as a file may be called "%1".
TXStringI18n failure(const QString &fileName, const QString &reason)
{
    return reportText(QT_TRANSLATE_NOOP("TXReportDocument",
                                        "The report could not be written to \"%2\": %1"))
        .arg(reason)
        .arg(QDir::toNativeSeparators(fileName));
}

} // namespace

bool ReportPdfWriting::write(ReportPages &pages, const PdfDocumentInfo &info,
                             const QString &fileName, ReportRun &run)
{
    ReportPdfFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        paintAll(pages, info, file, run);
        appendInfo(info, file, run);
    }
    if (!file.hasFailed() && !run.close()) {
        return false;
    }
    if (!file.commit()) {
        run.fail(failure(fileName, file.reason()));
        return false;
    }
    return true;
}

void ReportPdfWriting::paintAll(ReportPages &pages, const PdfDocumentInfo &info,
                                ReportPdfFile &file, ReportRun &run)
{
    QPdfWriter writer(&file);
    writer.setPageLayout(pages.sheetLayout());
    writer.setResolution(kDotsPerInch);
    writer.setTitle(info.title);
    writer.setCreator(info.creator);
    QPainter painter(&writer);
    painter.scale(kDotsPerInch / ReportPlacement::kPointsPerInch,
                  kDotsPerInch / ReportPlacement::kPointsPerInch);
    ReportSharedParts shared;
    const int count = pages.count();
    for (int page = 0; page < count && !file.hasFailed(); ++page) {
        if (!run.beginPage(page, count)) {
            return;
        }
        if (page > 0) {
            writer.newPage();
        }
        pages.paint(page, &painter, &shared);
        run.endPage(page, count);
    }
}

void ReportPdfWriting::appendInfo(const PdfDocumentInfo &info, ReportPdfFile &file, ReportRun &run)
{
    if (!info.needsUpdate() || file.hasFailed() || !run.isGoingOn()) {
        return;
    }
    const QByteArray update = info.update(file.tail(), file.writtenBytes());
    if (update.isEmpty()) {
        file.fail(QCoreApplication::translate(
            "TXReportDocument", "The document's data could not be added to the PDF."));
    } else {
        file.write(update);
    }
}
