#include "TXGraphicsScene.h"

#include "ReportPlacement.h"
#include "ReportSceneAccessible.h"
#include "ReportShadowEffect.h"
#include "TXGraphicsRoundedRectItem.h"
#include "TXScalablePixmapItem.h"
#include "TXTable.h"
#include "TextSizeCache.h"
#include "WholeNumber.h"

#include <QCoreApplication>
#include <QFont>
#include <QGraphicsColorizeEffect>
#include <QGraphicsSimpleTextItem>
#include <QSignalBlocker>

namespace {

bool isDrawable(const QPointF &place)
{
    return ReportPlacement::isDrawable(QRectF(place, QSizeF(0, 0)));
}

} // namespace

TXGraphicsScene::TXGraphicsScene(QObject *parent)
    : QGraphicsScene(parent)
{
    ReportSceneAccessible::install();
}

/// Qt removes an item that it has not met yet by a search through all such: let it meet them first.
TXGraphicsScene::~TXGraphicsScene()
{
    const QSignalBlocker nobodyHears(this);
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void TXGraphicsScene::drawText(const QString &text, const QPointF &topLeft, const QFont &font,
                               const QBrush &brush)
{
    if (!isDrawable(topLeft)) {
        return;
    }
    auto *item = new QGraphicsSimpleTextItem;
    // In this order the item lays out its text once; the other way round it does so twice.
    item->setFont(font);
    item->setText(text);
    item->setPos(topLeft);
    item->setBrush(brush);
    addItem(item);
}

void TXGraphicsScene::drawTextInRect(const QString &text, const QRectF &rect,
                                     TXHorizontalAlignment horizontal, TXVerticalAlignment vertical,
                                     const QFont &font, const QBrush &brush, const QSizeF &margins)
{
    if (text.isEmpty()) {
        return;
    }
    const QSizeF textSize = getBoundingRectOfText(text, font).size();
    drawText(text, ReportPlacement::placeOfText(textSize, rect, horizontal, vertical, margins),
             font, brush);
}

void TXGraphicsScene::drawImageInRect(QPixmap pixmap, QRectF rect, TXHorizontalAlignment horizontal,
                                      TXVerticalAlignment vertical)
{
    if (pixmap.isNull()) {
        return;
    }
    const auto [topLeft, size] =
        ReportPlacement::placeOfPicture(pixmap.size(), rect, horizontal, vertical);
    if (!isDrawable(topLeft)) {
        return;
    }
    pixmap = scaleToFitResolution(pixmap, size, ReportPlacement::kPictureDotsPerInch);
    auto *item = new TXScalablePixmapItem(pixmap, nullptr, QSizeF(size));
    addItem(item);
    item->setTransformationMode(Qt::SmoothTransformation);
    item->setTransform(QTransform::fromTranslate(topLeft.x(), topLeft.y()), true);
}

void TXGraphicsScene::drawLine(const QPointF &from, const QPointF &to, const QPen &pen, bool shadow)
{
    if (!ReportPlacement::isDrawable(QRectF(from, to), pen.widthF())) {
        return;
    }
    QGraphicsItem *item = addLine(QLineF(from, to), pen);
    if (shadow) {
        addShadowEffectInGraphicsItem(item);
    }
}

void TXGraphicsScene::drawRect(const QRectF &rect, const QPen &pen, const QBrush &brush,
                               bool shadow)
{
    if (!ReportPlacement::isDrawable(rect, pen.widthF())) {
        return;
    }
    QGraphicsItem *item = addRect(rect, pen, brush);
    if (shadow) {
        addShadowEffectInGraphicsItem(item);
    }
}

void TXGraphicsScene::drawRoundedRect(const QRectF &rect, double xRadius, double yRadius,
                                      const QPen &pen, const QBrush &brush, bool shadow)
{
    if (!ReportPlacement::isDrawable(rect, pen.widthF())) {
        return;
    }
    auto *item = new TXGraphicsRoundedRectItem;
    item->setRoundedRect(rect, xRadius, yRadius);
    item->setPen(pen);
    item->setBrush(brush);
    addItem(item);
    if (shadow) {
        addShadowEffectInGraphicsItem(item);
    }
}

void TXGraphicsScene::drawEllipse(const QRectF &rect, const QPen &pen, const QBrush &brush,
                                  bool shadow)
{
    if (!ReportPlacement::isDrawable(rect, pen.widthF())) {
        return;
    }
    QGraphicsItem *item = addEllipse(rect, pen, brush);
    if (shadow) {
        addShadowEffectInGraphicsItem(item);
    }
}

void TXGraphicsScene::drawTable(TXTable table, const QPointF &topLeft, const QFont &font)
{
    table.drawBorderTable(this, topLeft, ReportPlacement::kTableFrameMargin);
    table.drawTableWithCell(this, topLeft, font);
}

QRectF TXGraphicsScene::getBoundingRectOfText(const QString &text, const QFont &font)
{
    return {QPointF(0, 0), TextSizeCache::textSize(text, font)};
}

QSize TXGraphicsScene::newSizeFromSize(QSize from, QSize to, float *scale)
{
    const float factor = ReportPlacement::fittingScale(from, to);
    if (scale != nullptr) {
        *scale = factor;
    }
    return {WholeNumber::truncated(float(from.width()) * factor),
            WholeNumber::truncated(float(from.height()) * factor)};
}

QPixmap TXGraphicsScene::scaleToFitResolution(const QPixmap &pixmap, const QSize &size,
                                              int dotsPerInch)
{
    const QSize pixels = ReportPlacement::pixelsForPoints(size, dotsPerInch);
    const QString key = QStringLiteral("%1x%2").arg(pixels.width()).arg(pixels.height());
    QHash<QString, QPixmap> &ofPixmap = scaledPixmaps[pixmap.cacheKey()];
    auto found = ofPixmap.find(key);
    if (found == ofPixmap.end()) {
        found = ofPixmap.insert(key, ReportPlacement::resampled(pixmap, pixels));
    }
    return *found;
}

void TXGraphicsScene::addShadowEffectInGraphicsItem(QGraphicsItem *item)
{
    if (item != nullptr) {
        item->setGraphicsEffect(new ReportShadowEffect);
    }
}

void TXGraphicsScene::addColorEffectInGraphicsItem(QGraphicsItem *item, const QColor &color)
{
    if (item == nullptr) {
        return;
    }
    auto *effect = new QGraphicsColorizeEffect;
    effect->setColor(color);
    effect->setEnabled(true);
    item->setGraphicsEffect(effect);
}
