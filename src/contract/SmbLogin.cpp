#include "SmbLogin.h"

#include <QCryptographicHash>
#include <QUrl>

#include <algorithm>

namespace {

bool isControl(QChar character)
{
    return character < u' ';
}

bool hasControls(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), isControl);
}

/// The form in which Windows and Samba themselves keep a password.
QByteArray hashOf(const QString &password)
{
    QByteArray bytes;
    bytes.reserve(password.size() * 2);
    for (const QChar unit : password) {
        bytes.append(static_cast<char>(unit.cell())).append(static_cast<char>(unit.row()));
    }
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md4).toHex();
}

} // namespace

SmbLogin::SmbLogin(const QUrl &url)
    : user(url.userName(QUrl::FullyDecoded))
    , password(url.password(QUrl::FullyDecoded))
{
    const auto *end = std::find_if(user.cbegin(), user.cend(),
                                   [](QChar unit) { return unit == u';' || unit == u'\\'; });
    if (end != user.cend()) {
        const qsizetype length = end - user.cbegin();
        domain = user.left(length);
        user.remove(0, length + 1);
    }
}

bool SmbLogin::isUsable() const
{
    const bool isTakenApart = user.contains(u'%') || user.contains(u'/') || user.contains(u'\\');
    const bool isCut = user.startsWith(u' ') || domain.startsWith(u' ');
    return !isTakenApart && !isCut && !hasControls(user) && !hasControls(domain)
        && (domain.isEmpty() || !user.isEmpty());
}

bool SmbLogin::needsHash() const
{
    // The file is read line by line, and blanks before a value do not count there.
    return password.startsWith(u' ') || hasControls(password);
}

QByteArray SmbLogin::authenticationFile() const
{
    if (isAnonymous()) {
        return {};
    }
    QByteArray file = "username=" + user.toUtf8() + '\n';
    if (!domain.isEmpty()) {
        file += "domain=" + domain.toUtf8() + '\n';
    }
    return file + "password=" + (needsHash() ? hashOf(password) : password.toUtf8()) + '\n';
}

QStringList SmbLogin::arguments() const
{
    return needsHash() && !isAnonymous() ? QStringList{QStringLiteral("--pw-nt-hash")}
                                         : QStringList();
}
