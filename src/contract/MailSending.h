#pragma once

#include "CurlTransfer.h"
#include "TXCoreCommonExport.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

struct MailMessage;
struct MailServer;

/// The work of sending one mail, from the settings to the server's last answer. Blocks the thread
/// that it runs on.
///
/// Thread: cancel() any, the rest one at a time.
class TXCORECOMMON_PRIVATE_EXPORT MailSending
{
public:
    /// Does nothing yet. The arguments are those of TXMailSender::createTXMailSender().
    MailSending(const QHash<QString, QVariant> &settings, const QString &body,
                const QString &subject, const QList<QString> &receivers,
                const QList<QString> &copyReceivers);

    /// Sends the mail; once. Empty when the server has taken it for all receivers, otherwise the
    /// reason in translated words.
    [[nodiscard]] QString run();

    /// Ends run() at once.
    void cancel() { transfer.cancel(); }

private:
    std::optional<MailMessage> message(QString *reason) const;
    QString send(const MailServer &server, const MailMessage &message);
    void setUpServer(const MailServer &server);
    QString sentence() const;

    const QHash<QString, QVariant> settings;
    const QString body;
    const QString subject;
    const QList<QString> receivers;
    const QList<QString> copyReceivers;
    CurlTransfer transfer;
};
