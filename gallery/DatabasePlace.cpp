#include "DatabasePlace.h"

#include "TXDataCrypt.h"

#include <QStringList>
#include <QUuid>

namespace {

constexpr int kConnectTimeoutSeconds = 15;
const QString kConnectTimeout = QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT");

QString decipher(const QString &cipher)
{
    return QString::fromUtf8(TXDataCrypt::decrypt(cipher.toUtf8(), nullptr));
}

/// By which the driver would go: of several the last one. 0 when it would wait without end.
int connectTimeoutOf(const QString &options)
{
    int seconds = 0;
    const QStringList parts = options.split(u';');
    for (const QString &part : parts) {
        if (part.section(u'=', 0, 0).trimmed() == kConnectTimeout && part.contains(u'=')) {
            seconds = part.section(u'=', 1).trimmed().toInt();
        }
    }
    return seconds;
}

/// The user's options and what the gallery needs behind them: the last of several values counts.
QString completed(const QString &options)
{
    QString all = options + QStringLiteral(";MYSQL_OPT_RECONNECT=1");
    if (connectTimeoutOf(options) <= 0) {
        all += QStringLiteral(";%1=%2").arg(kConnectTimeout).arg(kConnectTimeoutSeconds);
    }
    return all;
}

} // namespace

DatabasePlace DatabasePlace::inFile(const QString &path)
{
    DatabasePlace place;
    place.driver = QStringLiteral("QSQLITE");
    place.name = path;
    return place;
}

DatabasePlace DatabasePlace::onServer(const QHash<QString, QVariant> &settings)
{
    const QHash<QString, QVariant> parameters =
        settings.value(QStringLiteral("Parameters")).toHash();
    DatabasePlace place;
    place.driver = settings.value(QStringLiteral("Driver")).toString();
    place.name = settings.value(QStringLiteral("Connection")).toString();
    place.host = parameters.value(QStringLiteral("Host")).toString();
    place.port = parameters.value(QStringLiteral("Port")).toInt();
    place.user = parameters.value(QStringLiteral("User")).toString();
    place.password = decipher(parameters.value(QStringLiteral("Password")).toString());
    place.options = completed(parameters.value(QStringLiteral("Options")).toString());
    return place;
}

DatabaseConnection::DatabaseConnection(const DatabasePlace &place)
    : name(QUuid::createUuid().toString())
{
    QSqlDatabase database = QSqlDatabase::addDatabase(place.driver, name);
    database.setDatabaseName(place.name);
    database.setHostName(place.host);
    database.setPort(place.port);
    database.setUserName(place.user);
    database.setPassword(place.password);
    database.setConnectOptions(place.options);
}

DatabaseConnection::~DatabaseConnection()
{
    QSqlDatabase::removeDatabase(name);
}
