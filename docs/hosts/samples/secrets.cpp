#include "Samples.h"

#include <TXDataCrypt.h>

#include <QSettings>

//! [secret]
void storeToken(const QString &token)
{
    const QByteArray secret = TXDataCrypt::encrypt(token.toUtf8(), nullptr);
    QSettings().setValue("Token", QString::fromLatin1(secret));
}

QString storedToken()
{
    const QByteArray secret = QSettings().value("Token").toString().toUtf8();
    return QString::fromUtf8(TXDataCrypt::decrypt(secret, nullptr));
}
//! [secret]
