#include "ReleaseRecord.h"

#include "TXUpdateService.h"
#include "ThisBuild.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStandardPaths>
#include <QUrlQuery>

namespace {

/// The status word of a release that needs none in its title.
const QLatin1String kFinalStatus("Finale");

QString text(const QVariantHash &record, QLatin1String key)
{
    return record.value(key).toString();
}

} // namespace

QVariantHash ReleaseRecord::completed(const QVariantHash &record, int productType)
{
    if (record.contains(kEmptyKey)) {
        return {};
    }
    QVariantHash release = record;
    release.remove(kUrlKey);
    release.remove(kPathKey);
    const QString name = fileName(release);
    if (name.isEmpty()) {
        return release;
    }
    const QUrl url = downloadUrl(release, productType, QDateTime::currentDateTimeUtc());
    release.insert(kUrlKey, url.toString(QUrl::FullyEncoded));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    if (!folder.isEmpty()) {
        release.insert(kPathKey, QString(folder + u'/' + name));
    }
    return release;
}

QUrl ReleaseRecord::downloadUrl(const QVariantHash &record, int productType, const QDateTime &now)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("CurrentRevision"), ThisBuild::kRevision);
    query.addQueryItem(QStringLiteral("CurrentOS"), ThisBuild::kPlatform);
    query.addQueryItem(QStringLiteral("CurrentProductType"), QString::number(productType));
    query.addQueryItem(QStringLiteral("ReleaseId"), text(record, kReleaseIdKey));
    query.addQueryItem(QStringLiteral("Date"), now.toString(Qt::ISODate));
    QUrl url = TXUpdateService::url(QStringLiteral("/download"));
    url.setQuery(query);
    return url;
}

QString ReleaseRecord::fileName(const QVariantHash &record)
{
    QString path = text(record, kFilenameKey);
    path.replace(u'\\', u'/');
    const QString name = path.section(u'/', -1);
    const bool isPlace = name == QLatin1String(".") || name == QLatin1String("..");
    return isPlace ? QString() : name;
}

int ReleaseRecord::revision(const QVariantHash &record)
{
    return record.value(kRevisionKey).toInt();
}

qint64 ReleaseRecord::fileSize(const QVariantHash &record)
{
    return record.value(kFilesizeKey, 0).toLongLong();
}

QString ReleaseRecord::title(const QVariantHash &record)
{
    QString title =
        QStringLiteral("%1 %2").arg(text(record, kProductNameKey), text(record, kVersionKey));
    const QString status = text(record, kStatusKey);
    if (!status.isEmpty() && status != kFinalStatus) {
        title += u' ' + status;
    }
    const QString revision = text(record, kRevisionKey);
    if (!revision.isEmpty()) {
        title += QStringLiteral(" (rev %1)").arg(revision);
    }
    return title;
}

bool ReleaseRecord::isNewer(const QVariantHash &record)
{
    return revision(record) > ThisBuild::revision();
}
