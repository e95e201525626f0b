#include "TestMailText.h"

#include "TXApplicationInformation.h"

#include <QDate>

QString TestMailText::body()
{
    const QString year = QString::number(QDate::currentDate().year());
    if (!QCoreApplication::instance()) {
        return tr("This is a test message sent by Tovra ProofKeeper software.\r\n\r\n"
                  "Copyright %1 Tovra Hue Works\r\nhttps://www.tovra.example")
            .arg(year);
    }
    return tr("This is a test message sent by %1 software.\r\n\r\n"
              "Copyright %2 %3\r\nhttps://www.tovra.example")
        .arg(currentApplicationDisplayName(), year, QCoreApplication::organizationName());
}

QString TestMailText::subject()
{
    if (!QCoreApplication::instance()) {
        return tr("Tovra ProofKeeper test message.");
    }
    return tr("%1 test message.").arg(currentApplicationDisplayName());
}
