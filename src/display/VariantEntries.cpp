#include "VariantEntries.h"

#include "VariantKind.h"

VariantEntries::VariantEntries(const QVariant &container)
{
    if (VariantKind::isMap(container)) {
        map = container.toMap();
        nextInMap = map.cbegin();
    } else if (VariantKind::isList(container)) {
        list = container.toList();
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
