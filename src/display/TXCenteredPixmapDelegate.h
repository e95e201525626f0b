#pragma once

#include "TXGUICommonExport.h"

#include <QStyledItemDelegate>

/// Shows the picture of a cell in the middle of the cell and at its own size. Nothing else of the
/// cell is drawn: no text, no check box, no background but that of the selection.
///
/// The picture is what stands under Qt::DecorationRole as a QPixmap, or as what a QVariant converts
/// to one: a QImage, a QBitmap, a QBrush with a texture. A QIcon and a QColor are none: hand over
/// QIcon::pixmap() for an icon. A QBitmap is drawn in the colour of the text.
///
/// Each pixel of the picture takes a unit of the view, whatever device pixel ratio the picture
/// carries: one of 32 by 32 pixels with the ratio 2 covers 32 by 32 units, not 16 by 16.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXCenteredPixmapDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// For any number of views.
    explicit TXCenteredPixmapDelegate(QObject *parent = nullptr);

    /// A selected cell is filled with the palette's highlight first. A picture larger than the cell
    /// reaches beyond it on all sides, as far as the view lets it. A cell without a picture stays
    /// empty. The painter is left as it was. Constant cost beyond drawing the picture.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
