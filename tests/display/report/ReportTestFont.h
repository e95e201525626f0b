#pragma once

#include <QFont>
#include <QString>

/// The font of all reports that tests make, the same wherever they run.
///
/// A scene shows a text as large in units as its font is in pixels, and a unit is a point on paper:
/// hence a size in pixels that is called one in points.
inline QFont reportTestFont(int points = 10)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(points);
    return font;
}
