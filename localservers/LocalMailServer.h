#pragma once

#include "LocalCertificate.h"
#include "LocalServer.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <memory>

/// A mail as a LocalMailServer got it.
struct ReceivedMail
{
    /// The envelope's sender; empty for the null sender.
    QString sender;
    /// The envelope's receivers, in the order in which they were named.
    QStringList receivers;
    /// Headers and body byte for byte, dots at line starts unescaped.
    QByteArray content;
    /// Whether the connection was enciphered when the mail came.
    bool usedTls = false;
    /// Who had logged in; empty when nobody had.
    QString login;
};

/// An SMTP server that keeps what it gets.
///
/// Without settings it takes every mail from everybody, in clear. Settings count from the next
/// start() on.
class LocalMailServer : public LocalServer
{
    Q_OBJECT

public:
    enum class Security {
        /// No TLS; STARTTLS is not offered.
        Plain,
        /// No command but EHLO, NOOP, STARTTLS and QUIT is taken before STARTTLS.
        StartTls,
        /// TLS from the first byte on.
        ImplicitTls,
        /// The same server as Plain, named for clients that demand STARTTLS.
        StartTlsNotOffered = Plain
    };

    /// What is not answered; all before it is.
    enum class Stage {
        None,
        Greeting,
        Ehlo,
        StartTls,
        Auth,
        MailFrom,
        RcptTo,
        Data,
        /// The final dot after the mail, which is then not kept.
        EndOfData
    };

    explicit LocalMailServer(QObject *parent = nullptr);

    /// How the connection is protected; Plain from the beginning.
    void setSecurity(Security value) { security = value; }

    /// Makes logging in compulsory: without it 530, with any other login or password 535. An empty
    /// login, the default, lets everybody in.
    void setLogin(const QString &login, const QString &password);

    /// A sender whose MAIL FROM is answered with 550; empty, the default, refuses nobody.
    void setRefusedSender(const QString &address) { refusedSender = address; }

    /// A receiver whose RCPT TO is answered with 550; empty, the default, refuses nobody.
    void setRefusedReceiver(const QString &address) { refusedReceiver = address; }

    /// Where the server stops to answer; None from the beginning.
    void setSilentAt(Stage value) { silentAt = value; }

    /// The certificate of the TLS ways; null, the default, stands for one that is made by the first
    /// start() which needs it, for localhost.
    void setCertificate(const std::shared_ptr<const LocalCertificate> &value);

    /// The certificate's file, for clients that are to trust the server. Empty as long as there is
    /// no certificate.
    [[nodiscard]] QString certificateFile() const;

    /// The mails that came since start(), oldest first; kept by stop().
    [[nodiscard]] QList<ReceivedMail> mails();

signals:
    /// A mail has been added to mails().
    void mailReceived();

protected:
    [[nodiscard]] QString prepare() override;
    [[nodiscard]] QJsonObject options() const override;
    void handleEvent(const QJsonObject &event) override;

private:
    Security security = Security::Plain;
    QString requiredLogin;
    QString requiredPassword;
    QString refusedSender;
    QString refusedReceiver;
    Stage silentAt = Stage::None;
    std::shared_ptr<const LocalCertificate> certificate;
    QList<ReceivedMail> receivedMails;
};
