#include "Samples.h"

#include <TXMailSender.h>

//! [send]
TXMailSender *sendReport(const QHash<QString, QVariant> &mailSettings, const QString &summary)
{
    TXMailSender *sender =
        TXMailSender::createTXMailSender(mailSettings, summary, "Chart comparison", {}, {});
    sender->sendMessage();
    return sender;
}
//! [send]
