#include "LocalSftpServer.h"

#include <QFile>
#include <QJsonObject>

namespace {

QString nameForScript(LocalSftpServer::Silence silence)
{
    switch (silence) {
    case LocalSftpServer::Silence::Never:
        break;
    case LocalSftpServer::Silence::AfterGreeting:
        return QStringLiteral("greeting");
    case LocalSftpServer::Silence::AfterUser:
        return QStringLiteral("user");
    }
    return {};
}

} // namespace

LocalSftpServer::LocalSftpServer(QObject *parent)
    : LocalServer(QStringLiteral("sftpserver.py"), parent)
{ }

void LocalSftpServer::setUser(const QString &name, const QString &newPassword)
{
    user = name;
    password = newPassword;
}

QByteArray LocalSftpServer::hostKey() const
{
    QFile file(folder() + QStringLiteral("/hostkey.pub"));
    return isRunning() && file.open(QFile::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

QString LocalSftpServer::homeFolder() const
{
    return isRunning() ? folder() + QStringLiteral("/home") : QString();
}

QJsonObject LocalSftpServer::options() const
{
    return {{QStringLiteral("user"), user},
            {QStringLiteral("password"), password},
            {QStringLiteral("silentAt"), nameForScript(silence)}};
}
