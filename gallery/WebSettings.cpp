#include "WebSettings.h"

#include "TXDataCrypt.h"

WebSettings WebSettings::from(const QHash<QString, QVariant> &settings)
{
    const QHash<QString, QVariant> user =
        settings.value(QStringLiteral("Users")).toList().value(0).toHash();
    const QByteArray cipher = user.value(QStringLiteral("Password")).toString().toUtf8();
    WebSettings read;
    read.isEnabled = settings.value(QStringLiteral("Enabled")).toBool();
    read.isSecure = settings.value(QStringLiteral("Secure")).toBool();
    read.port = settings.value(QStringLiteral("Port")).toInt();
    read.path = settings.value(QStringLiteral("Path")).toString();
    read.certificate = settings.value(QStringLiteral("Certificate")).toString();
    read.user = user.value(QStringLiteral("Username")).toString();
    read.password = QString::fromUtf8(TXDataCrypt::decrypt(cipher, nullptr));
    read.options = settings.value(QStringLiteral("ExtendedOptions")).toString();
    return read;
}

QUrl WebSettings::url() const
{
    const QString trimmed = path.trimmed();
    QUrl url;
    url.setScheme(isSecure ? QStringLiteral("https") : QStringLiteral("http"));
    url.setHost(QStringLiteral("127.0.0.1"));
    url.setPort(port);
    url.setPath(trimmed.isEmpty() ? QStringLiteral("/") : u'/' + trimmed + u'/', QUrl::DecodedMode);
    return url;
}
