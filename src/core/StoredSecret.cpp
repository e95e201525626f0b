#include "StoredSecret.h"

#include "TXDataCrypt.h"

QString StoredSecret::encipher(const QByteArray &secret)
{
    return QString::fromLatin1(TXDataCrypt::encrypt(secret, nullptr));
}

QByteArray StoredSecret::decipher(const QString &text)
{
    return TXDataCrypt::decrypt(text.toUtf8(), nullptr);
}
