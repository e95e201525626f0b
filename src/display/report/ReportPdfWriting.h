#pragma once

#include "TXGUICommonExport.h"

#include <QString>

class ReportPages;
class ReportPdfFile;
class ReportRun;
struct PdfDocumentInfo;

/// Writes a report as PDF.
class TXGUICOMMON_PRIVATE_EXPORT ReportPdfWriting
{
public:
    /// True when the file is there. Otherwise what stood there before stays, and the run has failed
    /// or was cancelled. There must be pages.
    [[nodiscard]] static bool write(ReportPages &pages, const PdfDocumentInfo &info,
                                    const QString &fileName, ReportRun &run);

private:
    static void paintAll(ReportPages &pages, const PdfDocumentInfo &info, ReportPdfFile &file,
                         ReportRun &run);
    static void appendInfo(const PdfDocumentInfo &info, ReportPdfFile &file, ReportRun &run);
};
