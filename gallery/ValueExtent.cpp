#include "ValueExtent.h"

#include <QList>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace {

/// A value as what it is known to hold. To convert it would copy what it holds.
template<typename T>
const T &contentsOf(const QVariant &value)
{
    return *static_cast<const T *>(value.constData());
}

using Waiting = std::vector<const QVariant *>;

template<typename T>
void appendContents(const T &container, Waiting &waiting)
{
    for (const QVariant &value : container) {
        waiting.push_back(&value);
    }
}

/// Adds what the value holds to those that wait, or nothing. Gives how many there are that need not
/// wait, since they hold nothing.
qsizetype openValue(const QVariant &value, Waiting &waiting)
{
    switch (value.typeId()) {
    case QMetaType::QVariantList:
        appendContents(contentsOf<QVariantList>(value), waiting);
        return 0;
    case QMetaType::QVariantMap:
        appendContents(contentsOf<QVariantMap>(value), waiting);
        return 0;
    case QMetaType::QVariantHash:
        appendContents(contentsOf<QVariantHash>(value), waiting);
        return 0;
    case QMetaType::QStringList:
        return contentsOf<QStringList>(value).size();
    default:
        return 0;
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
    Waiting waiting = {&value};
    qsizetype count = 0;
    while (!waiting.empty()) {
        const QVariant &next = *waiting.back();
        waiting.pop_back();
        count += 1 + openValue(next, waiting);
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
