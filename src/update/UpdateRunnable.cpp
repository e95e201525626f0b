#include "UpdateRunnable.h"

#include "ReleaseRecord.h"
#include "TXJSONSerializer.h"
#include "ThisBuild.h"
#include "UpdateQuery.h"
#include "WebExchange.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSettings>
#include <QUrl>

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
    UpdateQuery::Items items{{QStringLiteral("OS"), ThisBuild::kPlatform},
                             {QStringLiteral("ProductType"), QString::number(productType)},
                             {QStringLiteral("Revision"), ThisBuild::kRevision}};
    const QSettings settings;
    if (settings.contains(kStatusSetting)) {
        items.append({QStringLiteral("Status"), settings.value(kStatusSetting).toString()});
    }
    return UpdateQuery::address(QStringLiteral("/checkUpdate"), items);
}
