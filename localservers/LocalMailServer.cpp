#include "LocalMailServer.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QString nameForScript(LocalMailServer::Security security)
{
    switch (security) {
    case LocalMailServer::Security::Plain:
        break;
    case LocalMailServer::Security::StartTls:
        return QStringLiteral("startTls");
    case LocalMailServer::Security::ImplicitTls:
        return QStringLiteral("implicitTls");
    }
    return QStringLiteral("plain");
}

QString nameForScript(LocalMailServer::Stage stage)
{
    switch (stage) {
    case LocalMailServer::Stage::None:
        break;
    case LocalMailServer::Stage::Greeting:
        return QStringLiteral("GREETING");
    case LocalMailServer::Stage::Ehlo:
        return QStringLiteral("EHLO");
    case LocalMailServer::Stage::StartTls:
        return QStringLiteral("STARTTLS");
    case LocalMailServer::Stage::Auth:
        return QStringLiteral("AUTH");
    case LocalMailServer::Stage::MailFrom:
        return QStringLiteral("MAIL");
    case LocalMailServer::Stage::RcptTo:
        return QStringLiteral("RCPT");
    case LocalMailServer::Stage::Data:
        return QStringLiteral("DATA");
    case LocalMailServer::Stage::EndOfData:
        return QStringLiteral("ENDOFDATA");
    }
    return {};
}

QStringList textsOf(const QJsonArray &array)
{
    QStringList texts;
    for (const QJsonValueConstRef value : array) {
        texts.append(value.toString());
    }
    return texts;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

LocalMailServer::LocalMailServer(QObject *parent)
    : LocalServer(QStringLiteral("mailserver.py"), parent)
{ }

void LocalMailServer::setLogin(const QString &login, const QString &password)
{
    requiredLogin = login;
    requiredPassword = password;
}

void LocalMailServer::setCertificate(const std::shared_ptr<const LocalCertificate> &value)
{
    certificate = value;
}

QString LocalMailServer::certificateFile() const
{
    return certificate ? certificate->certificateFile() : QString();
}

QList<ReceivedMail> LocalMailServer::mails()
{
    readEvents();
    return receivedMails;
}

QString LocalMailServer::prepare()
{
    receivedMails.clear();
    if (security == Security::Plain) {
        return {};
    }
    if (!certificate) {
        certificate = std::make_shared<const LocalCertificate>();
    }
    return certificate->error();
}

QJsonObject LocalMailServer::options() const
{
    return {{QStringLiteral("security"), nameForScript(security)},
            {QStringLiteral("certificate"), certificateFile()},
            {QStringLiteral("key"), certificate ? certificate->keyFile() : QString()},
            {QStringLiteral("login"), requiredLogin},
            {QStringLiteral("password"), requiredPassword},
            {QStringLiteral("refusedSender"), refusedSender},
            {QStringLiteral("refusedReceiver"), refusedReceiver},
            {QStringLiteral("silentAt"), nameForScript(silentAt)}};
}

void LocalMailServer::handleEvent(const QJsonObject &event)
{
    const QJsonObject mail = event.value(u"mail").toObject();
    if (mail.isEmpty()) {
        return;
    }
    const QString path = QDir(folder()).filePath(mail.value(u"file").toString());
    receivedMails.append({mail.value(u"sender").toString(),
                          textsOf(mail.value(u"receivers").toArray()), contentOf(path),
                          mail.value(u"tls").toBool(), mail.value(u"login").toString()});
    emit mailReceived();
}
