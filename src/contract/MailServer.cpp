#include "MailServer.h"

#include "MailHeaderText.h"
#include "TXDataCrypt.h"
#include "TXError.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QUrl>

namespace {

constexpr int kDefaultPort = 25;
constexpr int kHighestPort = 65535;
constexpr qsizetype kLongestHostName = 253;
constexpr qsizetype kShownCharacters = 80;

QString words(const char *sentence)
{
    return QCoreApplication::translate("QObject", sentence);
}

QString words(const char *sentence, const QString &value)
{
    return words(sentence).arg(withoutControls(value.left(kShownCharacters)));
}

/// In the form for a URL; empty when the text is neither name nor address. Nothing that means
/// something else in a URL passes.
QByteArray hostFromText(const QString &text)
{
    static const QRegularExpression ipv6(
        QStringLiteral(R"(\A\[?([0-9A-Fa-f]*:[0-9A-Fa-f]*:[0-9A-Fa-f:.]*)\]?\z)"));
    static const QRegularExpression name(
        QStringLiteral(R"(\A[A-Za-z0-9_-]+(?:[.][A-Za-z0-9_-]+)*[.]?\z)"));
    if (text.size() > kLongestHostName) {
        return {};
    }
    const QRegularExpressionMatch address = ipv6.match(text);
    if (address.hasMatch()) {
        return '[' + address.captured(1).toLatin1() + ']';
    }
    const bool isAscii = text.toLatin1() == text.toUtf8();
    const QByteArray ascii = isAscii ? text.toLatin1() : QUrl::toAce(text);
    return name.match(QString::fromLatin1(ascii)).hasMatch() ? ascii : QByteArray();
}

bool readHost(const QString &text, MailServer *server, QString *reason)
{
    if (text.isEmpty()) {
        *reason = words(QT_TRANSLATE_NOOP(
            "QObject", "The mail settings name no server (field 'SMTP Server')."));
        return false;
    }
    server->host = hostFromText(text);
    if (server->host.isEmpty()) {
        *reason =
            words(QT_TRANSLATE_NOOP("QObject", "This is not the name of a mail server: %1"), text);
    }
    return !server->host.isEmpty();
}

bool readPort(qlonglong port, MailServer *server, QString *reason)
{
    if (port > kHighestPort) {
        *reason = words(QT_TRANSLATE_NOOP("QObject", "The mail server's port is above 65535: %1"),
                        QString::number(port));
        return false;
    }
    server->port = port < 1 ? kDefaultPort : int(port);
    return true;
}

bool readSecurity(const QVariant &value, MailServer *server, QString *reason)
{
    static const QHash<QString, MailServer::Security> kWords = {
        {QStringLiteral("NONE"), MailServer::Security::None},
        {QStringLiteral("TLS"), MailServer::Security::StartTls},
        {QStringLiteral("SSL"), MailServer::Security::ImplicitTls},
    };
    if (!value.isValid()) {
        return true;
    }
    const auto found = kWords.constFind(value.toString());
    if (found == kWords.constEnd()) {
        // Nothing goes out in clear because of a word that nobody understands.
        *reason = words(
            QT_TRANSLATE_NOOP("QObject", "The mail settings ask for an unknown encryption: '%1'"),
            value.toString());
        return false;
    }
    server->security = *found;
    return true;
}

bool readLogin(const QString &login, const QString &cipher, MailServer *server, QString *reason)
{
    server->login = login.toUtf8();
    if (login.isEmpty() || cipher.isEmpty()) {
        return true;
    }
    TXError error;
    server->password = TXDataCrypt::decrypt(cipher.toUtf8(), &error);
    if (error.isValid()) {
        *reason = words(QT_TRANSLATE_NOOP("QObject",
                                          "The stored password for the mail server cannot be "
                                          "read, please enter it again. %1"))
                      .arg(error.getLocalizedDescription());
    }
    return !error.isValid();
}

} // namespace

std::optional<MailServer> MailServer::fromSettings(const QHash<QString, QVariant> &settings,
                                                   QString *reason)
{
    const auto value = [&settings](const char *key) {
        return settings[QLatin1String(key)];
    };
    MailServer server;
    const bool isRead = readHost(value("MailServerAddress").toString().trimmed(), &server, reason)
        && readPort(value("MailServerPort").toLongLong(), &server, reason)
        && readSecurity(value("MailWithEncryption"), &server, reason)
        && readLogin(value("MailServerLogin").toString(), value("MailServerPassword").toString(),
                     &server, reason);
    return isRead ? std::optional(server) : std::nullopt;
}

QByteArray MailServer::url() const
{
    const QByteArray scheme = security == Security::ImplicitTls ? "smtps" : "smtp";
    return scheme + "://" + host + ':' + QByteArray::number(port);
}
