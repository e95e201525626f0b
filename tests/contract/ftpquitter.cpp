#include "FullServer.h"
#include "SilentServer.h"
#include "TXFTP.h"
#include "TXTransferSettings.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThreadPool>
#include <QUrl>

#include <iostream>

// Not a test of its own: quits while a check that would take a minute runs on the global pool,
// whose end the application object waits for.

namespace {

constexpr int kMinuteMilliseconds = 60000;

void check(const QUrl &url)
{
    TXFTP ftp;
    ftp.check(url);
    std::cout << "ended with " << ftp.errorCode() << std::endl;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        return 1;
    }
    const SilentServer silentServer;
    const FullServer fullServer;
    QSemaphore started;
    const QCoreApplication application(argc, argv);
    TXTransferSettings::setConnectTimeout(kMinuteMilliseconds);
    TXTransferSettings::setTotalTimeout(kMinuteMilliseconds);
    const bool isSilent = QByteArray(argv[2]) == "silent";
    const quint16 port = isSilent ? silentServer.port() : fullServer.port();
    const QUrl url(QStringLiteral("%1://mia:s3cret@127.0.0.1:%2").arg(argv[1]).arg(port));

    QThreadPool::globalInstance()->start([url, &started] {
        started.release();
        check(url);
    });

    started.acquire();
    return port != 0 && (!isSilent || silentServer.waitForClient(kMinuteMilliseconds)) ? 0 : 1;
}
