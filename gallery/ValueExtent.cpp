#include "ValueExtent.h"

#include <QList>
#include <QStringList>
#include <QVariant>

#include <algorithm>

namespace {

/// Adds what the value holds to the list, or nothing.
void appendContents(const QVariant &value, QVariantList &list)
{
    switch (value.typeId()) {
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        list.append(value.toList());
        break;
    case QMetaType::QVariantMap:
        list.append(value.toMap().values());
        break;
    case QMetaType::QVariantHash:
        list.append(value.toHash().values());
        break;
    default:
        break;
    }
}

/// The first place behind what ends with the character, or the end of the text.
qsizetype placeBehind(QChar end, QStringView text, qsizetype from)
{
    const qsizetype place = text.indexOf(end, from);
    return place < 0 ? text.size() : place + 1;
}

} // namespace

qsizetype countValues(const QVariant &value)
{
    QVariantList waiting = {value};
    qsizetype count = 0;
    while (!waiting.isEmpty()) {
        appendContents(waiting.takeLast(), waiting);
        ++count;
    }
    return count;
}

qsizetype countShownCharacters(QStringView html)
{
    qsizetype count = 0;
    for (qsizetype at = 0; at < html.size();) {
        if (html[at] == u'<') {
            at = placeBehind(u'>', html, at);
            continue;
        }
        at = html[at] == u'&' ? placeBehind(u';', html, at) : at + 1;
        ++count;
    }
    return count;
}
