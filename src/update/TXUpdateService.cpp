#include "TXUpdateService.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

/// Guards the authority, since requests are made on several threads.
Q_GLOBAL_STATIC(QMutex, authorityMutex)
Q_GLOBAL_STATIC(QString, chosenAuthority)

} // namespace

QString TXUpdateService::authority()
{
    const QMutexLocker locker(authorityMutex());
    return chosenAuthority->isEmpty() ? QStringLiteral(TX_UPDATE_AUTHORITY) : *chosenAuthority;
}

void TXUpdateService::setAuthority(const QString &hostAndPort)
{
    const QMutexLocker locker(authorityMutex());
    *chosenAuthority = hostAndPort;
}

QUrl TXUpdateService::url(const QString &path)
{
    return QUrl(QStringLiteral("https://") + authority() + path, QUrl::TolerantMode);
}
