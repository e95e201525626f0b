#include "StoredPassword.h"

#include <QCryptographicHash>

namespace {

QString digestOf(const QString &password)
{
    const QByteArray digest = QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Md5);
    return QString::fromLatin1(digest.toHex());
}

} // namespace

bool StoredPassword::matches(const QString &typed) const
{
    return isSet() && text == (useHash ? digestOf(typed) : typed);
}

void StoredPassword::set(const QString &typed)
{
    const bool isDigestWanted = useHash && !typed.isEmpty();
    text = isDigestWanted ? digestOf(typed) : typed;
}

void StoredPassword::setUseHash(bool isHashWanted)
{
    if (isHashWanted == useHash) {
        return;
    }
    useHash = isHashWanted;
    const bool isToDigest = useHash && isSet();
    text = isToDigest ? digestOf(text) : QString();
}
