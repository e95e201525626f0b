#pragma once

#include "PdfFile.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QRectF>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

/// Small pages in a PDF, and how another program shows them.
namespace PdfPicture {

const QRectF kPaper(0, 0, 420, 300);

/// Writes a page of kPaper, a unit of the painter being a point.
inline void write(const QString &fileName, const std::function<void(QPainter *)> &paint)
{
    constexpr int kDotsPerInch = 300;
    constexpr double kPointsPerInch = 72.0;
    QPdfWriter writer(fileName);
    writer.setPageSize(QPageSize(kPaper.size(), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(kDotsPerInch);
    QPainter painter(&writer);
    painter.scale(kDotsPerInch / kPointsPerInch, kDotsPerInch / kPointsPerInch);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.setClipRect(kPaper);
    paint(&painter);
}

/// The page in pixels. Null, and the test has failed, where it cannot be shown.
inline QImage of(const std::function<void(QPainter *)> &paint)
{
    constexpr double kShownDotsPerInch = 150.0;
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("page.pdf");
    write(fileName, paint);
    PdfFile pdf(fileName);
    const QImage image = pdf.rendered(1, kShownDotsPerInch);
    if (!pdf.errorText().isEmpty()) {
        QTest::qFail(qPrintable(pdf.errorText()), __FILE__, __LINE__);
    }
    return image.convertToFormat(QImage::Format_RGB32);
}

} // namespace PdfPicture
