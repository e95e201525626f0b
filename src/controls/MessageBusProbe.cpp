#include "MessageBusProbe.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QHash>
#include <QLocalSocket>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace {

constexpr int kMostSilenceMilliseconds = 30000;
constexpr qint64 kMostBytes = 4096;

const QString kTransport = QStringLiteral("unix:");

/// The decoded value of a key in an address, such as "unix:path=/run/bus,guid=1234".
QString valueOf(const QString &key, const QString &address)
{
    const QStringList pairs = address.mid(kTransport.size()).split(u',');
    for (const QString &pair : pairs) {
        if (pair.startsWith(key + u'=')) {
            return QUrl::fromPercentEncoding(pair.mid(key.size() + 1).toUtf8());
        }
    }
    return {};
}

/// Connects to the socket of the address, and stays unconnected when it has none.
void connectTo(const QString &address, QLocalSocket *socket)
{
    if (!address.startsWith(kTransport)) {
        return;
    }
    const QString path = valueOf(QStringLiteral("path"), address);
    const QString name = valueOf(QStringLiteral("abstract"), address);
    if (!path.isEmpty()) {
        socket->connectToServer(QDir().absoluteFilePath(path));
    } else if (!name.isEmpty()) {
        socket->setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        socket->connectToServer(name);
    }
}

/// Asks the bus which ways to log in it knows, as a client may that has no preference.
std::unique_ptr<QLocalSocket> askedSocket(const QString &address, const QDeadlineTimer &deadline)
{
    auto socket = std::make_unique<QLocalSocket>();
    socket->setReadBufferSize(kMostBytes);
    connectTo(address, socket.get());
    if (socket->waitForConnected(static_cast<int>(deadline.remainingTime()))) {
        socket->write("\0AUTH\r\n", 7);
        socket->flush();
    }
    return socket;
}

/// Whether the bus neither answers until the deadline nor hangs up. Takes what has come even when
/// there is no time left.
bool isSilent(QLocalSocket *socket, const QDeadlineTimer &deadline)
{
    if (socket == nullptr) {
        return false;
    }
    bool comesMore = socket->state() == QLocalSocket::ConnectedState;
    while (comesMore && !socket->canReadLine()) {
        comesMore = socket->waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    return socket->state() == QLocalSocket::ConnectedState && !socket->canReadLine();
}

} // namespace

bool MessageBusProbe::isAnswering(const QString &address, const QDeadlineTimer &deadline)
{
    static QHash<QString, QPointer<QLocalSocket>> silentSockets;
    QPointer<QLocalSocket> &silent = silentSockets[address];
    if (isSilent(silent, QDeadlineTimer(0))) {
        return false;
    }
    // An answer that came late tells that the bus was alive then, so it is asked again.
    delete silent;
    std::unique_ptr<QLocalSocket> socket = askedSocket(address, deadline);
    if (!isSilent(socket.get(), deadline)) {
        return socket->canReadLine();
    }
    silent = socket.release();
    silent->setParent(QCoreApplication::instance());
    QTimer::singleShot(kMostSilenceMilliseconds, silent, SLOT(deleteLater()));
    return false;
}
