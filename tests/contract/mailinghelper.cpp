// A program that has a mail and another transfer under way, to a server that says nothing, when
// its input ends, and then ends itself as programs do.

#include "CurlTransfer.h"
#include "MailDriver.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>
#include <optional>
#include <thread>

namespace {

void waitForEndOfInput()
{
    while (std::getchar() != EOF) { }
}

} // namespace

int main(int argc, char **argv)
{
    auto application = std::make_unique<QCoreApplication>(argc, argv);
    const int port = application->arguments().value(1).toInt();
    const QByteArray url = "smtp://localhost:" + QByteArray::number(port);

    TXMailSender::createTXMailSender(mailSettings(quint16(port)), "body", "subject", {}, {})
        ->sendMessage();
    // Nobody cancels this one; the application object's end has to do.
    CurlTransfer transfer;
    curl_easy_setopt(transfer.handle(), CURLOPT_URL, url.constData());
    std::thread worker([&transfer] { transfer.perform(); });

    waitForEndOfInput();
    application.reset();
    worker.join();
    if (transfer.code() == CURLE_ABORTED_BY_CALLBACK) {
        std::puts("the transfer was ended");
    }
    return 0;
}
