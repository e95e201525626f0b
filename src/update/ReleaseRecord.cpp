#include "ReleaseRecord.h"

#include "InstallerName.h"
#include "ThisBuild.h"
#include "UpdateQuery.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QMetaType>
#include <QStandardPaths>
#include <QVariant>

#include <limits>

namespace {

/// The status word of a release that needs none in its title.
const QLatin1String kFinalStatus("Finale");

QString text(const QVariantHash &record, QLatin1String key)
{
    return record.value(key).toString();
}

/// Whether a value is a number beyond the range of qint64, where QVariant's own conversion wraps
/// around or is undefined.
bool isBeyondRange(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float) {
        const double number = value.toDouble();
        return !(number >= -0x1p63 && number < 0x1p63);
    }
    return value.typeId() == QMetaType::ULongLong
        && value.toULongLong() > quint64(std::numeric_limits<qint64>::max());
}

qint64 number(const QVariantHash &record, QLatin1String key)
{
    const QVariant value = record.value(key);
    return isBeyondRange(value) ? 0 : value.toLongLong();
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
    return UpdateQuery::address(
        QStringLiteral("/download"),
        {{QStringLiteral("CurrentRevision"), ThisBuild::kRevision},
         {QStringLiteral("CurrentOS"), ThisBuild::kPlatform},
         {QStringLiteral("CurrentProductType"), QString::number(productType)},
         {QStringLiteral("ReleaseId"), text(record, kReleaseIdKey)},
         {QStringLiteral("Date"), now.toUTC().toString(Qt::ISODate)}});
}

QString ReleaseRecord::fileName(const QVariantHash &record)
{
    return InstallerName::in(text(record, kFilenameKey));
}

int ReleaseRecord::revision(const QVariantHash &record)
{
    using Range = std::numeric_limits<int>;
    const qint64 revision = number(record, kRevisionKey);
    return revision < Range::min() || revision > Range::max() ? 0 : int(revision);
}

qint64 ReleaseRecord::fileSize(const QVariantHash &record)
{
    return number(record, kFilesizeKey);
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
        title +=
            u' ' + QCoreApplication::translate("TXCheckForUpdateWidget", "(rev %1)").arg(revision);
    }
    return title;
}

bool ReleaseRecord::isNewer(const QVariantHash &record)
{
    return revision(record) > ThisBuild::revision();
}
