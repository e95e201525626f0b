#include "MailSubject.h"

#include <QList>
#include <QRegularExpression>

namespace {

/// The header's text with its further lines appended, still encoded.
QByteArray subjectHeader(const QByteArray &content)
{
    const QByteArray name = "subject:";
    QByteArray text;
    bool isInside = false;
    qsizetype start = 0;
    while (start < content.size()) {
        const qsizetype end = content.indexOf('\n', start);
        const QByteArray line = content.mid(start, end < 0 ? -1 : end - start);
        const bool isFurtherLine = line.startsWith(' ') || line.startsWith('\t');
        if (line.trimmed().isEmpty() || (isInside && !isFurtherLine)) {
            break;
        }
        if (isInside) {
            text += ' ' + line.trimmed();
        } else if (line.left(name.size()).toLower() == name) {
            isInside = true;
            text = line.mid(name.size()).trimmed();
        }
        start = end < 0 ? content.size() : end + 1;
    }
    return text;
}

QByteArray decodedQuotes(QByteArray text)
{
    text.replace('_', ' ');
    return QByteArray::fromPercentEncoding(text, '=');
}

QString decodedWord(const QRegularExpressionMatch &word)
{
    const QByteArray text = word.captured(2).toLatin1();
    const bool isBase64 = word.captured(1).compare(u"b", Qt::CaseInsensitive) == 0;
    return QString::fromUtf8(isBase64 ? QByteArray::fromBase64(text) : decodedQuotes(text));
}

} // namespace

QString mailSubject(const QByteArray &content)
{
    static const QRegularExpression words(
        QStringLiteral("=\\?(?:utf-8|us-ascii)\\?([bq])\\?([^?\\s]*)\\?="),
        QRegularExpression::CaseInsensitiveOption);
    const QString header = QString::fromUtf8(subjectHeader(content));
    QString subject;
    qsizetype done = 0;
    auto matches = words.globalMatch(header);
    while (matches.hasNext()) {
        const QRegularExpressionMatch word = matches.next();
        const QString between = header.mid(done, word.capturedStart() - done);
        // Blanks between two encoded words belong to the folding.
        if (done == 0 || !between.trimmed().isEmpty()) {
            subject += between;
        }
        subject += decodedWord(word);
        done = word.capturedEnd();
    }
    return subject + header.mid(done);
}
