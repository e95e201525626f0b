#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class SearchWarnings;

/// The hosts on the network that offer shares, as the avahi-browse program finds them: those that
/// announce the service "_smb._tcp" by multicast DNS.
class TXCORECOMMON_PRIVATE_EXPORT HostSearch
{
public:
    /// A host that was found.
    struct Host
    {
        /// The same for all records of one server: those of its IPv4 and its IPv6 address, of each
        /// of its network cards, of each name that it announces itself by.
        QByteArray key;
        /// Without a path: "smb://nas.local", with the port if it is not 445.
        QUrl url;
        /// Where it answers: "10.0.0.1", "fe80::1%eth0"; empty when that was no address. For
        /// programs that cannot look the name up, which takes a part of the system of its own.
        QString address;
    };

    /// How long a search may take. The program ends by itself after one or two seconds, or five
    /// when a host that has announced itself is gone.
    static constexpr int kDefaultMilliseconds = 15'000;

    /// Runs the search and blocks until it is over. `found` gets each host once, as soon as it is
    /// resolved, 10,000 of them at most; `cancelled` is asked at least each 50 ms, and true ends
    /// the search. Both are called on the calling thread, and may be null. What goes wrong (the
    /// program is not installed, its daemon does not run) becomes a warning.
    static void run(const std::function<void(const Host &)> &found,
                    const std::function<bool()> &cancelled, SearchWarnings *warnings,
                    int timeoutMilliseconds = kDefaultMilliseconds);

    /// The host of a line that avahi-browse prints with --parsable and --resolve; nothing for lines
    /// that tell something else, or that are damaged.
    ///
    /// A name that no URL can hold (blanks, quotes, leading dashes, line breaks, a full stop within
    /// a label), or that a URL takes for an address ("0x7f.1"), gives way to the host's address;
    /// that of a link carries its network card, "smb://[fe80::1%25eth0]".
    [[nodiscard]] static std::optional<Host> hostOf(const QByteArray &line);
};
