#include "LocalFtpServer.h"

#include <QJsonObject>

namespace {

QString nameForScript(LocalFtpServer::Silence silence)
{
    switch (silence) {
    case LocalFtpServer::Silence::Never:
        break;
    case LocalFtpServer::Silence::AfterGreeting:
        return QStringLiteral("greeting");
    case LocalFtpServer::Silence::AfterUser:
        return QStringLiteral("user");
    }
    return {};
}

} // namespace

LocalFtpServer::LocalFtpServer(QObject *parent)
    : LocalServer(QStringLiteral("ftpserver.py"), parent)
{ }

void LocalFtpServer::setUser(const QString &name, const QString &newPassword)
{
    user = name;
    password = newPassword;
}

void LocalFtpServer::setCertificate(const std::shared_ptr<const LocalCertificate> &value)
{
    certificate = value;
}

QString LocalFtpServer::homeFolder() const
{
    return isRunning() ? folder() + QStringLiteral("/home") : QString();
}

QString LocalFtpServer::prepare()
{
    return certificate ? certificate->error() : QString();
}

QJsonObject LocalFtpServer::options() const
{
    return {
        {QStringLiteral("user"), user},
        {QStringLiteral("password"), password},
        {QStringLiteral("silentAt"), nameForScript(silence)},
        {QStringLiteral("certificate"), certificate ? certificate->certificateFile() : QString()},
        {QStringLiteral("key"), certificate ? certificate->keyFile() : QString()}};
}
