#include "ReportTexts.h"

#include "ReportPlacement.h"
#include "TXTable.h"

#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsTextItem>
#include <QSizeF>

#include <algorithm>
#include <numeric>

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

/// 1 for a text that is read from the right, -1 from the left, 0 for numbers and signs alone.
int directionOf(const TXReportText &text)
{
    if (text.text.isRightToLeft()) {
        return 1;
    }
    const auto isLetter = [](QChar character) {
        return character.isLetter() || character.isSurrogate();
    };
    return std::any_of(text.text.cbegin(), text.text.cend(), isLetter) ? -1 : 0;
}

using Place = QList<TXReportText>::iterator;

/// Above 0 when more of the texts are read from the right than from the left, below 0 when less.
int directionOf(Place begin, Place end)
{
    return std::accumulate(
        begin, end, 0, [](int sum, const TXReportText &text) { return sum + directionOf(text); });
}

/// Whether a line is read from the right, among texts of that direction.
bool isFromTheRight(Place begin, Place end, int directionOfAll)
{
    const int direction = directionOf(begin, end);
    return (direction != 0 ? direction : directionOfAll) > 0;
}

void turnRowsFromTheRight(QList<TXReportText> &texts, const QList<qsizetype> &rowEnds)
{
    const int direction = directionOf(texts.begin(), texts.end());
    Place row = texts.begin();
    for (const qsizetype rowEnd : rowEnds) {
        const Place end = texts.begin() + rowEnd;
        if (isFromTheRight(row, end, direction)) {
            std::reverse(row, end);
        }
        row = end;
    }
}

void sortLine(Place begin, Place end, bool isFromTheRight)
{
    const auto isBefore = [isFromTheRight](const TXReportText &a, const TXReportText &b) {
        return isFromTheRight ? a.rect.right() > b.rect.right() : a.rect.left() < b.rect.left();
    };
    std::stable_sort(begin, end, isBefore);
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
    QList<qsizetype> rowEnds;
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
        rowEnds.append(texts.size());
    }
    turnRowsFromTheRight(texts, rowEnds);
    return texts;
}

QList<TXReportText> ReportTexts::inReadingOrder(QList<TXReportText> texts)
{
    std::stable_sort(texts.begin(), texts.end(), [](const TXReportText &a, const TXReportText &b) {
        return a.rect.center().y() < b.rect.center().y();
    });
    const int direction = directionOf(texts.begin(), texts.end());
    auto line = texts.begin();
    while (line != texts.end()) {
        const double bottom = line->rect.bottom();
        const auto next = std::find_if(line + 1, texts.end(), [bottom](const TXReportText &text) {
            return !(text.rect.center().y() < bottom);
        });
        sortLine(line, next, isFromTheRight(line, next, direction));
        line = next;
    }
    return texts;
}
