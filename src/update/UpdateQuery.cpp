#include "UpdateQuery.h"

#include "TXUpdateService.h"

#include <QUrlQuery>

namespace {

/// What QUrlQuery has to be given for a text to arrive as it is. QUrlQuery takes a percent sign for
/// the beginning of an encoded character, and services take a plus sign for a blank.
QString encoded(QString text)
{
    text.replace(u'%', QLatin1String("%25"));
    text.replace(u'+', QLatin1String("%2B"));
    // A null value would lose its equals sign.
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace

QUrl UpdateQuery::address(const QString &path, const Items &items)
{
    QUrlQuery query;
    for (const auto &[name, value] : items) {
        query.addQueryItem(encoded(name), encoded(value));
    }
    QUrl url = TXUpdateService::url(path);
    url.setQuery(query);
    return url;
}
