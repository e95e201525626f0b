#include "ColourName.h"

#include <QColor>
#include <QString>

QString ColourName::of(const QColor &colour)
{
    constexpr int kOpaque = 255;
    return colour.name(colour.alpha() == kOpaque ? QColor::HexRgb : QColor::HexArgb);
}
