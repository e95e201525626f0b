#include "ReportPageScene.h"

#include "TXGraphicsRoundedRectItem.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <typeinfo>

namespace {

constexpr qint64 kMostKeptBytes = qint64(64) * 1024 * 1024;

qint64 bytesOf(const ReportPageScene::Pictures &pictures)
{
    qint64 bytes = 0;
    for (const QHash<QString, QPixmap> &ofOne : pictures) {
        for (const QPixmap &pixmap : ofOne) {
            bytes += qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
        }
    }
    return bytes;
}

/// A host's subclass of such a class may do to the painter what it likes.
bool isOfKnownClass(const QGraphicsItem &item)
{
    const std::type_info &type = typeid(item);
    return type == typeid(QGraphicsSimpleTextItem) || type == typeid(QGraphicsRectItem)
        || type == typeid(QGraphicsLineItem) || type == typeid(QGraphicsEllipseItem)
        || type == typeid(TXGraphicsRoundedRectItem);
}

bool isPlain(const QGraphicsItem &item)
{
    return isOfKnownClass(item) && item.graphicsEffect() == nullptr
        && item.flags() == QGraphicsItem::GraphicsItemFlags() && item.opacity() >= 1.0
        && item.cacheMode() == QGraphicsItem::NoCache;
}

bool isAlone(const QGraphicsItem *item)
{
    return item->parentItem() == nullptr && item->childItems().isEmpty();
}

void paintPlainItems(QPainter *painter, QGraphicsItem *const *begin, QGraphicsItem *const *end,
                     const QStyleOptionGraphicsItem *options, QWidget *widget)
{
    painter->save();
    const QTransform sceneToDevice = painter->worldTransform();
    for (QGraphicsItem *const *item = begin; item != end; ++item, ++options) {
        painter->setWorldTransform((*item)->sceneTransform() * sceneToDevice);
        (*item)->paint(painter, options, widget);
    }
    painter->restore();
}

} // namespace

ReportPageScene::ReportPageScene(Pictures *pictures)
    : pictures(pictures)
{
    scaledPixmaps.swap(*pictures);
    // For one rendering a search tree would cost more than it saves.
    setItemIndexMethod(NoIndex);
}

ReportPageScene::~ReportPageScene()
{
    if (bytesOf(scaledPixmaps) <= kMostKeptBytes) {
        pictures->swap(scaledPixmaps);
    }
}

void ReportPageScene::drawItems(QPainter *painter, int numItems, QGraphicsItem *items[],
                                const QStyleOptionGraphicsItem options[], QWidget *widget)
{
    QGraphicsItem **const end = items + numItems;
    if (!std::all_of(items, end, isAlone)) {
        QGraphicsScene::drawItems(painter, numItems, items, options, widget);
        return;
    }
    // Makes the scene's acquaintance with the items; without it destroying them is slow.
    QGraphicsScene::drawItems(painter, 0, items, options, widget);
    QGraphicsItem **item = items;
    while (item != end) {
        QGraphicsItem **const special =
            std::find_if_not(item, end, [](const QGraphicsItem *next) { return isPlain(*next); });
        if (special != item) {
            paintPlainItems(painter, item, special, options + (item - items), widget);
        }
        item = special;
        if (item != end) {
            QGraphicsScene::drawItems(painter, 1, item, options + (item - items), widget);
            ++item;
        }
    }
}
