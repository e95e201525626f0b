#pragma once

#include "TXGUICommonExport.h"

#include <QBrush>
#include <QPen>
#include <QSize>
#include <QWidget>

/// A swatch: a square with round corners, filled with a brush and framed with a pen.
///
/// The square has the size of the hint and stands in the widget as its alignment tells; in a widget
/// that is smaller it shrinks. Layouts give the widget at least that size.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXColorSquareWidget : public QWidget
{
    Q_OBJECT

public:
    /// A square of 24 by 24 pixels at the top left, without a filling, with sharp corners.
    explicit TXColorSquareWidget(QWidget *parent = nullptr);

    /// The size of the square with its frame, in pixels.
    void setSizeHint(const QSize &size);
    /// The filling; none at first.
    void setBrush(const QBrush &brush);
    /// The frame, inside the square's size; black and one pixel wide at first.
    void setPen(const QPen &pen);
    /// The radius of the corners in pixels; 0 at first.
    void setRadius(double radius);
    /// Where the square stands in a widget that is larger; top left at first. Without an alignment
    /// in one direction, left or top.
    void setAlignment(Qt::Alignment alignment);

    /// The size that was set.
    [[nodiscard]] QSize sizeHint() const override;
    /// The same as sizeHint().
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize sizeHintValue = QSize(24, 24);
    QBrush brush;
    QPen pen;
    double xRadius = 0.0;
    double yRadius = 0.0;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
};
