#include "HostSearch.h"

#include "ProgramLines.h"
#include "SearchWarnings.h"

#include <QList>
#include <QSet>
#include <QString>

#include <algorithm>

namespace {

constexpr int kUsualPort = 445;
constexpr int kHighestPort = 65'535;
/// More than any network holds whose hosts announce themselves to everybody.
constexpr int kMostHosts = 10'000;
/// Of what the program says, in the log.
constexpr qsizetype kLongestText = 200;

/// The fields of a resolved record; a last one, the texts, may hold anything.
enum Field { Mark, Interface, Protocol, Name, Type, Domain, HostName, Address, Port, kFieldCount };

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The character that an escape stands for: "\." is a full stop, "\032" a blank. Takes the digits
/// that belong to it off the text.
char unescaped(QByteArray::const_iterator *at, QByteArray::const_iterator end)
{
    const auto digits = *at;
    if (end - digits >= 3 && std::all_of(digits, digits + 3, isDigit)) {
        *at += 3;
        return static_cast<char>((digits[0] - '0') * 100 + (digits[1] - '0') * 10 + digits[2]
                                 - '0');
    }
    ++*at;
    return *digits;
}

/// A full stop within a label stays escaped: nothing that takes a name as a text tells it from one
/// between two labels, and the name would be that of another host.
QByteArray plain(const QByteArray &escaped)
{
    QByteArray text;
    text.reserve(escaped.size());
    for (auto at = escaped.cbegin(); at != escaped.cend();) {
        const char character = *at++;
        const bool isEscape = character == '\\' && at != escaped.cend();
        const char meant = isEscape ? unescaped(&at, escaped.cend()) : character;
        text.append(isEscape && meant == '.' ? QByteArray("\\.") : QByteArray(1, meant));
    }
    return text;
}

/// Invalid when the host is none that a URL can hold.
QUrl urlOf(const QString &host, int port)
{
    QUrl url;
    url.setScheme(QStringLiteral("smb"));
    url.setHost(host, QUrl::DecodedMode);
    url.setPort(port == kUsualPort ? -1 : port);
    return url;
}

/// The number that stands there in digits and nothing else; -1 when it is none, or too high.
int numberOf(const QByteArray &text, int highest)
{
    bool isNumber = std::all_of(text.cbegin(), text.cend(), isDigit);
    const int number = isNumber ? text.toInt(&isNumber) : -1;
    return isNumber && number <= highest ? number : -1;
}

/// Numbers with a leading zero are octal to some and decimal to others.
bool isByte(const QByteArray &text)
{
    return numberOf(text, 255) >= 0 && (text.size() == 1 || !text.startsWith('0'));
}

bool isIPv4(const QByteArray &address)
{
    const QList<QByteArray> parts = address.split('.');
    return parts.size() == 4 && std::all_of(parts.cbegin(), parts.cend(), isByte);
}

/// Whether a network card can have this name, as far as a URL is concerned.
bool isCard(const QByteArray &name)
{
    return !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), [](char character) {
        return isDigit(character) || (character >= 'a' && character <= 'z')
            || (character >= 'A' && character <= 'Z') || QByteArray("-_.").contains(character);
    });
}

/// The address as the host of a URL; empty when it is none.
QString addressOf(const QList<QByteArray> &fields)
{
    const QByteArray &address = fields.at(Address);
    const bool isIPv6 = address.contains(':');
    if (!isIPv6 && !isIPv4(address)) {
        return {};
    }
    const bool isOfALink = isIPv6 && address.toLower().startsWith("fe80:");
    if (isOfALink && !isCard(fields.at(Interface))) {
        return {};
    }
    return QString::fromLatin1(isOfALink ? address + '%' + fields.at(Interface) : address);
}

QString nameOf(const QByteArray &hostName)
{
    // A name's last full stop stands for the root of all names.
    return QString::fromUtf8(hostName.endsWith('.') ? hostName.chopped(1) : hostName);
}

bool hasHost(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty();
}

/// "0x7f.1" and "2130706433" are no names: a URL takes them for the address of this machine.
bool hasName(const QUrl &url)
{
    return hasHost(url) && !url.host().contains(u':') && !isIPv4(url.host().toLatin1());
}

/// In one line, as far as anybody reads it: nobody knows what a program says.
QString readable(QString text)
{
    text = text.section(u'\n', 0, 0).simplified();
    text.removeIf([](QChar character) { return !character.isPrint(); });
    return text.left(kLongestText);
}

void tell(SearchWarnings *warnings, SearchWarnings::Kind kind, const char *text)
{
    warnings->warn(kind, QLatin1String(text));
}

void tellFailure(SearchWarnings *warnings, const QString &error)
{
    if (error.contains(u"Daemon not running")
        || error.contains(u"Failed to create client object")) {
        tell(warnings, SearchWarnings::Kind::NoDaemon,
             "The network cannot be searched for hosts: the Avahi daemon does not run.");
    } else {
        warnings->warn(SearchWarnings::Kind::Failed,
                       QStringLiteral("The network cannot be searched for hosts: ")
                           + readable(error));
    }
}

void tellEnd(SearchWarnings *warnings, ProgramLines::End end, const ProgramLines &program)
{
    switch (end) {
    case ProgramLines::End::Finished:
        if (program.exitCode != 0) {
            tellFailure(warnings, program.error);
        }
        break;
    case ProgramLines::End::NotInstalled:
        tell(warnings, SearchWarnings::Kind::NotInstalled,
             "The network cannot be searched for hosts: the program avahi-browse is not "
             "installed.");
        break;
    case ProgramLines::End::TimedOut:
        tell(warnings, SearchWarnings::Kind::TimedOut,
             "Searching the network for hosts has taken too long and was ended.");
        break;
    case ProgramLines::End::Failed:
        tell(warnings, SearchWarnings::Kind::Failed,
             "The network cannot be searched for hosts: the program avahi-browse has failed.");
        break;
    case ProgramLines::End::Cancelled:
        break;
    }
}

} // namespace

std::optional<HostSearch::Host> HostSearch::hostOf(const QByteArray &line)
{
    const QList<QByteArray> fields = line.split(';');
    if (fields.size() < kFieldCount || fields.at(Mark) != "=") {
        return {};
    }
    const int port = numberOf(fields.at(Port), kHighestPort);
    if (port < 1) {
        return {};
    }
    const QByteArray hostName = plain(fields.at(HostName));
    const QUrl byAddress = urlOf(addressOf(fields), port);
    const QUrl byName = urlOf(nameOf(hostName), port);
    const QUrl url = hasName(byName) ? byName : byAddress;
    if (!hasHost(url)) {
        return {};
    }
    const QByteArray server = hostName.isEmpty() ? fields.at(Address) : hostName;
    return Host{server.toLower() + ';' + QByteArray::number(port), url, byAddress.host()};
}

void HostSearch::run(const std::function<void(const Host &)> &found,
                     const std::function<bool()> &cancelled, SearchWarnings *warnings,
                     int timeoutMilliseconds)
{
    ProgramLines program;
    program.program = QStringLiteral("avahi-browse");
    program.arguments = QStringList{QStringLiteral("--parsable"), QStringLiteral("--resolve"),
                                    QStringLiteral("--terminate"), QStringLiteral("--no-db-lookup"),
                                    QStringLiteral("_smb._tcp")};
    program.timeoutMilliseconds = timeoutMilliseconds;

    int count = 0;
    QSet<QByteArray> knownKeys;
    QSet<QUrl> knownUrls;
    const auto isNew = [&](const Host &host) {
        // Two names that no URL can hold may have one address.
        if (knownKeys.contains(host.key) || knownUrls.contains(host.url)) {
            return false;
        }
        knownKeys.insert(host.key);
        knownUrls.insert(host.url);
        return true;
    };
    const auto take = [&](const QByteArray &line) {
        const std::optional<Host> host = hostOf(line);
        if (host && isNew(*host) && ++count <= kMostHosts && found) {
            found(*host);
        }
    };
    const auto isOver = [&] {
        return count > kMostHosts || (cancelled && cancelled());
    };
    tellEnd(warnings, program.read(take, isOver), program);
    if (count > kMostHosts) {
        tell(warnings, SearchWarnings::Kind::TooMany,
             "Searching the network for hosts has found too many of them; the others are left "
             "out.");
    }
}
