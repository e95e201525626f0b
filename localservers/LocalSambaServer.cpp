#include "LocalSambaServer.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <csignal>

LocalSambaServer::LocalSambaServer(QObject *parent)
    : LocalServer(QStringLiteral("sambaserver.py"), parent)
{ }

void LocalSambaServer::setUser(const QString &name, const QString &newPassword)
{
    user = name;
    password = newPassword;
}

void LocalSambaServer::setShares(const QStringList &names)
{
    shares = names;
}

void LocalSambaServer::setWantedPort(quint16 port)
{
    wantedPort = port;
}

QString LocalSambaServer::shareFolder(const QString &share) const
{
    const qsizetype at = shares.indexOf(share);
    return isRunning() && at >= 0 ? QStringLiteral("%1/share%2").arg(folder()).arg(at) : QString();
}

void LocalSambaServer::hold()
{
    signalServer(SIGSTOP);
}

void LocalSambaServer::goOn()
{
    signalServer(SIGCONT);
}

QJsonObject LocalSambaServer::options() const
{
    return {{QStringLiteral("user"), user},
            {QStringLiteral("password"), password},
            {QStringLiteral("shares"), QJsonArray::fromStringList(shares)},
            {QStringLiteral("port"), wantedPort}};
}

void LocalSambaServer::signalServer(int signal) const
{
    QFile file(folder() + QStringLiteral("/group.pid"));
    const bool isThere = isRunning() && file.open(QFile::ReadOnly);
    const int group = isThere ? file.readAll().trimmed().toInt() : 0;
    if (group > 1) {
        ::kill(-group, signal);
    }
}
