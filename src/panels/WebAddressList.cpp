#include "WebAddressList.h"

#include "TXWebInterfaceConfigurationWidget.h"

namespace {

constexpr int kHttpPort = 80;
constexpr int kHttpsPort = 443;
constexpr int kGreatestPort = 65535;

QString urlPath(const QString &typed)
{
    const QChar slash = u'/';
    const QString trimmed = typed.trimmed();
    return trimmed.isEmpty() ? QString(slash) : slash + trimmed + slash;
}

QString noteOn(const QHostAddress &address)
{
    return address == QHostAddress(QHostAddress::LocalHost) ? TXWebInterfaceConfigurationWidget::tr(
               "&nbsp;&nbsp;&nbsp;(to be used only from this computer)")
                                                            : QString();
}

QString line(const QHostAddress &address, const WebAddressList::Service &service)
{
    // An encoded URL may still hold "&", behind which a reader of HTML would look for an entity.
    const QString shown =
        WebAddressList::url(address, service).toString(QUrl::FullyEncoded).toHtmlEscaped();
    // Both places at once: there are percent signs in the URL.
    return QStringLiteral("<a href=\"%1\">%1</a>").arg(shown) + noteOn(address)
        + QStringLiteral("<br/>");
}

} // namespace

QUrl WebAddressList::url(const QHostAddress &address, const Service &service)
{
    QUrl url;
    url.setScheme(service.isSecure ? QStringLiteral("https") : QStringLiteral("http"));
    if (service.port != (service.isSecure ? kHttpsPort : kHttpPort)) {
        url.setPort(service.port);
    }
    url.setHost(address.toString());
    url.setPath(urlPath(service.path), QUrl::DecodedMode);
    return url;
}

QString WebAddressList::html(const QList<QHostAddress> &addresses, const Service &service)
{
    QString lines;
    for (const QHostAddress &address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && service.port <= kGreatestPort) {
            lines += line(address, service);
        }
    }
    return lines;
}
