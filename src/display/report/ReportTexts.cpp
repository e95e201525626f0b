#include "ReportTexts.h"

#include "ReportPlacement.h"
#include "TXTable.h"

#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QSizeF>

#include <algorithm>

namespace {

QString textOf(QGraphicsItem *item)
{
    if (const auto *simple = qgraphicsitem_cast<QGraphicsSimpleTextItem *>(item)) {
        return simple->text();
    }
    const auto *rich = qgraphicsitem_cast<QGraphicsTextItem *>(item);
    return rich == nullptr ? QString() : rich->toPlainText();
}

/// A text at no number at all has no place in an order either.
bool isRead(const QString &text, const QRectF &rect)
{
    return !QStringView(text).trimmed().isEmpty() && ReportPlacement::isDrawable(rect);
}

QString textOf(const QVariant &element)
{
    return element.typeId() == QMetaType::QPixmap ? QString() : element.toString();
}

} // namespace

QList<TXReportText> ReportTexts::ofScene(const QGraphicsScene &scene, const QPointF &offset)
{
    QList<TXReportText> texts;
    const QList<QGraphicsItem *> items = scene.items(Qt::AscendingOrder);
    for (QGraphicsItem *item : items) {
        const QString text = item->isVisible() ? textOf(item) : QString();
        const QRectF rect = item->sceneBoundingRect().translated(offset);
        if (isRead(text, rect)) {
            texts.append({text, rect});
        }
    }
    return inReadingOrder(std::move(texts));
}

QList<TXReportText> ReportTexts::ofTable(const TXTable &table, const QPointF &topLeft)
{
    QList<TXReportText> texts;
    QPointF place = topLeft;
    const QList<QList<TXTableCell>> rows = table.getTableCellList();
    for (int row = 0; row < rows.size(); ++row) {
        for (const TXTableCell &cell : rows.at(row)) {
            const QString text = textOf(cell.element);
            const QRectF rect(place, cell.size);
            if (isRead(text, rect)) {
                texts.append({text, rect});
            }
            place.rx() += cell.size.width();
        }
        place = {topLeft.x(), place.y() + table.getRowHeight(row)};
    }
    return texts;
}

QList<TXReportText> ReportTexts::inReadingOrder(QList<TXReportText> texts)
{
    std::stable_sort(texts.begin(), texts.end(), [](const TXReportText &a, const TXReportText &b) {
        return a.rect.center().y() < b.rect.center().y();
    });
    const auto isLeftOf = [](const TXReportText &a, const TXReportText &b) {
        return a.rect.left() < b.rect.left();
    };
    auto line = texts.begin();
    while (line != texts.end()) {
        const double bottom = line->rect.bottom();
        const auto next = std::find_if(line + 1, texts.end(), [bottom](const TXReportText &text) {
            return !(text.rect.center().y() < bottom);
        });
        std::stable_sort(line, next, isLeftOf);
        line = next;
    }
    return texts;
}
