#include "Samples.h"

#include <TXDisplayErrorMessageBox.h>
#include <TXError.h>
#include <TXGraphicsScene.h>
#include <TXReportDocument.h>
#include <TXTable.h>

#include <QColor>
#include <QFont>
#include <QSizeF>

//! [table]
TXTable makeTable(const QList<Reading> &readings, const QFont &font)
{
    TXTable table(2, false);
    table.setColumnWidth(120, 0);
    table.setColumnWidth(80, 1);
    TXTable::initHeaderOfTableWithTitles(table, {"Patch", "Difference"}, false, 20);
    for (const Reading &reading : readings) {
        QHash<QString, QVariant> cell{{"CellSize", QSizeF(120, 16)}};
        cell.insert("CellElement", reading.patch);
        table.addCell(cell);
        cell.insert("CellSize", QSizeF(80, 16));
        cell.insert("CellElement", QString::number(reading.difference, 'f', 2));
        cell.insert("CellTextColor", QColor(reading.difference > 3 ? Qt::red : Qt::black));
        table.addCell(cell);
    }
    table.optimizeTableSize(font);
    return table;
}
//! [table]

//! [pdf]
bool writeReport(const QList<Reading> &readings, const QString &fileName, TXError *error)
{
    QFont font("DejaVu Sans");
    font.setPixelSize(10);
    TXGraphicsScene cover;
    cover.drawRoundedRect(QRectF(0, 0, 300, 60), 6, 6, QPen(Qt::NoPen), QColor("#e6eef5"), true);
    cover.drawTextInRect(QString("%1 patches").arg(readings.size()), QRectF(0, 0, 300, 60),
                         TXAlignHorizontallyCentred, TXAlignVerticallyCentred, font, Qt::black,
                         QSizeF());

    TXReportDocument report;
    report.setTitle("Chart comparison");
    report.addPage(&cover);
    report.addTable(makeTable(readings, font), font);
    return report.writePdf(fileName, nullptr, error);
}
//! [pdf]

//! [print]
bool printReport(TXReportDocument *report, QPrinter *printer, QWidget *window)
{
    TXError error;
    const bool isPrinted = report->print(printer, nullptr, &error);
    if (!isPrinted && !report->isCancelled()) {
        TXDisplayErrorMessageBox(error, ErroMessageBoxWarning, window);
    }
    return isPrinted;
}
//! [print]
