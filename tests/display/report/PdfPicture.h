#pragma once

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRectF>
#include <QTemporaryDir>

#include <functional>

/// Small pages in a PDF, and how another program shows them.
namespace PdfPicture {

const QRectF kPaper(0, 0, 420, 300);

/// All that the program says; what went wrong when it could not be run to its end.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return "failed: " + process.errorString().toUtf8();
    }
    return process.readAllStandardOutput() + process.readAllStandardError();
}

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

/// The page in pixels; null if it cannot be shown.
inline QImage of(const std::function<void(QPainter *)> &paint)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("page.pdf");
    write(fileName, paint);
    const QByteArray png = outputOf("pdftoppm", {"-r", "150", "-png", fileName});
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32);
}

} // namespace PdfPicture
