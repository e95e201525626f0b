#pragma once

#include <QColor>
#include <QPainter>
#include <QPolygonF>
#include <QRectF>
#include <QString>

/// The few shapes that the icons of the widgets are made of, on a sheet of 24 by 24 units whatever
/// the size in pixels. Lines are in the text colour of the application and so are seen on light and
/// dark grounds; the other colours are chosen for both.
class IconPainter
{
public:
    enum Ink {
        Line, ///< The text colour.
        Soft, ///< The text colour, faint.
        Paper, ///< The ground of input fields.
        Accent, ///< Blue, for what the widget is about.
        Bright, ///< White.
        Green,
        Orange,
        Red,
    };

    /// Paints into the largest square in the middle of the area; of the painter the transform, pen,
    /// brush and render hints are changed.
    IconPainter(QPainter &painter, const QRectF &area);

    /// A rounded rectangle with an outline.
    void box(const QRectF &rect, double radius, Ink filling = Paper);
    /// A rounded rectangle without an outline.
    void fill(const QRectF &rect, double radius, Ink ink);
    /// A rectangle that runs from one colour at its left to another at its right.
    void blend(const QRectF &rect, Ink left, Ink right);
    /// A circle area.
    void disc(const QPointF &centre, double radius, Ink ink);
    /// An ellipse, its line only.
    void ring(const QRectF &rect, Ink ink = Line);
    /// A part of an ellipse's line; degrees count from three o'clock, against the clock.
    void arc(const QRectF &rect, int startDegrees, int spanDegrees, Ink ink = Line);
    /// A line through the points.
    void line(const QPolygonF &points, Ink ink = Line);
    /// The area between the points.
    void shape(const QPolygonF &points, Ink ink);
    /// A few letters in the middle of the rectangle, as high as it.
    void text(const QRectF &rect, const QString &letters, Ink ink = Line);
    /// Turns all that follows around the middle of the sheet, with the clock.
    void turn(double degrees);
    /// How opaque all that follows is, from 0 to 1.
    void fade(double opacity);

private:
    [[nodiscard]] static QColor colour(Ink ink);
    void setLine(Ink ink);
    void setFilling(Ink ink);

    QPainter &painter;
};
