#pragma once

#include <QStyledItemDelegate>

/// Paints the gallery's list of pages: roomy rows, the current one on a soft tint of the highlight
/// colour with a bar at its leading edge, and a frame around it while the keyboard is there.
///
/// It uses the palette alone, so that the list looks the same in every style.
class PageListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PageListDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
