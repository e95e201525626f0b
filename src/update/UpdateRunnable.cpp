#include "UpdateRunnable.h"

#include "ReleaseRecord.h"
#include "TXJSONSerializer.h"
#include "TXUpdateService.h"
#include "ThisBuild.h"
#include "WebExchange.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSettings>
#include <QUrl>
#include <QUrlQuery>

namespace {

const QString kStatusSetting = QStringLiteral("UpdateStatus");

/// The release record in a successful answer.
QVariantHash recordIn(const QByteArray &body)
{
    QVariantHash record = TXJSONSerializer::deserialize(body).toHash();
    if (record.isEmpty()) {
        record.insert(ReleaseRecord::kEmptyKey, QStringLiteral("nodata"));
    }
    return record;
}

} // namespace

UpdateRunnable::UpdateRunnable(int productTypeNumber)
    : productType(productTypeNumber)
{
    setAutoDelete(true);
}

void UpdateRunnable::run()
{
    const QNetworkRequest request(checkUrl(productType));
    const WebAnswer answer =
        WebExchange::run([&](QNetworkAccessManager &manager) { return manager.get(request); });
    const QVariantHash record = answer.isSuccess ? recordIn(answer.body) : QVariantHash();
    emit updateReceived(record, record);
}

QUrl UpdateRunnable::checkUrl(int productType)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("OS"), ThisBuild::kPlatform);
    query.addQueryItem(QStringLiteral("ProductType"), QString::number(productType));
    query.addQueryItem(QStringLiteral("Revision"), ThisBuild::kRevision);
    if (QSettings().contains(kStatusSetting)) {
        query.addQueryItem(QStringLiteral("Status"), QSettings().value(kStatusSetting).toString());
    }
    QUrl url = TXUpdateService::url(QStringLiteral("/checkUpdate"));
    url.setQuery(query);
    return url;
}
