#pragma once

#include <QRectF>
#include <QString>

/// A text as it stands on a page of a report. Thread: a value, for one thread at a time.
struct TXReportText
{
    /// What is read, never blank. May have several lines.
    QString text;
    /// Where it stands, in points: from the top left corner of the paper for a page of a
    /// TXReportDocument, in the units of the scene for a TXGraphicsScene. For the text of a table's
    /// cell this is the whole cell, on pages of a document that show a table.
    QRectF rect;
};
