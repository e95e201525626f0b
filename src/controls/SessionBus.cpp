#include "SessionBus.h"

#include "MessageBusProbe.h"

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace {

constexpr int kProbeMilliseconds = 1000;

const QString kConnection = QStringLiteral("TXGUICommon session bus ");

QStringList addresses()
{
    const QString listed = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!listed.isEmpty()) {
        return listed.split(u';', Qt::SkipEmptyParts);
    }
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    if (folder.isEmpty()) {
        return {};
    }
    // All other letters must be encoded in an address, that one too.
    const QByteArray encoded = (folder + "/bus").toPercentEncoding("/", "~");
    return {QStringLiteral("unix:path=") + QString::fromLatin1(encoded)};
}

/// Opens it, again when the bus has closed it.
QDBusConnection connectionTo(const QString &address)
{
    const QString name = kConnection + address;
    if (!QDBusConnection(name).isConnected()) {
        QDBusConnection::disconnectFromBus(name);
    }
    return QDBusConnection::connectToBus(address, name);
}

} // namespace

QDBusConnection SessionBus::connection()
{
    const QDeadlineTimer deadline(kProbeMilliseconds);
    for (const QString &address : addresses()) {
        if (MessageBusProbe::isAnswering(address, deadline)) {
            return connectionTo(address);
        }
    }
    return QDBusConnection(QString());
}
