#include "VariantEntries.h"

VariantEntries::VariantEntries(const QVariant &container)
{
    switch (container.typeId()) {
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        map = container.toMap();
        nextInMap = map.cbegin();
        break;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        list = container.toList();
        break;
    default:
        break;
    }
}

QVariant VariantEntries::takeValue()
{
    const qsizetype place = read++;
    if (hasKeys()) {
        return *nextInMap++;
    }
    return list.at(place);
}
