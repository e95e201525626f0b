#include "ShareSearch.h"

#include "ProgramLines.h"
#include "SearchWarnings.h"
#include "SmbLogin.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// More than anybody can look through; a host that lists without end does not fill the memory.
constexpr int kMostShares = 100'000;

using Kind = SearchWarnings::Kind;

/// The host as smbclient wants it: without brackets around an address.
QString hostOf(const QUrl &url)
{
    const QString host = url.host();
    return host.contains(u':') ? host : url.host(QUrl::FullyEncoded);
}

QUrl shareOf(const QUrl &host, const QString &name)
{
    QUrl share;
    share.setScheme(QStringLiteral("smb"));
    share.setHost(host.host());
    share.setPort(host.port());
    share.setPath(u'/' + name, QUrl::DecodedMode);
    return share;
}

/// A URL lets anything be the network card of an IPv6 address.
bool isUsable(const QUrl &url)
{
    static const QRegularExpression host(QStringLiteral("\\A[A-Za-z0-9._:%-]+\\z"));
    return url.isValid() && hostOf(url).contains(host) && url.port() != 0;
}

QStringList argumentsFor(const QUrl &url, const QString &address, bool hasLogin)
{
    QStringList arguments = {QStringLiteral("--list=") + hostOf(url), QStringLiteral("--grepable")};
    if (url.port() > 0) {
        arguments.append(QStringLiteral("--port=%1").arg(url.port()));
    }
    if (!address.isEmpty()) {
        arguments.append(QStringLiteral("--ip-address=") + address);
    }
    // Without signing a host may take an unknown user for a guest, and answer him.
    arguments += hasLogin ? QStringList{QStringLiteral("--authentication-file=/dev/stdin"),
                                        QStringLiteral("--client-protection=sign")}
                          : QStringList{QStringLiteral("--no-pass"), QStringLiteral("--user=%")};
    return arguments;
}

/// The code by which Samba names a failure; nothing else of what it has written is told, since
/// nobody knows what is in it.
QString codeOf(const QString &error)
{
    static const QRegularExpression pattern(QStringLiteral("\\bNT_STATUS_[A-Z_]{1,60}\\b"));
    return pattern.match(error).captured();
}

Kind kindOf(const QString &error, bool hasLogin)
{
    static const QRegularExpression login(
        QStringLiteral("NT_STATUS_(LOGON_|ACCOUNT_|PASSWORD_|WRONG_PASSWORD|NO_SUCH_USER)"));
    if (error.contains(u"Connection to ")) {
        return Kind::Unreachable;
    }
    if (error.contains(login)) {
        return Kind::WrongLogin;
    }
    if (error.contains(u"NT_STATUS_ACCESS_DENIED")) {
        return hasLogin ? Kind::WrongLogin : Kind::NotAllowed;
    }
    return Kind::Failed;
}

QString textOf(Kind kind)
{
    switch (kind) {
    case Kind::Unreachable:
        return QStringLiteral("The host %1 cannot be reached.");
    case Kind::WrongLogin:
        return QStringLiteral("The host %1 does not accept the user name or the password.");
    case Kind::NotAllowed:
        return QStringLiteral("The host %1 does not list its shares without a password.");
    default:
        return QStringLiteral("The host %1 does not list its shares.");
    }
}

void tellFailure(SearchWarnings *warnings, const QUrl &url, bool hasLogin, const QString &error)
{
    const Kind kind = kindOf(error, hasLogin);
    const QString code = codeOf(error);
    warnings->warn(kind,
                   textOf(kind).arg(hostOf(url))
                       + (code.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(code)));
}

void tellEnd(SearchWarnings *warnings, ProgramLines::End end, const ProgramLines &program,
             const QByteArray &said, const QUrl &url, bool hasLogin)
{
    switch (end) {
    case ProgramLines::End::Finished:
        if (program.exitCode != 0) {
            tellFailure(warnings, url, hasLogin, program.error + QString::fromUtf8(said));
        }
        break;
    case ProgramLines::End::NotInstalled:
        warnings->warn(Kind::NotInstalled,
                       QStringLiteral("Shares cannot be listed: the program smbclient is not "
                                      "installed."));
        break;
    case ProgramLines::End::TimedOut:
        warnings->warn(Kind::TimedOut,
                       QStringLiteral("The host %1 does not answer.").arg(hostOf(url)));
        break;
    case ProgramLines::End::Failed:
        warnings->warn(Kind::Failed,
                       QStringLiteral("Shares cannot be listed: the program smbclient has "
                                      "failed."));
        break;
    case ProgramLines::End::Cancelled:
        break;
    }
}

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

/// Whether a URL's path can hold the name as one part, and whoever shows it a line.
bool isName(const QString &name)
{
    return std::none_of(name.cbegin(), name.cend(), isControl) && !name.isEmpty() && name != u"."
        && name != u".." && !name.contains(u'/') && !name.contains(u'\\')
        && !name.contains(QChar::ReplacementCharacter);
}

void list(const QUrl &host, const QString &address, const SmbLogin &login,
          const std::function<void(const QUrl &)> &found, const std::function<bool()> &cancelled,
          SearchWarnings *warnings, int timeoutMilliseconds)
{
    ProgramLines program;
    program.program = QStringLiteral("smbclient");
    program.arguments = argumentsFor(host, address, !login.isAnonymous()) + login.arguments();
    program.input = login.authenticationFile();
    program.timeoutMilliseconds = timeoutMilliseconds;

    int count = 0;
    QByteArray said;
    const auto take = [&](const QByteArray &line) {
        const std::optional<QString> name = ShareSearch::nameOf(line);
        if (name && ++count <= kMostShares && found) {
            found(shareOf(host, *name));
        }
        // Samba writes some of its troubles here and some to the standard error.
        if (line.contains("NT_STATUS_")) {
            said = line;
        }
    };
    const auto isOver = [&] {
        return count > kMostShares || (cancelled && cancelled());
    };
    tellEnd(warnings, program.read(take, isOver), program, said, host, !login.isAnonymous());
    if (count > kMostShares) {
        warnings->warn(Kind::TooMany,
                       QStringLiteral("The host %1 lists too many shares; the others are left out.")
                           .arg(hostOf(host)));
    }
}

} // namespace

std::optional<QString> ShareSearch::nameOf(const QByteArray &line)
{
    static const QByteArray type = QByteArrayLiteral("Disk|");
    if (!line.startsWith(type)) {
        return {};
    }
    const qsizetype end = line.indexOf('|', type.size());
    if (end < 0) {
        return {};
    }
    const QString name = QString::fromUtf8(line.mid(type.size(), end - type.size()));
    if (!isName(name) || name.endsWith(u'$')) {
        return {};
    }
    return name;
}

void ShareSearch::run(const QUrl &host, const std::function<void(const QUrl &)> &found,
                      const std::function<bool()> &cancelled, SearchWarnings *warnings,
                      int timeoutMilliseconds, const QString &address)
{
    const SmbLogin login(host);
    if (!isUsable(host)) {
        warnings->warn(Kind::UnusableAddress,
                       QStringLiteral("Shares cannot be listed: the address names no host."));
    } else if (!login.isUsable()) {
        warnings->warn(Kind::UnusableAddress,
                       QStringLiteral("The shares of the host %1 cannot be listed: smbclient takes "
                                      "no such user name or domain.")
                           .arg(hostOf(host)));
    } else {
        list(host, address, login, found, cancelled, warnings, timeoutMilliseconds);
    }
}
