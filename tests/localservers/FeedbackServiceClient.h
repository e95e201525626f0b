#pragma once

#include "LocalFeedbackService.h"

#include <QByteArray>
#include <QHostAddress>
#include <QTcpSocket>
#include <QTest>

/// What the tests of the feedback service have in common: a client that sends bytes as they are.
class FeedbackServiceClient
{
public:
    static constexpr int kPatienceMilliseconds = 20000;

    FeedbackServiceClient()
    {
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), LocalFeedbackService::kPort);
    }

    /// A body of form data with one part, whose header is given without its name.
    [[nodiscard]] static QByteArray formBody(const QByteArray &disposition,
                                             const QByteArray &content)
    {
        return "--a+b\r\nContent-Disposition: " + disposition + "\r\n\r\n" + content
            + "\r\n--a+b--\r\n";
    }

    /// A request for one answer, after which the connection ends. The head's lines are given with
    /// their ends.
    [[nodiscard]] static QByteArray request(const QByteArray &start, const QByteArray &head,
                                            const QByteArray &body)
    {
        return start + " HTTP/1.1\r\nConnection: close\r\n" + head
            + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }

    /// A note as the form sends it.
    [[nodiscard]] static QByteArray note(const QByteArray &content = "{}")
    {
        return request("POST /feedback", "Content-Type: multipart/form-data; boundary=\"a+b\"\r\n",
                       formBody("form-data; name=\"content\"", content));
    }

    [[nodiscard]] bool send(const QByteArray &bytes)
    {
        return socket.waitForConnected(kPatienceMilliseconds)
            && socket.write(bytes) == bytes.size();
    }

    /// Waits until the service has ended the connection, while events run.
    [[nodiscard]] bool ends()
    {
        return QTest::qWaitFor(
            [this]() { return socket.state() == QAbstractSocket::UnconnectedState; },
            kPatienceMilliseconds);
    }

    /// All that has come, the head included.
    [[nodiscard]] QByteArray answer()
    {
        received += socket.readAll();
        return received;
    }

    /// The first line that has come, without its end.
    [[nodiscard]] QByteArray status() { return answer().left(answer().indexOf("\r\n")); }

    /// What has come behind the head.
    [[nodiscard]] QByteArray body()
    {
        const qsizetype end = answer().indexOf("\r\n\r\n");
        return end < 0 ? QByteArray() : answer().mid(end + 4);
    }

    /// Ends the connection at once.
    void hangUp() { socket.abort(); }

private:
    QTcpSocket socket;
    QByteArray received;
};
