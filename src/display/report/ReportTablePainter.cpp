#include "ReportTablePainter.h"

#include "ReportPlacement.h"
#include "ReportShadow.h"
#include "ReportShadowEffect.h"
#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TextSizeCache.h"

#include <QBrush>
#include <QFont>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

namespace {

using ReportPlacement::isWithinReach;
using ReportPlacement::kTableFrameMargin;

bool isWithinReach(const QPointF &place)
{
    return isWithinReach(QRectF(place, QSizeF()));
}

} // namespace

/// The painting of one table. Pens and brushes are made and set only where they change from cell to
/// cell, as each change costs time, and room in a PDF.
class ReportTablePainter::Painting
{
public:
    Painting(ReportTablePainter *owner, QPainter *painter);
    ~Painting();

    void paintFrame(const TXTable &table, const QPointF &topLeft);
    void paintCells(const TXTable &table, const QPointF &topLeft);

private:
    void paintFrameWithEffect(const TXTable &table, const QPointF &topLeft);
    void paintCell(const TXTableCell &cell, const QRectF &rect);
    void paintPicture(const QPixmap &pixmap, const QRectF &rect);
    void paintText(const TXTableCell &cell, const QString &text, const QRectF &rect);
    void setBorderPen(const QColor &colour, double width);
    void setTextPen(const QColor &colour);
    void setInsideBrush(const QColor &colour);

    ReportTablePainter *owner;
    QPainter *painter;
    QTransform transform;
    bool isPaper;
    bool isPdf;

    QPen border;
    QColor borderColour;
    double borderWidth = 0.0;
    bool isBorderMade = false;
    bool isBorderSet = false;

    /// Of the pen that is set, be it the border's or the text's: texts care for nothing else of it.
    QColor penColour;
    bool isPenSet = false;

    QColor brushColour;
    bool isBrushSet = false;
};

ReportTablePainter::Painting::Painting(ReportTablePainter *owner, QPainter *painter)
    : owner(owner)
    , painter(painter)
    , isPaper(ReportShadow::isForPaper(painter))
    , isPdf(painter->paintEngine()->type() == QPaintEngine::Pdf)
{
    painter->save();
    if (isPdf) {
        // Changes nothing there, but Qt would switch it on and off again for each text.
        painter->setRenderHint(QPainter::Antialiasing);
    }
    transform = painter->worldTransform();
}

ReportTablePainter::Painting::~Painting()
{
    painter->restore();
}

void ReportTablePainter::Painting::paintFrame(const TXTable &table, const QPointF &topLeft)
{
    const QRectF frame = table.frameRect(topLeft, kTableFrameMargin);
    if (!isWithinReach(frame)) {
        return;
    }
    if (table.hasShadow && !isPaper) {
        paintFrameWithEffect(table, topLeft);
        return;
    }
    const auto drawFrame = [&frame](QPainter *target) {
        target->setPen(TXTable::framePen());
        target->setBrush(Qt::white);
        target->drawRect(frame);
    };
    if (table.hasShadow) {
        const double outside = TXTable::framePen().widthF() / 2;
        const QRectF bounds = frame.adjusted(-outside, -outside, outside, outside);
        const ReportShadowEffect effect;
        ReportShadow::paint(painter, transform.mapRect(bounds),
                            {effect.color(), effect.blurRadius(), effect.offset()}, drawFrame);
    }
    drawFrame(painter);
}

/// On pixels the shadow is Qt's own, which only items have.
void ReportTablePainter::Painting::paintFrameWithEffect(const TXTable &table,
                                                        const QPointF &topLeft)
{
    const QPaintDevice *device = painter->device();
    const QRectF pixels = QRectF(0, 0, device->width(), device->height()).adjusted(-1, -1, 1, 1);
    const QRectF visible = painter->combinedTransform().inverted().mapRect(pixels);
    TXGraphicsScene scene;
    table.drawBorderTable(&scene, topLeft, kTableFrameMargin);
    scene.render(painter, visible, visible);
}

void ReportTablePainter::Painting::paintCells(const TXTable &table, const QPointF &topLeft)
{
    QPointF place = topLeft;
    for (int row = 0; row < table.tableCells.size(); ++row) {
        for (const TXTableCell &cell : table.tableCells.at(row)) {
            paintCell(cell, QRectF(place, cell.size));
            place.rx() += cell.size.width();
        }
        place = {topLeft.x(), place.y() + table.getRowHeight(row)};
    }
}

void ReportTablePainter::Painting::paintCell(const TXTableCell &cell, const QRectF &rect)
{
    const bool isSeen = cell.borderColor.alpha() != 0 || cell.insideColor.alpha() != 0;
    if (isSeen && isWithinReach(rect) && ReportPlacement::isDrawable(rect, cell.borderLineWidth)) {
        setBorderPen(cell.borderColor, cell.borderLineWidth);
        setInsideBrush(cell.insideColor);
        painter->drawRect(rect);
    }
    if (cell.element.typeId() == QMetaType::QPixmap) {
        paintPicture(cell.element.value<QPixmap>(), rect);
        return;
    }
    const QString text = cell.element.toString();
    if (!text.isEmpty()) {
        paintText(cell, text, rect);
    }
}

void ReportTablePainter::Painting::paintPicture(const QPixmap &pixmap, const QRectF &rect)
{
    if (pixmap.isNull()) {
        return;
    }
    const auto [topLeft, size] =
        ReportPlacement::placeOfPicture(pixmap.size(), ReportPlacement::pictureRectOfCell(rect),
                                        TXAlignHorizontallyCentred, TXAlignVerticallyCentred);
    if (size.isEmpty() || !isWithinReach(QRectF(topLeft, size))) {
        return;
    }
    painter->save();
    // In a PDF a picture would be as transparent as the brush.
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setWorldTransform(QTransform::fromTranslate(topLeft.x(), topLeft.y()) * transform);
    painter->drawPixmap(QRect(QPoint(), size), owner->pictures.resampled(pixmap, size));
    painter->restore();
}

void ReportTablePainter::Painting::paintText(const TXTableCell &cell, const QString &text,
                                             const QRectF &rect)
{
    ReportTextLayouts &texts = cell.bold ? *owner->boldTexts : *owner->plainTexts;
    const ReportTextLayouts::Text &ready = texts.text(text);
    const QPointF place = ReportPlacement::placeOfText(
        ready.size, rect, TXHorizontalAlignment(cell.horizontalAlign),
        TXVerticalAlignment(cell.verticalAlign), ReportPlacement::kCellTextMargins);
    if (!isWithinReach(place)) {
        return;
    }
    setTextPen(cell.textColor);
    if (isPdf) {
        ready.layout.draw(painter, place);
        return;
    }
    // Qt rounds the place of a text to 1/64, but not a transformation.
    painter->setWorldTransform(QTransform::fromTranslate(place.x(), place.y()) * transform);
    ready.layout.draw(painter, QPointF(0, 0));
    painter->setWorldTransform(transform);
}

void ReportTablePainter::Painting::setBorderPen(const QColor &colour, double width)
{
    if (!isBorderMade || colour != borderColour || width != borderWidth) {
        border = QPen();
        border.setWidthF(width);
        border.setColor(colour);
        borderColour = colour;
        borderWidth = width;
        isBorderMade = true;
        isBorderSet = false;
    }
    if (!isBorderSet) {
        painter->setPen(border);
        penColour = colour;
        isBorderSet = true;
        isPenSet = true;
    }
}

void ReportTablePainter::Painting::setTextPen(const QColor &colour)
{
    if (!isPenSet || colour != penColour) {
        painter->setPen(QPen(colour));
        penColour = colour;
        isPenSet = true;
        isBorderSet = false;
    }
}

void ReportTablePainter::Painting::setInsideBrush(const QColor &colour)
{
    if (!isBrushSet || colour != brushColour) {
        painter->setBrush(QBrush(colour, Qt::SolidPattern));
        brushColour = colour;
        isBrushSet = true;
    }
}

ReportTablePainter::ReportTablePainter() = default;
ReportTablePainter::~ReportTablePainter() = default;

void ReportTablePainter::paintTable(QPainter *painter, const TXTable &table, const QPointF &topLeft,
                                    const QFont &font)
{
    setFont(font);
    Painting painting(this, painter);
    painting.paintFrame(table, topLeft);
    painting.paintCells(table, topLeft);
}

void ReportTablePainter::setFont(const QFont &font)
{
    if (plainTexts && tableFont == font) {
        return;
    }
    tableFont = font;
    plainTexts =
        std::make_unique<ReportTextLayouts>(TextSizeCache::fontWithWeight(font, QFont::Normal));
    boldTexts =
        std::make_unique<ReportTextLayouts>(TextSizeCache::fontWithWeight(font, QFont::Bold));
}

void ReportTablePainter::paint(QPainter *painter, const TXTable &table, const QPointF &topLeft,
                               const QFont &font)
{
    ReportTablePainter().paintTable(painter, table, topLeft, font);
}
