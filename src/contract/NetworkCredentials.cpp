#include "NetworkCredentials.h"

#include "AutoMountNetworkDrive.h"

#include <QRegularExpression>
#include <QUrl>

namespace {

/// gio reads an answer with its line break into 255 characters. The last answer may lose its line
/// break.
constexpr qsizetype kLongestAnswerBytes = 254;
constexpr qsizetype kLongestLastAnswerBytes = 255;

bool breaksTheLine(const QString &text)
{
    return text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar::Null);
}

bool isLonger(const QString &text, qsizetype bytes)
{
    return text.toUtf8().size() > bytes;
}

bool holds(const QString &text, const QString &secret)
{
    return !secret.isEmpty() && text.contains(secret, Qt::CaseInsensitive);
}

/// A short name is a part of many words that tell nothing of it.
bool holdsWord(const QString &text, const QString &word)
{
    const QRegularExpression whole(
        QStringLiteral("(?<!\\w)%1(?!\\w)").arg(QRegularExpression::escape(word)),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return !word.isEmpty() && whole.match(text).hasMatch();
}

} // namespace

NetworkCredentials NetworkCredentials::of(const AutoMountNetworkDrive &drive)
{
    const QUrl url = drive.getUrl();
    return {url.userName(QUrl::FullyDecoded),
            drive.getExtParameters().value(QStringLiteral("NetworkDriveDomain")).toString(),
            url.password(QUrl::FullyDecoded), drive.hasUnreadablePassword()};
}

bool NetworkCredentials::areAnonymous() const
{
    return user.isEmpty() && password.isEmpty();
}

QString NetworkCredentials::problem() const
{
    if (isPasswordUnreadable) {
        return QStringLiteral("its stored password cannot be read; please enter it again");
    }
    if (password.isEmpty() && !areAnonymous()) {
        return QStringLiteral("it has a user name but no password, which gio cannot send");
    }
    if (breaksTheLine(user) || breaksTheLine(domain) || breaksTheLine(password)) {
        return QStringLiteral("user name, domain and password must not have line breaks");
    }
    if (isLonger(user, kLongestAnswerBytes) || isLonger(domain, kLongestAnswerBytes)
        || isLonger(password, kLongestLastAnswerBytes)) {
        return QStringLiteral("user name, domain or password is too long");
    }
    return {};
}

QByteArray NetworkCredentials::answers() const
{
    return user.toUtf8() + '\n' + domain.toUtf8() + '\n' + password.toUtf8() + '\n';
}

bool NetworkCredentials::isIn(const QString &text) const
{
    return holdsWord(text, user) || holds(text, password);
}
