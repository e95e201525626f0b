#include "LocalWebServer.h"

#include <QFileInfo>

namespace {

constexpr qint64 kLargestCertificate = 1 << 20;

/// As the script begins what it refuses.
const QString kRefusal = QStringLiteral("cannot serve: ");

} // namespace

LocalWebServer::LocalWebServer(QObject *parent)
    : LocalServer(QStringLiteral("webserver.py"), parent)
{ }

void LocalWebServer::setUser(const QString &name, const QString &newPassword)
{
    user = name;
    password = newPassword;
}

bool LocalWebServer::tellsOfSettings(const QString &error)
{
    return error.contains(kRefusal);
}

QString LocalWebServer::prepare()
{
    if (certificate.isEmpty()) {
        return {};
    }
    const QFileInfo file(certificate);
    if (!file.exists()) {
        return kRefusal + tr("there is no file %1").arg(certificate);
    }
    // To open a pipe would wait for somebody who writes.
    if (!file.isFile() || file.size() > kLargestCertificate) {
        return kRefusal + tr("%1 is no file with a certificate").arg(certificate);
    }
    return {};
}

QJsonObject LocalWebServer::options() const
{
    const bool isOpen = wantedReach == Reach::AllAddresses;
    return {
        {QStringLiteral("host"), isOpen ? QStringLiteral("0.0.0.0") : QStringLiteral("127.0.0.1")},
        {QStringLiteral("port"), wantedPort},
        {QStringLiteral("path"), encodedPath},
        {QStringLiteral("user"), user},
        {QStringLiteral("password"), password},
        {QStringLiteral("certificate"),
         certificate.isEmpty() ? QString() : QFileInfo(certificate).absoluteFilePath()},
        {QStringLiteral("content"), content}};
}
