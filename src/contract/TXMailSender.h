#pragma once

#include "TXCoreCommonExport.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class MailSending;
class QThread;

/// Sends one mail of plain text by SMTP. Make it, connect to its two signals, call sendMessage(),
/// and forget it: the sender deletes itself after it has told the outcome. One that is never told
/// to send goes with the application object when it was made on the GUI thread; otherwise its maker
/// deletes it.
///
/// The mail is sent on a thread of its own. Deleting the sender before the outcome cancels: the
/// connection is closed at once, no signal comes, and whether a mail that was already on its way
/// arrives is open. The time-outs and the trusted certificate authorities are those of
/// TXTransferSettings.
///
/// Thread: use it on the thread that made it, which runs an event loop.
class TXCORECOMMON_EXPORT TXMailSender : public QObject
{
    Q_OBJECT

public:
    /// Makes a sender; never null. Nothing is checked yet: what is wrong with the arguments comes
    /// by mailSendingFailed().
    ///
    /// `settings` are those of the mail panel. Missing keys read as empty.
    /// - "MailServerAddress": host name or IP address of the server; compulsory.
    /// - "MailServerPort": 1 to 65535; anything below is 25, anything above a failure.
    /// - "MailWithEncryption": "NONE" or missing for clear text, "TLS" for STARTTLS, without which
    ///   nothing is sent, "SSL" for TLS from the first byte on; anything else is a failure.
    /// - "MailServerLogin": user name; empty means that there is no login. It is not used with a
    ///   server that offers no login.
    /// - "MailServerPassword": enciphered by TXDataCrypt; looked at only with a login. Empty is the
    ///   empty password; a text that cannot be deciphered is a failure.
    /// - "MailSender": address of the sender; compulsory.
    /// - "MailMainDestination", "MailCopyDestination": addresses of the receivers and of those who
    ///   get a copy, several with commas or semicolons in between. One receiver is compulsory.
    ///
    /// `receivers` and `copyReceivers`, each unless empty, take the place of the last two settings;
    /// an entry may hold several addresses too. An address may have a name: "Mia
    /// <mia@example.org>".
    ///
    /// Body and subject may hold any characters, and lines may end in any way. Control characters
    /// in the subject are sent as blanks.
    static TXMailSender *createTXMailSender(const QHash<QString, QVariant> &settings,
                                            const QString &body, const QString &subject,
                                            const QList<QString> &receivers,
                                            const QList<QString> &copyReceivers);

    /// Cancels when the mail is being sent.
    ~TXMailSender() override;

    /// Starts sending and returns at once. Ignored when it was called before.
    void sendMessage();

signals:
    /// The server has taken the mail for all receivers. Emitted at most once, later than
    /// sendMessage() and never from within it.
    void mailSendingSucceed();
    /// The mail was not sent, to nobody, also when the server refused only one of several
    /// receivers. The reason is a translated text of one to three lines for the user: what happened
    /// and, where there is one, the last message of the server; never the password. Emitted at most
    /// once and instead of mailSendingSucceed(), later than sendMessage() and never from within it.
    void mailSendingFailed(QString reason);

private slots:
    void tellOutcome();

private:
    TXMailSender(std::unique_ptr<MailSending> sending, QObject *parent);

    const std::unique_ptr<MailSending> sending;
    /// Null before sendMessage().
    std::unique_ptr<QThread> worker;
    /// Written by the worker, read when it has ended.
    QString reason;
};
