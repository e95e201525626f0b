#include "TXUpdateService.h"

#include <QMutex>
#include <QMutexLocker>

#include <algorithm>

namespace {

/// What the host application has chosen; guarded, since requests are made on several threads.
struct ChosenAuthority
{
    QMutex mutex;
    QString text;
};

Q_GLOBAL_STATIC(ChosenAuthority, chosen)

/// Whether the character ends an authority, or makes a part of it something else than host and
/// port.
bool isForeign(QChar character)
{
    return QStringView(u"/\\?#@").contains(character);
}

bool isHostAndPort(const QString &text)
{
    const QUrl url(QStringLiteral("https://") + text, QUrl::TolerantMode);
    return url.isValid() && !url.host().isEmpty()
        && std::none_of(text.cbegin(), text.cend(), isForeign);
}

} // namespace

QString TXUpdateService::authority()
{
    if (!chosen.isDestroyed()) {
        const QMutexLocker locker(&chosen->mutex);
        if (!chosen->text.isEmpty()) {
            return chosen->text;
        }
    }
    return QStringLiteral(TX_UPDATE_AUTHORITY);
}

void TXUpdateService::setAuthority(const QString &hostAndPort)
{
    if (!chosen.isDestroyed()) {
        const QMutexLocker locker(&chosen->mutex);
        chosen->text = hostAndPort.trimmed();
    }
}

QUrl TXUpdateService::url(const QString &path)
{
    const QString text = authority();
    // QUrl drops a port that it does not understand, and the request would go to another service.
    const QString known = isHostAndPort(text) ? text : QString();
    return {QStringLiteral("https://") + known + path, QUrl::TolerantMode};
}
