#include "DatabaseConnectOptions.h"

#include <QLatin1String>
#include <QStringList>
#include <QStringView>

namespace {

const QLatin1String kMySqlDriver("QMYSQL");
const QLatin1String kReconnect("MYSQL_OPT_RECONNECT=1");
const QLatin1String kConnectTimeout("MYSQL_OPT_CONNECT_TIMEOUT");

/// The number that counts for the driver: the last one, and 0, which stands for no time-out, where
/// that is not a number.
int connectTimeoutIn(const QString &options)
{
    int seconds = 0;
    const QList<QStringView> list = QStringView(options).split(u';');
    for (const QStringView option : list) {
        const qsizetype sign = option.indexOf(u'=');
        if (sign >= 0 && option.left(sign).trimmed() == kConnectTimeout) {
            seconds = option.mid(sign + 1).trimmed().toInt();
        }
    }
    return seconds;
}

} // namespace

QString DatabaseConnectOptions::forTest(const QString &driver, const QString &userOptions)
{
    QStringList extra;
    if (driver == kMySqlDriver) {
        extra.append(kReconnect);
        if (connectTimeoutIn(userOptions) <= 0) {
            extra.append(QStringLiteral("%1=%2").arg(kConnectTimeout).arg(kConnectTimeoutSeconds));
        }
    }
    return extra.isEmpty() ? userOptions : userOptions + u';' + extra.join(u';');
}
