#pragma once

#include "TXDataCrypt.h"
#include "TXMailSender.h"

#include <QHash>
#include <QPointer>
#include <QSignalSpy>
#include <QVariant>

/// What came of a mail.
struct MailOutcome
{
    /// How often the sender told success or failure.
    int tellings = 0;
    bool sent = false;
    QString reason;
};

/// The password as settings hold it.
inline QString enciphered(const QByteArray &password)
{
    return QString::fromLatin1(TXDataCrypt::encrypt(password, nullptr));
}

/// Settings of a mail that anybody would take, for a server on this machine.
inline QHash<QString, QVariant> mailSettings(quint16 port, const QString &encryption = "NONE")
{
    return {{"MailServerAddress", "localhost"},
            {"MailServerPort", int(port)},
            {"MailWithEncryption", encryption},
            {"MailSender", "mia@example.org"},
            {"MailMainDestination", "bob@example.org"}};
}

inline QHash<QString, QVariant> withLogin(QHash<QString, QVariant> settings, const QString &login,
                                          const QByteArray &password)
{
    settings["MailServerLogin"] = login;
    settings["MailServerPassword"] = enciphered(password);
    return settings;
}

/// Sends and waits until the sender is gone.
inline MailOutcome sendMail(const QHash<QString, QVariant> &settings,
                            const QString &body = "Hello.\n", const QString &subject = "Hello",
                            const QList<QString> &receivers = {},
                            const QList<QString> &copyReceivers = {})
{
    const QPointer<TXMailSender> sender =
        TXMailSender::createTXMailSender(settings, body, subject, receivers, copyReceivers);
    const QSignalSpy succeeded(sender, SIGNAL(mailSendingSucceed()));
    const QSignalSpy failed(sender, SIGNAL(mailSendingFailed(QString)));
    QSignalSpy gone(sender, SIGNAL(destroyed()));
    sender->sendMessage();
    gone.wait(60000);
    return {int(succeeded.count() + failed.count()), !succeeded.isEmpty(),
            failed.isEmpty() ? QString() : failed.first().first().toString()};
}
