#include "MailMessage.h"

#include "MailHeaderText.h"

#include <QSet>
#include <QUuid>

#include <algorithm>

namespace {

constexpr qsizetype kLongestLine = 998;
constexpr qsizetype kBase64Line = 76;
constexpr char kLineEnd[] = "\r\n";

QByteArray header(const QByteArray &name, const QByteArray &value)
{
    return name + ": " + value + kLineEnd;
}

/// One address a line.
QByteArray addressHeader(const QByteArray &name, const QList<MailAddress> &addresses)
{
    QByteArray value;
    for (const MailAddress &address : addresses) {
        const bool isFirst = value.isEmpty();
        value += isFirst ? "" : ",\r\n ";
        value += address.headerForm(isFirst ? name.size() + 2 : 1);
    }
    return header(name, value);
}

QByteArray messageId(const QByteArray &domain)
{
    return '<' + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' + domain + '>';
}

QByteArray withNetworkLineEnds(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    if (!text.endsWith(u'\n')) {
        text += u'\n';
    }
    return text.replace(u'\n', QLatin1String(kLineEnd)).toUtf8();
}

/// Whether every mail server takes the text as it is.
bool isSevenBit(const QByteArray &text)
{
    qsizetype lineStart = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text.at(i));
        if (byte == 0 || byte >= 0x80 || (byte != '\n' && i - lineStart > kLongestLine)) {
            return false;
        }
        lineStart = byte == '\n' ? i + 1 : lineStart;
    }
    return true;
}

QByteArray inLines(const QByteArray &base64)
{
    QByteArray lines;
    lines.reserve(base64.size() + 2 * (base64.size() / kBase64Line + 1));
    for (qsizetype start = 0; start < base64.size(); start += kBase64Line) {
        lines.append(base64.constData() + start, std::min(kBase64Line, base64.size() - start));
        lines += kLineEnd;
    }
    return lines;
}

QByteArray bodyWithItsHeaders(const QString &body)
{
    const QByteArray text = withNetworkLineEnds(body);
    const bool isPlain = isSevenBit(text);
    return header("MIME-Version", "1.0") + header("Content-Type", "text/plain; charset=utf-8")
        + header("Content-Transfer-Encoding", isPlain ? "7bit" : "base64") + kLineEnd
        + (isPlain ? text : inLines(text.toBase64()));
}

} // namespace

QList<QByteArray> MailMessage::envelopeReceivers() const
{
    QList<QByteArray> mailboxes;
    QSet<QByteArray> known;
    const QList<MailAddress> all = receivers + copyReceivers;
    for (const MailAddress &address : all) {
        const QByteArray mailbox = address.mailbox();
        if (!known.contains(mailbox)) {
            known.insert(mailbox);
            mailboxes.append(mailbox);
        }
    }
    return mailboxes;
}

QByteArray MailMessage::content(const QDateTime &date) const
{
    QByteArray text = header("Date", date.toString(Qt::RFC2822Date).toLatin1())
        + header("Message-ID", messageId(sender.domain())) + addressHeader("From", {sender})
        + addressHeader("To", receivers);
    if (!copyReceivers.isEmpty()) {
        text += addressHeader("Cc", copyReceivers);
    }
    text += header("Subject", unstructuredHeader(subject, qstrlen("Subject: ")));
    return text + bodyWithItsHeaders(body);
}
