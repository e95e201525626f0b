#include "MailAddress.h"

#include "MailHeaderText.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace {

constexpr qsizetype kLongestMailbox = 254;
constexpr qsizetype kLongestPlainName = 30;
constexpr qsizetype kShownCharacters = 80;
constexpr char kBreakRefused[] =
    QT_TRANSLATE_NOOP("QObject", "This mail address holds a line break or a control character: %1");

QString refusal(const char *sentence, const QString &text)
{
    const QString shown =
        text.size() > kShownCharacters ? text.left(kShownCharacters) + u'…' : text;
    return QCoreApplication::translate("QObject", sentence).arg(withoutControls(shown));
}

bool matches(const QString &pattern, const QString &text)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

bool isLocalPart(const QString &text)
{
    static const QString word = QStringLiteral("[A-Za-z0-9!#$%&'*+/=?^_`{|}~.-]+");
    static const QString quoted = QStringLiteral(R"("(?:[ !#-\[\]-~]|\\[ -~])*")");
    return matches(word, text) || matches(quoted, text);
}

/// Empty when the text is no domain.
QByteArray domainFromText(const QString &text)
{
    static const QString literal = QStringLiteral(R"(\[[A-Za-z0-9:.]+\])");
    static const QString name = QStringLiteral("[A-Za-z0-9_-]+(?:[.][A-Za-z0-9_-]+)*");
    const bool isAscii = text.toLatin1() == text.toUtf8();
    const QString ascii = isAscii ? text : QString::fromLatin1(QUrl::toAce(text));
    return matches(literal, ascii) || matches(name, ascii) ? ascii.toLatin1() : QByteArray();
}

/// Only the blanks, as other white space is refused or becomes blanks.
QString withoutBlanksAround(const QString &text)
{
    const auto isOther = [](QChar c) {
        return c != u' ';
    };
    const auto first = std::find_if(text.begin(), text.end(), isOther);
    const auto last = std::find_if(text.rbegin(), std::make_reverse_iterator(first), isOther);
    return QString(first, last.base() - first);
}

QString withoutQuotes(const QString &text)
{
    if (text.size() < 2 || !text.startsWith(u'"') || !text.endsWith(u'"')) {
        return text;
    }
    QString bare;
    for (qsizetype i = 1; i < text.size() - 1; ++i) {
        const bool isEscape = text.at(i) == u'\\' && i + 1 < text.size() - 1;
        bare += text.at(isEscape ? ++i : i);
    }
    return bare;
}

/// The pieces between the separators that stand outside quotes.
QStringList pieces(const QString &list)
{
    QStringList found;
    qsizetype start = 0;
    bool isQuoted = false;
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QChar character = list.at(i);
        if (character == u'\\' && isQuoted) {
            ++i;
        } else if (character == u'"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && (character == u',' || character == u';')) {
            found += withoutBlanksAround(list.mid(start, i - start));
            start = i + 1;
        }
    }
    found += withoutBlanksAround(list.mid(start));
    found.removeAll(QString());
    return found;
}

/// Whether the text before the address in brackets looks like one more receiver, who would get
/// nothing.
bool isAddressOnAnotherLine(const QString &name)
{
    return !name.startsWith(u'"') && name.contains(u'@')
        && std::any_of(name.begin(), name.end(), isControlOrBreak);
}

QByteArray quoted(const QString &name)
{
    QByteArray escaped = name.toLatin1();
    escaped.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + escaped + '"';
}

bool isPlainName(const QString &name)
{
    return name.size() <= kLongestPlainName && name == name.simplified()
        && matches(QStringLiteral("[ -~]*"), name) && !name.contains(QLatin1String("=?"));
}

} // namespace

std::optional<MailAddress> MailAddress::fromText(const QString &text, QString *reason)
{
    const QString bare = withoutBlanksAround(text);
    const qsizetype bracket = bare.endsWith(u'>') ? bare.lastIndexOf(u'<') : -1;
    const QString name = bare.left(std::max<qsizetype>(bracket, 0));
    if (isAddressOnAnotherLine(name)) {
        *reason = refusal(kBreakRefused, text);
        return std::nullopt;
    }
    MailAddress address;
    if (!address.readMailbox(bracket < 0 ? bare : bare.mid(bracket + 1).chopped(1), reason)) {
        return std::nullopt;
    }
    address.owner = withoutQuotes(withoutBlanksAround(withoutControls(name)));
    return address;
}

bool MailAddress::readMailbox(const QString &text, QString *reason)
{
    if (text.size() > kLongestMailbox) {
        *reason = refusal(QT_TRANSLATE_NOOP("QObject", "This mail address is too long: %1"), text);
        return false;
    }
    const qsizetype at = text.lastIndexOf(u'@');
    const QString local = text.left(at);
    if (std::any_of(text.begin(), text.end(), isControlOrBreak)) {
        *reason = refusal(kBreakRefused, text);
        return false;
    }
    domainName = at < 0 ? QByteArray() : domainFromText(text.mid(at + 1));
    if (at >= 0 && local.toLatin1() != local.toUtf8()) {
        *reason =
            refusal(QT_TRANSLATE_NOOP(
                        "QObject",
                        "Letters such as those before the '@' of this address cannot be sent: %1"),
                    text);
        return false;
    }
    localPart = local.toLatin1();
    if (domainName.isEmpty() || !isLocalPart(local) || mailbox().size() > kLongestMailbox) {
        *reason = refusal(QT_TRANSLATE_NOOP("QObject", "This is not a mail address: %1"), text);
        return false;
    }
    return true;
}

std::optional<QList<MailAddress>> MailAddress::listFromText(const QString &text, QString *reason)
{
    QList<MailAddress> addresses;
    const QStringList texts = pieces(text);
    for (const QString &piece : texts) {
        const std::optional<MailAddress> address = fromText(piece, reason);
        if (!address) {
            return std::nullopt;
        }
        addresses.append(*address);
    }
    return addresses;
}

QByteArray MailAddress::headerForm(qsizetype column) const
{
    if (owner.isEmpty()) {
        return mailbox();
    }
    if (isPlainName(owner)) {
        return quoted(owner) + " <" + mailbox() + '>';
    }
    // An encoded word wants a short line, which the address may not leave it.
    return encodedWords(owner, column) + "\r\n <" + mailbox() + '>';
}
