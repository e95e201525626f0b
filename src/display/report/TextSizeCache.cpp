#include "TextSizeCache.h"

#include <QFontMetricsF>

QSizeF TextSizeCache::textSize(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).size(Qt::TextShowMnemonic, text);
}

QFont TextSizeCache::fontWithWeight(const QFont &font, QFont::Weight weight)
{
    QFont weighted = font;
    weighted.setWeight(weight);
    return weighted;
}
