#pragma once

#include "TXGUICommonExport.h"

#include <QBrush>
#include <QPen>
#include <QSize>
#include <QWidget>

/// A swatch: a square with round corners, filled with a brush and framed with a pen.
///
/// The square has the size of the hint and stands in the widget as its alignment tells; in a widget
/// that is smaller it shrinks to it, but is still placed by the size of the hint. Layouts give the
/// widget at least that size. The setters paint anew only when a value differs.
///
/// Assistive programs see a picture whose value is the colour as "#rrggbb", as "#aarrggbb" when it
/// is not opaque, or the kind of brush where it is none of one colour. The value also is the
/// description, unless the widget has an accessible description. Give the widget an accessible name
/// that tells what it is the colour of.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXColorSquareWidget : public QWidget
{
    Q_OBJECT
    /// See sizeHint(). Writing it is setSizeHint() with updateGeometry() behind it.
    Q_PROPERTY(QSize sizeHint READ sizeHint WRITE applySizeHint)
    /// See setBrush().
    Q_PROPERTY(QBrush brush MEMBER brush WRITE setBrush)
    /// See setPen(). Qt Designer has no editor for pens.
    Q_PROPERTY(QPen pen MEMBER pen WRITE setPen DESIGNABLE false)
    /// See setRadius().
    Q_PROPERTY(double radius MEMBER xRadius WRITE setRadius)
    /// See setAlignment().
    Q_PROPERTY(Qt::Alignment alignment MEMBER alignment WRITE setAlignment)

public:
    /// A square of 24 by 24 pixels at the top left, without a filling, with sharp corners.
    explicit TXColorSquareWidget(QWidget *parent = nullptr);

    /// The size of the square with its frame, in pixels. The widget is only painted anew: for a
    /// layout to see the new size call updateGeometry() as well. Nothing sensible is painted for a
    /// negative size.
    void setSizeHint(const QSize &size);
    /// The filling; none at first.
    void setBrush(const QBrush &brush);
    /// The frame, inside the square's size; black and one pixel wide at first. Widths count in
    /// whole pixels.
    void setPen(const QPen &pen);
    /// The radius of the corners in pixels; 0 at first. What is not above 0 leaves them sharp.
    void setRadius(double radius);
    /// Where the square stands in a widget that is larger; top left at first. Without an alignment
    /// in one direction, left or top. Left and right are what they say in every layout direction.
    void setAlignment(Qt::Alignment alignment);

    /// The size that was set. A subclass that overrides it decides the size of the square.
    [[nodiscard]] QSize sizeHint() const override;
    /// The size that was set, so that the square is seen whole.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// Paints the square.
    void paintEvent(QPaintEvent *event) override;

private:
    friend class ColorSquareAccessible;

    void applySizeHint(const QSize &size);
    [[nodiscard]] QString brushInWords() const;
    [[nodiscard]] QPointF offset(const QSize &square) const;

    QSize sizeHintValue = QSize(24, 24);
    QBrush brush;
    QPen pen;
    double xRadius = 0.0;
    double yRadius = 0.0;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
};
