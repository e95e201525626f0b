#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>

/// A mail server that answers each command as it is told, also with what no real server would. It
/// runs in the event loop of the test.
///
/// The dialogue is that of a server which takes everything; `changes` replaces the answers to
/// single commands ("EHLO", "login" for what follows AUTH, "." for the end of the mail, "" for the
/// greeting). The answer kSilence stands
/// for none, kHangUp for closing the connection.
class ScriptedMailServer
{
public:
    static constexpr char kSilence[] = "";
    static constexpr char kHangUp[] = "hang up";

    explicit ScriptedMailServer(const QHash<QByteArray, QByteArray> &changes = {})
    {
        for (auto change = changes.begin(); change != changes.end(); ++change) {
            answers[change.key()] = change.value();
        }
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this] { greet(); });
        listens = server.listen(QHostAddress::LocalHost);
    }

    [[nodiscard]] quint16 port() const { return listens ? server.serverPort() : quint16(0); }

    /// The command lines that came, without their line ends.
    [[nodiscard]] QByteArrayList commands() const { return received; }

    [[nodiscard]] bool hasGot(const QByteArray &command) const
    {
        return received.contains(command);
    }

    /// Whether a client waits for an answer that it will not get.
    [[nodiscard]] bool isSilent() const { return silent; }

    /// How many clients are connected.
    [[nodiscard]] int clients() const { return open; }

private:
    void greet()
    {
        QTcpSocket *socket = server.nextPendingConnection();
        ++open;
        QObject::connect(socket, &QTcpSocket::disconnected, &server, [this] { --open; });
        QObject::connect(socket, &QTcpSocket::readyRead, &server, [this, socket] { read(socket); });
        answer(socket, "");
    }

    void read(QTcpSocket *socket)
    {
        while (socket->canReadLine()) {
            const QByteArray line = socket->readLine().chopped(2);
            if (!isInMail || line == ".") {
                received.append(line);
                isInMail = false;
                answer(socket, isInLogin ? "login" : line.split(' ').first());
            }
        }
    }

    void answer(QTcpSocket *socket, const QByteArray &command)
    {
        const QByteArray text = answers.value(command, "250 ok");
        if (text == kHangUp) {
            socket->close();
        } else if (text == kSilence) {
            silent = true;
        } else {
            isInMail = text.startsWith("354");
            isInLogin = text.startsWith("334");
            socket->write(text + "\r\n");
        }
    }

    QTcpServer server;
    bool listens = false;
    bool silent = false;
    bool isInMail = false;
    bool isInLogin = false;
    int open = 0;
    QByteArrayList received;
    QHash<QByteArray, QByteArray> answers = {
        {"", "220 ready"},        {"EHLO", "250-hello\r\n250 AUTH PLAIN"},
        {"AUTH", "334 "},         {"login", "235 welcome"},
        {"DATA", "354 go ahead"}, {".", "250 taken"},
        {"QUIT", "221 bye"},
    };
};
