#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>

/// How a mail reader that is none of ours understands a mail: Python's own.
///
/// Keys: "subject", "from", "to", "cc", "date" and "id" as text ("" when the header is missing),
/// "time" (the date in seconds since 1970), "names" (the headers' names), "body", "encoding",
/// "type", "charset", "defects" (empty for a mail that keeps to all rules), "longestLine",
/// "longestHeaderLine", "isAscii". "error" instead of all when it fails. Slow for long headers.
inline QJsonObject readMail(const QByteArray &content)
{
    static const QString script = QStringLiteral(R"(
import email, email.header, email.policy, email.utils, json, sys
raw = sys.stdin.buffer.read()
mail = email.message_from_bytes(raw, policy=email.policy.default)
head = raw.split(b"\r\n\r\n", 1)[0]
defects = [str(d) for d in mail.defects]
for value in mail.values():
    defects += [str(d) for d in value.defects]
if b"\n" in raw.replace(b"\r\n", b"") or b"\r" in raw.replace(b"\r\n", b""):
    defects.append("bare line end")
def people(name):
    # Not by the policy: its reader of names puts blanks between encoded words (3.11).
    values = email.message_from_bytes(raw).get_all(name, [])
    decoded = lambda text: str(email.header.make_header(email.header.decode_header(text)))
    return [f"{decoded(who)} <{where}>" if who else where
            for who, where in email.utils.getaddresses(values)]
print(json.dumps({
    "subject": str(mail["subject"] or ""), "from": ", ".join(people("from")),
    "to": ", ".join(people("to")), "cc": ", ".join(people("cc")), "date": str(mail["date"] or ""),
    "time": mail["date"].datetime.timestamp() if mail["date"] else 0,
    "id": str(mail["message-id"] or ""), "names": mail.keys(),
    "body": mail.get_content(), "encoding": str(mail["content-transfer-encoding"]),
    "type": mail.get_content_type(), "charset": mail.get_content_charset(),
    "defects": defects, "isAscii": raw.isascii(),
    "longestLine": max(len(line) for line in raw.split(b"\r\n")),
    "longestHeaderLine": max(len(line) for line in head.split(b"\r\n")),
}))
)");
    QProcess process;
    process.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), script});
    process.write(content);
    process.closeWriteChannel();
    process.waitForFinished();
    const QByteArray error = process.readAllStandardError();
    const QJsonDocument answer = QJsonDocument::fromJson(process.readAllStandardOutput());
    return answer.isObject() ? answer.object()
                             : QJsonObject{{QStringLiteral("error"), QString::fromUtf8(error)}};
}
