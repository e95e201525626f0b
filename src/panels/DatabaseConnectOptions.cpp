#include "DatabaseConnectOptions.h"

#include <QLatin1String>
#include <QStringList>
#include <QStringView>

namespace {

const QLatin1String kMySqlDriver("QMYSQL");
const QLatin1String kReconnect("MYSQL_OPT_RECONNECT=1");
const QLatin1String kConnectTimeout("MYSQL_OPT_CONNECT_TIMEOUT");
// The connect time-out does not cover what the driver asks for by itself after the log-in.
const QLatin1String kReadTimeout("MYSQL_OPT_READ_TIMEOUT");

/// The number that counts for the driver: the last one, and 0, which stands for no time-out, where
/// that is not a number.
int timeoutIn(const QString &options, QLatin1String name)
{
    int seconds = 0;
    const QList<QStringView> list = QStringView(options).split(u';');
    for (const QStringView option : list) {
        const qsizetype sign = option.indexOf(u'=');
        if (sign >= 0 && option.left(sign).trimmed() == name) {
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
        for (const QLatin1String name : {kConnectTimeout, kReadTimeout}) {
            if (timeoutIn(userOptions, name) <= 0) {
                extra.append(QStringLiteral("%1=%2").arg(name).arg(kTimeoutSeconds));
            }
        }
    }
    return extra.isEmpty() ? userOptions : userOptions + u';' + extra.join(u';');
}
