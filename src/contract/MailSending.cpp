#include "MailSending.h"

#include "CurlReason.h"
#include "MailMessage.h"
#include "MailServer.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

/// What libcurl still has to read of a mail.
struct Rest
{
    const QByteArray content;
    qsizetype position = 0;
};

size_t readRest(char *buffer, size_t size, size_t count, void *user)
{
    auto *rest = static_cast<Rest *>(user);
    const qsizetype left = rest->content.size() - rest->position;
    const qsizetype bytes = std::min(left, qsizetype(size * count));
    std::memcpy(buffer, rest->content.constData() + rest->position, size_t(bytes));
    rest->position += bytes;
    return size_t(bytes);
}

using TextList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

/// Null without memory.
TextList textList(const QList<QByteArray> &texts)
{
    TextList list(nullptr, curl_slist_free_all);
    curl_slist *last = nullptr;
    for (const QByteArray &text : texts) {
        // Not to the list itself, which would be walked through each time.
        curl_slist *node = curl_slist_append(nullptr, text.constData());
        if (!node) {
            return {nullptr, curl_slist_free_all};
        }
        if (last) {
            last->next = node;
        } else {
            list.reset(node);
        }
        last = node;
    }
    return list;
}

QString words(const char *sentence)
{
    return QCoreApplication::translate("QObject", sentence);
}

/// The given texts, or that of the settings when there are none.
QString listed(const QList<QString> &texts, const QVariant &setting)
{
    return texts.isEmpty() ? setting.toString() : QStringList(texts).join(u',');
}

} // namespace

MailSending::MailSending(const QHash<QString, QVariant> &settings, const QString &body,
                         const QString &subject, const QList<QString> &receivers,
                         const QList<QString> &copyReceivers)
    : settings(settings)
    , body(body)
    , subject(subject)
    , receivers(receivers)
    , copyReceivers(copyReceivers)
{ }

QString MailSending::run()
{
    QString reason;
    const std::optional<MailServer> server = MailServer::fromSettings(settings, &reason);
    if (!server) {
        return reason;
    }
    const std::optional<MailMessage> mail = message(&reason);
    return mail ? send(*server, *mail) : reason;
}

std::optional<MailMessage> MailSending::message(QString *reason) const
{
    const QString from = settings[QStringLiteral("MailSender")].toString();
    const auto to = MailAddress::listFromText(
        listed(receivers, settings[QStringLiteral("MailMainDestination")]), reason);
    const auto copies = MailAddress::listFromText(
        listed(copyReceivers, settings[QStringLiteral("MailCopyDestination")]), reason);
    if (from.trimmed().isEmpty()) {
        *reason =
            words(QT_TRANSLATE_NOOP("QObject", "The mail settings name no sender (field 'From')."));
        return std::nullopt;
    }
    const std::optional<MailAddress> sender = MailAddress::fromText(from, reason);
    if (!sender || !to || !copies) {
        return std::nullopt;
    }
    if (to->isEmpty()) {
        *reason =
            words(QT_TRANSLATE_NOOP("QObject", "The mail settings name no receiver (field 'To')."));
        return std::nullopt;
    }
    return MailMessage{*sender, *to, *copies, subject, body};
}

void MailSending::setUpServer(const MailServer &server)
{
    CURL *easy = transfer.handle();
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(easy, CURLOPT_URL, server.url().constData());
    const bool isStartTls = server.security == MailServer::Security::StartTls;
    curl_easy_setopt(easy, CURLOPT_USE_SSL, long(isStartTls ? CURLUSESSL_ALL : CURLUSESSL_NONE));
    if (!server.login.isEmpty()) {
        transfer.setLogin(server.login, server.password);
    }
}

QString MailSending::send(const MailServer &server, const MailMessage &message)
{
    Rest rest{message.content(QDateTime::currentDateTime())};
    const TextList receiverList = textList(message.envelopeReceivers());
    if (!receiverList) {
        return curlSentence(CURLE_OUT_OF_MEMORY);
    }
    CURL *easy = transfer.handle();
    setUpServer(server);
    curl_easy_setopt(easy, CURLOPT_MAIL_FROM, message.sender.mailbox().constData());
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, receiverList.get());
    curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(easy, CURLOPT_INFILESIZE_LARGE, curl_off_t(rest.content.size()));
    curl_easy_setopt(easy, CURLOPT_READFUNCTION, readRest);
    curl_easy_setopt(easy, CURLOPT_READDATA, &rest);
    return transfer.perform() ? QString() : curlReason(transfer, sentence());
}

QString MailSending::sentence() const
{
    if (transfer.code() != CURLE_SEND_ERROR && transfer.code() != CURLE_WEIRD_SERVER_REPLY) {
        return {};
    }
    // Several refusals have the same code; the words of libcurl tell them apart.
    const QString detail = transfer.detail();
    if (transfer.lastServerLine().startsWith(QLatin1String("530"))) {
        return words(
            QT_TRANSLATE_NOOP("QObject", "The mail server demands a login or encryption."));
    }
    if (detail.startsWith(QLatin1String("MAIL failed"))) {
        return words(QT_TRANSLATE_NOOP("QObject", "The mail server refused the sender's address."));
    }
    if (detail.startsWith(QLatin1String("RCPT failed"))) {
        return words(QT_TRANSLATE_NOOP(
            "QObject",
            "The mail server refused a receiver's address. The mail was sent to nobody."));
    }
    curl_off_t sentBytes = 0;
    curl_easy_getinfo(transfer.handle(), CURLINFO_SIZE_UPLOAD_T, &sentBytes);
    if (detail.startsWith(QLatin1String("DATA failed"))
        || (transfer.code() == CURLE_WEIRD_SERVER_REPLY && sentBytes > 0)) {
        return words(QT_TRANSLATE_NOOP("QObject", "The mail server refused the mail."));
    }
    return {};
}
