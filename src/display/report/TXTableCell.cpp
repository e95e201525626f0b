#include "TXTableCell.h"

#include "ReportPlacement.h"
#include "TXGraphicsScene.h"
#include "TextSizeCache.h"

#include <QBrush>
#include <QFont>
#include <QPen>
#include <QPixmap>

TXTableCell::TXTableCell(const QHash<QString, QVariant> &dictionary)
    : element(dictionary.value(QStringLiteral("CellElement")))
    , textColor(
          dictionary.value(QStringLiteral("CellTextColor"), QColor(Qt::black)).value<QColor>())
    , horizontalAlign(
          dictionary
              .value(QStringLiteral("CellTextHorizontalAlign"), quint32(TXAlignHorizontallyCentred))
              .toUInt())
    , verticalAlign(
          dictionary
              .value(QStringLiteral("CellTextVerticalAlign"), quint32(TXAlignVerticallyCentred))
              .toUInt())
    , bold(dictionary.value(QStringLiteral("CellTextBold"), false).toBool())
    , insideColor(
          dictionary.value(QStringLiteral("InsideCellColor"), QColor(Qt::white)).value<QColor>())
    , size(dictionary.value(QStringLiteral("CellSize"), QSizeF(50.0, 50.0)).toSizeF())
    , borderColor(
          dictionary.value(QStringLiteral("BorderCellColor"), QColor(Qt::black)).value<QColor>())
    , borderLineWidth(dictionary.value(QStringLiteral("BorderCellLineWidth"), 0.5F).toReal())
    , realColumn(dictionary.value(QStringLiteral("CellRealColumn"), 0).toInt())
    , nbMergedCell(dictionary.value(QStringLiteral("NbMergedCell"), 1).toInt())
{ }

void TXTableCell::drawTableCell(TXGraphicsScene *scene, const QPointF &topLeft,
                                const QFont &font) const
{
    const QRectF rect(topLeft, size);
    QPen pen;
    pen.setWidthF(borderLineWidth);
    pen.setColor(borderColor);
    pen.setStyle(Qt::SolidLine);
    QBrush brush(insideColor, Qt::SolidPattern);
    scene->drawRect(rect, pen, brush, false);

    if (element.typeId() == QMetaType::QPixmap) {
        scene->drawImageInRect(element.value<QPixmap>(), ReportPlacement::pictureRectOfCell(rect),
                               TXAlignHorizontallyCentred, TXAlignVerticallyCentred);
        return;
    }
    const QString text = element.toString();
    if (text.isEmpty()) {
        return;
    }
    brush.setColor(textColor);
    scene->drawTextInRect(text, rect, TXHorizontalAlignment(horizontalAlign),
                          TXVerticalAlignment(verticalAlign),
                          TextSizeCache::fontWithWeight(font, bold ? QFont::Bold : QFont::Normal),
                          brush, ReportPlacement::kCellTextMargins);
}
