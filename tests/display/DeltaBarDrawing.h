#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QSize>
#include <QString>

/// A bar of colour differences drawn a second time, with numbers where the widget has names.
namespace DeltaBarDrawing {

/// What the bar shows.
struct Values
{
    double averageDelta = 0;
    double averagePercent = 0;
    double limitDelta = 0;
    double limitPercent = 0;
    double maxDelta = 0;
};

inline QString tenths(double value)
{
    return QString::number(value, 'f', 1);
}

/// Draws a bar a second time, with numbers where the widget has names.
class Drawing
{
public:
    Drawing(QPainter &painter, const QSize &size, int textHeight, const Values &values)
        : painter(painter)
        , right(size.width() - 1)
        , values(values)
        , tops{0, textHeight + 4, 2 * textHeight + 8, 2 * textHeight + 16, 3 * textHeight + 22}
    { }

    void draw()
    {
        drawTexts(row(0), "∆EMin", caption(), "∆EMax", 0);
        painter.fillRect(row(1), QColor("#efeedc"));
        painter.fillRect(row(2), QColor("#efeedc"));
        const double share = qBound(-0.45, values.limitPercent / 100 - 0.5, 0.45);
        drawTexts(row(1), "0.0", tenths(values.limitDelta), tenths(values.maxDelta),
                  int(share * (right + 1)));
        drawMark(0, Qt::black);
        drawMark(float(values.averagePercent), Qt::yellow);
        drawMark(float(values.limitPercent), Qt::black);
        drawMark(100, Qt::black);
        const int x = int(qBound(0.0, values.limitPercent, 100.0) * right / 100);
        fill(x, right, "#ffb200", "#330000");
        fill(0, x, "#ffffff", "#009900");
        const int a = int((values.averagePercent / 100 - 0.5) * (right + 1));
        painter.setPen(Qt::yellow);
        painter.drawText(QRect(QPoint(a, tops[3]), QPoint(a + right, tops[4])), Qt::AlignCenter,
                         tenths(values.averageDelta));
    }

private:
    [[nodiscard]] QRect row(int number) const
    {
        return {QPoint(0, tops[number]), QPoint(right, tops[number + 1])};
    }
    [[nodiscard]] QString caption() const
    {
        return "∆Eavg: " + tenths(values.averageDelta) + "    " + tenths(values.limitPercent)
            + " % of pixels < ∆E Limit";
    }
    void drawTexts(const QRect &area, const QString &left, const QString &middle,
                   const QString &last, int offset)
    {
        painter.drawText(area, Qt::AlignLeft, left);
        painter.drawText(area.translated(offset, 0), Qt::AlignCenter, middle);
        painter.drawText(area, Qt::AlignRight, last);
    }
    void drawMark(float percent, const QColor &color)
    {
        const float x = float(right + 1) * percent / 100;
        QPainterPath path;
        path.moveTo(double(x), tops[3]);
        path.lineTo(double(x) - 9, tops[2]);
        path.lineTo(double(x) + 9, tops[2]);
        path.lineTo(double(x), tops[3]);
        painter.fillPath(path, color);
        painter.drawPath(path);
    }
    void fill(int from, int to, const char *start, const char *end)
    {
        QLinearGradient gradient(from, tops[3], to, tops[3]);
        gradient.setStops({{0.0, QColor(start)}, {1.0, QColor(end)}});
        painter.fillRect(QRect(QPoint(from, tops[3]), QPoint(to, tops[4])), gradient);
    }

    QPainter &painter;
    int right;
    Values values;
    int tops[5];
};

} // namespace DeltaBarDrawing
