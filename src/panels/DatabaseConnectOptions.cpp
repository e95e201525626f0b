#include "DatabaseConnectOptions.h"

#include <QStringList>

#include <algorithm>

namespace {

const QString kMySqlDriver = QStringLiteral("QMYSQL");
const QString kReconnect = QStringLiteral("MYSQL_OPT_RECONNECT=1");
const QString kConnectTimeout = QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT");

/// Whether the options hold a time-out that ends; 0 stands for none with the driver, too.
bool setsConnectTimeout(const QString &options)
{
    const QStringList list = options.split(u';');
    return std::any_of(list.begin(), list.end(), [](const QString &option) {
        return option.section(u'=', 0, 0).trimmed() == kConnectTimeout
            && option.section(u'=', 1).trimmed().toInt() > 0;
    });
}

} // namespace

QString DatabaseConnectOptions::forTest(const QString &driver, const QString &userOptions)
{
    QStringList extra;
    if (driver == kMySqlDriver) {
        extra.append(kReconnect);
        if (!setsConnectTimeout(userOptions)) {
            extra.append(QStringLiteral("%1=%2").arg(kConnectTimeout).arg(kConnectTimeoutSeconds));
        }
    }
    return extra.isEmpty() ? userOptions : userOptions + u';' + extra.join(u';');
}
