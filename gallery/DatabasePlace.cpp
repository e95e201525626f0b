#include "DatabasePlace.h"

#include "TXDataCrypt.h"

#include <QUuid>

namespace {

constexpr int kConnectTimeoutSeconds = 15;

QString decipher(const QString &cipher)
{
    return QString::fromUtf8(TXDataCrypt::decrypt(cipher.toUtf8(), nullptr));
}

/// The last of several values counts: the user's time-out goes before ours.
QString completed(const QString &options)
{
    return QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=%1;").arg(kConnectTimeoutSeconds) + options
        + QStringLiteral(";MYSQL_OPT_RECONNECT=1");
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
