#pragma once

#include "MailAddress.h"
#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

/// A mail of plain text, and its form on the wire. Any thread.
struct TXCORECOMMON_PRIVATE_EXPORT MailMessage
{
    MailAddress sender;
    /// At least one.
    QList<MailAddress> receivers;
    /// May be empty.
    QList<MailAddress> copyReceivers;
    /// Any text; control characters in it become blanks.
    QString subject;
    /// Any text; lines may end in any of the three ways.
    QString body;

    /// The bare addresses of all receivers, each once, in order.
    [[nodiscard]] QList<QByteArray> envelopeReceivers() const;

    /// Header and body with CRLF at every line end, lines of at most 998 characters, in ASCII. What
    /// is not ASCII is encoded, and a body with longer lines too. Has another Message-ID at each
    /// call. Lines that start with a dot are as they are. Costs time linear in the texts.
    [[nodiscard]] QByteArray content(const QDateTime &date) const;
};
