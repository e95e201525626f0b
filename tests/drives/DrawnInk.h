#pragma once

#include <QImage>
#include <QRect>

/// Where a picture on one background is drawn upon.
namespace DrawnInk {

/// How far apart two greys have to be.
constexpr int kLeastContrast = 60;

/// Around the pixels that stand out from the first one, in pixels of the picture; null if there
/// are none.
inline QRect rect(const QImage &picture)
{
    const int background = qGray(picture.pixel(0, 0));
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAbs(qGray(picture.pixel(x, y)) - background) > kLeastContrast) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// That part of the picture.
inline QImage cropped(const QImage &picture)
{
    const QRect ink = rect(picture);
    return ink.isNull() ? QImage() : picture.copy(ink);
}

} // namespace DrawnInk
